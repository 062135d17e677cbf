// The supplementary pension of employees: contribution, surcharge, lump tax and the parts that
// go into the taxable and the insured wage.
#include "engine/schritte.h"

#include <gtest/gtest.h>

namespace lonvir {

namespace {

// An employee in the West, January, all days paid; the fund's ceiling 10000 DM, the
// surcharge ceiling 7000 DM in period 1 and 7200 DM in period 2; church tax on the lump tax 9 %.
void angestellter(Sitzung& s) {
    s.merkmal[4] = 5;
    s.merkmal[2] = 0;
    s.merkmal[20] = 0;
    s.tagefaktor = 1.0f;
    s.vorgabewert[2] = 7000;
    s.vorgabewert[3] = 7200;
    s.vorgabewert[6] = 10000;
    s.vorgabewert[7] = 6000;  // Ost, period 1
    s.vorgabewert[11] = 9000; // Ost total
    s.einstellungen.kirchenpausch = 9;
    s.einstellungen.zvkmodus = 0;
    s.wert[25] = 450; // 4.5 %
}

void zeile(Sitzung& s, int i, std::int32_t pfennig, std::int16_t zvk) {
    s.zahlwert[i] = Currency::ganz(pfennig);
    s.teilwert[i] = Currency::ganz(pfennig);
    s.zvk[i] = zvk;
    s.wert[22] += pfennig;
}

} // namespace

TEST(ZvkBerechnen, BeitragUnterDerEntgeltgrenze) {
    Sitzung s;
    angestellter(s);
    zeile(s, 7, 300000, 1); // 3000.00 DM
    zeile(s, 15, 1300, 0);  // VWL 13.00 DM
    s.zvkwert[26] = 5;
    zvk_berechnen(s);
    // Limits: pauschgrenze 17500, freianteil 2600, zvkwert(6) 10000 * 100 = 1000000,
    // stufengrenze 7000 * 100 = 700000.
    EXPECT_EQ(s.pauschgrenze, 17500);
    EXPECT_EQ(s.freianteil, 2600);
    EXPECT_EQ(s.zvkwert[6], 1000000);
    EXPECT_EQ(s.stufengrenze, 700000);
    // 1: 301300, 2: -1300, 3: 0, 4: 0, 5: 300000, 7: 300000.
    EXPECT_EQ(s.zvkwert[1], 301300);
    EXPECT_EQ(s.zvkwert[2], -1300);
    EXPECT_EQ(s.zvkwert[5], 300000);
    EXPECT_EQ(s.zvkwert[7], 300000);
    // 8: 0.045 * 300000 = 13500. entgeltgrenze 17500 / 0.045 = 388888.9 -> 388889;
    // svanteil 388889 * 0.025 - 2600 = 7122.225 -> 7122. 11: below the ceiling, 0.
    EXPECT_EQ(s.zvkwert[8], 13500);
    EXPECT_EQ(s.entgeltgrenze, 388889);
    EXPECT_EQ(s.svanteil, 7122);
    EXPECT_EQ(s.zvkwert[11], 0);
    EXPECT_EQ(s.zvkwert[12], 13500);
    EXPECT_EQ(s.wert[31], 13500);
    // 300000 <= 388889: all of it lump-taxed, nothing added to the taxable wage;
    // 16: 300000 * 0.025 = 7500, above 2600, less 2600 = 4900.
    EXPECT_EQ(s.zvkwert[14], 13500);
    EXPECT_EQ(s.zvkwert[15], 0);
    EXPECT_EQ(s.zvkwert[16], 4900);
    EXPECT_EQ(s.zvkwert[17], 0);
    EXPECT_EQ(s.zvkwert[18], 4900);
    // Lump tax 13500 * 0.2 = 2700; church tax 2700 * 9 / 100 = 243; surcharge
    // 2700 * 0.075 = 202.5 cut to 202; total 13500 + 2700 + 243 + 202 = 16645.
    EXPECT_EQ(s.zvkwert[21], 13500);
    EXPECT_EQ(s.zvkwert[22], 2700);
    EXPECT_EQ(s.zvkwert[23], 243);
    EXPECT_EQ(s.wert[6], 243);
    EXPECT_EQ(s.zvkwert[24], 202);
    EXPECT_EQ(s.zvkwert[25], 16645);
    EXPECT_EQ(s.wert[32], 2902);
    EXPECT_EQ(s.zvkwert[26], 0);
}

TEST(ZvkBerechnen, ZuschlagUeberDerStufengrenze) {
    Sitzung s;
    angestellter(s);
    zeile(s, 7, 1200000, 1); // 12000.00 DM, above the fund's ceiling of 10000 DM
    zvk_berechnen(s);
    // 7: limited to 1000000; 8: 0.045 * 1000000 = 45000; 11: (1000000 - 700000) * 0.09 = 27000.
    EXPECT_EQ(s.zvkwert[7], 1000000);
    EXPECT_EQ(s.zvkwert[8], 45000);
    EXPECT_EQ(s.zvkwert[11], 27000);
    EXPECT_EQ(s.zvkwert[12], 72000);
    // Above the entgeltgrenze: 17500 lump-taxed, 72000 - 17500 = 54500 into the taxable wage;
    // 16 is svanteil 7122, 18 = 7122 + 54500 = 61622.
    EXPECT_EQ(s.zvkwert[14], 17500);
    EXPECT_EQ(s.zvkwert[15], 54500);
    EXPECT_EQ(s.zvkwert[16], 7122);
    EXPECT_EQ(s.zvkwert[18], 61622);
    // Lump tax 3500, church tax 315, surcharge 262.5 cut to 262; rows 32 = 3762.
    EXPECT_EQ(s.zvkwert[22], 3500);
    EXPECT_EQ(s.wert[6], 315);
    EXPECT_EQ(s.zvkwert[24], 262);
    EXPECT_EQ(s.wert[32], 3762);
}

TEST(ZvkBerechnen, TagefaktorHalbiertAlleDreiGrenzen) {
    Sitzung s;
    angestellter(s);
    s.tagefaktor = 0.5f;
    zeile(s, 7, 600000, 1);
    zvk_berechnen(s);
    // pauschgrenze 17500 * 0.5 = 8750, zvkwert(6) 1000000 * 0.5 = 500000,
    // stufengrenze 700000 * 0.5 = 350000; freianteil 2600 * 0.5 = 1300.
    EXPECT_EQ(s.pauschgrenze, 8750);
    EXPECT_EQ(s.zvkwert[6], 500000);
    EXPECT_EQ(s.stufengrenze, 350000);
    EXPECT_EQ(s.freianteil, 1300);
    // 7: 500000; 11: (500000 - 350000) * 0.09 = 13500; entgeltgrenze 8750 / 0.045 =
    // 194444.4 -> 194444; svanteil 194444 * 0.025 - 1300 = 3561.1 -> 3561.
    EXPECT_EQ(s.zvkwert[7], 500000);
    EXPECT_EQ(s.zvkwert[11], 13500);
    EXPECT_EQ(s.entgeltgrenze, 194444);
    EXPECT_EQ(s.svanteil, 3561);
    EXPECT_EQ(s.zvkwert[14], 8750);
}

TEST(ZvkBerechnen, ZuwendungImNovemberHebtBeideGrenzen) {
    Sitzung s;
    angestellter(s);
    zeile(s, 7, 300000, 1);
    zeile(s, 18, 250000, 1); // Zuwendung 2500.00 DM
    s.merkmal[20] = 9;       // October: no raise
    zvk_berechnen(s);
    EXPECT_EQ(s.zvkwert[6], 1000000);
    EXPECT_EQ(s.stufengrenze, 700000);
    s.merkmal[20] = 10; // November: both raised by 250000
    zvk_berechnen(s);
    EXPECT_EQ(s.zvkwert[6], 1250000);
    EXPECT_EQ(s.stufengrenze, 950000);
    // 5: 550000, below the raised ceiling, all of it pensionable: 0.045 * 550000 = 24750.
    EXPECT_EQ(s.zvkwert[7], 550000);
    EXPECT_EQ(s.zvkwert[8], 24750);
}

TEST(ZvkBerechnen, NovemberNimmtDieZahlungUndDieTeilzeitzeile) {
    Sitzung s;
    angestellter(s);
    s.merkmal[20] = 10;
    s.tagefaktor = 0.5f;
    zeile(s, 7, 300000, 1);
    s.teilwert[18] = Currency::ganz(200000); // after the part-time factor
    s.zahlwert[18] = Currency::ganz(100000); // after the paid days as well
    s.zvk[18] = 1;
    zvk_berechnen(s);
    // zvkwert(6): 1000000 * 0.5 = 500000, then plus the paid 100000 = 600000.
    // stufengrenze: 700000 plus the part-time 200000 = 900000, then * 0.5 = 450000.
    EXPECT_EQ(s.zvkwert[6], 600000);
    EXPECT_EQ(s.stufengrenze, 450000);
}

TEST(ZvkBerechnen, OhneSatzKeinBeitrag) {
    Sitzung s;
    angestellter(s);
    s.wert[25] = 0;
    zeile(s, 7, 800000, 1); // above the surcharge ceiling of 700000
    zvk_berechnen(s);
    EXPECT_EQ(s.zvkwert[7], 800000);
    EXPECT_EQ(s.entgeltgrenze, 0);
    EXPECT_EQ(s.zvkwert[8], 0);
    EXPECT_EQ(s.zvkwert[11], 0);
    EXPECT_EQ(s.zvkwert[12], 0);
    EXPECT_EQ(s.zvkwert[14], 0);
    EXPECT_EQ(s.zvkwert[16], 0);
    EXPECT_EQ(s.zvkwert[18], 0);
    EXPECT_EQ(s.wert[31], 0);
    EXPECT_EQ(s.wert[32], 0);
    EXPECT_EQ(s.wert[6], 0);
}

TEST(ZvkBerechnen, KnappUeberDerEntgeltgrenzeWechselnPauschteilUndSvTeil) {
    Sitzung s;
    angestellter(s);
    s.vorgabewert[2] = 3000; // surcharge from 300000, so the contribution exceeds the lump limit
    // entgeltgrenze 17500 / 0.045 = 388889.
    zeile(s, 7, 388889, 1);
    zvk_berechnen(s);
    // At the limit: 8: 17500.005 -> 17500; 11: 88889 * 0.09 = 8000.01 -> 8000; 12: 25500,
    // all lump-taxed; 16: 388889 * 0.025 = 9722.225 -> 9722, less 2600 = 7122.
    EXPECT_EQ(s.zvkwert[12], 25500);
    EXPECT_EQ(s.zvkwert[14], 25500);
    EXPECT_EQ(s.zvkwert[15], 0);
    EXPECT_EQ(s.zvkwert[16], 7122);
    s.wert[22] = 0;
    zeile(s, 7, 388890, 1);
    zvk_berechnen(s);
    // One Pfennig above: 8: 17500.05 -> 17500; 11: 8000.1 -> 8000; 12: 25500;
    // 14 is the lump limit 17500, 15 the rest 8000; 16 is svanteil 7122.
    EXPECT_EQ(s.zvkwert[12], 25500);
    EXPECT_EQ(s.zvkwert[14], 17500);
    EXPECT_EQ(s.zvkwert[15], 8000);
    EXPECT_EQ(s.zvkwert[16], 7122);
    EXPECT_EQ(s.zvkwert[18], 15122);
}

TEST(ZvkBerechnen, SvTeilUnter26MarkBleibtUngekuerzt) {
    Sitzung s;
    angestellter(s);
    s.wert[25] = 2000; // 20 %: entgeltgrenze 17500 / 0.2 = 87500
    zeile(s, 7, 87500, 1);
    zvk_berechnen(s);
    // At the limit: 87500 * 0.025 = 2187.5 -> 2188 (to even), not above 2600, so it stays.
    EXPECT_EQ(s.entgeltgrenze, 87500);
    EXPECT_EQ(s.zvkwert[16], 2188);
    s.wert[22] = 0;
    zeile(s, 7, 87501, 1);
    zvk_berechnen(s);
    // Above: svanteil 87500 * 0.025 - 2600 = -412.5, at least 0.
    EXPECT_EQ(s.svanteil, 0);
    EXPECT_EQ(s.zvkwert[16], 0);
}

TEST(ZvkBerechnen, StufengrenzeDerBegonnenenTarifperiode) {
    Sitzung s;
    angestellter(s);
    s.einstellungen.ab_tarif2 = 3; // period 2 from March
    zeile(s, 7, 300000, 1);
    s.merkmal[20] = 1; // February: period 1
    zvk_berechnen(s);
    EXPECT_EQ(s.stufengrenze, 700000);
    s.merkmal[20] = 2; // March: period 2, 7200 DM
    zvk_berechnen(s);
    EXPECT_EQ(s.stufengrenze, 720000);
}

TEST(ZvkBerechnen, PeriodengrenzeGiltWennGesamtgrenzeInPfennigSieInMarkUebersteigt) {
    Sitzung s;
    angestellter(s);
    s.einstellungen.ab_tarif2 = 1;
    zeile(s, 7, 3000, 1);
    s.vorgabewert[3] = 5000; // period 2: 5000 DM
    s.vorgabewert[6] = 100;  // fund ceiling 100 DM = 10000 Pfennig: 10000 > 5000
    zvk_berechnen(s);
    EXPECT_EQ(s.stufengrenze, 500000);
    s.vorgabewert[6] = 40; // 4000 Pfennig, not above 5000: period 1 stays
    zvk_berechnen(s);
    EXPECT_EQ(s.stufengrenze, 700000);
}

TEST(ZvkBerechnen, OstNimmtDieGrenzenDesOstens) {
    Sitzung s;
    angestellter(s);
    s.merkmal[2] = 1;
    zeile(s, 7, 300000, 1);
    zvk_berechnen(s);
    EXPECT_EQ(s.zvkwert[6], 900000);
    EXPECT_EQ(s.stufengrenze, 600000);
}

TEST(ZvkBerechnen, AbzugDerNichtPflichtigenZeilenWirdSchrittweiseGerundet) {
    Sitzung s;
    angestellter(s);
    s.zahlwert[12] = Currency::roh(10006000); // 1000.6 Pfennig, zvk 0
    s.zahlwert[13] = Currency::roh(20006000); // 2000.6 Pfennig, zvk 0
    zvk_berechnen(s);
    // 0 - 1000.6 -> -1001; -1001 - 2000.6 = -3001.6 -> -3002.
    EXPECT_EQ(s.zvkwert[2], -3002);
}

TEST(ZvkBerechnen, PauschalmodusVollBisZumLimit) {
    Sitzung s;
    angestellter(s);
    s.einstellungen.zvkmodus = 1;
    zeile(s, 7, 300000, 1);
    zvk_berechnen(s);
    // 28400 instead of 17500; entgeltgrenze 28400 / 0.045 = 631111.1 -> 631111.
    EXPECT_EQ(s.pauschgrenze, 28400);
    EXPECT_EQ(s.entgeltgrenze, 631111);
}

} // namespace lonvir
