// Row 18, the Zuwendung: quota of the month's rows, 50 DM per child, twelfths by months of pay.
#include "engine/schritte.h"
#include "start/satzzugriff.h"
#include "testhilfe.h"

#include <gtest/gtest.h>

namespace lonvir {

namespace {

// Person 1, an employee (staff class 5, West) in November with 3000 DM in row 7 counting for
// the bonus, two children for the supplement, quota 93.78 %.
struct Zuwendung : ::testing::Test {
    test::Umgebung u;
    Sitzung& s = u.s;
    Zuwendung() {
        s.aktuelleperson = 1;
        s.merkmal[4] = 5;
        s.merkmal[2] = 0;
        s.merkmal[20] = 10;
        s.merkmal[18] = 2;
        s.wert[7] = 300000;
        s.wei[7] = 1;
        s.einstellungen.zuwendungsquote[2] = Currency::roh(937800);
        s.einstellungen.zuwendungsquote[0] = Currency::ganz(100);
    }
    // Row 7 of the stored months from..to (month indexes), the others left empty.
    void bezahlt(int von, int bis, std::int32_t betrag = 300000) {
        for (int m = von; m <= bis; ++m) {
            Personalsatz p = Personalsatz::neu(static_cast<std::int16_t>(m));
            p.wert[7] = betrag;
            personalsatzschreiben(s, m + 1, 1, p);
        }
    }
};

} // namespace

TEST_F(Zuwendung, GanzesJahrVolleZwoelftel) {
    // 300000 * 93.78 % = 281340; + 2 * 5000 = 291340; vorher 9, nachher 2: 12 twelfths.
    bezahlt(0, 10);
    zuwendung(s);
    EXPECT_EQ(s.wert[18], 291340);
}

TEST_F(Zuwendung, EinstellungImOktoberGibtDreiZwoelftel) {
    // nachher 2 (October, November), vorher 0: eligible, monate 0 + 2 + 1 = 3.
    // 291340 / 12 * 3 = 72835
    bezahlt(9, 10);
    zuwendung(s);
    EXPECT_EQ(s.wert[18], 72835);
}

TEST_F(Zuwendung, EinstellungImNovemberGibtNichts) {
    // nachher 1, vorher 0: not eligible.
    bezahlt(10, 10);
    zuwendung(s);
    EXPECT_EQ(s.wert[18], 0);
}

TEST_F(Zuwendung, SechsMonateVorherAberKeinGehaltImMonat) {
    // vorher 6 would do, but this month's row 7 is 0.
    bezahlt(0, 5);
    s.wert[7] = 0;
    zuwendung(s);
    EXPECT_EQ(s.wert[18], 0);
}

TEST_F(Zuwendung, SechsMonateVorherReichen) {
    // January to June: vorher 6, nachher 0: monate 7. 291340 / 12 * 7 = 169948.33 -> 169948
    bezahlt(0, 5);
    zuwendung(s);
    EXPECT_EQ(s.wert[18], 169948);
}

TEST_F(Zuwendung, GetipptUmgehtDieZwoelftel) {
    bezahlt(10, 10);
    s.merkmal[18] = 7;
    s.eingabe[18] = 123456;
    zuwendung(s);
    EXPECT_EQ(s.wert[18], 123456);
}

TEST_F(Zuwendung, AusserhalbDesMonatsNullAuchDieEingabe) {
    s.merkmal[20] = 11; // December is not the employees' month
    s.merkmal[18] = 7;
    s.eingabe[18] = 123456;
    s.wert[18] = 5;
    zuwendung(s);
    EXPECT_EQ(s.wert[18], 0);
    EXPECT_EQ(s.eingabe[18], 0);
}

TEST_F(Zuwendung, BeamteImDezemberMitEigenerQuote) {
    // Staff class 0, December, quota 100 %: 300000 + 10000 = 310000, all twelve months.
    bezahlt(0, 10);
    s.merkmal[4] = 0;
    s.merkmal[20] = 11;
    zuwendung(s);
    EXPECT_EQ(s.wert[18], 310000);
    s.merkmal[20] = 10; // November is not theirs
    zuwendung(s);
    EXPECT_EQ(s.wert[18], 0);
}

TEST_F(Zuwendung, NurZeilenMitWeiZaehlen) {
    // Row 12 with wei 0 does not count; row 8 with wei 1 does: (300000 + 50000) * 93.78 %
    // = 328230, + 10000 = 338230, twelve twelfths.
    bezahlt(0, 10);
    s.wert[12] = 99999;
    s.wert[8] = 50000;
    s.wei[8] = 1;
    zuwendung(s);
    EXPECT_EQ(s.wert[18], 338230);
}

} // namespace lonvir
