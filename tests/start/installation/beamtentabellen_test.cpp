// The civil servants' tables of the installation: every group and step is paid in every month of
// 1997 and 1998, the derived blocks hold the amounts the method gives, and the sample staff is
// paid all year.
#include "testhilfe.h"

#include "core/satzdatei.h"
#include "engine/tarifdatei.h"
#include "records/personalsatz.h"
#include "records/tarifsatz.h"
#include "start/start.h"

#include <gtest/gtest.h>

#include <array>
#include <set>
#include <string>

namespace lonvir {

namespace {

namespace fs = std::filesystem;

const fs::path installiert = LONVIR_INSTALLATION;

Tarifsatz satz(const std::string& datei, int nummer) {
    Satzdatei d;
    d.oeffnen(installiert / datei, Tarifsatz::laenge);
    std::array<std::uint8_t, Tarifsatz::laenge> b{};
    d.lesen(nummer, b);
    return Tarifsatz::lesen(b);
}

// The steps (elements 0 to 14) that hold an amount.
std::set<int> belegtestufen(const Tarifsatz& t) {
    std::set<int> s;
    for (int e = 0; e <= 14; ++e)
        if (t.wert[e] != 0)
            s.insert(e);
    return s;
}

std::set<int> stufen(int anzahl) {
    std::set<int> s;
    for (int e = 0; e < anzahl; ++e)
        s.insert(e);
    return s;
}

// Steps of the old structure (to 30.6.1997) by record of the West half: A 1 to A 4 have 8,
// A 5 9, A 6 10, A 7 12, A 8 to A 10 13, A 11 to A 14 14, A 15 and A 16 15; B one amount;
// C 1 14, C 2 to C 4 15; R 1 and R 2 10 by age, R 3 to R 10 one amount; candidates 2 (before and
// from 26).
int stufenalt(int satz) {
    static const std::array<int, 21> a = {8,  8,  8,  8,  9,  9,  10, 12, 13, 13, 13,
                                          13, 13, 14, 14, 14, 14, 14, 14, 15, 15};
    if (satz <= 21)
        return a[static_cast<std::size_t>(satz - 1)];
    if (satz <= 33)
        return 1;
    if (satz <= 38)
        return satz == 35 ? 14 : 15;
    if (satz <= 41)
        return 10;
    if (satz <= 49)
        return 1;
    return 2;
}

const std::array<std::pair<int, int>, 5> bloecke = {
    {{1, 21}, {23, 11}, {35, 4}, {40, 10}, {51, 6}}}; // A, B, C, R, candidates

struct Jahr {
    explicit Jahr(std::int16_t jahr) {
        s.ordner = Arbeitsordner(ordner.pfad());
        s.installation = installiert;
        s.dialoge = &dialoge;
        s.jahr = jahr;
        starten(s);
    }
    test::Tempordner ordner;
    SkriptDialoge dialoge;
    Sitzung s;
};

std::string dateiname(int jahr, int dateinummer) {
    return "Lonvir" + std::to_string(jahr % 100) + "." + std::to_string(dateinummer - 13) + "tr";
}

Personalsatz mustersatz(const Jahr& j, int monat, int person) {
    Satzdatei d;
    d.oeffnen(j.ordner.pfad() / ("L1997I." + std::to_string(monat)), Personalsatz::laenge);
    std::array<std::uint8_t, Personalsatz::laenge> b{};
    d.lesen(person, b);
    return Personalsatz::lesen(b);
}

} // namespace

// In every month the file the settings choose pays every group of the civil servants at every
// step it has, in the West and in the Ost: the old structure until June 1997, from July 1997 the
// steps of the published West table of 1998.
TEST(Beamtentabellen, JedeGruppeUndStufeIstInJedemMonatBezahlt) {
    for (std::int16_t jahr : {1997, 1998}) {
        Jahr j(jahr);
        for (int monat = 1; monat <= 12; ++monat) {
            const std::string datei = dateiname(jahr, tarifdatei(j.s.einstellungen, monat));
            const bool alt = jahr == 1997 && monat < 7;
            for (const auto& [erster, anzahl] : bloecke)
                for (int n = erster; n < erster + anzahl; ++n) {
                    const std::set<int> soll =
                        alt ? stufen(stufenalt(n)) : belegtestufen(satz("Lonvir98.1tr", n));
                    ASSERT_FALSE(soll.empty()) << n;
                    for (int ost : {0, 300})
                        EXPECT_EQ(belegtestufen(satz(datei, n + ost)), soll)
                            << jahr << " Monat " << monat << " " << datei << " Satz " << n + ost;
                }
        }
    }
}

// West 1.5.1995 (January and February 1997), the cells as the data folder derived them.
TEST(Beamtentabellen, West1995AusDerAbleitung) {
    const Tarifsatz a9 = satz("Lonvir97.1tr", 12);
    EXPECT_EQ(a9.wert[4], 261127); // A 9 Stufe 5: 2611.27
    // A 9 Stufe 1: the step 4 to 5 is 90.00 or 90.01; both give the Ost tables, the lower step
    // stands, so Stufe 1 is 2261.13 (2261.12 with the other).
    EXPECT_EQ(a9.wert[0], 226113);
    // Ortszuschlag class Ic: Stufe 1 841.29 (or 841.30), married 1020.31 - 841.29 = 179.02,
    // the first child 1173.48 - 1020.31 = 153.17.
    EXPECT_EQ(a9.wert[15], 84129);
    EXPECT_EQ(a9.wert[16], 17902);
    EXPECT_EQ(a9.wert[17], 15317);
    EXPECT_EQ(satz("Lonvir97.1tr", 21).wert[14], 830268); // A 16 Stufe 15: 8302.68
    // A 2 Stufe 8: 2006.49 or 2006.50; only 2006.49 gives the Ost tables by their rule.
    EXPECT_EQ(satz("Lonvir97.1tr", 2).wert[7], 200649);
}

// West March to June 1997: every cell of 1995 raised by 1.3 %, rounded half up.
TEST(Beamtentabellen, WestMaerz1997IstDie1995erTabelleMalEinsKommaNullDreizehn) {
    EXPECT_EQ(satz("Lonvir97.2tr", 21).wert[14], 841061); // 8302.68 * 1.013 = 8410.61484
    EXPECT_EQ(satz("Lonvir97.2tr", 25).wert[0], 922597);  // B 3: 9107.57 * 1.013 = 9225.96841
    // Ortszuschlag class Ib: 946.64 * 1.013 = 958.94632 -> 958.95; Stufe 2 1125.66 * 1.013 =
    // 1140.29358 -> 1140.29, married 1140.29 - 958.95 = 181.34.
    EXPECT_EQ(satz("Lonvir97.2tr", 21).wert[15], 95895);
    EXPECT_EQ(satz("Lonvir97.2tr", 21).wert[16], 18134);
}

// Ost March to June 1997: 84 % of that West table, the top step rounded up, each lower step
// below the next by 84 % of the West step difference rounded down.
TEST(Beamtentabellen, OstMaerz1997IstVierundachtzigProzentNachDerOstRegel) {
    // A 1 Stufe 8 West 1878.70 * 1.013 = 1903.12; 0.84 * 1903.12 = 1598.6208 -> up 1598.63.
    const Tarifsatz a1 = satz("Lonvir97.2tr", 301);
    EXPECT_EQ(a1.wert[7], 159863);
    // Stufe 7 West 1826.37 * 1.013 = 1850.11; difference 53.01 * 0.84 = 44.5284 -> down 44.52;
    // 1598.63 - 44.52 = 1554.11.
    EXPECT_EQ(a1.wert[6], 155411);
    // B 3: 0.84 * 9225.97 = 7749.8148 -> 7749.82.
    EXPECT_EQ(satz("Lonvir97.2tr", 325).wert[0], 774982);
    // Ortszuschlag class II Stufe 1: 792.51 * 1.013 = 802.81, * 0.84 = 674.3604 -> 674.36.
    EXPECT_EQ(a1.wert[15], 67436);
}

// Candidates: one whole-DM West amount fits all public tables from 1995 to 1998, so their pay
// was not raised in 1997 and the Ost table of 1.10.1995 held until August 1997.
TEST(Beamtentabellen, AnwaerterWest1997UndOstBisAugust) {
    // A 9 to A 11 before 26: 1595 DM; 0.82 * 1595 = 1307.9 -> 1308 (Ost 1.4.1995), 0.84 * 1595
    // = 1339.8 -> 1340 (Ost 1.10.1995), 0.85 * 1595 = 1355.75 -> 1356 (Ost 1.9.1997), 1.015 *
    // 1595 = 1618.925 -> 1619 (West 1998).
    for (const char* datei : {"Lonvir97.1tr", "Lonvir97.2tr", "Lonvir97.3tr", "Lonvir97.4tr"})
        EXPECT_EQ(satz(datei, 53).wert[0], 159500) << datei;
    EXPECT_EQ(satz("Lonvir97.2tr", 53).wert[1], 178800); // from 26: 1788 DM
    EXPECT_EQ(satz("Lonvir97.2tr", 53).wert[16], 45600); // married: 456 DM
    for (const char* datei : {"Lonvir97.2tr", "Lonvir97.3tr"})
        EXPECT_EQ(satz(datei, 353).wert[0], 134000) << datei; // Ost 1.10.1995: 1340 DM
    EXPECT_EQ(satz("Lonvir97.4tr", 353).wert[0], 135600);     // Ost 1.9.1997: 1356 DM
}

// Every sample person is paid in every month of 1997, and the civil servants' December takes
// wage tax like any month instead of paying back the tax of months without pay.
TEST(Beamtentabellen, MusterpersonalIstDasGanzeJahrBezahlt) {
    Jahr j(1997);
    for (int person = 1; person <= 7; ++person)
        for (int monat = 1; monat <= 12; ++monat) {
            const Personalsatz p = mustersatz(j, monat, person);
            EXPECT_GT(p.wert[7], 0) << "Person " << person << " Monat " << monat;
            EXPECT_GT(p.wert[22], 0) << "Person " << person << " Monat " << monat;
        }
    for (int person : {1, 3, 4, 7}) {
        const Personalsatz dezember = mustersatz(j, 12, person);
        const Personalsatz november = mustersatz(j, 11, person);
        EXPECT_LT(dezember.wert[33], 0) << "Person " << person;
        // December pays the Zuwendung (row 18) on top of November's pay, so its tax is at least
        // November's.
        EXPECT_LE(dezember.wert[33], november.wert[33]) << "Person " << person;
    }
}

// The West civil servant of the sample: A 13, married, two children, January 1997 at the
// derived West table of 1995.
TEST(Beamtentabellen, WestBeamterImJanuar) {
    Jahr j(1997);
    const Personalsatz becker = mustersatz(j, 1, 7);
    EXPECT_EQ(becker.merkmal[2], 0);
    EXPECT_EQ(becker.merkmal[5], 16);
    const Tarifsatz a13 = satz("Lonvir97.1tr", 17);
    EXPECT_EQ(becker.wert[7], a13.wert[becker.merkmal[7]]);
    // Ortszuschlag class Ib, married with two children: Stufe 1 946.64, married 1125.66 -
    // 946.64 = 179.02, two children 1278.83 - 1125.66 = 153.17 and 153.16 more: 1431.99.
    EXPECT_EQ(becker.wert[8], 143199);
}

} // namespace lonvir
