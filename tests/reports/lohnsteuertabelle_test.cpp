// The wage-tax table viewer: bands from the scroll value, the fill of six classes, cell texts.
#include "reports/lohnsteuertabelle.h"

#include <gtest/gtest.h>

namespace lonvir {

namespace {
Currency pf(std::int64_t pfennig) {
    return Currency::ganz(pfennig);
}

Lohnsteuertabelle monatstabelle(std::int32_t v) {
    Lohnsteuertabelle t;
    t.auswahl.lohnzeitraum = 2;
    t.auswahl.scrollwert = v;
    tabellefuellen(t);
    return t;
}
} // namespace

TEST(Lohnsteuertabelle, ScrollwertEinsImJahrGibtZweiBis55Mark99) {
    // 1 * 5400 - 5200 = 200 Pf; 200 + 5399 = 5599 Pf
    const Tabellenband b = stufeberechnen(1, 1);
    EXPECT_EQ(b.unten, pf(200));
    EXPECT_EQ(b.oben, pf(5599));
    EXPECT_EQ(tabellenbetrag(b.unten), "2,00");
    EXPECT_EQ(tabellenbetrag(b.oben), "55,99");
}

TEST(Lohnsteuertabelle, EinSchrittImMonatVerschiebtBeideGrenzenUm4Mark50) {
    // 888 * 450 + 16 = 399616, + 449 = 400065; 889: 400066 .. 400515
    const Tabellenband a = stufeberechnen(2, 888);
    const Tabellenband b = stufeberechnen(2, 889);
    EXPECT_EQ(a.unten, pf(399616));
    EXPECT_EQ(a.oben, pf(400065));
    EXPECT_EQ(b.unten - a.unten, pf(450));
    EXPECT_EQ(b.oben - a.oben, pf(450));
}

TEST(Lohnsteuertabelle, WochenUndTagesband) {
    // week: 10 * 105 + 3 = 1053 .. 1157; day: 10 * 15 = 150 .. 164
    EXPECT_EQ(stufeberechnen(3, 10).unten, pf(1053));
    EXPECT_EQ(stufeberechnen(3, 10).oben, pf(1157));
    EXPECT_EQ(stufeberechnen(4, 10).unten, pf(150));
    EXPECT_EQ(stufeberechnen(4, 10).oben, pf(164));
}

TEST(Lohnsteuertabelle, UntergrenzeIstDerLohnAllerKlassen) {
    // Month band 3.996,16 .. 4.000,65 DM; the routine runs on 399616 Pf:
    // zre4 = 399616.67 * 0.12 = 47953.9 -> 47953; stufewert 47954 as for 4000 DM.
    // Class I: tax 8523 a year -> 71025; surcharge 5326; church 8 % of 71025 = 5682.
    // Class II: ztabfb 7724, zve = 47954 - 7724 - 3888 = 36342; y = 2.43,
    //   r = 210.5109, 2800.5109 * 2.43 = 6805.24 -> 6805; 680500 / 12 = 56708.33 -> 56708;
    //   church 56708 * 0.08 = 4536.64 -> 4536 (cut, not rounded).
    // Class III: 26633; church 2130.64 -> 2130.
    const Lohnsteuertabelle t = monatstabelle(888);
    EXPECT_EQ(t.tabellenlohn, pf(399616));
    EXPECT_EQ(t.zeilen[1].lohnsteuer, pf(71025));
    EXPECT_EQ(t.zeilen[1].solidaritaetszuschlag, pf(5326));
    EXPECT_EQ(t.zeilen[1].kirchensteuer, pf(5682));
    EXPECT_EQ(t.zeilen[2].lohnsteuer, pf(56708));
    EXPECT_EQ(t.zeilen[2].kirchensteuer, pf(4536));
    EXPECT_EQ(t.zeilen[3].lohnsteuer, pf(26633));
    EXPECT_EQ(t.zeilen[3].kirchensteuer, pf(2130));
    EXPECT_EQ(t.zeilen[5].lohnsteuer, pf(121700));
}

TEST(Lohnsteuertabelle, NeunProzentKirchensteuerAbgeschnitten) {
    // 71025 * 0.09 = 6392.25 -> 6392
    Lohnsteuertabelle t;
    t.auswahl.lohnzeitraum = 2;
    t.auswahl.scrollwert = 888;
    t.auswahl.kirchensteuersatz = Currency::roh(900);
    tabellefuellen(t);
    EXPECT_EQ(t.zeilen[1].kirchensteuer, pf(6392));
}

TEST(Lohnsteuertabelle, KinderfreibetraegeWirkenNurAufZuschlagUndNichtInKlasseFuenf) {
    // zkf 1 in class I: wage tax stays 71025, surcharge 4010 (tax 6416 after children).
    // Classes V and VI get the count too; their kfb is 0, so nothing changes.
    Lohnsteuertabelle ohne = monatstabelle(888);
    Lohnsteuertabelle mit;
    mit.auswahl.lohnzeitraum = 2;
    mit.auswahl.scrollwert = 888;
    mit.auswahl.kinderfreibetraege = Currency::ganz(1);
    tabellefuellen(mit);
    EXPECT_EQ(mit.zeilen[1].lohnsteuer, pf(71025));
    EXPECT_EQ(mit.zeilen[1].solidaritaetszuschlag, pf(4010));
    EXPECT_EQ(mit.zeilen[5].solidaritaetszuschlag, ohne.zeilen[5].solidaritaetszuschlag);
    EXPECT_EQ(mit.zeilen[6].solidaritaetszuschlag, ohne.zeilen[6].solidaritaetszuschlag);
}

TEST(Lohnsteuertabelle, FuellenNurWennSichEtwasAendert) {
    Lohnsteuertabelle t = monatstabelle(888);
    t.zeilen[1].lohnsteuer = pf(1); // left alone by a fill that finds nothing changed
    EXPECT_FALSE(tabellefuellen(t));
    EXPECT_EQ(t.zeilen[1].lohnsteuer, pf(1));
    t.auswahl.altersentlastung = 1;
    EXPECT_TRUE(tabellefuellen(t));
    EXPECT_NE(t.zeilen[1].lohnsteuer, pf(1));
}

TEST(Lohnsteuertabelle, KinderfreibetraegeSiebenKommaNullSindSieben) {
    EXPECT_EQ(kinderfreibetragseintrag(0), "keine Kinderfreibeträge");
    EXPECT_EQ(kinderfreibetragseintrag(1), "0,5 Kinderfreibeträge");
    EXPECT_EQ(kinderfreibetragseintrag(14), "7,0 Kinderfreibeträge");
    Lohnsteuertabelle t;
    t.auswahl.kinderfreibetraege = Currency::roh(14 * 5000);
    EXPECT_EQ(t.auswahl.kinderfreibetraege, Currency::ganz(7));
}

TEST(Lohnsteuertabelle, BetragstextOhneFuehrendeNull) {
    EXPECT_EQ(tabellenbetrag(pf(0)), ",00");
    EXPECT_EQ(tabellenbetrag(pf(5)), ",05");
    EXPECT_EQ(tabellenbetrag(pf(71025)), "710,25");
    EXPECT_EQ(tabellenbetrag(pf(100000)), "1.000,00");
    EXPECT_EQ(tabellenbetrag(pf(123456789)), "1.234.567,89");
}

} // namespace lonvir
