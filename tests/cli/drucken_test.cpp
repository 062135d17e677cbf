// drucken: bad usage gets a German message and status 2, an unwritable file status 4, and
// nothing is written by halves.
#include "cli/clilauf.h"
#include "testhilfe.h"

#include <gtest/gtest.h>

#include <array>
#include <filesystem>

namespace lonvir::test {
namespace {

namespace fs = std::filesystem;

TEST(CliDrucken, OhneBerichtIstEinAufruffehler) {
    Tempordner t;
    const Clilauf l = clilauf("drucken --ordner " + (t.pfad() / "a").string(), true);
    EXPECT_EQ(l.status, 2);
    EXPECT_TRUE(enthaelt(l.aus, "Welcher Bericht?")) << l.aus;
}

TEST(CliDrucken, EinUnbekannterBerichtIstEinAufruffehlerUndLegtNichtsAn) {
    Tempordner t;
    const fs::path ordner = t.pfad() / "a";
    const Clilauf l = clilauf("drucken gehaltsliste --ordner " + ordner.string(), true);
    EXPECT_EQ(l.status, 2);
    EXPECT_TRUE(enthaelt(l.aus, "Unbekannter Bericht: gehaltsliste.")) << l.aus;
    EXPECT_FALSE(fs::exists(ordner));
}

TEST(CliDrucken, ZweiBerichteSindEinAufruffehler) {
    const Clilauf l = clilauf("drucken brutto netto", true);
    EXPECT_EQ(l.status, 2);
    EXPECT_TRUE(enthaelt(l.aus, "Unerwartetes Argument: netto")) << l.aus;
}

TEST(CliDrucken, AndereBefehleNehmenKeinArgument) {
    const Clilauf l = clilauf("anlegen brutto", true);
    EXPECT_EQ(l.status, 2);
    EXPECT_TRUE(enthaelt(l.aus, "Unerwartetes Argument: brutto")) << l.aus;
}

} // namespace
} // namespace lonvir::test

namespace lonvir::test {
namespace {

namespace fs = std::filesystem;

std::string lesen(const fs::path& p) {
    return dateiinhalt(p.parent_path(), p.filename().string());
}

std::size_t anzahl(const std::string& text, const std::string& teil) {
    std::size_t n = 0;
    for (auto p = text.find(teil); p != std::string::npos; p = text.find(teil, p + 1))
        ++n;
    return n;
}

TEST(CliDrucken, BruttoEinerPersonAlsText) {
    Tempordner t;
    const fs::path aus = t.pfad() / "brutto.txt";
    const Clilauf l = clilauf("drucken brutto --ordner " + (t.pfad() / "a").string() +
                              " --person 2 --monat 1 --aus " + aus.string());
    ASSERT_EQ(l.status, 0) << l.aus;
    const std::string text = lesen(aus);
    EXPECT_TRUE(enthaelt(text, "        JANUAR 1997 für Schneider, Petra\n")) << text;
    EXPECT_TRUE(enthaelt(text, "Allg. Stellenzulage                DM      188,36+")) << text;
    EXPECT_FALSE(enthaelt(text, "A U S Z A H L U N G")) << text;
    EXPECT_EQ(anzahl(text, "\f\n"), 1u);
}

TEST(CliDrucken, OhnePersonJedePersonAufEinerSeiteInEinerDatei) {
    Tempordner t;
    const std::string ordner = (t.pfad() / "a").string();
    const Clilauf personen = clilauf("anlegen --json --ordner " + ordner);
    const fs::path aus = t.pfad() / "netto.txt";
    const Clilauf l =
        clilauf("drucken netto --json --ordner " + ordner + " --monat 3 --aus " + aus.string());
    ASSERT_EQ(l.status, 0) << l.aus;
    const std::string text = lesen(aus);
    const auto p = personen.aus.find("\"personen\":");
    const std::size_t zahl = std::stoul(personen.aus.substr(p + 11));
    EXPECT_GT(zahl, 1u);
    EXPECT_EQ(anzahl(text, "\f\n"), zahl);
    EXPECT_EQ(anzahl(text, "A U S Z A H L U N G"), zahl);
    EXPECT_EQ(anzahl(text, "MÄRZ 1997 für "), zahl);
    EXPECT_TRUE(enthaelt(l.aus, "\"dokumente\":" + std::to_string(zahl))) << l.aus;
}

TEST(CliDrucken, NettoAlsPdfMitDemNamen) {
    Tempordner t;
    const fs::path aus = t.pfad() / "netto.pdf";
    const Clilauf l = clilauf("drucken netto --json --ordner " + (t.pfad() / "a").string() +
                              " --person 2 --monat 1 --format pdf --aus " + aus.string());
    ASSERT_EQ(l.status, 0) << l.aus;
    EXPECT_TRUE(enthaelt(l.aus, "\"seiten\":1")) << l.aus;
    EXPECT_EQ(lesen(aus).substr(0, 5), "%PDF-");
    FILE* rohr = ::popen(("pdftotext " + aus.string() + " -").c_str(), "r");
    std::string text;
    std::array<char, 4096> puffer{};
    while (std::size_t n = std::fread(puffer.data(), 1, puffer.size(), rohr))
        text.append(puffer.data(), n);
    ::pclose(rohr);
    EXPECT_TRUE(enthaelt(text, "JANUAR 1997 für Schneider, Petra")) << text;
    EXPECT_TRUE(enthaelt(text, "A U S Z A H L U N G")) << text;
}

TEST(CliDrucken, Monat13IstEinAufruffehler) {
    Tempordner t;
    const Clilauf l = clilauf(
        "drucken netto --ordner " + (t.pfad() / "a").string() + " --person 2 --monat 13", true);
    EXPECT_EQ(l.status, 2);
    EXPECT_TRUE(enthaelt(l.aus, "--monat muss zwischen 1 und 12 liegen.")) << l.aus;
}

TEST(CliDrucken, EinePersonJenseitsDesBestandsIstEinAufruffehler) {
    Tempordner t;
    const fs::path aus = t.pfad() / "x.txt";
    const Clilauf l = clilauf("drucken ag --ordner " + (t.pfad() / "a").string() +
                                  " --person 999 --monat 1 --aus " + aus.string(),
                              true);
    EXPECT_EQ(l.status, 2);
    EXPECT_TRUE(enthaelt(l.aus, "Person 999 gibt es nicht")) << l.aus;
    EXPECT_FALSE(fs::exists(aus));
}

TEST(CliDrucken, EineNichtSchreibbareAusgabeIstStatus4UndLaesstNichtsHalbes) {
    Tempordner t;
    const fs::path aus = t.pfad() / "fehlt" / "x.pdf";
    const Clilauf l = clilauf("drucken ag --ordner " + (t.pfad() / "a").string() +
                                  " --person 2 --monat 1 --format pdf --aus " + aus.string(),
                              true);
    EXPECT_EQ(l.status, 4);
    EXPECT_TRUE(enthaelt(l.aus, "Datei " + aus.string() +
                                    ": kann nicht geschrieben werden (der Ordner ist nicht "
                                    "vorhanden)."))
        << l.aus;
    EXPECT_FALSE(fs::exists(aus.parent_path()));
}

TEST(CliDrucken, EinStatementGibtEsNichtAlsCsv) {
    Tempordner t;
    const Clilauf l =
        clilauf("drucken netto --ordner " + (t.pfad() / "a").string() + " --format csv", true);
    EXPECT_EQ(l.status, 2);
    EXPECT_TRUE(enthaelt(l.aus, "Den Bericht netto gibt es nicht als CSV")) << l.aus;
}

TEST(CliDrucken, EinUnbekanntesFormatIstEinAufruffehler) {
    Tempordner t;
    const Clilauf l = clilauf(
        "drucken netto --ordner " + (t.pfad() / "a").string() + " --monat 1 --format doc", true);
    EXPECT_EQ(l.status, 2);
    EXPECT_TRUE(enthaelt(l.aus, "--format muss text, pdf oder csv sein")) << l.aus;
}

} // namespace
} // namespace lonvir::test
