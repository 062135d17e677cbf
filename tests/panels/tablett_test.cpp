// The panel framework: width rule, placement, clearing, dispatch, the ways back, form events.
#include "panels/tablett.h"
#include "testhilfe.h"

#include <gtest/gtest.h>

namespace lonvir {

namespace {

// Form1 at (1000, 500), 12000 wide; the result column 7000 high; rows 4, 5, 19 of the left
// column at 1200, 1450 and 4950.
Form1lage hauptform(int panel3d2breite) {
    Form1lage f;
    f.links = 1000;
    f.oben = 500;
    f.breite = 12000;
    f.panel3d1breite = 8000;
    f.panel3d2breite = panel3d2breite;
    f.panel3d2hoehe = 7000;
    f.zeile4oben = 1200;
    f.zeile5oben = 1450;
    f.zeile19oben = 4950;
    return f;
}

bool allesverborgen(const Tablett& t) {
    for (int i = 0; i <= 17; ++i)
        if (t.Text[i].sichtbar || t.Combo[i].sichtbar)
            return false;
    for (int i = 0; i <= 28; ++i)
        if (t.zeile[i].sichtbar || t.kasten[i].sichtbar)
            return false;
    return !t.Command1.sichtbar && !t.Command2.sichtbar && !t.Command3.sichtbar &&
           !t.Command4.sichtbar && !t.Grid1.sichtbar && !t.Grid2.sichtbar && !t.HScroll1.sichtbar &&
           !t.HScroll2.sichtbar && !t.HScroll3.sichtbar;
}

void oeffnen(Tablett& t, int seite) {
    t.s.Tablettseite = static_cast<std::int16_t>(seite);
    t.tablettoeffnen();
}

} // namespace

TEST(Tablett, BreiteVonGenau3200Gibt3200) {
    test::Umgebung u;
    Form1lage f = hauptform(3200);
    Tablett t(u.s, f);
    oeffnen(t, 29);
    EXPECT_EQ(t.Tablettbreite, 3200);
    // Right edge of the main form: 1000 + 12000 - 3200; 640 below its top.
    EXPECT_EQ(t.lage, (Lage{9800, 1140, 3200, 7000}));
    EXPECT_FALSE(f.panel3d2sichtbar);
    EXPECT_TRUE(t.sichtbar);
}

TEST(Tablett, BreiteMindestens3200SonstDieDerErgebnisspalte) {
    test::Umgebung u;
    Form1lage f = hauptform(3199);
    Tablett t(u.s, f);
    oeffnen(t, 8);
    EXPECT_EQ(t.Tablettbreite, 3200);
    f.panel3d2breite = 4000;
    for (int seite : {2, 22, 35}) {
        oeffnen(t, seite);
        EXPECT_EQ(t.Tablettbreite, 4000) << seite;
    }
    // Page 7 has its own minimum of 4550.
    oeffnen(t, 7);
    EXPECT_EQ(t.Tablettbreite, 4550);
    f.panel3d2breite = 5000;
    oeffnen(t, 7);
    EXPECT_EQ(t.Tablettbreite, 5000);
}

TEST(Tablett, SeitenOhneBreiteregelBehaltenDieLetzteBreite) {
    test::Umgebung u;
    Form1lage f = hauptform(3600);
    Tablett t(u.s, f);
    // Before any page set a width, a first page outside the rule takes the rule's width:
    // page 6 opened first covers the result column of 3600.
    oeffnen(t, 6);
    EXPECT_EQ(t.Tablettbreite, 3600);
    EXPECT_EQ(t.lage.breite, 3600);
    oeffnen(t, 29);
    f.panel3d2breite = 5000;
    for (int seite : {6, 23, 44, 61}) {
        oeffnen(t, seite);
        EXPECT_EQ(t.Tablettbreite, 3600) << seite;
        EXPECT_EQ(t.lage.links, 1000 + 12000 - 3600) << seite;
    }
}

TEST(Tablett, SeiteUnter2OderUeber72WirdNurGeleertUndPlatziert) {
    test::Umgebung u;
    Form1lage f = hauptform(3300);
    Tablett t(u.s, f);
    oeffnen(t, 29);
    ASSERT_TRUE(t.zeile[5].sichtbar);
    for (int seite : {1, 0, -3, 73, 100}) {
        f.panel3d2sichtbar = true;
        oeffnen(t, seite);
        EXPECT_TRUE(allesverborgen(t)) << seite;
        EXPECT_EQ(t.Tablettbreite, 3300) << seite;
        EXPECT_EQ(t.lage, (Lage{9700, 1140, 3300, 7000})) << seite;
        EXPECT_FALSE(f.panel3d2sichtbar) << seite;
        EXPECT_EQ(t.kasten[5].text, "") << seite;
    }
}

TEST(Tablett, SchiebermodusLiegtUeberDerLinkenSpalte) {
    test::Umgebung u;
    Form1lage f = hauptform(3200);
    Tablett t(u.s, f);
    u.s.bruttomodus = 1;
    oeffnen(t, 43);
    // Left and width of Panel3D1; top at row 5 + 500 + 640; height rows 19 - 4.
    EXPECT_EQ(t.lage, (Lage{1000, 2590, 8000, 3750}));
    EXPECT_TRUE(f.panel3d2sichtbar);
}

TEST(Tablett, LeerenSetztAlleSteuerelementeZurueck) {
    test::Umgebung u;
    Form1lage f = hauptform(3200);
    Tablett t(u.s, f);
    t.Text[4] = {true, true, {}, "x", 12, 3, "small fonts", ""};
    t.zeile[28].sichtbar = true;
    t.zeile[28].fett = true;
    t.zeile[28].rahmen = true;
    t.zeile[28].schrift = "small fonts";
    t.kasten[0] = {true, {5, 5, 2500, 5}, "12,00+", 15, false, 10, 2};
    t.Command1 = {true, {}, "Speichern", 10};
    t.HScroll2.sichtbar = true;
    t.Grid1.sichtbar = true;
    t.hintergrund = 15;
    t.sichtbar = true;
    t.tablettleeren();
    EXPECT_FALSE(t.sichtbar);
    EXPECT_TRUE(allesverborgen(t));
    EXPECT_EQ(t.Text[4].vordergrund, 0);
    EXPECT_EQ(t.Text[4].hintergrund, 15);
    EXPECT_FALSE(t.zeile[28].fett);
    EXPECT_FALSE(t.zeile[28].rahmen);
    EXPECT_EQ(t.zeile[28].schrift, "arial");
    EXPECT_EQ(t.zeile[28].hintergrund, 7);
    EXPECT_EQ(t.kasten[0].text, "");
    EXPECT_EQ(t.kasten[0].lage.breite, 1100);
    EXPECT_EQ(t.kasten[0].hintergrund, 7);
    EXPECT_TRUE(t.kasten[0].autogroesse);
    EXPECT_EQ(t.kasten[0].schriftgroesse, 8.25);
    EXPECT_EQ(t.kasten[0].fase, 0);
    EXPECT_EQ(t.Command1.schriftgroesse, 8.25);
    EXPECT_EQ(t.hintergrund, 7);
}

TEST(Tablett, SchirmsperreLaesstDieSteuerelementeStehen) {
    test::Umgebung u;
    Form1lage f = hauptform(3200);
    Tablett t(u.s, f);
    oeffnen(t, 29);
    t.Schirmsperre = -1;
    t.tablettleeren();
    EXPECT_FALSE(t.sichtbar);
    EXPECT_TRUE(t.zeile[3].sichtbar);
    EXPECT_TRUE(t.kasten[3].sichtbar);
}

TEST(Tablett, KlickAufSeite6GibtAnForm1ZurueckUndZeigtDieTabelle) {
    test::Umgebung u;
    Form1lage f = hauptform(3200);
    Tablett t(u.s, f);
    oeffnen(t, 29);
    oeffnen(t, 6);
    t.kasten_Click(7);
    EXPECT_FALSE(t.sichtbar);
    EXPECT_TRUE(f.panel3d2sichtbar);
    EXPECT_EQ(t.formwunsch, "LStrTab");
    EXPECT_EQ(u.s.Tablettseite, 6); // the number stays until the next opening
}

TEST(Tablett, KlickAufZeileOderFormSchliesstDieErklaerseiten) {
    test::Umgebung u;
    Form1lage f = hauptform(3200);
    Tablett t(u.s, f);
    for (int seite : {6, 8, 29, 35}) {
        oeffnen(t, seite);
        t.zeile_Click(2);
        EXPECT_FALSE(t.sichtbar) << seite;
        EXPECT_TRUE(f.panel3d2sichtbar) << seite;
        oeffnen(t, seite);
        t.Form_Click();
        EXPECT_FALSE(t.sichtbar) << seite;
    }
    EXPECT_FALSE(t.formwunsch);
    // The remark card is no explaining page: a click leaves it open.
    oeffnen(t, 23);
    t.Form_Click();
    t.zeile_Click(1);
    t.kasten_Click(1);
    EXPECT_TRUE(t.sichtbar);
    EXPECT_FALSE(f.panel3d2sichtbar);
}

TEST(Tablett, AbbrechenGibtDieListenFreiUndSchliesst) {
    test::Umgebung u;
    Form1lage f = hauptform(3200);
    Tablett t(u.s, f);
    oeffnen(t, 61);
    for (int i = 0; i <= 5; ++i)
        t.Combo[i].aktiv = false;
    t.command2_Click();
    for (int i = 0; i <= 4; ++i)
        EXPECT_TRUE(t.Combo[i].aktiv) << i;
    EXPECT_FALSE(t.Combo[5].aktiv);
    EXPECT_FALSE(t.sichtbar);
    EXPECT_TRUE(f.panel3d2sichtbar);
    // Page 6 has no Command2: nothing happens.
    oeffnen(t, 6);
    t.command2_Click();
    EXPECT_TRUE(t.sichtbar);
}

TEST(Tablett, HilfeknopfNachSeite) {
    test::Umgebung u;
    Form1lage f = hauptform(3200);
    MerkHilfe hilfe;
    Tablett t(u.s, f, &hilfe);
    oeffnen(t, 29);
    t.Command3_Click();
    oeffnen(t, 23);
    t.Command3_Click();
    // Page 42 chooses by staff class; a class without its own keeps the last context.
    u.s.Tablettseite = 42;
    u.s.merkmal[4] = 3;
    t.Command3_Click();
    u.s.merkmal[4] = 7;
    t.Command3_Click();
    // A page without the button asks for nothing.
    u.s.Tablettseite = 6;
    t.Command3_Click();
    EXPECT_EQ(hilfe.kontexte, (std::vector<int>{96100, 90000, 45000, 45000}));
    EXPECT_EQ(t.Hilfeseite, 45000);
}

TEST(Tablett, FormereignisseDesSchiebersUndDesSpeicherzeichens) {
    test::Umgebung u;
    Form1lage f = hauptform(3200);
    Tablett t(u.s, f);
    t.Text[1].passwortzeichen = "*";
    t.Form_Activate();
    EXPECT_EQ(t.Text[1].passwortzeichen, "");

    u.s.bruttomodus = 2; // the slider page being built: deactivation leaves it
    u.s.Tablettseite = 43;
    t.Form_Deactivate();
    EXPECT_EQ(u.s.bruttomodus, 2);
    u.s.bruttomodus = 1;
    u.s.Neuberechnung = -1;
    t.Form_Deactivate();
    EXPECT_EQ(u.s.bruttomodus, 0);
    EXPECT_EQ(u.s.Neuberechnung, 0);
    EXPECT_EQ(u.s.aktuellezeile, 45);
    EXPECT_EQ(u.s.Tablettseite, 8);

    u.s.Tablettseite = 44;
    t.gespeichert = true;
    t.Form_Load();
    EXPECT_FALSE(t.gespeichert);
    t.Form_Unload();
    ASSERT_EQ(u.dialoge.gezeigt().size(), 1u);
    EXPECT_EQ(u.dialoge.gezeigt()[0].titel, "Kein Speichern");
    EXPECT_EQ(u.dialoge.gezeigt()[0].text,
              "Sie haben das Eingabefenster VOREINSTELLUNGEN verlassen, ohne die Änderungen "
              "durch Anklicken der Schaltfläche SPEICHERN zu sichern.");
    t.gespeichert = true;
    t.Form_Unload();
    u.s.Tablettseite = 61;
    t.gespeichert = false;
    t.Form_Unload();
    EXPECT_EQ(u.dialoge.gezeigt().size(), 1u);
}

TEST(Tablett, ComboFokusMerktSichDieEigeneAenderung) {
    test::Umgebung u;
    Form1lage f = hauptform(3200);
    Tablett t(u.s, f);
    t.combo_GotFocus(3);
    EXPECT_EQ(t.Comboaktiv, 1);
    EXPECT_EQ(t.fokus, (Tablettfokus{Tablettfokusart::combo, 3}));
}

TEST(Tablett, AngemeldeteSeiteWirdGebaut) {
    test::Umgebung u;
    Form1lage f = hauptform(3200);
    Tablett t(u.s, f);
    t.seiteanmelden(66, [](Tablett& x) { x.zeile[0].text = "Verwaltungskostenerstattung "; });
    // A page of this unit is not replaced.
    t.seiteanmelden(6, [](Tablett& x) { x.zeile[0].text = "anders"; });
    oeffnen(t, 66);
    EXPECT_EQ(t.zeile[0].text, "Verwaltungskostenerstattung ");
    oeffnen(t, 6);
    EXPECT_NE(t.zeile[0].text, "anders");
}

} // namespace lonvir
