// The calculation driver's own arithmetic and its order of steps.
#include "core/laufzeitfehler.h"
#include "engine/berechnen.h"
#include "engine/monatladen.h"
#include "engine/tarifdatei.h"
#include "start/satzzugriff.h"
#include "testhilfe.h"

#include <gtest/gtest.h>

namespace lonvir {

namespace {

// Person 1 in March 1997, a civil servant (staff class 0) without wage tax (position 49 of
// row 33), so that only the driver's own rows move.
struct Maerz : ::testing::Test {
    test::Umgebung u;
    Sitzung& s = u.s;
    Maerz() {
        monatladen(s, 1, 2);
        s.merkmal[33] = 49;
        s.aenderungscode = 0;
    }
    void rechnen(int code = 0) {
        s.aenderungscode = static_cast<std::int16_t>(code);
        berechnen(s);
    }
    Personalsatz gespeichert() { return personalsatzlesen(s, 3, 1); }
};

} // namespace

TEST(Berechnen, StartschrittNachAenderungscode) {
    EXPECT_EQ(startschritt(0), 1);
    EXPECT_EQ(startschritt(7), 1);
    EXPECT_EQ(startschritt(11), 1);
    EXPECT_EQ(startschritt(12), 4);
    EXPECT_EQ(startschritt(19), 4);
    EXPECT_EQ(startschritt(20), 1);
    EXPECT_EQ(startschritt(21), 4);
    EXPECT_EQ(startschritt(22), 4);
    EXPECT_EQ(startschritt(23), 14);
    EXPECT_EQ(startschritt(36), 14);
    EXPECT_EQ(startschritt(37), 25);
    EXPECT_EQ(startschritt(40), 25);
    EXPECT_EQ(startschritt(6), 26);
    EXPECT_EQ(startschritt(41), 26);
    EXPECT_EQ(startschritt(44), 26);
    EXPECT_EQ(startschritt(45), 1);
}

TEST_F(Maerz, TeilzeitWochenstundenEinsGibtFaktorNullUndLeereZeilen21Und22) {
    // wert(1) = 1 is not above 1: the factor is 0 even with wert(0) = 1.
    s.eingabe[0] = 1;
    s.eingabe[1] = 1;
    s.eingabe[12] = 10000;
    rechnen();
    EXPECT_EQ(s.teilzeitfaktor, 0.0f);
    EXPECT_EQ(s.wert[20], 10000);
    EXPECT_EQ(s.wert[21], 0);
    EXPECT_EQ(s.wert[22], 0);
}

TEST_F(Maerz, TeilzeitsummeWirdNachJederAdditionGerundet) {
    // 19.25 of 38.50 hours: factor 0.5. Row 12 10001 -> 5000.5, row 13 1 -> 0.5.
    // Sum: round(0 + 5000.5) = 5000 (tie to even), round(5000 + 0.5) = 5000 (tie to even);
    // the exact sum would be 5001.
    s.eingabe[1] = 1925;
    s.eingabe[12] = 10001;
    s.eingabe[13] = 1;
    rechnen();
    EXPECT_EQ(s.teilzeitfaktor, 0.5f);
    EXPECT_EQ(s.teilwert[12], Currency::roh(50005000));
    EXPECT_EQ(s.wert[20], 10002);
    EXPECT_EQ(s.wert[21], 5000);
    EXPECT_EQ(s.wert[22], 5000); // tagefaktor exactly 1: row 22 = row 21
}

TEST_F(Maerz, BezahlteTageKuerzenNurZeilenMitBru) {
    // 15 of 30 days: tagefaktor 0.5. Row 12 10000 -> zahlwert 5000. Overtime 2 hours at
    // 25.50 DM: row 16 = 200 * 2550 / 100 = 5100, and bru(16) is 0, so it is paid in full.
    s.eingabe[3] = 1500;
    s.eingabe[12] = 10000;
    s.eingabe[4] = 200;
    test::ueberstundensatzsetzen(s, 2550);
    rechnen();
    EXPECT_EQ(s.tagefaktor, 0.5f);
    EXPECT_EQ(s.wert[16], 5100);
    EXPECT_EQ(s.wert[20], 15100);
    EXPECT_EQ(s.wert[21], 15100);
    EXPECT_EQ(s.wert[22], 10100);
    // Taxable current wage 10100; tax is taken on a full month: 10100 / 0.5 = 20200.
    EXPECT_EQ(s.lstwert[7], 10100);
    EXPECT_EQ(s.steuerlohn, Currency::ganz(20200));
    EXPECT_EQ(s.wert[27], 10100);
}

TEST_F(Maerz, TagefaktorEinsRechnetNichtHoch) {
    s.eingabe[12] = 10000;
    rechnen();
    EXPECT_EQ(s.tagefaktor, 1.0f);
    EXPECT_EQ(s.steuerlohn, Currency::ganz(10000));
}

TEST_F(Maerz, EinmalzahlungBis30000PfennigIstLaufenderLohn) {
    s.eingabe[19] = 30000;
    rechnen();
    EXPECT_EQ(s.einmallohn, 0);
    EXPECT_EQ(s.lstwert[7], 30000);
    EXPECT_EQ(s.wert[27], 30000);
}

TEST_F(Maerz, EinmalzahlungAb30001PfennigIstSonstigerBezug) {
    s.eingabe[19] = 30001;
    rechnen();
    EXPECT_EQ(s.einmallohn, 30001);
    EXPECT_EQ(s.lstwert[7], 0);
    EXPECT_EQ(s.wert[27], 30001); // lstwert(7) plus the one-off wage
}

TEST_F(Maerz, FreibetragUndSachbezugImSteuerlohn) {
    // 2000.00 DM current wage - 100.00 DM allowance + 50.00 DM non-cash benefit.
    s.eingabe[12] = 200000;
    s.eingabe[23] = 10000;
    s.eingabe[24] = 5000;
    rechnen();
    EXPECT_EQ(s.lstwert[7], 195000);
}

TEST_F(Maerz, VierSummenNachDenSchaltern) {
    // Row 12 is taxable and insured, row 13 tax-free and not insured, row 14 insured only.
    s.eingabe[12] = 1000;
    s.eingabe[13] = 200;
    s.eingabe[14] = 30;
    s.lst[13] = 0;
    s.soz[13] = 0;
    s.lst[14] = 0;
    s.zvk[14] = 0;
    rechnen();
    EXPECT_EQ(s.steuerbrutto, 1000);
    EXPECT_EQ(s.lstwert[2], -230);
    EXPECT_EQ(s.svbrutto, 1030);
    EXPECT_EQ(s.zvkbrutto, 1200);
}

TEST_F(Maerz, AuszahlungIstBruttoPlusZeilen33Bis44) {
    // 1500.00 DM allowance less a typed deduction of 20.00 DM in row 41.
    s.eingabe[12] = 150000;
    s.eingabe[41] = -2000;
    rechnen();
    EXPECT_EQ(s.wert[45], 148000);
}

TEST_F(Maerz, ArbeitgeberUebernimmtDieSteuern) {
    // Church tax typed (-5.00 DM in row 36) and taken over by the employer (row 32 at 1).
    // The wage tax runs (class I, 100 DM bear no tax): with "keine Lohnsteuer" rows 33, 35
    // and 36 are all 0, the typed church tax included.
    s.merkmal[33] = 0;
    s.merkmal[36] = 2;
    s.merkmal[32] = 1;
    s.eingabe[36] = -500;
    s.eingabe[12] = 10000;
    // In a follow-up run the share stays where step 23 put it.
    s.folgelauf = 1;
    rechnen();
    EXPECT_EQ(s.wert[36], 0);
    EXPECT_EQ(s.nebenwert[6], 500);
    EXPECT_EQ(s.wert[45], 10000);
    // In the edited month the levy of a civil servant runs once more at the end and clears
    // nebenwert(0..6) again, the employer's tax shares with it.
    s.folgelauf = 0;
    rechnen();
    EXPECT_EQ(s.wert[36], 0);
    EXPECT_EQ(s.nebenwert[6], 0);
    EXPECT_EQ(s.wert[45], 10000);
    s.merkmal[32] = 0;
    rechnen();
    EXPECT_EQ(s.nebenwert[6], 0);
    EXPECT_EQ(s.wert[36], -500);
}

TEST_F(Maerz, PersonalartOhneEndetMitLeerenZeilen) {
    s.merkmal[4] = 18;
    s.eingabe[12] = 10000;
    s.eingabe[41] = -500;
    s.nebenwert[22] = 5;
    rechnen();
    // Rows 4 to 45 are cleared, but row 27 is written after the clearing from the taxable
    // wage taken before it (10000), and so it stays.
    for (int zeile = 4; zeile <= 45; ++zeile)
        EXPECT_EQ(s.wert[zeile], zeile == 27 ? 10000 : 0) << zeile;
    for (int j = 0; j <= 25; ++j)
        EXPECT_EQ(s.nebenwert[j], 0) << j;
    for (int i = 7; i <= 19; ++i)
        EXPECT_EQ(s.zahlwert[i], Currency::ganz(0)) << i;
    EXPECT_EQ(gespeichert().wert[12], 0);
    EXPECT_EQ(gespeichert().wert[0], 3850);
}

TEST_F(Maerz, ZeileNeunWirdNachDemTeilzeitfaktorGespeichert) {
    // Factor 0.5: teilwert(9) = 10001 * 0.5 = 5000.5, stored rounded to 5000 (tie to even)
    // while the working row keeps 10001. Code 12 starts behind the tariff look-up.
    s.eingabe[1] = 1925;
    s.wert[9] = 10001;
    rechnen(12);
    EXPECT_EQ(s.wert[9], 10001);
    EXPECT_EQ(gespeichert().wert[9], 5000);
    EXPECT_EQ(gespeichert().wert[1], 1925);
}

TEST_F(Maerz, ZahlwerteStehenGerundetInNebenwert) {
    // Factor 0.5 on row 13 = 3: 1.5 -> stored as 2 (tie to even).
    s.eingabe[1] = 1925;
    s.eingabe[13] = 3;
    rechnen();
    EXPECT_EQ(s.nebenwert[13], 2);
    EXPECT_EQ(gespeichert().nebenwert[13], 2);
}

TEST_F(Maerz, ZeilenNeunBeiArbeiternGeleert) {
    // Workers (staff class 8) have no Allgemeine Stellenzulage: row 9 is cleared.
    s.merkmal[4] = 8;
    s.wert[9] = 1234;
    rechnen(12);
    EXPECT_EQ(s.wert[9], 0);
    EXPECT_EQ(s.zeile9aktiv, 0);
}

TEST_F(Maerz, VersicherungsaenderungRuehrtDieSteuerzeilenNichtAn) {
    s.wert[33] = -1234;
    s.eingabe[12] = 9999; // not taken: step 4 lies before the start
    rechnen(37);
    EXPECT_EQ(s.wert[33], -1234);
    EXPECT_EQ(s.wert[12], 0);
}

TEST_F(Maerz, AbzugsaenderungRechnetNurDieAuszahlung) {
    s.eingabe[12] = 10000;
    rechnen();
    s.wert[41] = -100; // deductions are typed rows; code 41 starts at the payment
    rechnen(41);
    EXPECT_EQ(s.wert[45], 9900);
    EXPECT_EQ(gespeichert().wert[45], 9900);
}

TEST_F(Maerz, UeberlaufBeiUeberstundenIstFehler6UndSpeichertNichts) {
    s.eingabe[12] = 10000;
    rechnen();
    s.eingabe[4] = 100000;
    test::ueberstundensatzsetzen(s, 100000); // 10^10 does not fit in 32 bits
    try {
        rechnen();
        FAIL();
    } catch (const Laufzeitfehler& f) {
        EXPECT_EQ(f.nummer(), 6);
    }
    EXPECT_EQ(gespeichert().wert[4], 0);
    EXPECT_EQ(gespeichert().wert[12], 10000);
}

TEST_F(Maerz, StartphaseSpeichertNicht) {
    s.startphase = 1;
    s.eingabe[12] = 10000;
    rechnen();
    EXPECT_EQ(gespeichert().wert[12], 0);
}

TEST_F(Maerz, Beamter1997VorJuliOhneUeberleitungszulage) {
    s.eingabe[10] = 5000;
    rechnen();
    EXPECT_EQ(s.wert[10], 0);
}

} // namespace lonvir
