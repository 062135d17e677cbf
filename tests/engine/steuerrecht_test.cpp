// The tax law of 1998 beside that of 1997: the tariff of section 32a EStG 1998 at its zone
// limits, the surcharge of 1998 around its exemption limits, and a whole run of the routine.
#include "engine/lohnsteuer.h"
#include "engine/lohnsteuertarif.h"
#include "engine/schritte.h"
#include "engine/solidaritaet.h"
#include "engine/steuerrechtwahl.h"
#include "start/einstellungen.h"

#include <gtest/gtest.h>

namespace lonvir {

namespace {

// The tariff tax of one taxable amount (DM on the grid or not), class 1.
Currency tarifsteuer(Steuerrecht recht, std::int64_t betrag) {
    Lohnsteuerlauf l;
    l.recht = recht;
    l.kztab = 1;
    grundtarif(l, Currency::ganz(betrag));
    return l.st;
}

const Steuerrecht r98 = Steuerrecht::recht1998;

} // namespace

// Basic allowance 12 365 DM: the first DM above it bears tax. At 12 366 DM y = 54 / 10000 =
// 0.0054; 91.19 y = 0.492426, cut to 0.4924; (0.4924 + 2590) * 0.0054 = 13.98865896 -> 13 DM.
TEST(Steuerrecht1998, GrundfreibetragBis12365) {
    EXPECT_EQ(tarifsteuer(r98, 12365), Currency{});
    EXPECT_EQ(tarifsteuer(r98, 12366), Currency::ganz(13));
    // The law of 1997 taxes from 12 096 DM: at 12 365 it is already in its first zone.
    EXPECT_GT(tarifsteuer(Steuerrecht::recht1997, 12365), Currency{});
}

// First zone to 58 643 DM: y = 4.6331, 91.19 y = 422.492389 -> 422.4923, (3012.4923) * 4.6331 =
// 13957.1781 -> 13957. Second zone from 58 644: z = 0.0054, 151.96 z = 0.820584 -> 0.8205,
// 3434.8205 * 0.0054 = 18.548 + 13938 = 13956.548 -> 13956. The zones meet as the formulas of
// the law do (13 957.18 and 13 956.55 before the cut).
TEST(Steuerrecht1998, GrenzeDerErstenZone58643) {
    EXPECT_EQ(tarifsteuer(r98, 58643), Currency::ganz(13957));
    EXPECT_EQ(tarifsteuer(r98, 58644), Currency::ganz(13956));
}

// Second zone to 120 041 DM: z = 6.1451, 151.96 z = 933.809396 -> 933.8093, 4367.8093 * 6.1451
// = 26840.6249, + 13938 = 40778.6249 -> 40778. From 120 042: 0.53 * 120042 - 22843 = 40779.26
// -> 40779 (40 778.63 and 40 779.26 before the cut).
TEST(Steuerrecht1998, GrenzeDerZweitenZone120041) {
    EXPECT_EQ(tarifsteuer(r98, 120041), Currency::ganz(40778));
    EXPECT_EQ(tarifsteuer(r98, 120042), Currency::ganz(40779));
}

// Surcharge of 1998: 5.5 %, nothing up to 1 836 DM (3 672 DM in class 3), above it at most 20 %
// of the excess.
TEST(Steuerrecht1998, ZuschlagUmDieFreigrenze1836) {
    const Currency grenze = Currency::ganz(1836);
    EXPECT_EQ(solidaritaetszuschlag(Currency::ganz(1836), grenze, 55), Currency{});
    // 1837: 5.5 % = 101.035, 20 % of 1 = 0.20 -> 0.20.
    EXPECT_EQ(solidaritaetszuschlag(Currency::ganz(1837), grenze, 55), Currency::roh(2000));
    // 2532: 5.5 % = 139.26, 20 % of 696 = 139.20 -> 139.20; 2533: 139.315 < 139.40 -> 139.315.
    EXPECT_EQ(solidaritaetszuschlag(Currency::ganz(2532), grenze, 55), Currency::roh(1392000));
    EXPECT_EQ(solidaritaetszuschlag(Currency::ganz(2533), grenze, 55), Currency::roh(1393150));
}

TEST(Steuerrecht1998, ZuschlagUmDieFreigrenze3672InKlasseDrei) {
    const Currency grenze = Currency::ganz(3672);
    EXPECT_EQ(solidaritaetszuschlag(Currency::ganz(3672), grenze, 55), Currency{});
    EXPECT_EQ(solidaritaetszuschlag(Currency::ganz(3673), grenze, 55), Currency::roh(2000));
    // The run sets the limit by the law and the class: 1836 times kztab.
    Lohnsteuerlauf l;
    l.recht = r98;
    l.re4 = Currency::ganz(500000);
    l.stkl = 3;
    lohnsteuer(l);
    EXPECT_EQ(l.grenze, Currency::ganz(3672));
    l.stkl = 1;
    lohnsteuer(l);
    EXPECT_EQ(l.grenze, Currency::ganz(1836));
    l.recht = Steuerrecht::recht1997;
    lohnsteuer(l);
    EXPECT_EQ(l.grenze, Currency::ganz(1332));
}

// 3946.89 DM a month (the sample BAT employee in 1998), class I, no children, normal table:
// yearly wage (394689 + 0.67) * 0.12 = 47362.76 -> 47362; step 47360 (top 47413); allowances
// 2000 + 108; Vorsorgepauschale 2610 + 1305 = 3915 -> 3888 on the grid (6000 less 16 % of 47413
// is below 0); zve 47360 - 2108 - 3888 = 41364 = x.
// 1998: y = 2.9052, 91.19 y = 264.925188 -> 264.9251, 2854.9251 * 2.9052 = 8294.1284 -> 8294 DM;
// the month 829400 / 12 = 69116.67 -> 69116 Pf; surcharge 5.5 % of 8294 = 456.17 (20 % of the
// excess is 1291.60), 45617 / 12 = 3801.42 -> 3801 Pf.
// 1997: y = 2.9322, 86.63 y = 254.016486 -> 254.0164, 2844.0164 * 2.9322 = 8339.22 -> 8339 DM;
// 833900 / 12 -> 69491 Pf; 7.5 % of 8339 = 625.425, 62542.5 / 12 -> 5211 Pf.
TEST(Steuerrecht1998, EinMonatKlasseEinsNachBeidenRechten) {
    Lohnsteuerlauf l;
    l.re4 = Currency::ganz(394689);
    l.lzz = 2;
    l.stkl = 1;
    l.kirche = 1;
    l.recht = r98;
    lohnsteuer(l);
    EXPECT_EQ(l.x, Currency::ganz(41364));
    EXPECT_EQ(l.st, Currency::ganz(8294));
    EXPECT_EQ(l.lstlzz, Currency::ganz(69116));
    EXPECT_EQ(l.solzlzz, Currency::ganz(3801));
    EXPECT_EQ(l.bk, Currency::ganz(69116));
    l.recht = Steuerrecht::recht1997;
    lohnsteuer(l);
    EXPECT_EQ(l.st, Currency::ganz(8339));
    EXPECT_EQ(l.lstlzz, Currency::ganz(69491));
    EXPECT_EQ(l.solzlzz, Currency::ganz(5211));
}

// The switch is element 34 of the settings; only the year 1998 acts on it.
TEST(Steuerrecht1998, DerSchalterGiltNurIm1998erJahr) {
    Sitzung s;
    s.jahr = 1998;
    aktualisieren(s);
    EXPECT_FALSE(s.einstellungen.steuerrecht1998);
    EXPECT_EQ(steuerrechtfuer(s), Steuerrecht::recht1997);
    s.voreinstellung[steuerrecht1998element] = Currency::ganz(1);
    aktualisieren(s);
    EXPECT_TRUE(s.einstellungen.steuerrecht1998);
    EXPECT_EQ(steuerrechtfuer(s), r98);
    EXPECT_EQ(steuerrechtzeile(s), "Lohnsteuer nach dem Steuerrecht 1998");
    s.jahr = 1997;
    EXPECT_EQ(steuerrechtfuer(s), Steuerrecht::recht1997);
    EXPECT_EQ(steuerrechtzeile(s), "Lohnsteuer nach dem Steuerrecht 1997");
}

// The surcharge on the lump tax of the supplementary pension follows the law: 2700 * 0.055 =
// 148.5 -> 148 Pf under the law of 1998, 2700 * 0.075 = 202.5 -> 202 Pf otherwise.
TEST(Steuerrecht1998, ZuschlagAufDieZvkPauschsteuer) {
    for (bool an : {true, false}) {
        Sitzung s;
        s.jahr = 1998;
        s.einstellungen.steuerrecht1998 = an;
        s.merkmal[4] = 5;
        s.tagefaktor = 1.0f;
        s.vorgabewert[2] = 7000;
        s.vorgabewert[6] = 10000;
        s.wert[25] = 450;
        s.zahlwert[7] = Currency::ganz(300000);
        s.teilwert[7] = Currency::ganz(300000);
        s.zvk[7] = 1;
        s.wert[22] = 300000;
        zvk_berechnen(s);
        EXPECT_EQ(s.zvkwert[22], 2700);
        EXPECT_EQ(s.zvkwert[24], an ? 148 : 202);
    }
}

} // namespace lonvir
