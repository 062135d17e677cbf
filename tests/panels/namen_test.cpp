// Names and cost centres: the count, the name search of page 22, the choice of page 4 and the
// gate of page 68.
#include "panels/namen.h"
#include "start/personenanlegen.h"
#include "start/texte.h"
#include "testhilfe.h"

#include <gtest/gtest.h>

namespace lonvir {

namespace {

Form1lage hauptform() {
    Form1lage f;
    f.breite = 12000;
    f.panel3d2breite = 4000;
    f.panel3d2hoehe = 7000;
    return f;
}

struct Seite22 {
    explicit Seite22(Sitzung& s) : t(s, lage) {
        t.linkespalteauffrischen = [this] { ++auffrischungen; };
        s.Tablettseite = 22;
        t.tablettoeffnen();
    }
    void suchen(const std::string& text) {
        t.Text[1].text = text;
        EXPECT_EQ(t.text_KeyPress(1, 13), 0);
    }
    Form1lage lage = hauptform();
    Tablett t;
    int auffrischungen = 0;
};

void namen(Sitzung& s, const std::vector<std::string>& liste) {
    for (std::size_t i = 0; i < liste.size(); ++i)
        textschreiben(s, 5001 + static_cast<int>(i), liste[i]);
    s.anzahlnamen = personenzaehlen(s);
}

} // namespace

TEST(Namen, LeereNamenstabelleGibtNullPersonenUndEinenBrauchbarenSatz) {
    test::LeereUmgebung u;
    namenzaehlen(u.s);
    EXPECT_EQ(u.s.anzahlnamen, 0);
    EXPECT_EQ(gespeichertesaetze(u.s), 1);
    EXPECT_EQ(u.s.datei(1).laenge(), 0);
    EXPECT_TRUE(namensuche(u.s, "").empty());
}

TEST(Namen, EinLeererNameInDerMitteZaehltMit) {
    test::Umgebung u;
    textschreiben(u.s, 5010, "");
    namenzaehlen(u.s);
    EXPECT_EQ(u.s.anzahlnamen, 20);
    textschreiben(u.s, 5020, "");
    namenzaehlen(u.s);
    EXPECT_EQ(u.s.anzahlnamen, 19);
}

TEST(Namen, SeiteMitUeberschriftSuchfeldUndAbbrechen) {
    test::Umgebung u;
    textschreiben(u.s, 4055, "Gefundene Namen");
    Seite22 p(u.s);
    EXPECT_EQ(p.t.zeile[0].text, "Gefundene Namen");
    EXPECT_TRUE(p.t.zeile[0].fett);
    EXPECT_TRUE(p.t.Text[1].sichtbar);
    EXPECT_EQ(p.t.Command2.text, "Abbrechen");
    EXPECT_EQ(p.t.fokus, (Tablettfokus{Tablettfokusart::text, 1}));
    p.t.command2_Click();
    EXPECT_FALSE(p.t.sichtbar);
}

TEST(Namen, LeererSuchtextTrifftAlleNamen) {
    test::Umgebung u;
    EXPECT_EQ(namensuche(u.s, "").size(), 20u);
    Seite22 p(u.s);
    p.suchen("");
    EXPECT_EQ(p.t.trefferzahl, 7);
    EXPECT_EQ(p.t.zeile[9].text, "Es konnten nicht alle gefundenen");
}

TEST(Namen, KeinTrefferMeldetEsInZweiZeilen) {
    test::Umgebung u;
    Seite22 p(u.s);
    p.suchen("Xaver");
    EXPECT_EQ(p.t.trefferzahl, 0);
    EXPECT_EQ(p.t.zeile[9].text, "Die gesuchte Zeichenfolge konnte ");
    EXPECT_EQ(p.t.zeile[10].text, "nicht gefunden werden.");
    EXPECT_EQ(p.t.zeile[9].vordergrund, 8);
    EXPECT_FALSE(p.t.zeile[17].sichtbar);
    EXPECT_EQ(p.auffrischungen, 0);
}

TEST(Namen, EinTrefferMachtDiePersonSofortAktuell) {
    test::Umgebung u;
    namen(u.s, {"Lehmann, Frank", "Schneider, Petra", "Krause, Uwe"});
    Seite22 p(u.s);
    p.suchen("SCHNEID");
    EXPECT_EQ(p.t.trefferzahl, 1);
    EXPECT_EQ(u.s.aktuelleperson, 2);
    EXPECT_EQ(u.s.merkmal[0], 1);
    EXPECT_EQ(p.auffrischungen, 1);
}

TEST(Namen, ZweiBisSechsTrefferZumAnklicken) {
    test::Umgebung u;
    namen(u.s, {"Lehmann, Frank", "Schneider, Petra", "Krause, Uwe", "Wagner, Sabine"});
    Seite22 p(u.s);
    p.suchen("er, ");
    EXPECT_EQ(p.t.trefferzahl, 2);
    EXPECT_EQ(p.t.zeile[9].text, "Ihre Eingabe trifft auf 2 Namen zu.");
    EXPECT_EQ(p.t.zeile[10].text, "(Gewünschtes bitte anklicken)");
    EXPECT_EQ(p.t.zeile[11].text, "Schneider, Petra");
    EXPECT_EQ(p.t.zeile[12].text, "Wagner, Sabine");
    EXPECT_TRUE(p.t.zeile[11].rahmen);
    EXPECT_EQ(p.t.zeile[11].vordergrund, 12);
    EXPECT_FALSE(p.t.zeile[13].sichtbar);
    // The rows lie 250 apart and 50 more for each row, from 800.
    EXPECT_EQ(p.t.zeile[9].lage.oben, 9 * 250 + 800);
    EXPECT_EQ(p.t.zeile[11].lage.oben, 11 * 250 + 100 + 800);
    EXPECT_EQ(p.t.Text[0].text, "2");
    p.t.zeile_Click(10); // the caption is no hit
    EXPECT_EQ(p.auffrischungen, 0);
    p.t.zeile_Click(12);
    EXPECT_EQ(u.s.aktuelleperson, 4);
    EXPECT_EQ(p.auffrischungen, 1);
    EXPECT_TRUE(p.t.sichtbar);
}

TEST(Namen, SiebenTrefferFuellenDenSpeicherUndMeldenNichtAlleAngezeigt) {
    test::Umgebung u;
    namen(u.s, {"Maier, A", "Maier, B", "Maier, C", "Maier, D", "Maier, E", "Maier, F", "Maier, G",
                "Huber, H"});
    Seite22 p(u.s);
    p.suchen("maier");
    EXPECT_EQ(p.t.trefferzahl, 7);
    EXPECT_EQ(p.t.zeile[9].text, "Es konnten nicht alle gefundenen");
    EXPECT_EQ(p.t.zeile[10].text, "Namen angezeigt werden.");
    EXPECT_EQ(p.t.zeile[17].text, "Maier, G");
    EXPECT_TRUE(p.t.zeile[17].sichtbar);
    EXPECT_FALSE(p.t.zeile[18].sichtbar);
    // An eighth hit is counted no further.
    textschreiben(u.s, 5008, "Maier, H");
    p.suchen("maier");
    EXPECT_EQ(p.t.trefferzahl, 7);
    EXPECT_EQ(namensuche(u.s, "maier").size(), 8u);
}

TEST(Namen, Seite4ListetDieKostenstellenAbSatz4800) {
    test::Umgebung u;
    textschreiben(u.s, 4800, "alle Kostenstellen");
    textschreiben(u.s, 4801, "Bauamt");
    textschreiben(u.s, 4802, "");
    textschreiben(u.s, 4803, "Schulamt");
    Form1lage f = hauptform();
    Tablett t(u.s, f);
    u.s.Tablettseite = 4;
    t.tablettoeffnen();
    const Tablettliste& c = t.Combo[0];
    ASSERT_EQ(c.liste.size(), 4u);
    EXPECT_EQ(c.liste[0], "alle Kostenstellen");
    EXPECT_EQ(c.liste[3], "Schulamt");
    EXPECT_EQ(c.position, 0);
    EXPECT_EQ(c.lage, (Lage{100, 3300, 3500, 315}));
    EXPECT_EQ(c.vordergrund, 15);
    EXPECT_EQ(c.hintergrund, 12);
    // The program's own change of the position is no choice.
    t.Combo[0].position = 1;
    t.combo_Click(0);
    EXPECT_TRUE(t.sichtbar);
    t.combo_GotFocus(0);
    t.Combo[0].position = 3;
    t.combo_Click(0);
    EXPECT_FALSE(t.sichtbar);
    EXPECT_EQ(t.kostenstellenauswahl, "Schulamt" + std::string(27, ' '));
    EXPECT_EQ(t.formwunsch, std::optional<std::string>("Form2"));
}

TEST(Namen, Seite68BleibtVorDemReformgesetzFuerBesoldungsordnungAZu) {
    test::Umgebung u;
    u.s.merkmal[4] = 0;
    u.s.merkmal[20] = 5;
    EXPECT_FALSE(reformseiteoffen(u.s));
    u.s.merkmal[20] = 6;
    EXPECT_TRUE(reformseiteoffen(u.s));
    u.s.merkmal[20] = 5;
    u.s.merkmal[4] = 5;
    EXPECT_TRUE(reformseiteoffen(u.s));
    test::Umgebung v(1998);
    v.s.merkmal[4] = 0;
    v.s.merkmal[20] = 0;
    EXPECT_TRUE(reformseiteoffen(v.s));
}

TEST(Namen, Seite68ZeigtKopfVierzehnZeilenUndDieBezuege) {
    test::Umgebung u;
    textschreiben(u.s, 4161, "Reformgesetz ab 1.7.1997");
    textschreiben(u.s, 4170, "Unterschied");
    Form1lage f = hauptform();
    Tablett t(u.s, f);
    u.s.merkmal[4] = 0;
    u.s.merkmal[20] = 6;
    u.s.basis_alt = 300000;
    u.s.basis_neu = 290000;
    u.s.wert[7] = 290000;
    u.s.wert[22] = 310000;
    u.s.Tablettseite = 68;
    t.tablettoeffnen();
    EXPECT_EQ(t.zeile[0].text, "Reformgesetz ab 1.7.1997");
    EXPECT_EQ(t.zeile[9].text, "Unterschied");
    EXPECT_EQ(t.kasten[9].text, "100,00+");
    EXPECT_EQ(t.kasten[4].text, "3.000,00+");
    EXPECT_TRUE(t.zeile[15].sichtbar); // row 7 of the month
    EXPECT_EQ(t.kasten[15].text, "2.900,00+");
    EXPECT_EQ(t.kasten[16].text, "3.100,00+"); // the gross pay
    EXPECT_FALSE(t.zeile[17].sichtbar);
    EXPECT_EQ(t.Command2.text, "Schließen");
    t.command2_Click();
    EXPECT_FALSE(t.sichtbar);
}

} // namespace lonvir
