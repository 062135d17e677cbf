// tarif, text and suchen on the command line: the handlers of the tariff editor, the text
// editor and the name search, with their limits and messages.
#include "testhilfe.h"

#include "cli/clilauf.h"

#include <gtest/gtest.h>

#include <string>

namespace lonvir {

namespace {

using test::enthaelt;

test::Clilauf cli(const std::string& argumente) {
    return test::clilauf(argumente, true);
}

struct Ordner {
    // The installation data: the sample staff and the published tables.
    Ordner() { cli("anlegen " + o); }
    test::Tempordner t;
    std::string o = "--ordner " + t.pfad().string();
};

} // namespace

TEST(TarifBefehl, ZeigtEinenSatzMitSeinenSpalten) {
    Ordner d;
    const test::Clilauf l = cli("tarif " + d.o + " --datei 1 --nummer 79");
    EXPECT_EQ(l.status, 0) << l.aus;
    EXPECT_TRUE(enthaelt(l.aus, "LONVIR    1 9 9 7 _ 1  (Grundgeh., OZ, Allg.St.Z.)")) << l.aus;
    EXPECT_TRUE(enthaelt(l.aus, "Stufe 15 o.a.")) << l.aus;
    EXPECT_TRUE(enthaelt(l.aus, "\n26  Überst.Verg.    ")) << l.aus;
    EXPECT_TRUE(enthaelt(l.aus, "\n 0  Stufe 1         ")) << l.aus;
}

TEST(TarifBefehl, AendertDurchDieSpaeterenTabellen) {
    Ordner d;
    const std::string datei1 = test::dateiinhalt(d.t.pfad(), "Lonvir97.1tr");
    const test::Clilauf l = cli("tarif " + d.o + " --datei 1 --nummer 79 --feld 0 --betrag 123");
    EXPECT_EQ(l.status, 0) << l.aus;
    EXPECT_NE(test::dateiinhalt(d.t.pfad(), "Lonvir97.1tr"), datei1);
    for (int datei = 1; datei <= 4; ++datei) {
        const test::Clilauf z =
            cli("tarif " + d.o + " --datei " + std::to_string(datei) + " --nummer 79 --json");
        EXPECT_TRUE(enthaelt(z.aus, "{\"feld\":0,\"spalte\":\"Stufe 1\",\"betrag\":123}"))
            << datei << z.aus;
    }
}

TEST(TarifBefehl, NeunmalNeunWirdMitDerMeldungAbgelehnt) {
    Ordner d;
    const std::string datei2 = test::dateiinhalt(d.t.pfad(), "Lonvir97.2tr");
    const test::Clilauf l =
        cli("tarif " + d.o + " --datei 2 --nummer 81 --feld 3 --betrag 9999999");
    EXPECT_EQ(l.status, 2);
    EXPECT_TRUE(enthaelt(l.aus, "Enter a number less than 32.768")) << l.aus;
    EXPECT_TRUE(enthaelt(l.aus, "Der Betrag wurde nicht gespeichert.")) << l.aus;
    EXPECT_EQ(test::dateiinhalt(d.t.pfad(), "Lonvir97.2tr"), datei2);
    EXPECT_EQ(cli("tarif " + d.o + " --datei 2 --nummer 81 --feld 3 --betrag 12,5").status, 2);
    EXPECT_EQ(cli("tarif " + d.o + " --datei 5 --nummer 81").status, 2);
    EXPECT_EQ(cli("tarif " + d.o + " --datei 1 --nummer 295").status, 2);
}

TEST(TarifBefehl, Jahr1998SchreibtInDieTabellenVon1998) {
    Ordner d;
    const std::string tabelle97 = test::dateiinhalt(d.t.pfad(), "Lonvir97.4tr");
    const test::Clilauf l =
        cli("tarif " + d.o + " --jahr 1998 --datei 4 --nummer 379 --feld 26 --betrag 2500 --json");
    EXPECT_EQ(l.status, 0) << l.aus;
    EXPECT_TRUE(enthaelt(l.aus, "\"jahr\":1998,\"datei\":4,\"nummer\":379")) << l.aus;
    EXPECT_TRUE(enthaelt(l.aus, "{\"feld\":26,\"spalte\":\"Überst.Verg.\",\"betrag\":2500}"))
        << l.aus;
    EXPECT_EQ(test::dateiinhalt(d.t.pfad(), "Lonvir97.4tr"), tabelle97);
}

TEST(TextBefehl, ZeigtUndSetztEinenText) {
    Ordner d;
    const test::Clilauf l = cli("text " + d.o + " --nummer 5002 --json");
    EXPECT_EQ(l.status, 0);
    EXPECT_TRUE(enthaelt(l.aus, "\"text\":\"Schneider, Petra\"")) << l.aus;
    EXPECT_TRUE(enthaelt(l.aus, "\"gruppe\":\"Namen der Bediensteten\"")) << l.aus;
    const test::Clilauf s = cli("text " + d.o + " --nummer 5002 --setzen 'Schneider-Roth, Petra'");
    EXPECT_EQ(s.status, 0) << s.aus;
    EXPECT_TRUE(enthaelt(s.aus, "5002  Schneider-Roth, Petra")) << s.aus;
    const test::Clilauf z = cli("suchen " + d.o + " --name roth");
    EXPECT_EQ(z.aus, "2  Schneider-Roth, Petra\n");
}

TEST(TextBefehl, ZeichenAusserhalbDerCodeseiteWirdAbgewiesen) {
    Ordner d;
    const test::Clilauf s = cli("text " + d.o + " --nummer 3391 --setzen 'Zulage ≥ 5'");
    EXPECT_EQ(s.status, 2);
    EXPECT_TRUE(enthaelt(s.aus, "kann in der Texttabelle nicht gespeichert werden")) << s.aus;
    EXPECT_FALSE(enthaelt(s.aus, "3391  Zulage")) << s.aus;
}

TEST(SuchenBefehl, FindetNamensteileOhneGrossKlein) {
    Ordner d;
    const test::Clilauf l = cli("suchen " + d.o + " --name ER,");
    EXPECT_EQ(l.status, 0);
    EXPECT_TRUE(enthaelt(l.aus, "2  Schneider, Petra\n")) << l.aus;
    EXPECT_TRUE(enthaelt(l.aus, "4  Wagner, Sabine\n")) << l.aus;
    const test::Clilauf j = cli("suchen " + d.o + " --name '' --json");
    EXPECT_TRUE(enthaelt(j.aus, "\"anzahl\":20")) << j.aus;
    const test::Clilauf n = cli("suchen " + d.o + " --name Xaver");
    EXPECT_TRUE(enthaelt(n.aus, "nicht gefunden")) << n.aus;
}

} // namespace lonvir
