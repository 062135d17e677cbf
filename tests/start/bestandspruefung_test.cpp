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

#include <chrono>
#include <gtest/gtest.h>
#include <thread>

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

namespace lonvir {

namespace {
// The identity of a file of the folder now.
Dateikennung jetzt(const fs::path& ordner, const std::string& name) {
    return *dateikennung(ordner / name);
}

std::string ffSatzAn(std::string monat, std::size_t satz) {
    std::fill(monat.begin() + static_cast<std::ptrdiff_t>(satz * 541),
              monat.begin() + static_cast<std::ptrdiff_t>((satz + 1) * 541), '\xFF');
    return monat;
}
} // namespace

TEST(Bestandspruefung, EinVermerkterMonatWirdNichtNochEinmalGelesen) {
    test::Musterumgebung m;
    test::Tempordner ablage;
    const fs::path o = m.ordner.pfad();
    test::dateisetzen(o, "L1997P.5", ffSatzAn(test::dateiinhalt(o, "L1997P.5"), 1));
    Pruefvermerk v;
    v.laden(o, pruefregeln, ablage.pfad());
    // Noted as sound with exactly this identity, the file is taken as sound without a look.
    v.eintragen("L1997P.5", jetzt(o, "L1997P.5"));
    EXPECT_FALSE(bestandpruefen(m.s.ordner, 1997, &v));
    // Without the note, or once the file changes, it is read and the damage found.
    ASSERT_TRUE(bestandpruefen(m.s.ordner, 1997));
    test::dateisetzen(o, "L1997P.5", ffSatzAn(test::dateiinhalt(o, "L1997P.5"), 2));
    const auto s = bestandpruefen(m.s.ordner, 1997, &v);
    ASSERT_TRUE(s);
    EXPECT_EQ(s->meldung(), "Die Datei L1997P.5 ist beschädigt: Satz 2 besteht nur aus FF-Bytes. "
                            "Das Programm schreibt nichts in diesen Arbeitsordner.");
}

TEST(Bestandspruefung, DieLaengenWerdenAuchBeiVermerktenDateienGeprueft) {
    test::Musterumgebung m;
    test::Tempordner ablage;
    const fs::path o = m.ordner.pfad();
    const std::string mai = test::dateiinhalt(o, "L1997R.5");
    test::dateisetzen(o, "L1997R.5", mai + std::string(541, '\0'));
    Pruefvermerk v;
    v.laden(o, pruefregeln, ablage.pfad());
    v.eintragen("L1997R.5", jetzt(o, "L1997R.5"));
    const auto s = bestandpruefen(m.s.ordner, 1997, &v);
    ASSERT_TRUE(s);
    EXPECT_EQ(s->datei, "L1997R.5");
}

TEST(Bestandspruefung, NurGesundeUndNichtEbenGeaenderteDateienWerdenVermerkt) {
    test::Musterumgebung m;
    test::Tempordner ablage;
    const fs::path o = m.ordner.pfad();
    Pruefvermerk v;
    v.laden(o, pruefregeln, ablage.pfad());
    // Just written: a second write within the same tick of a coarse clock could keep the
    // identity, so nothing is noted yet.
    EXPECT_FALSE(bestandpruefen(m.s.ordner, 1997, &v));
    EXPECT_FALSE(v.gilt("L1997I.1", jetzt(o, "L1997I.1")));
    std::this_thread::sleep_for(std::chrono::milliseconds(150));
    test::dateisetzen(o, "L1997I.4", ffSatzAn(test::dateiinhalt(o, "L1997I.4"), 0));
    EXPECT_TRUE(bestandpruefen(m.s.ordner, 1997, &v));
    EXPECT_TRUE(v.gilt("L1997I.1", jetzt(o, "L1997I.1")));
    EXPECT_TRUE(v.gilt("Texte.txt", jetzt(o, "Texte.txt")));
    EXPECT_FALSE(v.gilt("L1997I.4", jetzt(o, "L1997I.4")));
}

TEST(Bestandspruefung, GesundGeschriebenSindGanzeSaetzeMitIhremMonat) {
    test::Musterumgebung m;
    const std::string maerz = test::dateiinhalt(m.ordner.pfad(), "L1997I.3");
    const auto bytes = [](const std::string& s) {
        return std::span(reinterpret_cast<const std::uint8_t*>(s.data()), s.size());
    };
    const std::string satz2 = maerz.substr(541, 541);
    EXPECT_TRUE(gesundgeschrieben("L1997I.3", 541, bytes(satz2)));
    EXPECT_TRUE(gesundgeschrieben("l1997i.3", 541, bytes(satz2)));
    EXPECT_TRUE(gesundgeschrieben("L1997I.3", 0, bytes(maerz.substr(0, 2 * 541))));
    EXPECT_TRUE(gesundgeschrieben("L1997I.3", 541, bytes(std::string(541, '\0'))));
    // The month of another file, a record not whole or not where a record begins, FF bytes.
    EXPECT_FALSE(gesundgeschrieben("L1997I.4", 541, bytes(satz2)));
    EXPECT_FALSE(gesundgeschrieben("L1997I.3", 540, bytes(satz2)));
    EXPECT_FALSE(gesundgeschrieben("L1997I.3", 541, bytes(satz2.substr(0, 100))));
    EXPECT_FALSE(gesundgeschrieben("L1997I.3", 541, bytes(std::string(541, '\xFF'))));
    // The year file is checked by its length only.
    EXPECT_TRUE(gesundgeschrieben("L1997I.13", 7, bytes(std::string(3, '\xFF'))));
    // A control character is damage in a name record only.
    const std::string name = "Hans\x01" + std::string(30, ' ');
    EXPECT_FALSE(gesundgeschrieben("Texte.txt", 5000 * 35, bytes(name)));
    EXPECT_FALSE(gesundgeschrieben("TEXTE.TXT", 5999 * 35, bytes(name)));
    EXPECT_TRUE(gesundgeschrieben("Texte.txt", 4999 * 35, bytes(name)));
    EXPECT_TRUE(gesundgeschrieben("Texte.txt", 6000 * 35, bytes(name)));
    EXPECT_TRUE(gesundgeschrieben("Texte.txt", 5000 * 35, bytes(std::string(35, 'x'))));
}

} // namespace lonvir
