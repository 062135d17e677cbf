// The month's tax in the run: one-off pay below and above 300 DM, the 7.5 % cap of the
// surcharge on one-off pay, no tax at all, church-tax rates and the December equalisation.
#include "engine/berechnen.h"
#include "engine/monatladen.h"
#include "engine/monatssteuer.h"
#include "start/satzzugriff.h"
#include "testhilfe.h"

#include <gtest/gtest.h>

namespace lonvir {

namespace {

// Person 1, a civil servant (staff class 0, so the special table), class I without children,
// 8 % church tax. Only rows 12 and 19 are taxable, so the tariff rows cannot move the figures.
struct Steuermonat : ::testing::Test {
    test::Umgebung u;
    Sitzung& s = u.s;
    void laden(std::int16_t monatsindex) {
        monatladen(s, 1, monatsindex);
        for (int zeile = 7; zeile <= 19; ++zeile)
            s.lst[zeile] = zeile == 12 || zeile == 19 ? 1 : 0;
        s.merkmal[33] = 0;
        s.merkmal[36] = 0;
    }
    void rechnen() {
        s.aenderungscode = 0;
        berechnen(s);
    }
};

} // namespace

TEST_F(Steuermonat, EinmalzahlungVon30000PfennigIstLaufenderLohn) {
    // January, 4000 DM in row 12 and 300.00 DM in row 19: 30000 < 30001, so the month's wage
    // is 430000. Special table: zre4 = 430000.67 * 0.12 = 51600.08 -> 51600;
    // stufe54(51598) = 51570, stufewert 51572; vsp = min(10325, 2214) = 2214;
    // zve = 51572 - 2108 - 2214 = 47250 = x; y = 3.5208, r = 305.0069,
    // 2895.0069 * 3.5208 = 10192.7... -> 10192; month 1019200 / 12 = 84933.33 -> 84933.
    // Surcharge 7.5 % of 10192 = 764.4 -> 76440 / 12 = 6370. Church 84933 * 0.08 = 6794.64 -> 6795
    // (rounded: the month's church tax is scaled by the paid-days factor 1 and rounded).
    // No one-off part: both yearly runs are the same and the differences 0.
    laden(0);
    s.eingabe[12] = 400000;
    s.eingabe[19] = 30000;
    rechnen();
    EXPECT_EQ(s.lstwert[7], 430000);
    EXPECT_EQ(s.lstwert[17], 0);
    EXPECT_EQ(s.lstwert[15], 5160000); // 12 * 430000
    EXPECT_EQ(s.lstwert[21], 0);
    EXPECT_EQ(s.lstwert[24], 0);
    EXPECT_EQ(s.lstwert[27], 0);
    EXPECT_EQ(s.wert[33], -84933);
    EXPECT_EQ(s.wert[35], -6370);
    EXPECT_EQ(s.wert[36], -6795);
}

TEST_F(Steuermonat, EinmalzahlungVon30001PfennigIstSonstigerBezug) {
    // Current wage 400000: month's tax 75383 (x 43632, tax 9046), surcharge 678.45 -> 5653,
    // church 75383 * 0.08 = 6030.64 -> 6031.
    // Year without: 12 * 400000 = 4800000: zre4 48000, x 43632, tax 9046 -> 904600,
    //   surcharge 67845, church 72368.
    // Year with: 4830001: zre4 48300.01, stufe54(48298.01) = 48276, stufewert 48278,
    //   zve = 48278 - 2108 - 2214 = 43956 = x; y = 3.1914, r = 276.4709,
    //   2866.4709 * 3.1914 = 9148.0... -> 9148 -> 914800; surcharge 686.1 -> 68610;
    //   church 914800 * 0.08 = 73184.
    // Differences: tax 10200; surcharge 765, which is not below 7.5 % of 10200 = 765, so it
    // stays; church 816.
    laden(0);
    s.eingabe[12] = 400000;
    s.eingabe[19] = 30001;
    rechnen();
    EXPECT_EQ(s.lstwert[7], 400000);
    EXPECT_EQ(s.lstwert[17], 30001);
    EXPECT_EQ(s.lstwert[16], 4800000);
    EXPECT_EQ(s.lstwert[18], 4830001);
    EXPECT_EQ(s.lstwert[19], 904600);
    EXPECT_EQ(s.lstwert[20], 914800);
    EXPECT_EQ(s.lstwert[21], 10200);
    EXPECT_EQ(s.lstwert[24], 765);
    EXPECT_EQ(s.lstwert[25], 72368);
    EXPECT_EQ(s.lstwert[27], 816);
    EXPECT_EQ(s.lstwert[10], 75383);
    EXPECT_EQ(s.wert[33], -85583);
    EXPECT_EQ(s.wert[35], -6418);
    EXPECT_EQ(s.wert[36], -6847);
    EXPECT_EQ(s.wert[27], 430001);
}

TEST_F(Steuermonat, ZuschlagAufEinmalzahlungHoechstensSiebenEinhalbProzent) {
    // 1800 DM a month and 500 DM one-off in January.
    // Month: zre4 21600.08 -> 21600, stufe54(21598) = 21546, stufewert 21548;
    //   zve = 21548 - 2108 - 2214 = 17226 = x; y = 0.5184, r = 44.9089,
    //   2634.9089 * 0.5184 = 1365.9... -> 1365; month 136500 / 12 = 11375;
    //   surcharge min(102.375, 20 % of 33 = 6.6) = 6.6 -> 660 / 12 = 55; church 910.
    // Year without: 2160000, the same step: tax 136500, surcharge 660, church 10920.
    // Year with: 2210000: zre4 22100, stufewert 22088, zve = x = 17766; y = 0.5724,
    //   r = 49.5870, 2639.587 * 0.5724 = 1510.9... -> 1510 -> 151000;
    //   surcharge min(113.25, 20 % of 178 = 35.6) -> 3560; church 12080.
    // Differences: tax 14500, surcharge 2900, church 1160. 7.5 % of 14500 = 1087.5 is below
    // 2900: the surcharge is 1087.5, rounded to the even 1088.
    laden(0);
    s.eingabe[12] = 180000;
    s.eingabe[19] = 50000;
    rechnen();
    EXPECT_EQ(s.lstwert[10], 11375);
    EXPECT_EQ(s.lstwert[11], 55);
    EXPECT_EQ(s.lstwert[12], 910);
    EXPECT_EQ(s.lstwert[21], 14500);
    EXPECT_EQ(s.lstwert[23] - s.lstwert[22], 2900);
    EXPECT_EQ(s.lstwert[24], 1088);
    EXPECT_EQ(s.lstwert[27], 1160);
    EXPECT_EQ(s.wert[33], -25875);
    EXPECT_EQ(s.wert[35], -1143);
    EXPECT_EQ(s.wert[36], -2070);
}

TEST_F(Steuermonat, VormonateGehenInDieJahresschaetzungEin) {
    // March: the stored row 27 of January and February (each 100000) plus ten months of the
    // current wage 180000: 200000 + 1800000 = 2000000.
    for (int monat = 0; monat <= 1; ++monat) {
        Personalsatz p = Personalsatz::neu(static_cast<std::int16_t>(monat));
        p.wert[27] = 100000;
        personalsatzschreiben(s, monat + 1, 1, p);
    }
    laden(2);
    s.eingabe[12] = 180000;
    rechnen();
    EXPECT_EQ(s.lstwert[14], 200000);
    EXPECT_EQ(s.lstwert[15], 1800000);
    EXPECT_EQ(s.lstwert[16], 2000000);
}

TEST_F(Steuermonat, KeineLohnsteuerLeertDieDreiZeilen) {
    // Position 49: rows 33, 35 and 36 are 0, even a typed church tax.
    laden(0);
    s.eingabe[12] = 400000;
    s.merkmal[33] = 49;
    s.merkmal[36] = 2;
    s.eingabe[36] = -500;
    rechnen();
    EXPECT_EQ(s.wert[33], 0);
    EXPECT_EQ(s.wert[35], 0);
    EXPECT_EQ(s.wert[36], 0);
}

TEST_F(Steuermonat, OhneKonfessionKeineKirchensteuerAberBemessungsgrundlage) {
    // merkmal(28) 6 with 8 %: the rate is 0, church tax 0, but kirche stays 1 and bk is the
    // month's 75383 (4000 DM, special table).
    laden(0);
    s.eingabe[12] = 400000;
    s.merkmal[28] = 6;
    rechnen();
    EXPECT_EQ(s.lohnsteuerlauf.kirche, 1);
    EXPECT_EQ(s.wert[36], 0);
    EXPECT_EQ(s.wert[33], -75383);
}

TEST_F(Steuermonat, NeunProzentUndGetippteKirchensteuer) {
    // 9 %: 75383 * 0.09 = 6784.47 -> 6784. Typed (2): the typed value, and 0 as the rate.
    laden(0);
    s.eingabe[12] = 400000;
    s.merkmal[36] = 1;
    rechnen();
    EXPECT_EQ(s.wert[36], -6784);
    s.merkmal[36] = 2;
    s.eingabe[36] = -1234;
    rechnen();
    EXPECT_EQ(s.wert[36], -1234);
    EXPECT_EQ(s.kirchensatz, Currency{});
    s.merkmal[36] = 3; // none
    rechnen();
    EXPECT_EQ(s.wert[36], 0);
}

TEST_F(Steuermonat, TagefaktorRechnetAufVollenMonatHochUndZurueck) {
    // 15 of 30 paid days, row 12 2000 DM: zahlwert 1000 DM, grossed up to 200000 for the tax.
    // 200000: zre4 24000.08 -> 24000, stufe54(23998) = 23976, stufewert 23978;
    //   zve = 23978 - 2108 - 2214 = 19656 = x; y = 0.7614, r = 65.9600,
    //   2655.96 * 0.7614 = 2022.2... -> 2022; month 202200 / 12 = 16850;
    //   scaled by 0.5: 8425. The projection takes twelve grossed-up months: 2400000, the
    //   same step a year, so the yearly runs agree and add nothing.
    laden(0);
    s.eingabe[12] = 200000;
    s.eingabe[3] = 1500;
    rechnen();
    EXPECT_EQ(s.lstwert[7], 100000);
    EXPECT_EQ(s.lstwert[15], 2400000); // the rest of the year from the grossed-up wage
    EXPECT_EQ(s.lstwert[10], 8425);
    EXPECT_EQ(s.wert[33], -8425);
}

TEST_F(Steuermonat, DezemberErstattungIstPositiveZeile33) {
    // January to November: row 27 100000 and row 33 -10000 each, so 110000 withheld.
    // December 1000 DM; the year 11 * 100000 + 100000 (December's row 27 of the run before)
    // = 1200000: zre4 12000, stufewert 11990, zve = 11990 - 2108 - 2214 = 7668: no tax.
    // 0 > 0 + (-110000): row 33 = -(0 - 110000) = +110000, a refund.
    for (int monat = 0; monat <= 10; ++monat) {
        Personalsatz p = Personalsatz::neu(static_cast<std::int16_t>(monat));
        p.wert[27] = 100000;
        p.wert[33] = -10000;
        personalsatzschreiben(s, monat + 1, 1, p);
    }
    laden(11);
    s.eingabe[12] = 100000;
    rechnen();
    rechnen(); // the second run finds December's row 27 of the first
    EXPECT_EQ(s.wert[33], 110000);
    EXPECT_EQ(s.wert[35], 0);
    EXPECT_EQ(s.wert[36], 0);
    EXPECT_EQ(s.lohnsteuerlauf.lzz, 1);
    EXPECT_EQ(s.wert[45], 210000);
}

TEST_F(Steuermonat, OhneJahresausgleichIstDezemberEinGewoehnlicherMonat) {
    for (int monat = 0; monat <= 10; ++monat) {
        Personalsatz p = Personalsatz::neu(static_cast<std::int16_t>(monat));
        p.wert[27] = 100000;
        p.wert[33] = -10000;
        personalsatzschreiben(s, monat + 1, 1, p);
    }
    laden(11);
    s.merkmal[30] = 1; // "Ohne LSt.jahresausgl. d. AG im Dez."
    s.eingabe[12] = 100000;
    rechnen();
    rechnen();
    EXPECT_EQ(s.wert[33], 0);
}

TEST(Steuerklasse, ZeileDreiunddreissigWaehltKlasseUndKinderfreibetraege) {
    std::int16_t stkl = 0;
    Currency zkf;
    ASSERT_TRUE(steuerklasseVon(0, stkl, zkf));
    EXPECT_EQ(stkl, 1);
    EXPECT_EQ(zkf, Currency{});
    ASSERT_TRUE(steuerklasseVon(8, stkl, zkf));
    EXPECT_EQ(zkf, Currency::ganz(4));
    ASSERT_TRUE(steuerklasseVon(9, stkl, zkf)); // class II starts with 0.5
    EXPECT_EQ(stkl, 2);
    EXPECT_EQ(zkf, Currency::roh(5000));
    ASSERT_TRUE(steuerklasseVon(20, stkl, zkf));
    EXPECT_EQ(zkf, Currency::ganz(6));
    ASSERT_TRUE(steuerklasseVon(21, stkl, zkf));
    EXPECT_EQ(stkl, 3);
    EXPECT_EQ(zkf, Currency{});
    ASSERT_TRUE(steuerklasseVon(46, stkl, zkf));
    EXPECT_EQ(stkl, 4);
    EXPECT_EQ(zkf, Currency::ganz(6));
    ASSERT_TRUE(steuerklasseVon(47, stkl, zkf));
    EXPECT_EQ(stkl, 5);
    ASSERT_TRUE(steuerklasseVon(48, stkl, zkf));
    EXPECT_EQ(stkl, 6);
    EXPECT_FALSE(steuerklasseVon(49, stkl, zkf));
}

} // namespace lonvir
