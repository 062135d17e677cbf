// lonvir97-cli einstellungen: the settings of the year decoded, and one pick or one typed
// value on a settings page with its store, refused as the window refuses it.
#include "clilauf.h"
#include "testhilfe.h"

#include <gtest/gtest.h>

namespace lonvir {

namespace {

using test::clilauf;
using test::enthaelt;

} // namespace

TEST(CliEinstellungen, ZeigtDieInstalliertenVorgabenEntschluesselt) {
    test::Tempordner t;
    const test::Clilauf l = clilauf("einstellungen --ordner " + t.pfad().string());
    ASSERT_EQ(l.status, 0) << l.aus;
    EXPECT_TRUE(enthaelt(l.aus, "Einstellungen 1997 (Lonvir97.voe, Satz 1)"));
    EXPECT_TRUE(enthaelt(l.aus, "voreinstellung(2) = 8.0000  RV-Beitragssatz  \"20,3 % / 2\""));
    EXPECT_TRUE(enthaelt(l.aus, "rvsatz = 10.1500"));
    EXPECT_TRUE(enthaelt(l.aus, "bmgRvWest = 820000"));
    const test::Clilauf j = clilauf("einstellungen --json --ordner " + t.pfad().string());
    ASSERT_EQ(j.status, 0);
    EXPECT_TRUE(enthaelt(j.aus, "\"eintrag\":\"13,4 % / 2\""));
    EXPECT_TRUE(enthaelt(j.aus, "\"zuwendungsquote2\":93.7800"));
}

TEST(CliEinstellungen, EineAuswahlAufSeite63WirdGespeichert) {
    test::Tempordner t;
    const std::string o = "--leer --ordner " + t.pfad().string();
    const test::Clilauf l =
        clilauf("einstellungen " + o + " --seite 63 --feld 2 --auswahl 1 --json");
    ASSERT_EQ(l.status, 0) << l.aus;
    EXPECT_TRUE(enthaelt(l.aus, "\"rvsatz\":9.8000"));
    EXPECT_TRUE(enthaelt(clilauf("einstellungen " + o).aus, "\"19,6 % / 2\""));
}

TEST(CliEinstellungen, EinePositionAusserhalbDerListeAendertNichts) {
    test::Tempordner t;
    const std::string o = "--leer --ordner " + t.pfad().string();
    ASSERT_EQ(clilauf("einstellungen " + o + " --seite 63 --feld 2 --auswahl 3").status, 0);
    const std::string vorher = test::dateiinhalt(t.pfad(), "Lonvir97.voe");
    const test::Clilauf l =
        clilauf("einstellungen " + o + " --seite 63 --feld 2 --auswahl 11", true);
    EXPECT_EQ(l.status, 2);
    EXPECT_TRUE(enthaelt(l.aus, "hat 11 Einträge, Positionen 0 bis 10.")) << l.aus;
    EXPECT_EQ(test::dateiinhalt(t.pfad(), "Lonvir97.voe"), vorher);
    EXPECT_EQ(clilauf("einstellungen " + o + " --seite 63 --feld 14 --auswahl 0").status, 2);
    EXPECT_EQ(test::dateiinhalt(t.pfad(), "Lonvir97.voe"), vorher);
}

TEST(CliEinstellungen, ZvkBetragUeber20000WirdAbgewiesen) {
    test::Tempordner t;
    const std::string o = "--leer --ordner " + t.pfad().string();
    ASSERT_EQ(clilauf("einstellungen " + o + " --seite 65 --feld 0 --wert 20000").status, 0);
    const std::string vorher = test::dateiinhalt(t.pfad(), "Lonvir97.voe");
    const test::Clilauf l =
        clilauf("einstellungen " + o + " --seite 65 --feld 4 --wert 20001", true);
    EXPECT_EQ(l.status, 2);
    EXPECT_TRUE(enthaelt(l.aus, "Fehler: Ein Betrag über 20.000 ist sicher falsch.")) << l.aus;
    EXPECT_EQ(test::dateiinhalt(t.pfad(), "Lonvir97.voe"), vorher);
    // 20000 went down its block: the steps of the tariff periods 1 to 4 of the West.
    const test::Clilauf z = clilauf("einstellungen " + o);
    EXPECT_TRUE(enthaelt(z.aus, "vorgabewert(5) = 20000 DM"));
    EXPECT_TRUE(enthaelt(z.aus, "vorgabewert(6) = 0 DM"));
}

TEST(CliEinstellungen, QuoteUeber100WirdStill100) {
    test::Tempordner t;
    const std::string o = "--leer --ordner " + t.pfad().string();
    const test::Clilauf l =
        clilauf("einstellungen " + o + " --seite 64 --feld 1 --wert 120,5", true);
    ASSERT_EQ(l.status, 0) << l.aus;
    EXPECT_TRUE(enthaelt(l.aus, "voreinstellung(31) = 100.0000"));
    EXPECT_FALSE(enthaelt(l.aus, ": ")) << l.aus;
}

TEST(CliEinstellungen, Seite61UndFalscheOptionen) {
    test::Tempordner t;
    const std::string o = "--leer --ordner " + t.pfad().string();
    EXPECT_EQ(clilauf("einstellungen " + o + " --seite 61 --feld 1 --wert 3").status, 2);
    EXPECT_EQ(clilauf("einstellungen " + o + " --feld 1 --auswahl 3").status, 2);
    EXPECT_EQ(clilauf("einstellungen " + o + " --seite 63 --feld 1").status, 2);
}

TEST(CliEinstellungen, JedeListeWeistPositionenAusserhalbAb) {
    test::Tempordner t;
    const std::string o = "--leer --ordner " + t.pfad().string();
    ASSERT_EQ(clilauf("anlegen " + o).status, 0);
    const std::string voe = test::dateiinhalt(t.pfad(), "Lonvir97.voe");
    const std::string dim = test::dateiinhalt(t.pfad(), "Lonvir97.dim");
    const std::pair<const char*, const char*> falsch[] = {
        {"--seite 63 --feld 0 --auswahl 42", "hat 42 Einträge"},
        {"--seite 63 --feld 9 --auswahl -1", "hat 13 Einträge"},
        {"--seite 65 --feld 2 --auswahl 11", "hat 11 Einträge"},
        {"--seite 44 --feld 6 --auswahl 13", "hat 13 Einträge"},
        {"--seite 44 --feld 0 --auswahl 0", "hat keine Liste Combo(0)"},
        {"--seite 2 --feld 0 --auswahl 2", "hat 2 Einträge"},
        {"--seite 64 --feld 4 --wert 5", "hat kein Feld Text(4)"},
    };
    for (const auto& [aufruf, meldung] : falsch) {
        const test::Clilauf l = clilauf("einstellungen " + o + " " + aufruf, true);
        EXPECT_EQ(l.status, 2) << aufruf;
        EXPECT_TRUE(enthaelt(l.aus, meldung)) << aufruf << ": " << l.aus;
    }
    EXPECT_EQ(test::dateiinhalt(t.pfad(), "Lonvir97.voe"), voe);
    EXPECT_EQ(test::dateiinhalt(t.pfad(), "Lonvir97.dim"), dim);
}

TEST(CliEinstellungen, StartsperreAufSeite2) {
    test::Tempordner t;
    const std::string o = "--leer --ordner " + t.pfad().string();
    ASSERT_EQ(clilauf("einstellungen " + o + " --seite 2 --feld 0 --auswahl 1").status, 0);
    const std::string dim = test::dateiinhalt(t.pfad(), "Lonvir97.dim");
    ASSERT_GE(dim.size(), 212u);
    EXPECT_EQ(static_cast<std::uint8_t>(dim[204]), 0x10); // 10000 = 0x2710: Currency 1
    EXPECT_EQ(static_cast<std::uint8_t>(dim[205]), 0x27);
}

// The switch of the tax law of 1998 (element 34 of the record of 1998) is shown, off as
// installed: the months of 1998 are computed by the law of 1997.
TEST(CliEinstellungen, ZeigtDenSchalterDesSteuerrechts1998) {
    test::Tempordner t;
    const test::Clilauf l = clilauf("einstellungen --jahr 1998 --ordner " + t.pfad().string());
    ASSERT_EQ(l.status, 0) << l.aus;
    EXPECT_TRUE(enthaelt(l.aus, "steuerrecht1998 = 0")) << l.aus;
    EXPECT_TRUE(enthaelt(l.aus, "Lohnsteuer nach dem Steuerrecht 1997")) << l.aus;
    const test::Clilauf j =
        clilauf("einstellungen --json --jahr 1998 --ordner " + t.pfad().string());
    EXPECT_TRUE(enthaelt(j.aus, "\"steuerrecht1998\":0")) << j.aus;
}

// Page 44 of 1998 sets the switch: Combo(9), "Steuerrecht 1998 anwenden", stored as element 34
// of the record of 1998 alone; the record of 1997 keeps every byte, and its page has no switch.
TEST(CliEinstellungen, Seite44Von1998SchaltetDasSteuerrecht1998) {
    test::Tempordner t;
    const std::string o = " --ordner " + t.pfad().string();
    ASSERT_EQ(clilauf("einstellungen --jahr 1998" + o).status, 0);
    const std::string vorher = test::dateiinhalt(t.pfad(), "Lonvir97.voe");
    const test::Clilauf l =
        clilauf("einstellungen --jahr 1998 --seite 44 --feld 9 --auswahl 1" + o);
    ASSERT_EQ(l.status, 0) << l.aus;
    EXPECT_TRUE(enthaelt(l.aus, "steuerrecht1998 = 1")) << l.aus;
    EXPECT_TRUE(enthaelt(l.aus, "voreinstellung(34) = 1.0000  Steuerrecht 1998 anwenden  "
                                "\"Steuerrecht 1998 anwenden\""))
        << l.aus;
    EXPECT_TRUE(enthaelt(l.aus, "Lohnsteuer nach dem Steuerrecht 1998")) << l.aus;
    const std::string nachher = test::dateiinhalt(t.pfad(), "Lonvir97.voe");
    ASSERT_EQ(nachher.size(), vorher.size());
    // Record 1 (1997) unchanged; record 2 (1998) differs in element 34 only.
    EXPECT_EQ(nachher.substr(0, 648), vorher.substr(0, 648));
    EXPECT_NE(nachher.substr(648, 648), vorher.substr(648, 648));
    const test::Clilauf aus =
        clilauf("einstellungen --jahr 1998 --seite 44 --feld 9 --auswahl 0" + o);
    ASSERT_EQ(aus.status, 0) << aus.aus;
    EXPECT_TRUE(enthaelt(aus.aus, "steuerrecht1998 = 0")) << aus.aus;
    EXPECT_EQ(test::dateiinhalt(t.pfad(), "Lonvir97.voe").substr(648, 648),
              vorher.substr(648, 648));
}

TEST(CliEinstellungen, Seite44Von1997HatKeinenSchalterDesSteuerrechts) {
    test::Tempordner t;
    const std::string o = " --ordner " + t.pfad().string();
    const test::Clilauf l = clilauf("einstellungen --seite 44 --feld 9 --auswahl 1" + o, true);
    EXPECT_EQ(l.status, 2) << l.aus;
    EXPECT_TRUE(enthaelt(l.aus, "hat keine Liste Combo(9)")) << l.aus;
    EXPECT_FALSE(enthaelt(clilauf("einstellungen" + o).aus, "voreinstellung(34)"));
}

} // namespace lonvir
