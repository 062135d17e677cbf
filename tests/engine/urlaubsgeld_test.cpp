// Row 17, Urlaubsgeld: July only, 650 or 500 DM by staff class and group, the Ost at 500 DM.
#include "engine/berechnen.h"
#include "engine/monatladen.h"
#include "engine/schritte.h"
#include "start/satzzugriff.h"
#include "testhilfe.h"

#include <gtest/gtest.h>

namespace lonvir {

namespace {
std::int32_t urlaubsgeldFuer(int art, int gruppe, int ost = 0, int monat = 6) {
    Sitzung s;
    s.merkmal[4] = static_cast<std::int16_t>(art);
    s.merkmal[5] = static_cast<std::int16_t>(gruppe);
    s.merkmal[2] = static_cast<std::int16_t>(ost);
    s.merkmal[20] = static_cast<std::int16_t>(monat);
    s.wert[17] = 12345;
    urlaubsgeld(s);
    return s.wert[17];
}
} // namespace

TEST(Urlaubsgeld, NurImJuli) {
    EXPECT_EQ(urlaubsgeldFuer(10, 0, 0, 5), 0);
    EXPECT_EQ(urlaubsgeldFuer(10, 0, 0, 7), 0);
    EXPECT_EQ(urlaubsgeldFuer(10, 0, 0, 6), 65000);
}

TEST(Urlaubsgeld, KraftfahrerImOstenBekommen500Mark) {
    // Staff class 10 pays 650 DM in the West; the Ost pays everyone 500 DM.
    EXPECT_EQ(urlaubsgeldFuer(10, 3, 1), 50000);
    EXPECT_EQ(urlaubsgeldFuer(10, 3, 0), 65000);
}

TEST(Urlaubsgeld, KlasseElfNurImOsten) {
    EXPECT_EQ(urlaubsgeldFuer(11, 0, 0), 0);
    EXPECT_EQ(urlaubsgeldFuer(11, 0, 1), 50000);
}

TEST(Urlaubsgeld, GruppengrenzenJeKlasse) {
    EXPECT_EQ(urlaubsgeldFuer(0, 8), 65000); // below 9
    EXPECT_EQ(urlaubsgeldFuer(0, 9), 50000);
    EXPECT_EQ(urlaubsgeldFuer(4, 0), 50000);
    EXPECT_EQ(urlaubsgeldFuer(5, 10), 50000);
    EXPECT_EQ(urlaubsgeldFuer(5, 11), 65000); // above 10
    EXPECT_EQ(urlaubsgeldFuer(6, 8), 50000);
    EXPECT_EQ(urlaubsgeldFuer(6, 9), 65000); // above 8
    EXPECT_EQ(urlaubsgeldFuer(7, 6), 65000); // below 7
    EXPECT_EQ(urlaubsgeldFuer(7, 7), 50000);
    EXPECT_EQ(urlaubsgeldFuer(9, 7), 50000);
    EXPECT_EQ(urlaubsgeldFuer(9, 8), 65000); // above 7
    EXPECT_EQ(urlaubsgeldFuer(1, 20), 50000);
    EXPECT_EQ(urlaubsgeldFuer(17, 0), 50000);
}

TEST(Urlaubsgeld, GetipptImJuliMitZweitemEintrag) {
    Sitzung s;
    s.merkmal[4] = 5;
    s.merkmal[20] = 6;
    s.merkmal[17] = 1;
    s.eingabe[17] = 33300;
    urlaubsgeld(s);
    EXPECT_EQ(s.wert[17], 33300);
}

TEST(Urlaubsgeld, KlasseOhneBleibtUnberuehrt) {
    // Staff class 18 is not run: the row stays as it was (the run clears it later).
    EXPECT_EQ(urlaubsgeldFuer(18, 0), 12345);
}

TEST(Urlaubsgeld, KraftfahrerOstImLaufDesJuli) {
    // Through the run: person 1 in July, staff class 10 in the Ost; row 17 is paid and stored.
    test::Umgebung u;
    monatladen(u.s, 1, 6);
    u.s.merkmal[4] = 10;
    u.s.merkmal[2] = 1;
    u.s.merkmal[33] = 49;
    u.s.aenderungscode = 0;
    berechnen(u.s);
    EXPECT_EQ(u.s.wert[17], 50000);
    EXPECT_EQ(personalsatzlesen(u.s, 7, 1).wert[17], 50000);
}

} // namespace lonvir
