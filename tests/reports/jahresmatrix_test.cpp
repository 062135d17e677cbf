// The annual overview's matrix: categories per month and the year, from stored records only.
#include "reports/jahresmatrix.h"

#include "jahreshilfe.h"
#include "testhilfe.h"

#include <gtest/gtest.h>

namespace lonvir {
namespace {

using test::jahrschreiben;
using test::monatschreiben;

std::int64_t pf(const Jahresmatrix& m, int monat, int k) {
    return m.wert(monat, k).roh() / Currency::skala;
}

// An employee's month: 3.000,00 basic pay, 800,00 Ortszuschlag, 100,00 allowance, 13,00 VWL,
// 1.000,00 one-off pay; gross 4.913,00.
void angestellter(Personalsatz& p) {
    p.merkmal[4] = 5;
    p.nebenwert[7] = 300000;
    p.nebenwert[8] = 80000;
    p.nebenwert[11] = 10000;
    p.nebenwert[12] = 1300;
    p.nebenwert[19] = 100000;
    p.wert[22] = 491300;
    p.nebenwert[0] = 33000; // employer's health, care, pension, unemployment shares
    p.nebenwert[1] = 4100;
    p.nebenwert[2] = 49800;
    p.nebenwert[3] = 15900;
    p.wert[31] = 23000; // ZVK levy
    p.wert[32] = 2300;  // lump tax on the levy
    p.wert[6] = 0;
    p.wert[33] = -90000;
    p.wert[35] = -6750;
    p.wert[36] = -8100;
    p.wert[37] = -33000;
    p.wert[38] = -4100;
    p.wert[39] = -49800;
    p.wert[40] = -15900;
}

TEST(Jahresmatrix, SumsEachCategoryOfAMonthFromItsFields) {
    test::Umgebung u;
    monatschreiben(u.s, 3, 2, angestellter);
    const Jahresmatrix m = jahresmatrixbilden(u.s, 3);
    EXPECT_EQ(pf(m, 2, kategorie::grundbezuege), 380000); // 3.000 + 800
    EXPECT_EQ(pf(m, 2, kategorie::zulagen), 11300);       // 100 + 13
    EXPECT_EQ(pf(m, 2, kategorie::einmalzahlung), 100000);
    EXPECT_EQ(pf(m, 2, kategorie::brutto), 491300);
    EXPECT_EQ(pf(m, 2, kategorie::agAnteile), 102800); // 330 + 41 + 498 + 159
    EXPECT_EQ(pf(m, 2, kategorie::umlage), 23000);
    EXPECT_EQ(pf(m, 2, kategorie::agSteuern), 2300);
    // 4.913 + 1.028 + 230 + 23 = 6.194,00
    EXPECT_EQ(pf(m, 2, kategorie::aufwand), 619400);
    EXPECT_EQ(pf(m, 2, kategorie::steuern), -96750);
    EXPECT_EQ(pf(m, 2, kategorie::kirchensteuer), -8100);
    EXPECT_EQ(pf(m, 2, kategorie::sozial), -102800);
    // 4.913,00 - 967,50 - 81,00 - 1.028,00 = 2.836,50
    EXPECT_EQ(pf(m, 2, kategorie::netto), 283650);
    EXPECT_EQ(pf(m, 2, 12), 0);
}

TEST(Jahresmatrix, AZeroMonthShowsZeroAndAddsNothingToTheYear) {
    test::Umgebung u;
    jahrschreiben(u.s, 4, angestellter);
    monatschreiben(u.s, 4, 5, [](Personalsatz&) {});
    const Jahresmatrix m = jahresmatrixbilden(u.s, 4);
    for (int k = 0; k <= 12; ++k)
        EXPECT_EQ(pf(m, 5, k), 0) << k;
    // Eleven months of 2.836,50 net and 4.913,00 gross.
    EXPECT_EQ(pf(m, 13, kategorie::netto), 11 * 283650);
    EXPECT_EQ(pf(m, 13, kategorie::brutto), 11 * 491300);
    EXPECT_EQ(pf(m, 13, 12), 0);
}

TEST(Jahresmatrix, TheNetYearIsTheSumOfTheTwelveNetMonths) {
    test::Umgebung u;
    for (int monat = 1; monat <= 12; ++monat)
        monatschreiben(u.s, 2, monat, [monat](Personalsatz& p) {
            angestellter(p);
            p.wert[22] = 491300 + monat * 100; // a rise of 1,00 DM a month
        });
    const Jahresmatrix m = jahresmatrixbilden(u.s, 2);
    std::int64_t netto = 0;
    for (int monat = 1; monat <= 12; ++monat) {
        EXPECT_EQ(pf(m, monat, kategorie::netto), 283650 + monat * 100);
        netto += pf(m, monat, kategorie::netto);
    }
    // 12 * 2.836,50 + (1 + ... + 12) * 1,00 = 34.038,00 + 78,00
    EXPECT_EQ(netto, 3411600);
    EXPECT_EQ(pf(m, 13, kategorie::netto), 3411600);
}

TEST(Jahresmatrix, ACivilServantsCostHoldsGrossLevyAndTheTaxesTheEmployerBears) {
    test::Umgebung u;
    monatschreiben(u.s, 1, 1, [](Personalsatz& p) {
        p.merkmal[4] = 0;
        p.nebenwert[7] = 350000;
        p.wert[22] = 350000;
        p.wert[31] = 31500;     // levy for the pensions, 9 %
        p.wert[33] = -40000;    // wage tax ...
        p.nebenwert[4] = 40000; // ... borne by the employer
        p.nebenwert[5] = 3000;  // surcharge borne
        p.nebenwert[6] = 3600;  // church tax borne
    });
    const Jahresmatrix m = jahresmatrixbilden(u.s, 1);
    EXPECT_EQ(pf(m, 1, kategorie::agSteuern), 46600);
    // 3.500 + 315 + 466 = 4.281,00
    EXPECT_EQ(pf(m, 1, kategorie::aufwand), 428100);
    EXPECT_EQ(pf(m, 13, kategorie::aufwand), 428100);
}

TEST(Jahresmatrix, RunsUnderTheYearFlagAndClearsIt) {
    test::Umgebung u;
    u.s.jahreslauf = 0;
    (void)jahresmatrixbilden(u.s, 1);
    EXPECT_EQ(u.s.jahreslauf, 0);
}

} // namespace
} // namespace lonvir
