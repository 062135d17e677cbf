// Painting the rows, the switch columns and the row colours.
#include "bildhilfe.h"

#include <gtest/gtest.h>

namespace lonvir {

TEST(Zeilemalen, BetraegeMitVorzeichenHinterDerZahl) {
    test::Bild b;
    Sitzung& s = b.u.s;
    s.wert[7] = 0;
    b.f.zeilemalen(7);
    EXPECT_EQ(b.zeile(7).wert, "0,00±");
    s.wert[7] = -1234;
    b.f.zeilemalen(7);
    EXPECT_EQ(b.zeile(7).wert, "12,34-");
    s.wert[45] = 123456789;
    b.f.zeilemalen(45);
    EXPECT_EQ(b.zeile(45).wert, "1.234.567,89+");
}

TEST(Zeilemalen, StundenGanzOhneKomma) {
    test::Bild b;
    Sitzung& s = b.u.s;
    s.wert[0] = 3800;
    b.f.zeilemalen(0);
    EXPECT_EQ(b.zeile(0).wert, "38");
    s.wert[0] = 3850;
    b.f.zeilemalen(0);
    EXPECT_EQ(b.zeile(0).wert, "38,50");
}

TEST(Zeilemalen, Zeilen27Bis32WerdenNichtGemalt) {
    test::Bild b;
    b.zeile(30).wert = "getippt";
    b.u.s.wert[30] = 5000;
    b.f.allezeilen();
    EXPECT_EQ(b.zeile(30).wert, "getippt");
}

TEST(Zeilemalen, TeilzeitspalteNurBeiTeilzeit) {
    test::Bild b;
    b.f.auswahltreffen(4, 5);
    // 38.50 normal and 38.50 part-time: equal texts, no part-time column.
    EXPECT_FALSE(b.f.bild.schalter[T].sichtbar);
    b.f.betragtippen(1, 2000);
    EXPECT_EQ(b.zeile(1).wert, "20");
    EXPECT_TRUE(b.f.bild.schalter[T].sichtbar);
    // Hours of "0" sort below "0,00+": no column.
    b.zeile(0).wert = "0";
    b.f.schaltermalen(T);
    EXPECT_FALSE(b.f.bild.schalter[T].sichtbar);
}

TEST(Zeilemalen, TagespalteNurInEinemMonatMitWenigerBezahltenTagen) {
    test::Bild b;
    b.f.auswahltreffen(4, 5);
    EXPECT_FALSE(b.f.bild.schalter[P].sichtbar); // 30 and 30
    b.f.betragtippen(3, 1500);
    EXPECT_TRUE(b.f.bild.schalter[P].sichtbar);
    EXPECT_FALSE(b.f.bild.schalter[P].gesetzt[16]); // bru(16) of a new record is 0
    EXPECT_TRUE(b.f.bild.schalter[P].gesetzt[7]);
}

TEST(Zeilemalen, ZvkSpalteAusserBeiDemTextNullKommaNullNull) {
    test::Bild b;
    b.f.auswahltreffen(4, 5);
    EXPECT_EQ(b.zeile(25).wert, "0,00±");
    EXPECT_TRUE(b.f.bild.schalter[Z].sichtbar);
    b.zeile(25).wert = "0,00";
    b.f.schaltermalen(Z);
    EXPECT_FALSE(b.f.bild.schalter[Z].sichtbar);
}

TEST(Zeilemalen, DunkleZeilenfarbenHabenWeisseSchrift) {
    test::Bild b;
    b.f.farbenanwenden();
    // The defaults: rows 0 to 3 yellow (14), row 4 light red (12), rows 41 to 44 grey (7).
    EXPECT_EQ(b.zeile(0).farbe, 14);
    EXPECT_EQ(b.zeile(0).textfarbe, 0);
    EXPECT_EQ(b.zeile(4).farbe, 12);
    EXPECT_EQ(b.zeile(4).textfarbe, 15);
    EXPECT_EQ(b.zeile(41).farbe, 7);
    EXPECT_EQ(b.zeile(41).textfarbe, 0);
    b.u.s.dim.zeilenfarbe[41] = 1;
    b.f.farbenanwenden();
    EXPECT_EQ(b.zeile(41).textfarbe, 15);
}

} // namespace lonvir
