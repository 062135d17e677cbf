// The transition allowance of July 1997: the old and the new base, the threshold, the Ost
// part of August 1997 and the reduction of 1998.
#include "engine/monatladen.h"
#include "engine/schritte.h"
#include "engine/ueberleitung.h"
#include "start/satzzugriff.h"
#include "tarifhilfe.h"
#include "testhilfe.h"

#include <gtest/gtest.h>

namespace lonvir {

namespace {

// Person 1, Besoldungsordnung A group 8, start of the service age 01.1971, step 9 (the ladder
// of July 1997). The July 1997 record says staff class `juliart`, group `juligruppe`.
// The March 1997 table (file 22) holds the test line; the July 1997 table (file 23) the test
// line with `aufschlag` on every step.
struct Ueberleitungsfall {
    explicit Ueberleitungsfall(std::int32_t aufschlag, std::int16_t jahr = 1997, int juliart = 0,
                               int juligruppe = 8)
        : u(jahr) {
        s.aktuelleperson = 1;
        s.merkmal[4] = 0;
        s.merkmal[5] = 8;
        s.merkmal[7] = 9;
        s.merkmal[20] = 6;
        s.bdabeginn = "01.1971";
        Personalsatz juli = Personalsatz::neu(6);
        juli.merkmal[4] = static_cast<std::int16_t>(juliart);
        juli.merkmal[5] = static_cast<std::int16_t>(juligruppe);
        personalsatzschreiben(s, datei::juli1997, 1, juli);
        for (int ost : {0, 300}) {
            test::tarifzeile(s, datei::tarif2von1997, juligruppe + 1 + ost, test::testsatz());
            test::tarifzeile(s, datei::tarif3von1997, 9 + ost, test::testsatz(aufschlag));
        }
    }
    test::Umgebung u;
    Sitzung& s = u.s;
};

} // namespace

TEST(Ueberleitung, AlteStufeAusDemDienstalterImJuni1997GekapptAufDieAlteGruppe) {
    Ueberleitungsfall f(1000);
    ueberleitung(f.s);
    // (97 - 71) * 12 - 1 + 6 = 317 months -> 13; group 8 of July tops at 13, so 12.
    // Old: step 12 of March 150000 + 120000 = 270000, stage 1 80000, Stellenzulage 12000.
    EXPECT_EQ(f.s.basis_alt, 362000);
    // New: step 9 of July 150000 + 90000 + 1000 = 241000, Stellenzulage 12000.
    EXPECT_EQ(f.s.basis_neu, 253000);
}

TEST(Ueberleitung, GrenzeNachGruppeDesJuli) {
    // Group 0 tops at 8: old step at most 7, 220000 + 80000 + 12000.
    Ueberleitungsfall f(0, 1997, 0, 0);
    ueberleitung(f.s);
    EXPECT_EQ(f.s.basis_alt, 312000);
    EXPECT_EQ(altestufengrenze(5), 9);
    EXPECT_EQ(altestufengrenze(6), 10);
    EXPECT_EQ(altestufengrenze(7), 12);
    EXPECT_EQ(altestufengrenze(12), 13);
    EXPECT_EQ(altestufengrenze(18), 14);
    EXPECT_EQ(altestufengrenze(20), 15);
}

TEST(Ueberleitung, OhneBesoldungAImJuliKeineGrenze) {
    // July record of a BAT employee, group 8: old step 13, 280000 + 80000 + 12000.
    Ueberleitungsfall f(0, 1997, 5, 8);
    ueberleitung(f.s);
    EXPECT_EQ(f.s.basis_alt, 372000);
}

TEST(Ueberleitung, StellenzulageNachArt) {
    Ueberleitungsfall f(1000);
    f.s.merkmal[9] = 1; // element 14, 9000, in both bases
    ueberleitung(f.s);
    EXPECT_EQ(f.s.basis_alt, 359000); // 270000 + 80000 + 9000
    EXPECT_EQ(f.s.basis_neu, 250000); // 241000 + 9000
    f.s.merkmal[9] = 2;               // the row 9 of July 1997
    f.s.nebenwert[24] = 5000;
    ueberleitung(f.s);
    EXPECT_EQ(f.s.basis_alt, 355000);
    EXPECT_EQ(f.s.basis_neu, 246000);
}

TEST(Ueberleitung, Ost1998Mal85Durch84) {
    Ueberleitungsfall f(1000, 1998);
    f.s.merkmal[2] = 1;
    f.s.merkmal[20] = 0;
    ueberleitung(f.s);
    // 362000 / 84 * 85 = 366309.52... -> 366310; 253000 / 84 * 85 = 256011.90... -> 256012.
    EXPECT_EQ(f.s.basis_alt, 366310);
    EXPECT_EQ(f.s.basis_neu, 256012);
}

TEST(Ueberleitung, Ost1997OhneUmrechnung) {
    Ueberleitungsfall f(1000);
    f.s.merkmal[2] = 1;
    ueberleitung(f.s);
    EXPECT_EQ(f.s.basis_alt, 362000);
    EXPECT_EQ(f.s.basis_neu, 253000);
}

TEST(Ueberleitung, ZulageVonGenau500PfennigWirdNichtGezahlt) {
    // New base 150000 + 90000 + 109500 + 12000 = 361500: difference 362000 - 361500 = 500.
    Ueberleitungsfall f(109500);
    f.s.wert[10] = 4711;
    ueberleitungsbasis(f.s);
    ueberleitungszulage(f.s);
    EXPECT_EQ(f.s.wert[10], 0);
    // One Pfennig more is paid: 501.
    Ueberleitungsfall g(109499);
    ueberleitungsbasis(g.s);
    ueberleitungszulage(g.s);
    EXPECT_EQ(g.s.wert[10], 501);
}

namespace {
// A person of class 0 whose bases are set by hand.
void basen(Sitzung& s, std::int32_t alt, std::int32_t neu, int monat) {
    s.merkmal[4] = 0;
    s.merkmal[20] = static_cast<std::int16_t>(monat);
    s.basis_alt = alt;
    s.basis_neu = neu;
}
} // namespace

TEST(Ueberleitungszulage, Juli1997MerktSichZeile9) {
    Sitzung s;
    basen(s, 362000, 253000, 6);
    s.wert[9] = 12000;
    ueberleitungszulage(s);
    EXPECT_EQ(s.wert[10], 109000);
    EXPECT_EQ(s.nebenwert[24], 12000);
}

TEST(Ueberleitungszulage, August1997OstBehaeltDenOstteil) {
    Sitzung s;
    basen(s, 108400, 100000, 7);
    s.merkmal[2] = 1;
    ueberleitungszulage(s);
    EXPECT_EQ(s.wert[10], 8400);
    EXPECT_EQ(s.nebenwert[25], 100); // 8400 / 84
    // West: 0.
    s.merkmal[2] = 0;
    ueberleitungszulage(s);
    EXPECT_EQ(s.nebenwert[25], 0);
    // Ost with no difference leaves the kept value.
    s.merkmal[2] = 1;
    s.nebenwert[25] = 77;
    s.basis_alt = 100000;
    ueberleitungszulage(s);
    EXPECT_EQ(s.nebenwert[25], 77);
}

TEST(Ueberleitungszulage, AbSeptember1997KommtDerOstteilDazu) {
    Sitzung s;
    basen(s, 108400, 100000, 8);
    s.nebenwert[25] = 100;
    ueberleitungszulage(s);
    EXPECT_EQ(s.wert[10], 8500); // 8400 - 0 + 100
}

TEST(Ueberleitungszulage, Im1998WirdEinDrittelDesAnstiegsAbgebaut) {
    Sitzung s;
    s.jahr = 1998;
    basen(s, 263000, 253000, 0);
    s.wert[7] = 250000;
    s.wert[9] = 12000;
    s.nebenwert[25] = 100; // not added in 1998
    ueberleitungszulage(s);
    // Rise 250000 + 12000 - 253000 = 9000, a third 3000; 10000 - 3000.
    EXPECT_EQ(s.wert[10], 7000);
    // A rise of 5: 5 / 3 = 1.67 -> 2; 10000 - 2.
    s.wert[7] = 241005; // 241005 + 12000 - 253000 = 5
    ueberleitungszulage(s);
    EXPECT_EQ(s.wert[10], 9998);
    // A fall takes nothing off.
    s.wert[7] = 200000;
    ueberleitungszulage(s);
    EXPECT_EQ(s.wert[10], 10000);
}

TEST(Ueberleitungszulage, NachAngabeNimmtDieEingabe) {
    Sitzung s;
    basen(s, 108400, 100000, 6);
    s.merkmal[10] = 1;
    s.eingabe[10] = 1234;
    ueberleitungszulage(s);
    EXPECT_EQ(s.wert[10], 1234);
}

TEST(Ueberleitungszulage, AnderePersonalartenHabenKeine) {
    Sitzung s;
    basen(s, 108400, 100000, 6);
    s.merkmal[4] = 5;
    s.wert[10] = 1234;
    s.eingabe[10] = 1234;
    ueberleitungszulage(s);
    EXPECT_EQ(s.wert[10], 0);
    EXPECT_EQ(s.eingabe[10], 0);
}

TEST(Ueberleitungszulage, ImLaufDesJuli1997) {
    // Files 14 (the month's table) and 23 hold the July line with 1000 on every step.
    Ueberleitungsfall f(1000);
    test::tarifzeile(f.s, datei::tarif1, 9, test::testsatz(1000));
    Personalsatz juli = personalsatzlesen(f.s, datei::juli1997, 1);
    juli.bdabeginn = "01.1971";
    personalsatzschreiben(f.s, datei::juli1997, 1, juli);
    // Loading July 1997 sets the step by the ladder (319 -> 9) and runs the month.
    monatladen(f.s, 1, 6);
    EXPECT_EQ(f.s.merkmal[7], 9);
    EXPECT_EQ(f.s.wert[7], 241000);
    EXPECT_EQ(f.s.wert[9], 12000);
    // 362000 - 253000.
    EXPECT_EQ(f.s.wert[10], 109000);
    EXPECT_EQ(f.s.nebenwert[24], 12000);
    EXPECT_EQ(personalsatzlesen(f.s, 7, 1).wert[10], 109000);
}

TEST(Ueberleitungszulage, VorJuli1997KeineZulage) {
    Ueberleitungsfall f(1000);
    test::tarifzeile(f.s, datei::tarif1, 9, test::testsatz(1000));
    Personalsatz juni = personalsatzlesen(f.s, 6, 1);
    juni.merkmal[5] = 8;
    juni.wert[10] = 4711;
    juni.bdabeginn = "01.1971";
    personalsatzschreiben(f.s, 6, 1, juni);
    monatladen(f.s, 1, 5);
    EXPECT_EQ(f.s.wert[10], 0);
}

} // namespace lonvir
