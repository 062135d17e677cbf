// Gross pay from a tariff line: basic pay, Ortszuschlag, Stellenzulage, performance step,
// overtime rate and the multipliers.
#include "engine/schritte.h"
#include "start/einstellungen.h"
#include "tarifhilfe.h"
#include "testhilfe.h"

#include <gtest/gtest.h>

namespace lonvir {

namespace {

// A person of staff class `art`, group `gruppe`, step `stufe` in month index `monat` of 1997,
// West, whose line (the test line) lies in the first tariff file.
struct Tarifperson {
    Tarifperson(int art, int gruppe, int stufe, int monat = 0) {
        s.merkmal[4] = static_cast<std::int16_t>(art);
        s.merkmal[5] = static_cast<std::int16_t>(gruppe);
        s.merkmal[7] = static_cast<std::int16_t>(stufe);
        s.merkmal[20] = static_cast<std::int16_t>(monat);
        test::tarifzeile(s, datei::tarif1, tarifsatznummer(s), test::testsatz());
    }
    test::Umgebung u;
    Sitzung& s = u.s;
};

} // namespace

TEST(Tarifwerte, GrundgehaltIstDasElementDerStufe) {
    Tarifperson p(0, 8, 5);
    tarifwerte(p.s);
    EXPECT_EQ(p.s.wert[7], 200000); // 150000 + 5 * 10000
    p.s.merkmal[7] = 14;
    tarifwerte(p.s);
    EXPECT_EQ(p.s.wert[7], 9000); // element 14, "Stufe 15 o.a."
}

TEST(Tarifwerte, OstLiestDreihundertSaetzeDahinter) {
    Tarifperson p(0, 8, 0);
    p.s.merkmal[2] = 1;
    test::tarifzeile(p.s, datei::tarif1, 309, test::testsatz(7));
    tarifwerte(p.s);
    EXPECT_EQ(p.s.wert[7], 150007);
}

TEST(Tarifwerte, DerMonatWaehltDieTarifdatei) {
    Tarifperson p(0, 8, 0, 6);
    p.s.einstellungen.ab_tarif2 = 7; // from July
    test::tarifzeile(p.s, datei::tarif2, 9, test::testsatz(100));
    tarifwerte(p.s);
    EXPECT_EQ(p.s.wert[7], 150100);
    p.s.merkmal[20] = 5; // June: still the first file
    tarifwerte(p.s);
    EXPECT_EQ(p.s.wert[7], 150000);
}

TEST(Tarifwerte, LedigGibtStufe1DesOrtszuschlags) {
    Tarifperson p(5, 3, 0);
    p.s.merkmal[8] = 0;
    tarifwerte(p.s);
    EXPECT_EQ(p.s.wert[8], 80000);
}

TEST(Tarifwerte, VerheiratetMitEhegatteUeber49HalbiertDenVerheiratetenzuschlag) {
    Tarifperson p(0, 8, 0);
    p.s.merkmal[8] = 1; // "vh, 0 Ki"
    p.s.merkmal[3] = 0; // "nein": 80000 + 15001
    tarifwerte(p.s);
    EXPECT_EQ(p.s.wert[8], 95001);
    p.s.merkmal[3] = 2; // "ja > 49%": 80000 + 15001 / 2 = 87500.5, to the even 87500
    tarifwerte(p.s);
    EXPECT_EQ(p.s.wert[8], 87500);
}

TEST(Tarifwerte, VerheiratetMitKindernAddiertDieKinderstufe) {
    Tarifperson p(6, 2, 0);
    p.s.merkmal[8] = 3; // "vh, 2 Ki": married part plus element 18
    tarifwerte(p.s);
    EXPECT_EQ(p.s.wert[8], 116001); // 80000 + 15001 + 21000
    p.s.merkmal[3] = 1;             // "ja voll": 87500 (halved, rounded) + 21000
    tarifwerte(p.s);
    EXPECT_EQ(p.s.wert[8], 108500);
    p.s.merkmal[8] = 7; // "vh, 6 Ki": element 22
    tarifwerte(p.s);
    EXPECT_EQ(p.s.wert[8], 112500); // 87500 + 25000
}

TEST(Tarifwerte, LedigMitKindern) {
    Tarifperson p(13, 0, 0);
    p.s.merkmal[3] = 1; // no halving for single persons
    p.s.merkmal[8] = 8; // "ld, 1 Ki"
    tarifwerte(p.s);
    EXPECT_EQ(p.s.wert[8], 100000); // 80000 + 20000
    p.s.merkmal[8] = 9;             // "ld, 2 Ki"
    tarifwerte(p.s);
    EXPECT_EQ(p.s.wert[8], 101000); // 80000 + 21000
}

TEST(Tarifwerte, ManuellerOrtszuschlagBleibt) {
    Tarifperson p(0, 8, 0);
    p.s.merkmal[8] = 11;
    p.s.wert[8] = 4711;
    tarifwerte(p.s);
    EXPECT_EQ(p.s.wert[8], 4711);
}

TEST(Tarifwerte, LedigInUnterkunftBeiBatNimmtElement23FuerJedeGruppe) {
    for (int gruppe : {0, 12, 25}) {
        Tarifperson p(5, gruppe, 0);
        p.s.merkmal[8] = 10;
        tarifwerte(p.s);
        EXPECT_EQ(p.s.wert[8], 30000) << "Gruppe " << gruppe;
    }
}

TEST(Tarifwerte, LedigInUnterkunftBeiBesoldungANachGruppe) {
    const std::pair<int, std::int32_t> faelle[] = {{0, 31000},  {8, 31000}, {9, 30000},
                                                   {14, 30000}, {15, 0},    {20, 0}};
    for (auto [gruppe, erwartet] : faelle) {
        Tarifperson p(0, gruppe, 0);
        p.s.merkmal[8] = 10;
        tarifwerte(p.s);
        EXPECT_EQ(p.s.wert[8], erwartet) << "Gruppe " << gruppe;
    }
}

TEST(Tarifwerte, LedigInUnterkunftSonstNichts) {
    for (int art : {1, 2, 3, 13, 17, 18}) {
        Tarifperson p(art, 0, 0);
        p.s.merkmal[8] = 10;
        p.s.wert[8] = 4711;
        tarifwerte(p.s);
        EXPECT_EQ(p.s.wert[8], 0) << "Personalart " << art;
    }
}

TEST(Tarifwerte, AnwaerterNachFamilienstand) {
    Tarifperson p(4, 2, 0);
    p.s.merkmal[8] = 0;
    p.s.wert[8] = 4711;
    tarifwerte(p.s);
    EXPECT_EQ(p.s.wert[8], 0);
    p.s.merkmal[8] = 1;
    tarifwerte(p.s);
    EXPECT_EQ(p.s.wert[8], 15001); // element 16
    p.s.merkmal[3] = 3;            // spouse in the public service: 7500.5, to the even 7500
    tarifwerte(p.s);
    EXPECT_EQ(p.s.wert[8], 7500);
    p.s.merkmal[8] = 3;
    tarifwerte(p.s);
    EXPECT_EQ(p.s.wert[8], 10500); // half of element 18, 21000
}

TEST(Tarifwerte, ArbeiterUndKraftfahrerNehmenElementStandPlus16) {
    for (int art : {8, 9, 10, 11}) {
        Tarifperson p(art, 1, 0);
        p.s.merkmal[8] = 2;
        tarifwerte(p.s);
        EXPECT_EQ(p.s.wert[8], 21000) << "Personalart " << art; // element 2 + 16 = 18
    }
}

TEST(Tarifwerte, AuszubildendeBehaltenDenOrtszuschlag) {
    Tarifperson p(12, 1, 0);
    p.s.merkmal[8] = 0;
    p.s.wert[8] = 4711;
    tarifwerte(p.s);
    EXPECT_EQ(p.s.wert[8], 4711);
}

TEST(Tarifwerte, StellenzulageNachArt) {
    Tarifperson p(5, 1, 13);
    p.s.merkmal[9] = 0;
    tarifwerte(p.s);
    EXPECT_EQ(p.s.wert[9], 12000); // element 25
    p.s.merkmal[9] = 1;
    tarifwerte(p.s);
    EXPECT_EQ(p.s.wert[9], 9000); // element 14 below step 14
    p.s.merkmal[9] = 2;
    p.s.eingabe[9] = 3333;
    tarifwerte(p.s);
    EXPECT_EQ(p.s.wert[9], 3333); // as typed
}

TEST(Tarifwerte, ZweiteStellenzulageAbStufe14LaesstZeile9) {
    Tarifperson p(5, 1, 14);
    p.s.merkmal[9] = 1;
    p.s.wert[9] = 4444;
    tarifwerte(p.s);
    EXPECT_EQ(p.s.wert[9], 4444);
}

TEST(Tarifwerte, LeistungsstufeAbJuli1997) {
    Tarifperson p(0, 8, 5, 6);
    p.s.merkmal[11] = 1;
    tarifwerte(p.s);
    EXPECT_EQ(p.s.wert[11], 10000); // step 6 - step 5: 210000 - 200000
    p.s.merkmal[11] = 2;
    tarifwerte(p.s);
    EXPECT_EQ(p.s.wert[11], -10000); // 190000 - 200000
    p.s.merkmal[11] = 3;
    tarifwerte(p.s);
    EXPECT_EQ(p.s.wert[11], -20000); // 180000 - 200000
    p.s.merkmal[11] = 4;
    tarifwerte(p.s);
    EXPECT_EQ(p.s.wert[11], -30000); // 170000 - 200000
    p.s.merkmal[11] = 0;
    tarifwerte(p.s);
    EXPECT_EQ(p.s.wert[11], 0);
}

TEST(Tarifwerte, LeistungsstufeAnDenRaendernNull) {
    Tarifperson p(0, 8, 13, 6);
    p.s.merkmal[11] = 1; // step + 1 = 14, not below 13
    p.s.wert[11] = 4711;
    tarifwerte(p.s);
    EXPECT_EQ(p.s.wert[11], 0);
    p.s.merkmal[7] = 12; // 12 + 1 = 13: also 0
    p.s.wert[11] = 4711;
    tarifwerte(p.s);
    EXPECT_EQ(p.s.wert[11], 0);
    p.s.merkmal[7] = 1;
    p.s.merkmal[11] = 2;
    p.s.wert[11] = 4711;
    tarifwerte(p.s);
    EXPECT_EQ(p.s.wert[11], 0);
    p.s.merkmal[7] = 3;
    p.s.merkmal[11] = 4;
    p.s.wert[11] = 4711;
    tarifwerte(p.s);
    EXPECT_EQ(p.s.wert[11], 0);
}

TEST(Tarifwerte, LeistungsstufeDreiUnterStufe3LoeschtZeile9StattZeile11) {
    Tarifperson p(0, 8, 2, 6);
    p.s.merkmal[9] = 0;
    p.s.merkmal[11] = 3;
    p.s.wert[11] = 4711;
    tarifwerte(p.s);
    EXPECT_EQ(p.s.wert[9], 0);
    EXPECT_EQ(p.s.wert[11], 4711);
}

TEST(Tarifwerte, LeistungsstufeVorJuli1997Unberuehrt) {
    Tarifperson p(0, 8, 5, 5);
    p.s.merkmal[11] = 1;
    p.s.wert[11] = 4711;
    tarifwerte(p.s);
    EXPECT_EQ(p.s.wert[11], 4711);
}

TEST(Tarifwerte, UeberstundensatzAusDemTarif) {
    Tarifperson p(5, 1, 0);
    p.s.eingabe[5] = 1;
    tarifwerte(p.s);
    EXPECT_EQ(p.s.eingabe[5], 3001);
}

TEST(Tarifwerte, MultiplikatorBewegtNurDenUeberstundensatz) {
    Tarifperson p(0, 8, 5, 5);
    // "Beamtengehälter x " 1.013 from month index 3 on: stored as 13 thousandths.
    p.s.voreinstellung[18] = Currency::ganz(13);
    p.s.voreinstellung[19] = Currency::ganz(3);
    aktualisieren(p.s);
    p.s.merkmal[8] = 1;
    p.s.merkmal[9] = 0;
    tarifwerte(p.s);
    EXPECT_EQ(p.s.wert[7], 200000); // as in the tariff
    EXPECT_EQ(p.s.wert[8], 95001);
    EXPECT_EQ(p.s.wert[9], 12000);
    EXPECT_EQ(p.s.eingabe[5], 3040); // 3001 * 1.013 = 3040.013 -> 3040
    p.s.merkmal[20] = 2;             // before the start month
    tarifwerte(p.s);
    EXPECT_EQ(p.s.eingabe[5], 3001);
}

TEST(Tarifwerte, AngestellteHabenIhrenEigenenMultiplikator) {
    Tarifperson p(5, 1, 0, 0);
    p.s.voreinstellung[18] = Currency::ganz(13); // civil servants only
    p.s.voreinstellung[20] = Currency::ganz(500);
    p.s.voreinstellung[21] = Currency::ganz(0);
    aktualisieren(p.s);
    tarifwerte(p.s);
    EXPECT_EQ(p.s.eingabe[5], 4502); // 3001 * 1.5 = 4501.5, to the even 4502
}

} // namespace lonvir
