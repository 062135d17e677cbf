// The later months follow an edit with the working set carried forward.
#include "engine/berechnen.h"
#include "engine/monatladen.h"
#include "engine/tarifdatei.h"
#include "screen/eingabe.h"
#include "start/satzzugriff.h"
#include "testhilfe.h"

#include <gtest/gtest.h>

namespace lonvir {

namespace {
struct Folgemonate : ::testing::Test {
    test::Umgebung u;
    Sitzung& s = u.s;
    Personalsatz monat(int m, int person = 2) { return personalsatzlesen(s, m, person); }
    // Holiday pay and Christmas bonus as typed rows, so that July and November carry no
    // computed bonus into the sums checked here.
    void laden(std::int16_t monatsindex) {
        monatladen(s, 2, monatsindex);
        s.merkmal[17] = 1;
        s.merkmal[18] = 7;
    }
};
} // namespace

TEST_F(Folgemonate, GetippterBetragImMaerzReichtBisDezember) {
    laden(2);
    betragbestaetigen(s, 12, 10000);
    EXPECT_EQ(monat(1).wert[12], 0);
    EXPECT_EQ(monat(2).wert[12], 0);
    for (int m = 3; m <= 12; ++m) {
        EXPECT_EQ(monat(m).wert[12], 10000) << m;
        EXPECT_EQ(monat(m).wert[22], 10000) << m;
        EXPECT_EQ(monat(m).merkmal[20], m - 1) << m;
    }
    // Another person is untouched.
    EXPECT_EQ(monat(7, 3).wert[12], 0);
    // The working set is back on March.
    EXPECT_EQ(s.merkmal[20], 2);
    EXPECT_EQ(s.folgelauf, 0);
}

TEST_F(Folgemonate, UeberstundenUndEinmalzahlungenBleibenImMonat) {
    laden(2);
    test::ueberstundensatzsetzen(s, 2550); // the rate comes from the tariff line
    betragbestaetigen(s, 4, 200);          // 2 hours: row 16 = 200 * 2550 / 100 = 5100
    EXPECT_EQ(monat(3).wert[4], 200);
    EXPECT_EQ(monat(3).wert[16], 5100);
    EXPECT_EQ(monat(4).wert[4], 0);
    EXPECT_EQ(monat(4).wert[16], 0);
    EXPECT_EQ(monat(4).wert[5], 2550);
    // Overtime is kept in the record of March, but no longer as typed.
    EXPECT_EQ(s.eingabe[4], 0);

    betragbestaetigen(s, 19, 50000);
    EXPECT_EQ(monat(3).wert[19], 50000);
    EXPECT_EQ(monat(4).wert[19], 0);
    EXPECT_EQ(monat(12).wert[19], 0);
    EXPECT_EQ(s.eingabe[19], 0);

    // Row 18 is kept only in the month of the Zuwendung (November for an employee) and
    // cleared in every other, typed or not.
    laden(10);
    s.merkmal[4] = 5;
    betragbestaetigen(s, 18, 70000);
    EXPECT_EQ(monat(11).wert[18], 70000);
    EXPECT_EQ(monat(12).wert[18], 0);
    EXPECT_EQ(s.eingabe[18], 70000);
}

TEST_F(Folgemonate, LaterMonthKeepsItsOwnEditUntilAnEarlierOneIsMade) {
    laden(8);
    betragbestaetigen(s, 13, 300); // September on
    laden(2);
    betragbestaetigen(s, 12, 100); // March on: carries March's working set forward
    EXPECT_EQ(monat(9).wert[12], 100);
    EXPECT_EQ(monat(9).wert[13], 0);
}

TEST_F(Folgemonate, DezemberHatKeineFolgemonate) {
    laden(10);
    betragbestaetigen(s, 12, 4000); // November: December follows
    EXPECT_EQ(monat(12).wert[12], 4000);
    laden(11);
    betragbestaetigen(s, 12, 5000); // December: nothing follows, nothing wraps to January
    EXPECT_EQ(monat(12).wert[12], 5000);
    EXPECT_EQ(monat(1).wert[12], 0);
}

TEST_F(Folgemonate, GesperrteJahressichtRechnetNichtWeiter) {
    laden(2);
    s.jahressperre = 1;
    s.eingabe[12] = 999;
    folgemonate(s);
    EXPECT_EQ(monat(4).wert[12], 0);
}

TEST_F(Folgemonate, UnterdrueckteFolgeBleibtImMonat) {
    laden(2);
    s.folgesperre = 1;
    betragbestaetigen(s, 12, 10000);
    EXPECT_EQ(monat(3).wert[12], 10000);
    EXPECT_EQ(monat(4).wert[12], 0);
}

TEST(Nachrechnen, NurWennEineBerechnungFaelligIst) {
    test::Umgebung u;
    monatladen(u.s, 1, 0);
    u.s.eingabe[12] = 100;
    u.s.Neuberechnung = 0;
    nachrechnen(u.s);
    EXPECT_EQ(personalsatzlesen(u.s, 1, 1).wert[12], 0);
    u.s.Neuberechnung = -1;
    nachrechnen(u.s);
    EXPECT_EQ(personalsatzlesen(u.s, 1, 1).wert[12], 100);
    EXPECT_EQ(u.s.Neuberechnung, 0);
}

} // namespace lonvir
