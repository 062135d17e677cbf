// Deleting the persons of a layer: the warning, names and cost centres, the files, the year.
#include "engine/monatladen.h"
#include "formhilfe.h"
#include "screen/personalloeschen.h"
#include "start/dateisatz.h"
#include "start/satzzugriff.h"
#include "start/start.h"
#include "start/texte.h"
#include "testhilfe.h"

#include <gtest/gtest.h>

#include <map>

namespace lonvir {

namespace {

using Abbild = std::map<std::string, std::string>;

// The thirteen files of a layer and year, byte for byte.
Abbild abbild(const test::Tempordner& t, int jahr, std::int16_t schicht) {
    Abbild a;
    for (int nummer = 1; nummer <= 13; ++nummer) {
        const std::string name = dateiname(nummer, jahr, schicht);
        a[name] = test::dateiinhalt(t.pfad(), name);
    }
    return a;
}

void schicht(Sitzung& s, std::int16_t x) {
    s.schicht = x;
    dateienoeffnen(s);
}

// A store with 25 named persons, a typed amount in every layer, a cost centre renamed and a
// filled set of 1998. Each layer's place of the reload is calculated once, so that the
// reload's own run finds the records as it leaves them.
void bestandfuellen(test::Umgebung& u) {
    Sitzung& s = u.s;
    for (int n = 21; n <= 25; ++n)
        textschreiben(s, 5000 + n, "Person " + std::to_string(n));
    textschreiben(s, 4801, "Bauamt");
    textschreiben(s, 4825, "Kasse");
    for (std::int16_t x : {INFO, PLAN, REAL}) {
        schicht(s, x);
        Personalsatz p = personalsatzlesen(s, 4, 2);
        p.wert[12] = 1000 + x;
        personalsatzschreiben(s, 4, 2, p);
        monatladen(s, 1, 0);
    }
    schicht(s, INFO);
    Sitzung s98;
    s98.ordner = s.ordner;
    s98.jahr = 1998;
    starten(s98);
}

} // namespace

TEST(Personalloeschen, AbbrechenAendertNichts) {
    test::Umgebung u;
    bestandfuellen(u);
    test::Zaehlform form(u.s);
    const Abbild vorher = abbild(u.ordner, 1997, INFO);
    u.dialoge.antworten(Knopf::abbrechen);
    EXPECT_FALSE(personalloeschen(u.s, form));
    ASSERT_EQ(u.dialoge.gezeigt().size(), 1u);
    const Meldung& m = u.dialoge.gezeigt()[0];
    EXPECT_EQ(m.titel, "Personaldaten löschen");
    EXPECT_EQ(m.text,
              "Warnung! Bei Auswahl von  O K  werden   a l l e  bisher für  1997  eingegebenen "
              "Namen und die dazu gehörenden Personaldaten der derzeit aktiven Schicht "
              "(INFO/PLAN/REAL) einschließlich der Kostenstellen gelöscht. Änderungen in den "
              "Tarifdateien und der Textdatei bleiben erhalten.");
    EXPECT_EQ(m.knoepfe, Knoepfe::okAbbrechen);
    EXPECT_EQ(u.s.Tablettseite, 22);
    EXPECT_EQ(abbild(u.ordner, 1997, INFO), vorher);
    EXPECT_EQ(textgetrimmt(u.s, 5025), "Person 25");
    EXPECT_EQ(form.ladungen, 0);
}

TEST(Personalloeschen, LoeschtNurDieAktiveSchichtUndSetztNamenFuerAlleZurueck) {
    test::Umgebung u;
    bestandfuellen(u);
    test::Zaehlform form(u.s);
    const Abbild plan = abbild(u.ordner, 1997, PLAN);
    const Abbild real = abbild(u.ordner, 1997, REAL);
    const Abbild info98 = abbild(u.ordner, 1998, INFO);
    u.dialoge.antworten(Knopf::ok);

    ASSERT_TRUE(personalloeschen(u.s, form));

    EXPECT_EQ(abbild(u.ordner, 1997, PLAN), plan);
    EXPECT_EQ(abbild(u.ordner, 1997, REAL), real);
    EXPECT_EQ(abbild(u.ordner, 1998, INFO), info98);
    // Names and cost centres lie in the shared text table: reset for every layer and year.
    EXPECT_EQ(textgetrimmt(u.s, 4801), "Kostenstelle 1");
    EXPECT_EQ(textgetrimmt(u.s, 4820), "Kostenstelle 20");
    EXPECT_EQ(textgetrimmt(u.s, 4825), "");
    EXPECT_EQ(textgetrimmt(u.s, 5001), "1. Name");
    EXPECT_EQ(textgetrimmt(u.s, 5020), "20. Name");
    EXPECT_EQ(textgetrimmt(u.s, 5021), "");
    EXPECT_EQ(textgetrimmt(u.s, 5025), "");
    EXPECT_EQ(u.s.anzahlnamen, 20);
    // INFO is created anew: 20 persons, person 2's April a new record again.
    EXPECT_EQ(u.s.ordner.laenge("L1997I.4"), 20u * 541);
    EXPECT_EQ(personalsatzlesen(u.s, 4, 2), Personalsatz::neu(3));
    EXPECT_EQ(u.s.jahr, 1997);
    EXPECT_EQ(u.s.schicht, INFO);
    EXPECT_EQ(form.entladungen, 1);
    EXPECT_EQ(form.ladungen, 1);
}

TEST(Personalloeschen, In1998LoeschtDie1998erDateienUndLandetIn1997) {
    test::Umgebung u;
    bestandfuellen(u);
    Sitzung& s = u.s;
    test::Zaehlform form(s);
    s.jahr = 1998;
    schicht(s, PLAN);
    monatladen(s, 1, 0);
    const Abbild info97 = abbild(u.ordner, 1997, INFO);
    const Abbild plan97 = abbild(u.ordner, 1997, PLAN);
    const Abbild real98 = abbild(u.ordner, 1998, REAL);
    u.dialoge.antworten(Knopf::ok);

    ASSERT_TRUE(personalloeschen(s, form));

    EXPECT_EQ(s.jahr, 1997);
    EXPECT_EQ(u.dialoge.gezeigt()[0].text.find("bisher für  1998  eingegebenen"), 49u);
    EXPECT_FALSE(s.ordner.vorhanden("L1998P.5"));
    EXPECT_FALSE(s.ordner.vorhanden("L1998P.13"));
    // The 1997 branch of the open creates L1998P.1 again, empty.
    EXPECT_EQ(s.ordner.laenge("L1998P.1"), 0u);
    EXPECT_EQ(abbild(u.ordner, 1997, INFO), info97);
    EXPECT_EQ(abbild(u.ordner, 1997, PLAN), plan97);
    EXPECT_EQ(abbild(u.ordner, 1998, REAL), real98);
    EXPECT_EQ(textgetrimmt(s, 5021), "");
}

TEST(Personalloeschen, MenueDesAnderenJahresLoeschtNichtsUndZeigtDenHinweis) {
    test::Umgebung u;
    test::Zaehlform form(u.s);
    personalsaetzeklick(u.s, form, 1998);
    ASSERT_EQ(u.dialoge.gezeigt().size(), 1u);
    EXPECT_EQ(u.dialoge.gezeigt()[0].titel, "Personaldaten löschen");
    EXPECT_EQ(u.dialoge.gezeigt()[0].text,
              "Bitte wählen Sie \"1998er-DATEIEN VERWENDEN\" und löschen Sie dann die Dateien.");
    EXPECT_EQ(u.s.Tablettseite, 0);
    EXPECT_EQ(form.ladungen, 0);

    u.s.jahr = 1998;
    personalsaetzeklick(u.s, form, 1997);
    EXPECT_EQ(u.dialoge.gezeigt()[1].text,
              "Bitte wählen Sie \"1997er-DATEIEN VERWENDEN\" und löschen Sie dann die Dateien.");
}

} // namespace lonvir
