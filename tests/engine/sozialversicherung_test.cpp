// Social insurance: the wage subject to insurance, the monthly and yearly ceilings, and the
// employee's rows and employer's shares of the four branches.
#include "engine/berechnen.h"
#include "engine/monatladen.h"
#include "engine/schritte.h"
#include "start/einstellungen.h"
#include "start/satzzugriff.h"
#include "testhilfe.h"

#include <gtest/gtest.h>

namespace lonvir {

namespace {

// An employee (staff class 5) in the West, person 1, January 1997, all days paid, with the
// settings of 1997: care 1.7 %, pension 20.3 %, unemployment 6.5 % (employee's halves 0.85,
// 10.15, 3.25), ceilings of health 6150 DM and pension 8200 DM in the West, 5325 DM and
// 7100 DM in the Ost. Fund 0 charges 13.4 % all year; fund 1 13.4 % and from July 13.5 %.
struct Versicherung : ::testing::Test {
    test::Umgebung u;
    Sitzung& s = u.s;
    Versicherung() {
        s.voreinstellung[1] = Currency::ganz(2);  // (0.2 + 1.5) / 2 = 0.85
        s.voreinstellung[2] = Currency::ganz(8);  // (0.8 + 19.5) / 2 = 10.15
        s.voreinstellung[3] = Currency::ganz(5);  // (0.5 + 6.0) / 2 = 3.25
        s.voreinstellung[4] = Currency::ganz(3);  // 3 * 50 + 6000 = 6150 DM
        s.voreinstellung[6] = Currency::ganz(4);  // 4 * 50 + 8000 = 8200 DM
        s.voreinstellung[9] = Currency::ganz(1);  // 1 * 25 + 5300 = 5325 DM
        s.voreinstellung[11] = Currency::ganz(2); // 2 * 50 + 7000 = 7100 DM
        s.voreinstellung[15] = Currency::ganz(1);
        aktualisieren(s);
        for (int monat = 0; monat <= 11; ++monat) {
            s.kvsatz[monat][0] = Currency::ganz(1340);
            s.kvsatz[monat][1] = Currency::ganz(monat < 6 ? 1340 : 1350);
        }
        s.merkmal[4] = 5;
        s.merkmal[2] = 0;
        s.merkmal[20] = 0;
        s.tagefaktor = 1.0f;
        s.soz.fuellen(1);
    }
    void zeile(int i, std::int32_t pfennig, std::int16_t soz = 1) {
        s.zahlwert[i] = Currency::ganz(pfennig);
        s.soz[i] = soz;
        s.wert[22] += pfennig;
    }
    // A month of 4000.00 DM Grundgehalt, 13.00 DM VWL outside the insurance and 49.00 DM
    // added by the supplementary pension: 404900 subject to insurance.
    void normalmonat() {
        zeile(7, 400000);
        zeile(15, 1300, 0);
        s.zvkwert[18] = 4900;
    }
    // The stored bases of an earlier month: row 28 pension, row 29 health insurance.
    void frueherermonat(int monat, std::int32_t zeile28, std::int32_t zeile29) {
        Personalsatz p = Personalsatz::neu(static_cast<std::int16_t>(monat));
        p.wert[28] = zeile28;
        p.wert[29] = zeile29;
        personalsatzschreiben(s, monat + 1, 1, p);
    }
};

} // namespace

TEST_F(Versicherung, EinstellungenDes1997) {
    EXPECT_EQ(s.einstellungen.pvsatz, Currency::roh(8500));
    EXPECT_EQ(s.einstellungen.rvsatz, Currency::roh(101500));
    EXPECT_EQ(s.einstellungen.avsatz, Currency::roh(32500));
    EXPECT_EQ(s.einstellungen.bmgKvWest, 615000);
    EXPECT_EQ(s.einstellungen.bmgRvWest, 820000);
    EXPECT_EQ(s.einstellungen.bmgKvOst, 532500);
    EXPECT_EQ(s.einstellungen.bmgRvOst, 710000);
}

TEST_F(Versicherung, MonatUnterDenGrenzen) {
    normalmonat();
    sozialversicherung(s);
    // 1: 401300; 2: -1300; 3: 0; 4: 4900; 5: 0; 6: 404900.
    EXPECT_EQ(s.svwert[1], 401300);
    EXPECT_EQ(s.svwert[2], -1300);
    EXPECT_EQ(s.svwert[3], 0);
    EXPECT_EQ(s.svwert[4], 4900);
    EXPECT_EQ(s.svwert[6], 404900);
    // Below both ceilings; the room of January alone: 615000 - 404900 and 820000 - 404900.
    EXPECT_EQ(s.svwert[7], 404900);
    EXPECT_EQ(s.svwert[8], 404900);
    EXPECT_EQ(s.svwert[12], 210100);
    EXPECT_EQ(s.svwert[13], 0);
    EXPECT_EQ(s.svwert[14], 404900);
    EXPECT_EQ(s.svwert[15], 415100);
    EXPECT_EQ(s.svwert[16], 0);
    EXPECT_EQ(s.svwert[17], 404900);
    // KV: 404900 * 1340 / 20000 = 27128.3 -> -27128.
    EXPECT_EQ(s.wert[37], -27128);
    EXPECT_EQ(s.nebenwert[0], 27128);
    // PV: 404900 * 0.85 / 100 = 3441.65 -> -3442.
    EXPECT_EQ(s.wert[38], -3442);
    EXPECT_EQ(s.nebenwert[1], 3442);
    // RV: 404900 * 10.15 / 100 = 41097.35 -> -41097.
    EXPECT_EQ(s.wert[39], -41097);
    EXPECT_EQ(s.nebenwert[2], 41097);
    // AV: 404900 * 3.25 / 100 = 13159.25 -> 13159.
    EXPECT_EQ(s.nebenwert[3], 13159);
    EXPECT_EQ(s.wert[40], -13159);
    EXPECT_EQ(s.svwert[20], 404900);
    EXPECT_EQ(s.svwert[22], 404900);
    EXPECT_EQ(s.svwert[24], 404900);
    EXPECT_EQ(s.svwert[26], 404900);
}

TEST_F(Versicherung, TagefaktorHalbiertBeideGrenzen) {
    zeile(7, 500000);
    sozialversicherung(s);
    EXPECT_EQ(s.svwert[7], 500000);
    EXPECT_EQ(s.svwert[8], 500000);
    s.wert[22] = 500000;
    s.tagefaktor = 0.5f;
    sozialversicherung(s);
    // 615000 * 0.5 = 307500 and 820000 * 0.5 = 410000.
    EXPECT_EQ(s.svwert[7], 307500);
    EXPECT_EQ(s.svwert[14], 307500);
    EXPECT_EQ(s.svwert[8], 410000);
    EXPECT_EQ(s.svwert[17], 410000);
}

TEST_F(Versicherung, OstNimmtDieGrenzenDesOstens) {
    s.merkmal[2] = 1;
    zeile(7, 600000);
    sozialversicherung(s);
    EXPECT_EQ(s.svwert[7], 532500);
    EXPECT_EQ(s.svwert[8], 600000);
}

TEST_F(Versicherung, EinmalzahlungUeberDerMonatsgrenzeBringtNichtsTrotzRaumAusVormonaten) {
    // March; January left room (its stored bases 500000 and 450000), February none.
    frueherermonat(0, 500000, 450000);
    frueherermonat(1, 820000, 615000);
    s.merkmal[20] = 2;
    zeile(7, 700000);  // above the health ceiling of 615000
    zeile(19, 200000); // one-off payment
    sozialversicherung(s);
    // 3: -200000; 6: 900000 - 200000 = 700000; 7: 615000; 8: 700000.
    EXPECT_EQ(s.svwert[3], -200000);
    EXPECT_EQ(s.svwert[6], 700000);
    // Health room, set against the stored row 28: 615000 - 500000 = 115000, February 0.
    // The month is at its ceiling, so nothing of the one-off payment is taken.
    EXPECT_EQ(s.svwert[12], 115000);
    EXPECT_EQ(s.svwert[13], 0);
    EXPECT_EQ(s.svwert[14], 615000);
    // Pension room, set against the stored row 29: 820000 - 450000 = 370000, plus
    // 820000 - 615000 = 205000, plus this month's 820000 - 700000 = 120000: 695000;
    // all 200000 taken, base 900000.
    EXPECT_EQ(s.svwert[15], 695000);
    EXPECT_EQ(s.svwert[16], 200000);
    EXPECT_EQ(s.svwert[17], 900000);
}

TEST_F(Versicherung, EinmalzahlungNutztDenRaumDerVormonate) {
    frueherermonat(0, 500000, 450000);
    frueherermonat(1, 820000, 615000);
    s.merkmal[20] = 2;
    zeile(7, 600000);  // 15000 below the health ceiling
    zeile(19, 100000); // one-off payment
    sozialversicherung(s);
    // 12: 115000 from January plus 15000 of March = 130000; 13: all 100000; 14: 700000,
    // above the monthly ceiling by what January left.
    EXPECT_EQ(s.svwert[12], 130000);
    EXPECT_EQ(s.svwert[13], 100000);
    EXPECT_EQ(s.svwert[14], 700000);
}

TEST_F(Versicherung, EinmalzahlungOhneVormonateNurBisZurMonatsgrenze) {
    zeile(7, 600000);
    zeile(19, 100000);
    sozialversicherung(s);
    // January: the room is this month's 15000 only.
    EXPECT_EQ(s.svwert[12], 15000);
    EXPECT_EQ(s.svwert[13], 15000);
    EXPECT_EQ(s.svwert[14], 615000);
}

TEST_F(Versicherung, BruttomodusLiestKeineVormonate) {
    frueherermonat(0, 0, 0);
    s.merkmal[20] = 1;
    s.bruttomodus = 1;
    zeile(7, 600000);
    zeile(19, 100000);
    zeile(15, 1300, 0);
    sozialversicherung(s);
    // 2 and 3 are 0, so the wage is all of row 22: 701300, capped at 615000 and nothing
    // of January's room is read.
    EXPECT_EQ(s.svwert[2], 0);
    EXPECT_EQ(s.svwert[3], 0);
    EXPECT_EQ(s.svwert[7], 615000);
    EXPECT_EQ(s.svwert[12], 0);
    EXPECT_EQ(s.svwert[14], 615000);
}

TEST_F(Versicherung, KrankenkasseNachMonat) {
    s.merkmal[37] = 1;
    s.merkmal[20] = 6; // July: 13.5 %
    normalmonat();
    sozialversicherung(s);
    // 404900 * 1350 / 20000 = 27330.75 -> -27331.
    EXPECT_EQ(s.wert[37], -27331);
    EXPECT_EQ(s.nebenwert[0], 27331);
}

TEST_F(Versicherung, JahresansichtRechnetMitDemDezember) {
    // The year position 12 takes December's rate (fund 1: 13.5 %) and the eleven months
    // before December, each of them empty: 11 * 615000 + this month's 210100 = 6975100.
    s.merkmal[37] = 1;
    s.merkmal[20] = 12;
    normalmonat();
    sozialversicherung(s);
    EXPECT_EQ(s.wert[37], -27331); // 404900 * 1350 / 20000 = 27330.75
    EXPECT_EQ(s.svwert[12], 6975100);
}

TEST_F(Versicherung, GetippterZuschussZurKrankenversicherungIstPositiv) {
    s.merkmal[37] = 28;
    s.eingabe[37] = 15000;
    normalmonat();
    sozialversicherung(s);
    EXPECT_EQ(s.wert[37], 15000);
    EXPECT_EQ(s.nebenwert[0], 15000);
}

TEST_F(Versicherung, OhneKrankenversicherung) {
    s.merkmal[37] = 29;
    s.wert[37] = -1;
    s.nebenwert[0] = 1;
    normalmonat();
    sozialversicherung(s);
    EXPECT_EQ(s.wert[37], 0);
    EXPECT_EQ(s.nebenwert[0], 0);
}

TEST_F(Versicherung, ZuschussZurPflegeversicherungIstPositiv) {
    s.merkmal[38] = 1;
    normalmonat();
    sozialversicherung(s);
    // 404900 * 0.85 / 100 = 3441.65 -> 3442, as a subsidy.
    EXPECT_EQ(s.wert[38], 3442);
    EXPECT_EQ(s.nebenwert[1], 3442);
}

TEST_F(Versicherung, PflegeversicherungNachJederAuswahl) {
    normalmonat();
    s.nebenwert[1] = 77;
    // 2: employee 1 %: 4049 -> -4049; employer 404900 * 0.7 / 100 = 2834.3 -> 2834.
    s.merkmal[38] = 2;
    sozialversicherung(s);
    EXPECT_EQ(s.wert[38], -4049);
    EXPECT_EQ(s.nebenwert[1], 2834);
    // 3: the employer's part as a subsidy.
    s.merkmal[38] = 3;
    sozialversicherung(s);
    EXPECT_EQ(s.wert[38], 2834);
    EXPECT_EQ(s.nebenwert[1], 2834);
    // 4: nothing.
    s.merkmal[38] = 4;
    sozialversicherung(s);
    EXPECT_EQ(s.wert[38], 0);
    EXPECT_EQ(s.nebenwert[1], 0);
    // 5: the factor 0.0085 gives 3441.65 -> 3442, positive; the employer's share unchanged.
    s.nebenwert[1] = 77;
    s.merkmal[38] = 5;
    sozialversicherung(s);
    EXPECT_EQ(s.wert[38], 3442);
    EXPECT_EQ(s.nebenwert[1], 77);
    // 6: row 0, the employer's share unchanged.
    s.merkmal[38] = 6;
    sozialversicherung(s);
    EXPECT_EQ(s.wert[38], 0);
    EXPECT_EQ(s.nebenwert[1], 77);
}

TEST_F(Versicherung, PflegeAuswahlUeberSechsNimmtDenFaktorDesLaufsDavor) {
    normalmonat();
    s.merkmal[38] = 4; // factor (2 * 0.85 - 1) / 100 = 0.007
    sozialversicherung(s);
    s.nebenwert[1] = 77;
    s.merkmal[38] = 7;
    sozialversicherung(s);
    // 404900 * 0.007 = 2834.3 -> 2834, positive; the share stays.
    EXPECT_EQ(s.wert[38], 2834);
    EXPECT_EQ(s.nebenwert[1], 77);
    s.merkmal[38] = 3; // factor 0.01
    sozialversicherung(s);
    s.merkmal[38] = 9;
    sozialversicherung(s);
    EXPECT_EQ(s.wert[38], 4049);
}

TEST_F(Versicherung, RenteUndArbeitslosigkeitAbwaehlbar) {
    normalmonat();
    s.merkmal[39] = 1;
    s.merkmal[40] = 1;
    s.wert[39] = -5;
    s.wert[40] = -5;
    s.nebenwert[2] = 5;
    s.nebenwert[3] = 5;
    sozialversicherung(s);
    EXPECT_EQ(s.wert[39], 0);
    EXPECT_EQ(s.nebenwert[2], 0);
    EXPECT_EQ(s.wert[40], 0);
    EXPECT_EQ(s.nebenwert[3], 0);
}

TEST_F(Versicherung, ArbeitgeberTraegtDieVersicherung) {
    zeile(7, 400004);
    zeile(15, 1300, 0);
    s.zvkwert[18] = 4900; // base 404904
    for (std::int16_t uebernahme : {2, 3}) {
        s.merkmal[32] = uebernahme;
        sozialversicherung(s);
        EXPECT_EQ(s.svwert[14], 404904);
        // KV whole: 404904 * 1340 / 10000 = 54257.136 -> 54257.
        EXPECT_EQ(s.wert[37], 0);
        EXPECT_EQ(s.nebenwert[0], 54257);
        // PV: the employee's 3441.684 -> -3442, twice 3442 = 6884.
        EXPECT_EQ(s.wert[38], 0);
        EXPECT_EQ(s.nebenwert[1], 6884);
        // RV: 404904 * 10.15 / 100 = 41097.756, doubled 82195.512 -> 82196.
        EXPECT_EQ(s.wert[39], 0);
        EXPECT_EQ(s.nebenwert[2], 82196);
        // AV: 404904 * 3.25 / 100 = 13159.38 -> 13159, doubled 26318 (not 26318.76 -> 26319).
        EXPECT_EQ(s.wert[40], 0);
        EXPECT_EQ(s.nebenwert[3], 26318);
    }
    // 1 is the tax only.
    s.merkmal[32] = 1;
    sozialversicherung(s);
    EXPECT_EQ(s.wert[37], -27129); // 404904 * 1340 / 20000 = 27128.568
    EXPECT_EQ(s.wert[40], -13159);
}

TEST_F(Versicherung, BeamteZahlenNichts) {
    s.merkmal[4] = 3;
    normalmonat();
    for (int zeile = 37; zeile <= 40; ++zeile)
        s.wert[zeile] = -100;
    s.svwert[14] = 5;
    s.nebenwert[0] = 9;
    sozialversicherung(s);
    for (int zeile = 37; zeile <= 40; ++zeile)
        EXPECT_EQ(s.wert[zeile], 0) << zeile;
    for (int i = 0; i <= 27; ++i)
        EXPECT_EQ(s.svwert[i], 0) << i;
    EXPECT_EQ(s.nebenwert[0], 9);
}

TEST_F(Versicherung, PersonalartOhneRechnetKeineZeilen) {
    s.merkmal[4] = 18;
    normalmonat();
    s.svwert[14] = 5;
    sozialversicherung(s);
    for (int zeile = 37; zeile <= 40; ++zeile)
        EXPECT_EQ(s.wert[zeile], 0) << zeile;
    for (int i = 0; i <= 27; ++i)
        EXPECT_EQ(s.svwert[i], 0) << i;
    for (int j = 0; j <= 3; ++j)
        EXPECT_EQ(s.nebenwert[j], 0) << j;
}

TEST_F(Versicherung, DerLaufSchreibtDieBasenUndZahltNetto) {
    // Person 1 in March as an employee with 4000.00 DM in the free allowance row 12, fund 0,
    // no wage tax (position 49 of row 33), no church tax, no supplementary pension rate.
    monatladen(s, 1, 2);
    s.merkmal[4] = 5;
    s.merkmal[33] = 49;
    s.merkmal[36] = 2;
    s.eingabe[12] = 400000;
    s.aenderungscode = 0;
    berechnen(s);
    // KV 400000 * 1340 / 20000 = 26800; PV 400000 * 0.85 / 100 = 3400;
    // RV 400000 * 10.15 / 100 = 40600; AV 400000 * 3.25 / 100 = 13000.
    EXPECT_EQ(s.wert[37], -26800);
    EXPECT_EQ(s.wert[38], -3400);
    EXPECT_EQ(s.wert[39], -40600);
    EXPECT_EQ(s.wert[40], -13000);
    // Row 29 the health base, row 28 the pension base, both 400000 here.
    EXPECT_EQ(s.wert[29], 400000);
    EXPECT_EQ(s.wert[28], 400000);
    // 400000 - 26800 - 3400 - 40600 - 13000 = 316200.
    EXPECT_EQ(s.wert[45], 316200);
    const Personalsatz gespeichert = personalsatzlesen(s, 3, 1);
    EXPECT_EQ(gespeichert.wert[29], 400000);
    EXPECT_EQ(gespeichert.wert[28], 400000);
    EXPECT_EQ(gespeichert.wert[45], 316200);
}

TEST_F(Versicherung, DerLaufTrenntDieBasenVonKrankenUndRentenversicherung) {
    // 7000.00 DM: health capped at 6150 DM, pension not.
    monatladen(s, 1, 2);
    s.merkmal[4] = 5;
    s.merkmal[33] = 49;
    s.merkmal[36] = 2;
    s.eingabe[12] = 700000;
    s.aenderungscode = 0;
    berechnen(s);
    EXPECT_EQ(s.wert[29], 615000);
    EXPECT_EQ(s.wert[28], 700000);
}

TEST_F(Versicherung, PersonalartOhneEndetDenLaufOhneVersicherungszeilen) {
    monatladen(s, 1, 2);
    s.merkmal[4] = 18;
    s.eingabe[12] = 400000;
    s.aenderungscode = 0;
    berechnen(s);
    for (int zeile = 37; zeile <= 40; ++zeile)
        EXPECT_EQ(s.wert[zeile], 0) << zeile;
    for (int i = 0; i <= 27; ++i)
        EXPECT_EQ(s.svwert[i], 0) << i;
    EXPECT_EQ(s.wert[28], 0);
    EXPECT_EQ(s.wert[29], 0);
}

TEST_F(Versicherung, PersonalartOhneBehaeltDenGetipptenZuschussNachDemZweitenLauf) {
    // The insurance step takes a typed subsidy into row 37 before it stops for staff class
    // 18, and it runs once more after the rows were cleared: the subsidy stands again. A
    // follow-up run skips that second step and ends with the row cleared.
    monatladen(s, 1, 2);
    s.merkmal[4] = 18;
    s.merkmal[37] = 28;
    s.eingabe[37] = 15000;
    s.aenderungscode = 0;
    berechnen(s);
    EXPECT_EQ(s.wert[37], 15000);
    EXPECT_EQ(s.wert[45], 0);
    s.folgelauf = 1;
    berechnen(s);
    EXPECT_EQ(s.wert[37], 0);
}

TEST_F(Versicherung, TeilzeitImHalbenMonatVonBruttoBisAuszahlung) {
    // Person 1 in March, an employee at 19.25 of 38.50 hours, paid for 15 of 30 days, with
    // 5000.00 DM at full time in row 12, supplementary pension 4.5 %, no wage tax, no church
    // tax. The fund: ceiling 10000 DM, surcharge from 7000 DM; church tax on its lump tax 9 %.
    s.vorgabewert[2] = 7000;
    s.vorgabewert[6] = 10000;
    s.voreinstellung[28] = Currency::ganz(9);
    aktualisieren(s);
    monatladen(s, 1, 2);
    s.merkmal[4] = 5;
    s.merkmal[33] = 49;
    s.merkmal[36] = 2;
    s.eingabe[0] = 3850;
    s.eingabe[1] = 1925;
    s.eingabe[2] = 3000;
    s.eingabe[3] = 1500;
    s.eingabe[12] = 500000;
    s.eingabe[25] = 450;
    s.aenderungscode = 0;
    berechnen(s);
    // Both factors 0.5: teilwert(12) 250000, zahlwert(12) and row 22 125000.
    EXPECT_EQ(s.wert[22], 125000);
    // Pension: limits 8750, 500000 and 350000; contribution 0.045 * 125000 = 5625, all of it
    // lump-taxed (entgeltgrenze 8750 / 0.045 = 194444); insured part 125000 * 0.025 = 3125
    // less 2600 = 525; lump tax 1125, its church tax 101.25 -> 101, surcharge 84.375 -> 84.
    EXPECT_EQ(s.zvkwert[6], 500000);
    EXPECT_EQ(s.stufengrenze, 350000);
    EXPECT_EQ(s.wert[31], 5625);
    EXPECT_EQ(s.zvkwert[18], 525);
    EXPECT_EQ(s.wert[6], 101);
    EXPECT_EQ(s.wert[32], 1209);
    // Insurance: 125000 + 525 = 125525, under the halved ceilings 307500 and 410000.
    // January and February are empty: 2 * 615000 + 181975 and 2 * 820000 + 284475 of room.
    EXPECT_EQ(s.svwert[6], 125525);
    EXPECT_EQ(s.svwert[12], 1411975);
    EXPECT_EQ(s.svwert[15], 1924475);
    EXPECT_EQ(s.wert[29], 125525);
    EXPECT_EQ(s.wert[28], 125525);
    // KV 125525 * 1340 / 20000 = 8410.175 -> 8410; PV 125525 * 0.85 / 100 = 1066.9625 ->
    // 1067; RV 125525 * 10.15 / 100 = 12740.7875 -> 12741; AV 125525 * 3.25 / 100 =
    // 4079.5625 -> 4080.
    EXPECT_EQ(s.wert[37], -8410);
    EXPECT_EQ(s.wert[38], -1067);
    EXPECT_EQ(s.wert[39], -12741);
    EXPECT_EQ(s.wert[40], -4080);
    EXPECT_EQ(s.nebenwert[3], 4080);
    // 125000 - 8410 - 1067 - 12741 - 4080 = 98702.
    EXPECT_EQ(s.wert[45], 98702);
}

} // namespace lonvir
