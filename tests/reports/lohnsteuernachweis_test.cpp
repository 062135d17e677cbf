// The wage-tax statement: who is on it, church tax by confession, the lump tax split, the
// child benefit and the amount to remit.
#include "reports/lohnsteuernachweis.h"

#include "nachweishilfe.h"
#include "testhilfe.h"

#include <gtest/gtest.h>

namespace lonvir {

namespace {

using test::spalten;

// Heading: letterhead (2), two empty lines, title, rule, group headings, column headings, rule.
constexpr std::size_t ersteperson = 9;

// Wage tax 676,83, surcharge 50,76, church tax 60,91 (Protestant), paid 2.285,41.
Personalsatz steuerzahler(std::int16_t bekenntnis = 0) {
    Personalsatz p = Personalsatz::neu(0);
    p.merkmal[4] = 5;
    p.merkmal[28] = bekenntnis;
    p.wert[33] = -67683;
    p.wert[35] = -5076;
    p.wert[36] = -6091;
    p.wert[45] = 228541;
    return p;
}

struct Steuernachweis : ::testing::Test {
    test::LeereUmgebung u;
    Merkdrucker d;

    Lohnsteuernachweis drucken(int monat = 0) {
        Lohnsteuernachweis n = lohnsteuernachweisbilden(u.s, monat);
        lohnsteuernachweisdrucken(u.s, n, d);
        return n;
    }
    [[nodiscard]] std::string zeile(std::size_t n) const { return d.zeile(0, n); }
};

} // namespace

TEST_F(Steuernachweis, KopfMitGruppenUeberschriftenInVierzehnPunkt) {
    drucken(11);
    const Druckdokument& dok = d.dokumente.at(0);
    EXPECT_EQ(dok.ausrichtung, querformat);
    EXPECT_EQ(zeile(4),
              "L O H N S T E U E R   -   N A C H W E I S    für den Monat   D E Z E M B E R");
    EXPECT_EQ(zeile(6), spalten({{13, "Von den AN einbehaltene Steuern"},
                                 {48, "Aus ZVK-Versteuerung"},
                                 {85, "Ki-Geld"}}));
    EXPECT_FLOAT_EQ(dok.zeilen[6].stuecke[0].groesse, 14);
    EXPECT_FALSE(dok.zeilen[6].stuecke[0].fett);
    // Column 85 at 14 points lies at 84 * 8.4 = 705.6 points, above column 148 at 8 points
    // (147 * 4.8 = 705.6): the group heading stands over the child-benefit column.
    EXPECT_DOUBLE_EQ(dok.zeilen[6].stuecke[2].x, 84 * 0.6 * 14);
    EXPECT_EQ(zeile(7), spalten({{1, "N A M E"},
                                 {22, "Lohnstr."},
                                 {34, "Sol.Zus."},
                                 {46, "ev.KStr."},
                                 {58, "rk.KStr."},
                                 {70, "ak KStr."},
                                 {84, "Lohnstr."},
                                 {96, "Sol.Zus."},
                                 {108, "ev.KStr."},
                                 {120, "rk.KStr."},
                                 {132, "ak KStr."},
                                 {148, "Kindergeld"}}));
}

TEST_F(Steuernachweis, ZeileEinesEvangelischenAngestellten) {
    test::personsetzen(u.s, 1, "Schneider, Petra", 0, steuerzahler(0));
    drucken();
    // 676,83 ends in column 29, 50,76 in 41, 60,91 in 53; rk and ak 0,00 to 65 and 77; the
    // lump columns 0,00 to 91, 103, 115, 127, 139; child benefit 0,00 to 157.
    EXPECT_EQ(zeile(ersteperson), spalten({{1, "Schneider, Petr"},
                                           {24, "676,83"},
                                           {37, "50,76"},
                                           {49, "60,91"},
                                           {62, "0,00"},
                                           {74, "0,00"},
                                           {88, "0,00"},
                                           {100, "0,00"},
                                           {112, "0,00"},
                                           {124, "0,00"},
                                           {136, "0,00"},
                                           {154, "0,00"}}));
}

TEST_F(Steuernachweis, OhneAuszahlungFehltDiePersonTrotzSteuer) {
    Personalsatz p = steuerzahler();
    p.wert[45] = 0;
    test::personsetzen(u.s, 1, "Ohne Zahlung", 0, p);
    test::personsetzen(u.s, 2, "Mit Zahlung", 0, steuerzahler());
    const Lohnsteuernachweis n = drucken();
    ASSERT_EQ(n.zeilen.size(), 1u);
    EXPECT_EQ(n.zeilen[0].person, 2);
    EXPECT_EQ(n.summen[0], 67683);
}

TEST_F(Steuernachweis, HalbeKirchensteuerWirdNachDerAdditionGeradeGerundet) {
    // Code 3 splits -1003 Pf: each half is 501.5, the sums round to 502 each (ties to even),
    // together a Pfennig more than the field. The printed halves read 5,01 (501.5 / 100 held
    // as 5.01499... in binary).
    Personalsatz p = steuerzahler(3);
    p.wert[36] = -1003;
    test::personsetzen(u.s, 1, "Gemischt", 0, p);
    const Lohnsteuernachweis n = drucken();
    EXPECT_EQ(n.summen[2], 502);
    EXPECT_EQ(n.summen[3], 502);
    EXPECT_EQ(n.summen[4], 0);
    EXPECT_EQ(zeile(ersteperson).substr(49, 28), "5,01        5,01        0,00");
}

TEST_F(Steuernachweis, HalbeAnteileZweierPersonenRundenJedeAdditionNeu) {
    // -1001 twice by code 4: 0 + 500.5 = 500.5 -> 500; 500 + 500.5 = 1000.5 -> 1000.
    Personalsatz p = steuerzahler(4);
    p.wert[36] = -1001;
    test::personsetzen(u.s, 1, "A", 0, p);
    test::personsetzen(u.s, 2, "B", 0, p);
    const Lohnsteuernachweis n = drucken();
    EXPECT_EQ(n.summen[2], 1000);
    EXPECT_EQ(n.summen[3], 0);
    EXPECT_EQ(n.summen[4], 1000);
}

TEST_F(Steuernachweis, BekenntnisAusserhalbDerListeDrucktKeineKirchenspalten) {
    test::personsetzen(u.s, 1, "Sieben", 0, steuerzahler(7));
    const Lohnsteuernachweis n = drucken();
    EXPECT_EQ(zeile(ersteperson), spalten({{1, "Sieben         "},
                                           {24, "676,83"},
                                           {37, "50,76"},
                                           {88, "0,00"},
                                           {100, "0,00"},
                                           {154, "0,00"}}));
    EXPECT_EQ(n.summen[2], 0);
}

TEST_F(Steuernachweis, BeamterMitPauschsteuerZahltInDieArbeitgeberspalten) {
    // Lump tax 10,75 holds 10,00 tax and 0,75 surcharge (1075 / 1.075 = 1000, * 0.075 = 75);
    // lump church tax 0,70 Roman Catholic.
    Personalsatz p = steuerzahler(1);
    p.merkmal[4] = 0;
    p.wert[32] = 1075;
    p.wert[6] = 70;
    test::personsetzen(u.s, 1, "Beamter", 0, p);
    const Lohnsteuernachweis n = drucken();
    EXPECT_EQ(n.summen[5], 1000);
    EXPECT_EQ(n.summen[6], 75);
    EXPECT_EQ(n.summen[7], 0);
    EXPECT_EQ(n.summen[8], 70);
    EXPECT_EQ(
        zeile(ersteperson).substr(86),
        spalten(
            {{1, "10,00"}, {14, "0,75"}, {26, "0,00"}, {38, "0,70"}, {50, "0,00"}, {68, "0,00"}}));
}

TEST_F(Steuernachweis, PauschsteuerTeileWerdenJederFuerSichGerundet) {
    // 1000 / 1.075 = 930.23 -> 930; * 0.075 = 69.77 -> 70: together 1000, but 999 / 1.075 =
    // 929.30 -> 929 and 69.70 -> 70: together 999; 43 / 1.075 = 40 exactly, 3 exactly.
    Personalsatz p = steuerzahler();
    p.wert[32] = 1000;
    test::personsetzen(u.s, 1, "A", 0, p);
    p.wert[32] = 999;
    test::personsetzen(u.s, 2, "B", 0, p);
    p.wert[32] = 43;
    test::personsetzen(u.s, 3, "C", 0, p);
    const Lohnsteuernachweis n = drucken();
    EXPECT_EQ(n.summen[5], 930 + 929 + 40);
    EXPECT_EQ(n.summen[6], 70 + 70 + 3);
}

TEST_F(Steuernachweis, KindergeldMindertDieAbzuliefernderSumme) {
    Personalsatz p = steuerzahler(0);
    p.wert[34] = 22000;
    test::personsetzen(u.s, 1, "Mit Kindern", 0, p);
    drucken();
    const std::size_t z = ersteperson + 1; // rule, Summe, rule, heading, rule
    EXPECT_EQ(zeile(z + 1), spalten({{1, "Summe"},
                                     {24, "676,83"},
                                     {37, "50,76"},
                                     {49, "60,91"},
                                     {62, "0,00"},
                                     {74, "0,00"},
                                     {88, "0,00"},
                                     {100, "0,00"},
                                     {112, "0,00"},
                                     {124, "0,00"},
                                     {136, "0,00"},
                                     {152, "220,00"}}));
    EXPECT_EQ(zeile(z + 5),
              spalten({{1, "Lohnsteuer"}, {39, "676,83"}, {65, "0,00"}, {93, "676,83"}}));
    EXPECT_EQ(zeile(z + 6),
              spalten({{1, "./. Kindergeld"}, {38, "-220,00"}, {65, "0,00"}, {92, "-220,00"}}));
    EXPECT_EQ(zeile(z + 7),
              spalten({{1, "= Zwischensumme"}, {39, "456,83"}, {65, "0,00"}, {93, "456,83"}}));
    EXPECT_EQ(zeile(z + 8),
              spalten({{1, "+ Solidaritätszuschlag"}, {40, "50,76"}, {65, "0,00"}, {94, "50,76"}}));
    EXPECT_EQ(zeile(z + 9),
              spalten({{1, "+ Evang. Kirchensteuer"}, {40, "60,91"}, {65, "0,00"}, {94, "60,91"}}));
    // 456,83 + 50,76 + 60,91 = 568,50.
    EXPECT_EQ(
        zeile(z + 13),
        spalten({{1, "= Abzuliefernde Summe"}, {39, "568,50"}, {65, "0,00"}, {93, "568,50"}}));
    EXPECT_EQ(zeile(z + 14), std::string(170, '_'));
    EXPECT_EQ(d.dokumente[0].zeilen.size(), z + 15);
}

TEST_F(Steuernachweis, PauschsteuerNullZeigtNullInAllenFuenfArbeitgeberspalten) {
    test::personsetzen(u.s, 1, "Ohne ZVK", 0, steuerzahler(1));
    drucken();
    EXPECT_EQ(zeile(ersteperson).substr(87, 52),
              spalten({{1, "0,00"}, {13, "0,00"}, {25, "0,00"}, {37, "0,00"}, {49, "0,00"}}));
}

TEST_F(Steuernachweis, CsvMitSummenzeileUndLeerenKirchenspalten) {
    test::personsetzen(u.s, 1, "Sieben", 0, steuerzahler(7));
    const Csvtabelle t = lohnsteuernachweiscsv(lohnsteuernachweisbilden(u.s, 0));
    ASSERT_EQ(t.zeilen.size(), 2u);
    EXPECT_EQ(t.zeilen[0][2], "676,83");
    EXPECT_EQ(t.zeilen[0][4], "");
    EXPECT_EQ(t.zeilen[1][2], "676,83");
    EXPECT_EQ(t.zeilen[1][4], "0,00");
}

} // namespace lonvir
