// Whole months through the run: gross pay from the tariff line, supplementary pension, wage
// tax, surcharge and church tax, social insurance and the payment, each figure worked by hand.
#include "engine/berechnen.h"
#include "engine/monatladen.h"
#include "engine/tarifdatei.h"
#include "records/tarifsatz.h"
#include "start/einstellungen.h"
#include "start/satzzugriff.h"
#include "testhilfe.h"

#include <gtest/gtest.h>

namespace lonvir {

namespace {

// Settings of 1997 (care 1.7 %, pension 20.3 %, unemployment 6.5 %; ceilings of health and
// pension insurance 6150 and 8200 DM in the West: the published figures of
// sozialversicherung_1997_1998.csv). Fund 0 charges the average rate of 13.4 % of that file.
// The supplementary pension fund's settings are typed as a pay office would: ceiling
// 10000 DM, surcharge from 7000 DM, church tax on the lump tax 7 %, lump limit by twelfths.
struct Abrechnung : ::testing::Test {
    test::Umgebung u;
    Sitzung& s = u.s;
    Abrechnung() {
        s.voreinstellung[1] = Currency::ganz(2);
        s.voreinstellung[2] = Currency::ganz(8);
        s.voreinstellung[3] = Currency::ganz(5);
        s.voreinstellung[4] = Currency::ganz(3);
        s.voreinstellung[6] = Currency::ganz(4);
        s.voreinstellung[15] = Currency::ganz(1);
        s.voreinstellung[27] = Currency::ganz(0);
        s.voreinstellung[28] = Currency::ganz(7);
        s.vorgabewert[2] = 7000;
        s.vorgabewert[6] = 10000;
        aktualisieren(s);
        for (int monat = 0; monat <= 11; ++monat)
            s.kvsatz[monat][0] = Currency::ganz(1340);
    }
    // BAT Vc (VKA, staff class 6, group 8), Stufe 5, single, tax class I without children,
    // church tax 9 %, fund 0, supplementary pension 4.5 %, all days and hours: person 1 in
    // the given month. The tariff line, from bat_grundverguetung_west.csv and
    // bat_zulage_ortszuschlag_west.csv (VergTV Nr. 31, 1997): Vc Stufe 5 2889.59 DM,
    // Ortszuschlag Tarifklasse II 810.61 DM, allgemeine Zulage 188.36 DM.
    // The month is loaded into the working set and computed once, without the step list of
    // the screen, so that the step chosen here is the one computed.
    void batVcWest(std::int16_t monat) {
        s.aktuelleperson = 1;
        s.merkmal[20] = monat;
        satzlesen(s);
        eingabewerte(s);
        s.merkmal[4] = 6;
        s.merkmal[5] = 8;
        s.merkmal[7] = 4;  // Stufe 5
        s.merkmal[8] = 0;  // ledig: Ortszuschlag Stufe 1
        s.merkmal[9] = 0;  // allgemeine Zulage
        s.merkmal[33] = 0; // I/0
        s.merkmal[36] = 1; // 9 %
        s.merkmal[29] = 0; // the normal table
        s.eingabe[25] = 450;
        Tarifsatz t;
        t.wert[4] = 288959;
        t.wert[15] = 81061;
        t.wert[25] = 18836;
        tarifsatzschreiben(s, tarifsatznummer(s), datei::tarif1, t);
        s.aenderungscode = 0;
        berechnen(s);
    }
    // The stored month of `von` copied to the months before `bis`, as if each had been paid
    // the same.
    void gleicheVormonate(int von, int bis) {
        for (int monat = 0; monat < bis; ++monat) {
            if (monat == von)
                continue;
            Personalsatz p = personalsatzlesen(s, von + 1, 1);
            p.merkmal[20] = static_cast<std::int16_t>(monat);
            personalsatzschreiben(s, monat + 1, 1, p);
        }
    }
};

} // namespace

TEST_F(Abrechnung, AngestellterBatVcWestLedigSteuerklasseEinsImJanuar1997) {
    batVcWest(0);

    // Gross: 288959 + 81061 + 18836 = 388856.
    EXPECT_EQ(s.wert[7], 288959);
    EXPECT_EQ(s.wert[8], 81061);
    EXPECT_EQ(s.wert[9], 18836);
    EXPECT_EQ(s.wert[22], 388856);

    // Supplementary pension: 0.045 * 388856 = 17498.52 -> 17499; entgeltgrenze
    // 17500 / 0.045 = 388889, not reached, so all of it is lump-taxed and nothing goes into
    // the taxable wage; insured part 388856 * 0.025 = 9721.4 -> 9721, less 2600 = 7121.
    // Lump tax 17499 * 0.2 = 3499.8 -> 3500, its church tax 7 % = 245, surcharge
    // 3500 * 0.075 = 262.5 cut to 262.
    EXPECT_EQ(s.wert[31], 17499);
    EXPECT_EQ(s.zvkwert[15], 0);
    EXPECT_EQ(s.zvkwert[18], 7121);
    EXPECT_EQ(s.wert[6], 245);
    EXPECT_EQ(s.wert[32], 3762);

    // Wage tax, 1997 schedule, class I: yearly wage (388856 + 0.67) * 0.12 = 46662 DM;
    // step 46658 to 46711. Allowances 2000 + 108 = 2108. Vorsorgepauschale: 20 % of 46711 =
    // 9342.2; the first limit 6000 less 16 % of 46711 leaves 0; then 2610, and of the rest
    // 6732.2 one half, 3366.11, limited to 1305: 3915, on the grid of 54: 3888.
    // zve 46658 - 2108 - 3888 = 40662 = 753 * 54. y = 2.862; r = 2.862 * 86.63 = 247.935;
    // (247.935 + 2590) * 2.862 = 8122.17 -> 8122 DM a year. Month: 812200 / 12 = 67683.
    EXPECT_EQ(s.lstwert[7], 388856);
    EXPECT_EQ(s.wert[33], -67683);
    // Surcharge: 7.5 % of 8122 = 609.15 (20 % of 8122 - 1332 is more); 60915 / 12 = 5076.
    EXPECT_EQ(s.wert[35], -5076);
    // Church tax: 67683 * 0.09 = 6091.47 -> 6091.
    EXPECT_EQ(s.wert[36], -6091);
    EXPECT_EQ(s.wert[34], 0);
    EXPECT_EQ(s.wert[27], 388856);

    // Insurance: 388856 + 7121 = 395977, under both ceilings.
    // KV 395977 * 1340 / 20000 = 26530.459 -> 26530; PV 395977 * 0.85 / 100 = 3365.8045 ->
    // 3366; RV 395977 * 10.15 / 100 = 40191.6655 -> 40192; AV 395977 * 3.25 / 100 =
    // 12869.2525 -> 12869.
    EXPECT_EQ(s.wert[29], 395977);
    EXPECT_EQ(s.wert[28], 395977);
    EXPECT_EQ(s.wert[37], -26530);
    EXPECT_EQ(s.wert[38], -3366);
    EXPECT_EQ(s.wert[39], -40192);
    EXPECT_EQ(s.wert[40], -12869);

    // Payment: 388856 - 67683 - 5076 - 6091 - 26530 - 3366 - 40192 - 12869 = 227049.
    EXPECT_EQ(s.wert[45], 227049);
}

TEST_F(Abrechnung, BeamterA9OstVerheiratetMitVersorgungsumlageImJanuar1997) {
    // Besoldungsordnung A 9 in the Ost (staff class 0), Dienstaltersstufe 6, married, spouse
    // not in the public service, tax class III without children, no church tax, pension levy
    // typed at 30.00 %, January 1997.
    monatladen(s, 1, 0);
    s.merkmal[4] = 0;
    s.merkmal[2] = 1;
    s.merkmal[5] = 9;
    s.merkmal[7] = 5;   // Stufe 6
    s.merkmal[8] = 1;   // verheiratet: Ortszuschlag Stufe 2
    s.merkmal[3] = 0;   // spouse not in the public service
    s.merkmal[9] = 0;   // allgemeine Stellenzulage
    s.merkmal[33] = 21; // III/0
    s.merkmal[36] = 3;  // no church tax
    s.eingabe[25] = 3000;
    // The tariff line of the Ost at 84 %, valid from 1.10.1995 to 30.6.1997
    // (besoldung_grundgehalt.csv, besoldung_ortszuschlag_alt.csv, Bek. v. 21.02.1996 Anlage
    // IIA/IIB): A 9 Stufe 6 2275.91 DM; Ortszuschlag Tarifklasse Ic Stufe 1 706.69 DM and
    // Stufe 2 857.07 DM, so the married increase is 150.38 DM. The allgemeine Stellenzulage
    // of the gehobener Dienst, Nummer 27 Abs. 1 Buchstabe c: 162.83 DM
    // (besoldung_allgemeine_stellenzulage.csv).
    Tarifsatz t;
    t.wert[5] = 227591;
    t.wert[15] = 70669;
    t.wert[16] = 15038;
    t.wert[25] = 16283;
    tarifsatzschreiben(s, tarifsatznummer(s), datei::tarif1, t);
    s.aenderungscode = 0;
    berechnen(s);

    // Gross: 227591 + (70669 + 15038) + 16283 = 329581; no transition allowance before July.
    EXPECT_EQ(s.wert[7], 227591);
    EXPECT_EQ(s.wert[8], 85707);
    EXPECT_EQ(s.wert[9], 16283);
    EXPECT_EQ(s.wert[10], 0);
    EXPECT_EQ(s.wert[22], 329581);

    // Pension levy: all three rows are pensionable; 0.3 * 329581 = 98874.3 -> 98874.
    EXPECT_EQ(s.zvkwert[7], 329581);
    EXPECT_EQ(s.wert[31], 98874);
    EXPECT_EQ(s.wert[32], 0);

    // Wage tax, special table, class III: yearly wage (329581 + 0.67) * 0.12 = 39549 DM;
    // step 39530 to 39583. Allowances 2000 + 216 = 2216. Vorsorgepauschale: 20 % of 39583 =
    // 7916.6, limited to 2214 * 2 = 4428 = 82 * 54. zve 39530 - 2216 - 4428 = 32886; half
    // 16443 on the grid: 16416. y = 0.4374; r = 0.4374 * 86.63 = 37.891962, cut to 37.8919;
    // (37.8919 + 2590) * 0.4374 = 1149.44 -> 1149, doubled 2298 DM a year.
    // Month: 229800 / 12 = 19150. Surcharge: 2298 is not above 2 * 1332 = 2664, so 0.
    EXPECT_EQ(s.lstwert[7], 329581);
    EXPECT_EQ(s.wert[33], -19150);
    EXPECT_EQ(s.wert[35], 0);
    EXPECT_EQ(s.wert[36], 0);

    // Civil servants pay no social insurance.
    for (int zeile = 37; zeile <= 40; ++zeile)
        EXPECT_EQ(s.wert[zeile], 0) << zeile;
    EXPECT_EQ(s.wert[28], 0);
    EXPECT_EQ(s.wert[29], 0);

    // Payment: 329581 - 19150 = 310431.
    EXPECT_EQ(s.wert[45], 310431);
}

TEST_F(Abrechnung, AngestellterBatVcWestImJuli1997MitUrlaubsgeld) {
    // The same employee; January to June paid alike (their stored taxable wage 388856, their
    // bases 395977 each, as the January month above works out).
    batVcWest(0);
    gleicheVormonate(0, 6);
    batVcWest(6);

    // Urlaubsgeld for staff class 6, group 8 (not above 8): 500.00 DM. Gross 438856.
    EXPECT_EQ(s.wert[17], 50000);
    EXPECT_EQ(s.wert[22], 438856);

    // Supplementary pension: row 17 is not pensionable, so all as in January.
    EXPECT_EQ(s.zvkwert[2], -50000);
    EXPECT_EQ(s.wert[31], 17499);
    EXPECT_EQ(s.zvkwert[18], 7121);

    // Wage tax of the month as in January: 67683, 5076, church 6091.47 -> 6091.
    // The one-off pay: earlier months 6 * 388856 = 2333136, the rest of the year
    // 6 * 388856 = 2333136, together 4666272 = the year of January: 8122 DM.
    // With the 500 DM: yearly wage 47162.72, step 47142 + 2 = 47144 to 47197; Vorsorge-
    // pauschale 20 % of 47197 = 9439.4, again 2610 + 1305 = 3915 -> 3888; zve 47144 - 2108 -
    // 3888 = 41148 = 762 * 54; y = 2.9106, r = 252.145278 cut to 252.1452;
    // 2842.1452 * 2.9106 = 8272.35 -> 8272. Differences: tax 827200 - 812200 = 15000;
    // surcharge 62040 - 60915 = 1125 (7.5 % of 15000 is 1125, not below it: no cap);
    // church tax 827200 * 0.09 = 74448 less 812200 * 0.09 = 73098: 1350.
    EXPECT_EQ(s.lstwert[14], 2333136);
    EXPECT_EQ(s.lstwert[16], 4666272);
    EXPECT_EQ(s.lstwert[21], 15000);
    EXPECT_EQ(s.lstwert[24], 1125);
    EXPECT_EQ(s.lstwert[27], 1350);
    EXPECT_EQ(s.wert[33], -82683);
    EXPECT_EQ(s.wert[35], -6201);
    EXPECT_EQ(s.wert[36], -7441);
    EXPECT_EQ(s.wert[27], 438856);

    // Insurance: current 438856 - 50000 + 7121 = 395977. Health room: six earlier months of
    // 615000 - 395977 = 219023 and this month's: 1533161, so all 50000 of the Urlaubsgeld is
    // taken: base 445977; pension likewise 445977.
    // KV 445977 * 1340 / 20000 = 29880.459 -> 29880; PV 445977 * 0.0085 = 3790.8045 ->
    // 3791; RV 445977 * 0.1015 = 45266.6655 -> 45267; AV 445977 * 0.0325 = 14494.2525 ->
    // 14494.
    EXPECT_EQ(s.svwert[3], -50000);
    EXPECT_EQ(s.svwert[6], 395977);
    EXPECT_EQ(s.svwert[12], 1533161);
    EXPECT_EQ(s.svwert[13], 50000);
    EXPECT_EQ(s.wert[29], 445977);
    EXPECT_EQ(s.wert[28], 445977);
    EXPECT_EQ(s.wert[37], -29880);
    EXPECT_EQ(s.wert[38], -3791);
    EXPECT_EQ(s.wert[39], -45267);
    EXPECT_EQ(s.wert[40], -14494);

    // Payment: 438856 - 82683 - 6201 - 7441 - 29880 - 3791 - 45267 - 14494 = 249099.
    EXPECT_EQ(s.wert[45], 249099);
}

TEST_F(Abrechnung, AngestellterBatVcWestImNovember1997MitZuwendung) {
    // The same employee; January to October paid alike, and the Weihnachtsgeld quota of the
    // employees in the West typed as 100 %.
    s.voreinstellung[32] = Currency::ganz(100);
    aktualisieren(s);
    batVcWest(0);
    gleicheVormonate(0, 11);
    batVcWest(10);

    // Zuwendung: rows 7 to 9 count, 388856 * 100 / 100; eleven months with pay and this one:
    // 388856 / 12 * 12 = 388856. Gross 777712.
    EXPECT_EQ(s.wert[18], 388856);
    EXPECT_EQ(s.wert[22], 777712);

    // Supplementary pension: row 18 is pensionable and raises both ceilings: 1000000 + 388856
    // and 700000 + 388856. 0.045 * 777712 = 34997.04 -> 34997, no surcharge; above the
    // entgeltgrenze of 388889, so 17500 lump-taxed, 17497 into the taxable wage, 7122 insured:
    // 24619 for the insurance.
    EXPECT_EQ(s.zvkwert[6], 1388856);
    EXPECT_EQ(s.stufengrenze, 1088856);
    EXPECT_EQ(s.wert[31], 34997);
    EXPECT_EQ(s.zvkwert[14], 17500);
    EXPECT_EQ(s.zvkwert[15], 17497);
    EXPECT_EQ(s.zvkwert[18], 24619);
    EXPECT_EQ(s.wert[32], 3762);

    // Wage tax of the month on 388856 + 17497 = 406353: yearly 48762, step 48710 to 48763,
    // Vorsorgepauschale 3888, zve 42714; y = 3.0672, r = 265.7115, 2855.7115 * 3.0672 =
    // 8759.04 -> 8759; month 875900 / 12 = 72991. Surcharge 656.925 * 100 / 12 -> 5474;
    // church 72991 * 0.09 = 6569.19 -> 6569.
    // The one-off pay: earlier months 10 * 388856 = 3888560, the rest 2 * 406353 = 812706,
    // together 4701266: step 46982, zve 40986, y = 2.8944, r = 250.7418,
    // 2840.7418 * 2.8944 = 8222.24 -> 8222. With the Zuwendung 5090122: step 50870, zve
    // 44874, y = 3.2832, r = 284.4236, 2874.4236 * 3.2832 = 9437.31 -> 9437.
    // Differences: tax 943700 - 822200 = 121500; surcharge 70777 - 61665 = 9112 (7.5 % of
    // 121500 is 9112.5, not below it); church 84933 - 73998 = 10935.
    EXPECT_EQ(s.lstwert[7], 406353);
    EXPECT_EQ(s.lstwert[16], 4701266);
    EXPECT_EQ(s.lstwert[21], 121500);
    EXPECT_EQ(s.lstwert[24], 9112);
    EXPECT_EQ(s.lstwert[27], 10935);
    EXPECT_EQ(s.wert[33], -194491);
    EXPECT_EQ(s.wert[35], -14586);
    EXPECT_EQ(s.wert[36], -17504);
    EXPECT_EQ(s.wert[27], 795209);

    // Insurance: current 777712 - 388856 + 24619 = 413475; the room of ten earlier months
    // and this one takes the whole Zuwendung: base 802331 for both.
    // KV 802331 * 1340 / 20000 = 53756.177 -> 53756; PV 802331 * 0.0085 = 6819.8135 ->
    // 6820; RV 802331 * 0.1015 = 81436.5965 -> 81437; AV 802331 * 0.0325 = 26075.7575 ->
    // 26076.
    EXPECT_EQ(s.svwert[6], 413475);
    EXPECT_EQ(s.svwert[12], 2391755);
    EXPECT_EQ(s.wert[29], 802331);
    EXPECT_EQ(s.wert[28], 802331);
    EXPECT_EQ(s.wert[37], -53756);
    EXPECT_EQ(s.wert[38], -6820);
    EXPECT_EQ(s.wert[39], -81437);
    EXPECT_EQ(s.wert[40], -26076);

    // Payment: 777712 - 194491 - 14586 - 17504 - 53756 - 6820 - 81437 - 26076 = 383042.
    EXPECT_EQ(s.wert[45], 383042);
}

TEST_F(Abrechnung, AngestellterBatVcWestInTeilzeitImHalbenJanuar1997) {
    // The same employee at 19.25 of 38.50 hours, paid for 15 of 30 days.
    Personalsatz p = personalsatzlesen(s, 1, 1);
    p.wert[1] = 1925;
    p.wert[3] = 1500;
    personalsatzschreiben(s, 1, 1, p);
    batVcWest(0);

    // Both factors 0.5. After the part-time factor: 144479.5, 40530.5 (single: no share of a
    // spouse), 9418; row 21 rounded after each addition: 144480, 185010, 194428. After the
    // paid days: 72239.75, 20265.25, 4709; row 22: 72240, 92505, 97214.
    EXPECT_EQ(s.wert[21], 194428);
    EXPECT_EQ(s.wert[22], 97214);

    // Supplementary pension with halved limits 8750, 500000, 350000 and free part 1300:
    // 0.045 * 97214 = 4374.63 -> 4375, all lump-taxed (entgeltgrenze 194444); insured part
    // 97214 * 0.025 = 2430.35 -> 2430, not above 2600 and so not reduced. Lump tax 875, its
    // church tax 61.25 -> 61, surcharge 65.625 cut to 65.
    EXPECT_EQ(s.pauschgrenze, 8750);
    EXPECT_EQ(s.wert[31], 4375);
    EXPECT_EQ(s.zvkwert[16], 2430);
    EXPECT_EQ(s.wert[6], 61);
    EXPECT_EQ(s.wert[32], 940);

    // Wage tax on a full month: 97214 / 0.5 = 194428; yearly (194428 + 0.67) * 0.12 = 23331;
    // step 23330 to 23383. Vorsorgepauschale: 20 % of 23383 = 4676.6; the first limit
    // 6000 - 3741.28 = 2258.72 and the rest 2417.88 within 2610: 4676.6, on the grid 4644.
    // zve 23330 - 2108 - 4644 = 16578; y = 0.4536, r = 39.295368 cut to 39.2953;
    // 2629.2953 * 0.4536 = 1192.65 -> 1192; month 119200 / 12 = 9933. No surcharge (1192
    // is not above 1332). Scaled back by one half: 4966.5 -> 4966; church tax
    // 9933 * 0.09 * 0.5 = 446.985 -> 447.
    EXPECT_EQ(s.lstwert[7], 97214);
    EXPECT_EQ(s.steuerlohn, Currency::ganz(194428));
    EXPECT_EQ(s.wert[33], -4966);
    EXPECT_EQ(s.wert[35], 0);
    EXPECT_EQ(s.wert[36], -447);

    // Insurance: 97214 + 2430 = 99644, under the halved ceilings 307500 and 410000.
    // KV 99644 * 1340 / 20000 = 6676.148 -> 6676; PV 99644 * 0.0085 = 846.974 -> 847;
    // RV 99644 * 0.1015 = 10113.866 -> 10114; AV 99644 * 0.0325 = 3238.43 -> 3238.
    EXPECT_EQ(s.svwert[12], 207856);
    EXPECT_EQ(s.svwert[15], 310356);
    EXPECT_EQ(s.wert[29], 99644);
    EXPECT_EQ(s.wert[28], 99644);
    EXPECT_EQ(s.wert[37], -6676);
    EXPECT_EQ(s.wert[38], -847);
    EXPECT_EQ(s.wert[39], -10114);
    EXPECT_EQ(s.wert[40], -3238);

    // Payment: 97214 - 4966 - 447 - 6676 - 847 - 10114 - 3238 = 70926.
    EXPECT_EQ(s.wert[45], 70926);
}

} // namespace lonvir
