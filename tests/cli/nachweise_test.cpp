// lonvir97-cli drucken beitragsnachweis|lohnsteuernachweis: the statements of a month as
// text (the golden texts of the sample staff), PDF and CSV, and the refusals.
#include "cli/clilauf.h"
#include "testhilfe.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>

namespace lonvir::test {
namespace {

namespace fs = std::filesystem;

std::string datei(const fs::path& p) {
    std::ifstream ein(p, std::ios::binary);
    return {std::istreambuf_iterator<char>(ein), {}};
}

const fs::path golden = fs::path(LONVIR_QUELLEN) / "tests" / "reports" / "golden";

struct CliNachweis : ::testing::Test {
    Tempordner t;
    std::string ordner() const { return " --ordner " + (t.pfad() / "a").string(); }
    fs::path aus(const std::string& name) const { return t.pfad() / name; }
};

} // namespace

TEST_F(CliNachweis, TextIstDerGoldeneText) {
    for (auto [bericht, monat, name] :
         {std::tuple{"beitragsnachweis", 1, "beitragsnachweis-januar.txt"},
          std::tuple{"lohnsteuernachweis", 12, "lohnsteuernachweis-dezember.txt"}}) {
        const fs::path ziel = aus(name);
        const Clilauf l = clilauf(std::string("drucken ") + bericht + " --monat " +
                                      std::to_string(monat) + ordner() + " --aus " + ziel.string(),
                                  true);
        ASSERT_EQ(l.status, 0) << l.aus;
        EXPECT_EQ(datei(ziel), datei(golden / name)) << name;
    }
}

TEST_F(CliNachweis, CsvMitKopfPersonenUndSummenzeile) {
    const fs::path ziel = aus("lst.csv");
    const Clilauf l = clilauf("drucken lohnsteuernachweis --monat 1 --format csv" + ordner() +
                                  " --aus " + ziel.string(),
                              true);
    ASSERT_EQ(l.status, 0) << l.aus;
    const std::string csv = datei(ziel);
    ASSERT_TRUE(csv.starts_with("\xEF\xBB\xBFPerson;Name;Lohnsteuer;")) << csv;
    // The sample staff's January: Petra Schneider's 676,83 of wage tax is in her row.
    EXPECT_TRUE(enthaelt(csv, ";Schneider, Petr;676,83;50,76;60,91;")) << csv;
    EXPECT_TRUE(enthaelt(csv, "\r\n;Summe;")) << csv;
}

TEST_F(CliNachweis, PdfMitEingebetteterSchrift) {
    const fs::path ziel = aus("beitrag.pdf");
    const Clilauf l = clilauf("drucken beitragsnachweis --monat 1 --format pdf" + ordner() +
                                  " --aus " + ziel.string(),
                              true);
    ASSERT_EQ(l.status, 0) << l.aus;
    const std::string pdf = datei(ziel);
    EXPECT_TRUE(pdf.starts_with("%PDF-"));
    EXPECT_TRUE(enthaelt(pdf, "/FontFile2")) << "no embedded TrueType font";
}

TEST_F(CliNachweis, MonatDreizehnIstEinAufruffehler) {
    const fs::path ziel = aus("x.txt");
    const Clilauf l =
        clilauf("drucken beitragsnachweis --monat 13" + ordner() + " --aus " + ziel.string(), true);
    EXPECT_EQ(l.status, 2);
    EXPECT_FALSE(fs::exists(ziel));
}

} // namespace lonvir::test
