// The checks of the store at open: what the program writes passes, what no run could have
// written is damage.
#include "engine/monatladen.h"
#include "screen/eingabe.h"
#include "screen/uebertragung.h"
#include "start/bestandspruefung.h"
#include "start/einstellungen.h"
#include "start/start.h"
#include "start/texte.h"
#include "testhilfe.h"

#include <gtest/gtest.h>

namespace lonvir {

namespace {
namespace fs = std::filesystem;
} // namespace

TEST(Bestandspruefung, EinLeererOrdnerUndEinNeuerBestandSindKeinSchaden) {
    test::Tempordner t;
    EXPECT_FALSE(bestandpruefen(Arbeitsordner(t.pfad()), 1997));
    test::Umgebung u; // created by the first start without installation data
    EXPECT_FALSE(bestandpruefen(u.s.ordner, 1997));
    EXPECT_FALSE(bestandpruefen(u.s.ordner, 1998));
}

TEST(Bestandspruefung, WasDasProgrammSchreibtIstNieEinSchaden) {
    test::Musterumgebung m;
    EXPECT_FALSE(bestandpruefen(m.s.ordner, 1997));
    monatladen(m.s, 3, 1);
    betragbestaetigen(m.s, 12, 2500);
    m.s.aktuelleperson = 3;
    uebertragen(m.s, INFO, PLAN);
    monatladen(m.s, 5, 12); // the year view stores nothing
    EXPECT_FALSE(bestandpruefen(m.s.ordner, 1997));
}

TEST(Bestandspruefung, EinKuerzererJanuarIstSchaden) {
    test::Musterumgebung m;
    const std::string januar = test::dateiinhalt(m.ordner.pfad(), "L1997P.1");
    test::dateisetzen(m.ordner.pfad(), "L1997P.1", januar.substr(0, januar.size() - 541));
    const auto s = bestandpruefen(m.s.ordner, 1997);
    ASSERT_TRUE(s);
    EXPECT_EQ(s->datei, "L1997P.1");
    EXPECT_EQ(s->grund.rfind("die Datei hält nur ", 0), 0U) << s->grund;
}

TEST(Bestandspruefung, EinLaengererMonatIstSchaden) {
    test::Musterumgebung m;
    const std::string mai = test::dateiinhalt(m.ordner.pfad(), "L1997R.5");
    test::dateisetzen(m.ordner.pfad(), "L1997R.5", mai + std::string(541, '\0'));
    const auto s = bestandpruefen(m.s.ordner, 1997);
    ASSERT_TRUE(s);
    EXPECT_EQ(s->datei, "L1997R.5");
}

TEST(Bestandspruefung, EinZerrissenerSatzIstSchaden) {
    test::Musterumgebung m;
    const std::string mai = test::dateiinhalt(m.ordner.pfad(), "L1997I.5");
    test::dateisetzen(m.ordner.pfad(), "L1997I.5", mai + std::string(100, '\0'));
    const auto s = bestandpruefen(m.s.ordner, 1997);
    ASSERT_TRUE(s);
    EXPECT_EQ(s->meldung(), "Die Datei L1997I.5 ist beschädigt: die Länge von " +
                                std::to_string(mai.size() + 100) +
                                " Bytes ist kein Vielfaches von 541; der letzte Satz ist "
                                "unvollständig. Das Programm schreibt nichts in diesen "
                                "Arbeitsordner.");
}

TEST(Bestandspruefung, EineJahresdateiMitAndererPersonenzahlIstSchaden) {
    test::Musterumgebung m;
    const std::string jahr = test::dateiinhalt(m.ordner.pfad(), "L1997I.13");
    test::dateisetzen(m.ordner.pfad(), "L1997I.13", jahr.substr(0, jahr.size() - 1280));
    const auto s = bestandpruefen(m.s.ordner, 1997);
    ASSERT_TRUE(s);
    EXPECT_EQ(s->datei, "L1997I.13");
}

TEST(Bestandspruefung, EinNullsatzIstKeinSchaden) {
    // A transfer of a person past the end of its source writes zeros: the program's own bytes.
    test::Musterumgebung m;
    std::string juli = test::dateiinhalt(m.ordner.pfad(), "L1997I.7");
    std::fill(juli.begin() + 541, juli.begin() + 2 * 541, '\0');
    test::dateisetzen(m.ordner.pfad(), "L1997I.7", juli);
    EXPECT_FALSE(bestandpruefen(m.s.ordner, 1997));
}

TEST(Bestandspruefung, JedeArtDerStartsperreBleibtEinGueltigerWert) {
    // The lock of 2 counts as 0 in memory and holds the start, one below 0 holds it too: the
    // start's own branches, not damage; the start reports them.
    Dimsatz d;
    for (int z = 0; z <= 45; ++z)
        d.zeilenfarbe[z] = 14;
    d.passwortart = Currency::ganz(2);
    EXPECT_FALSE(dimpruefen(d));
    d.passwortart = Currency::roh(-1);
    EXPECT_FALSE(dimpruefen(d));
    d.passwortart = Currency::ganz(0);
    d.form1width = Currency::ganz(5'000'000);
    EXPECT_EQ(dimpruefen(d),
              "eine Fensterlage liegt mit 5000000.0000 Twips außerhalb jedes Bildschirms");
}

TEST(Bestandspruefung, DieVorgabenDerInstallationBestehenDiePruefung) {
    test::Musterumgebung m;
    for (std::int16_t jahr : {1997, 1998}) {
        m.s.jahr = jahr;
        voelesen(m.s);
        EXPECT_FALSE(m.s.voeGesperrt) << jahr;
    }
    EXPECT_FALSE(m.s.dimGesperrt);
    EXPECT_TRUE(m.dialoge.gezeigt().empty());
}

TEST(Bestandspruefung, EinZerbrochenerVoesatzGibtDieVorgabenUndWirdNichtUeberschrieben) {
    test::Musterumgebung m;
    std::string voe = test::dateiinhalt(m.ordner.pfad(), "Lonvir97.voe");
    voe.replace(260 + 8 * 4, 8, std::string(8, '\x7F')); // the ceiling KV West
    test::dateisetzen(m.ordner.pfad(), "Lonvir97.voe", voe);
    SkriptDialoge d;
    Sitzung s;
    s.ordner = m.s.ordner;
    s.dialoge = &d;
    ASSERT_EQ(starten(s), Startergebnis::hauptform);
    ASSERT_EQ(d.gezeigt().size(), 1U);
    EXPECT_EQ(d.gezeigt()[0].titel, "Einstellungen beschädigt");
    EXPECT_EQ(d.gezeigt()[0].text.rfind("Satz 1 der Datei Lonvir97.voe ist beschädigt: die "
                                        "Voreinstellung 4 ist ",
                                        0),
              0U)
        << d.gezeigt()[0].text;
    // The base values of an empty record: 6000 DM.
    EXPECT_EQ(s.einstellungen.bmgKvWest, 600000);
    monatladen(s, 2, 3);
    betragbestaetigen(s, 12, 100);
    EXPECT_EQ(test::dateiinhalt(m.ordner.pfad(), "Lonvir97.voe"), voe);
}

TEST(Bestandspruefung, EinZerbrochenerDimsatzHaeltDenStartNichtAn) {
    test::Musterumgebung m;
    std::string dim = test::dateiinhalt(m.ordner.pfad(), "Lonvir97.dim");
    dim.replace(0, 232, std::string(232, '\xFF'));
    test::dateisetzen(m.ordner.pfad(), "Lonvir97.dim", dim);
    SkriptDialoge d;
    Sitzung s;
    s.ordner = m.s.ordner;
    s.dialoge = &d;
    EXPECT_EQ(starten(s), Startergebnis::hauptform);
    EXPECT_EQ(d.gezeigt().size(), 1U);
    EXPECT_EQ(s.dim.passwortart, Currency::ganz(0));
    dimschreiben(s);
    EXPECT_EQ(test::dateiinhalt(m.ordner.pfad(), "Lonvir97.dim"), dim);
}

TEST(Bestandspruefung, EinGetippterNameBekommtKeinSteuerzeichen) {
    test::Musterumgebung m;
    textschreiben(m.s, 5003, "Anna\tBerg\x01");
    EXPECT_EQ(textgetrimmt(m.s, 5003), "Anna Berg");
    EXPECT_FALSE(textepruefen(m.s.ordner));
}

} // namespace lonvir
