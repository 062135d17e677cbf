// The printer's column arithmetic: tabs, the kept position, numbers, fonts per piece.
#include "core/drucker.h"

#include <gtest/gtest.h>

namespace lonvir {

TEST(Drucker, TabSetztSpalteUndZeileEndet) {
    Merkdrucker d;
    d.Print({Tab{10}, "Grundverguetung", Tab{45}, "DM"});
    d.EndDoc();
    ASSERT_EQ(d.dokumente.size(), 1u);
    const Druckzeile& z = d.dokumente[0].zeilen.at(0);
    ASSERT_EQ(z.stuecke.size(), 2u);
    EXPECT_EQ(z.stuecke[0].spalte, 10);
    EXPECT_EQ(z.stuecke[1].spalte, 45);
    EXPECT_DOUBLE_EQ(z.stuecke[1].x, 44 * 0.6 * 12);
    EXPECT_EQ(d.zeile(0, 0), std::string(9, ' ') + "Grundverguetung" + std::string(20, ' ') + "DM");
}

TEST(Drucker, PositionHinterDemTabGehtInDieNaechsteZeile) {
    // "1234567890" from column 5 ends in column 14; Tab(12) lies behind it, so the value
    // goes to column 12 of the next line and the rest of the row follows there.
    Merkdrucker d;
    d.Print({Tab{5}, "1234567890", Tab{12}, "X", Tab{20}, "Y"});
    d.EndDoc();
    ASSERT_EQ(d.dokumente[0].zeilen.size(), 2u);
    EXPECT_EQ(d.zeile(0, 0), "    1234567890");
    EXPECT_EQ(d.zeile(0, 1), "           X       Y");
}

TEST(Drucker, TabAufDieStehendePositionBleibtInDerZeile) {
    Merkdrucker d;
    d.Print({Tab{3}, "ab", Tab{5}, "c"});
    d.EndDoc();
    ASSERT_EQ(d.dokumente[0].zeilen.size(), 1u);
    EXPECT_EQ(d.zeile(0, 0), "  abc");
}

TEST(Drucker, SemikolonHaeltDiePositionFest) {
    Merkdrucker d;
    d.Print({Tab{10}, "Teil 1"}, Zeilenende::bleiben);
    d.Print({" und 2"});
    d.Print({});
    d.EndDoc();
    ASSERT_EQ(d.dokumente[0].zeilen.size(), 2u);
    EXPECT_EQ(d.zeile(0, 0), "         Teil 1 und 2");
    EXPECT_TRUE(d.dokumente[0].zeilen[1].stuecke.empty());
}

TEST(Drucker, ZahlenMitVorzeichenstelleUndLeerzeichenDahinter) {
    Merkdrucker d;
    d.Print({"Stufe ", Druckzahl{3}, "|", Druckzahl{-12}, "|"});
    d.EndDoc();
    EXPECT_EQ(d.zeile(0, 0), "Stufe  3 |-12 |");
}

TEST(Drucker, SchriftJeStueckUndZeilenhoehe) {
    Merkdrucker d;
    d.Orientation(querformat);
    d.FontName("courier new");
    d.FontSize(14);
    d.FontBold(true);
    d.Print({Tab{9}, "TITEL"});
    d.FontBold(false);
    d.FontSize(8.25f);
    d.Print({"klein"});
    d.EndDoc();
    const Druckdokument& dok = d.dokumente[0];
    EXPECT_EQ(dok.ausrichtung, querformat);
    EXPECT_TRUE(dok.zeilen[0].stuecke[0].fett);
    EXPECT_FLOAT_EQ(dok.zeilen[0].stuecke[0].groesse, 14);
    EXPECT_FLOAT_EQ(dok.zeilen[0].hoehe, 14);
    EXPECT_FALSE(dok.zeilen[1].stuecke[0].fett);
    EXPECT_FLOAT_EQ(dok.zeilen[1].hoehe, 8.25f);
    EXPECT_EQ(dok.zeilen[1].stuecke[0].schrift, "courier new");
}

TEST(Drucker, TabSpaltenGeltenInDerSchriftDieGeradeGilt) {
    // Nine blanks at 12 points reach 64.8 points; the text at 8.25 points follows there,
    // which is its column 14 (64.8 / 4.95 = 13.1).
    Merkdrucker d;
    d.FontSize(12);
    d.Print({"         "}, Zeilenende::bleiben);
    d.FontSize(8.25f);
    d.Print({"( ) Anlage"});
    d.EndDoc();
    const Druckstueck& s = d.dokumente[0].zeilen[0].stuecke[1];
    EXPECT_NEAR(s.x, 64.8, 1e-9);
    EXPECT_EQ(s.spalte, 14);
}

TEST(Drucker, TabUnterEinsIstSpalteEins) {
    Merkdrucker d;
    d.Print({Tab{-3}, "a"});
    d.EndDoc();
    EXPECT_EQ(d.zeile(0, 0), "a");
}

TEST(Drucker, JedesEndDocIstEinDokumentUndOffeneZeileWirdGeschlossen) {
    Merkdrucker d;
    d.Print({"eins"});
    d.EndDoc();
    d.Print({"zwei"}, Zeilenende::bleiben);
    d.EndDoc();
    ASSERT_EQ(d.dokumente.size(), 2u);
    ASSERT_EQ(d.dokumente[1].zeilen.size(), 1u);
    EXPECT_EQ(d.zeile(1, 0), "zwei");
}

} // namespace lonvir
