// The refresh of the screen from the record, the rules of the staff class and the year view.
#include "bildhilfe.h"
#include "start/satzzugriff.h"
#include "start/texte.h"

#include <gtest/gtest.h>

namespace lonvir {

TEST(Bildauffrischen, BeamteZahlenKeineSozialversicherungUeberDenArbeitgeber) {
    test::Bild b; // a new person is staff class 0, Besoldungsordnung A
    const Sitzung& s = b.u.s;
    EXPECT_EQ(s.merkmal[1], 0);
    EXPECT_EQ(s.merkmal[29], 1);
    EXPECT_EQ(s.merkmal[37], 29);
    EXPECT_EQ(s.merkmal[38], 4);
    EXPECT_EQ(s.merkmal[39], 1);
    EXPECT_EQ(s.merkmal[40], 1);
    for (int zeile = 37; zeile <= 40; ++zeile) {
        EXPECT_FALSE(b.zeile(zeile).aktiv) << zeile;
        EXPECT_TRUE(b.zeile(zeile).gesperrt) << zeile;
        EXPECT_EQ(b.zeile(zeile).position, s.merkmal[zeile]) << zeile;
    }
    EXPECT_TRUE(b.zeile(30).gesperrt);
    EXPECT_FALSE(b.f.bild.schalterblock);
    // The positions are stored with the month.
    EXPECT_EQ(personalsatzlesen(b.u.s, 1, 1).merkmal[37], 29);
}

TEST(Bildauffrischen, BeamteHabenDieUmlagelisteUndZeile11AbJuli1997) {
    test::Bild b;
    textschreiben(b.u.s, 4035, "Versorgungsumlage");
    textschreiben(b.u.s, 3552, "Umlage ZVK");
    b.laden(1, 5);
    EXPECT_EQ(b.zeile(25).liste[0], "Versorgungsumlage");
    EXPECT_EQ(b.zeile(25).liste.size(), 3u);
    EXPECT_FALSE(b.zeile(11).aktiv); // June 1997
    b.laden(1, 6);
    EXPECT_TRUE(b.zeile(11).aktiv); // July 1997
    b.f.auswahltreffen(4, 5);
    EXPECT_EQ(b.zeile(25).liste[0], "Umlage ZVK");
}

TEST(Bildauffrischen, BesoldungBHatDieDritteDienstalterart) {
    test::Bild b;
    b.f.auswahltreffen(4, 1);
    EXPECT_EQ(b.u.s.merkmal[1], 3);
    EXPECT_EQ(b.zeile(1).position, 3);
    EXPECT_FALSE(b.zeile(7).aktiv);
}

TEST(Bildauffrischen, AngestellteHabenSchalterUndFreieVersicherungszeilen) {
    test::Bild b;
    b.f.auswahltreffen(4, 5);
    const Sitzung& s = b.u.s;
    EXPECT_TRUE(b.f.bild.schalterblock);
    EXPECT_EQ(s.merkmal[29], 0);
    for (int zeile = 37; zeile <= 40; ++zeile) {
        EXPECT_EQ(s.merkmal[zeile], 0) << zeile; // cleared by the change of staff class
        EXPECT_TRUE(b.zeile(zeile).aktiv) << zeile;
        EXPECT_FALSE(b.zeile(zeile).gesperrt) << zeile;
    }
    EXPECT_FALSE(b.zeile(30).gesperrt);
    EXPECT_EQ(b.zeile(5).liste.size(), 20u); // 3058..3077
}

TEST(Bildauffrischen, WechselZuBeamtenVerstecktDieSchalterUndBehaeltIhreWerte) {
    test::Bild b;
    b.f.auswahltreffen(4, 5);
    b.f.lst_Click(12, false);
    b.f.wei_Click(18, true);
    ASSERT_EQ(personalsatzlesen(b.u.s, 1, 1).lst[12], 0);
    b.f.auswahltreffen(4, 0);
    EXPECT_FALSE(b.f.bild.schalterblock);
    const Personalsatz januar = personalsatzlesen(b.u.s, 1, 1);
    EXPECT_EQ(januar.merkmal[4], 0);
    EXPECT_EQ(januar.lst[12], 0);
    EXPECT_EQ(januar.lst[13], 1);
    EXPECT_EQ(januar.wei[18], 1);
    EXPECT_FALSE(b.f.bild.schalter[L].gesetzt[12]);
    EXPECT_TRUE(b.f.bild.schalter[W].gesetzt[18]);
}

TEST(Bildauffrischen, GespeichertePositionenWerdenInDieListeGeklemmt) {
    test::Bild b;
    Personalsatz p = personalsatzlesen(b.u.s, 3, 2);
    p.merkmal[3] = 9;   // the list has four entries, 3323..3326
    p.merkmal[26] = -5; // below the first
    personalsatzschreiben(b.u.s, 3, 2, p);
    b.laden(2, 2);
    EXPECT_EQ(b.u.s.merkmal[3], 3);
    EXPECT_EQ(b.zeile(3).position, 3);
    EXPECT_EQ(b.u.s.merkmal[26], 0);
}

TEST(Bildauffrischen, SchliesstDieJahresseitenDesTabletts) {
    test::Bild b;
    b.u.s.Tablettseite = 48;
    b.laden(1, 1);
    EXPECT_EQ(b.u.s.Tablettseite, 0);
    b.u.s.Tablettseite = 35;
    b.laden(1, 1);
    EXPECT_EQ(b.u.s.Tablettseite, 35);
}

TEST(Bildauffrischen, JahrespositionBehaeltDieListenUndZeigtDieJahressicht) {
    test::Bild b;
    b.f.betragtippen(12, 10000); // 100 DM in January, carried to the eleven later months
    const std::size_t gruppen = b.zeile(5).liste.size();
    b.f.auswahltreffen(20, 12);
    // Twelve months of 100.00 DM: 1,200.00 DM; the hours 12 * 38.50 = 462.
    EXPECT_EQ(b.u.s.wert[12], 120000);
    EXPECT_EQ(b.zeile(12).wert, "1.200,00+");
    EXPECT_EQ(b.zeile(0).wert, "462");
    EXPECT_EQ(b.zeile(20).position, 12);
    EXPECT_EQ(b.zeile(5).liste.size(), gruppen);
    EXPECT_EQ(b.zeile(12).liste.size(), 60u);
}

TEST(Bildauffrischen, JahressichtEinerPersonOhneEingabenAddiertNullen) {
    test::Bild b;
    b.laden(7, 12);
    // A new person: 38.50 hours and 30 days in each of the twelve months, nothing else.
    EXPECT_EQ(b.u.s.wert[0], 46200);
    EXPECT_EQ(b.u.s.wert[2], 36000);
    EXPECT_EQ(b.zeile(2).wert, "360");
    for (int zeile : {7, 12, 22, 33, 45})
        EXPECT_EQ(b.zeile(zeile).wert, "0,00±") << zeile;
}

} // namespace lonvir
