// The allowances display of a year-table line.
#include "reports/freibetraege.h"

#include <gtest/gtest.h>

namespace lonvir {

namespace {
Freibetraege zeile(std::int32_t scrollwert, std::int16_t klasse, double kinder = 0) {
    Freibetragsauswahl a;
    a.scrollwert = scrollwert;
    a.steuerklasse = klasse;
    a.kinderfreibetraege = Currency::gerundet(kinder);
    return freibetraegeberechnen(a);
}
} // namespace

TEST(Freibetraege, NeunZeilenTexte) {
    EXPECT_EQ(freibetragszeilen[0], std::string("Steuerpfl. Gehalt /Lohn"));
    EXPECT_EQ(freibetragszeilen[5], std::string("- Kinderfreibeträge"));
    EXPECT_EQ(freibetragszeilen[8], std::string("= Zu versteuerndes Eink."));
}

TEST(Freibetraege, KlasseSechsOhneArbeitnehmerpauschbetrag) {
    const Freibetraege f = zeile(1000, 6);
    EXPECT_EQ(f.text(2), "0,00");
    EXPECT_EQ(f.text(7), "0,00");
}

TEST(Freibetraege, KlasseZweiMitHaushaltsfreibetrag) {
    const Freibetraege f = zeile(1000, 2);
    EXPECT_EQ(f.text(4), "5.616,00");
    EXPECT_EQ(f.text(2), "2.000,00");
    EXPECT_EQ(f.text(7), "108,00");
}

TEST(Freibetraege, LohnDerZeileIstScrollwertMal54Mark) {
    // 1000 * 5400 Pf = 54.000,00 DM; class I: stufewert = stufe54(54000 - 2) + 2 = 999 * 54
    // + 2 = 53948, stufetop 54001; vsp1 = 20 % of 54001 = 10800.2; vhb = 6000 - 16 % of 54001
    // (8640.16), at least 0: 0; rest 10800.2 > 2610: 2610 + min(half of 8190.2, 1305) = 3915,
    // stufe54 -> 3888; zve = 53948 - 2108 - 3888 = 47952.
    const Freibetraege f = zeile(1000, 1);
    EXPECT_EQ(f.text(0), "54.000,00");
    EXPECT_EQ(f.text(1), "0,00");
    EXPECT_EQ(f.text(3), "0,00");
    EXPECT_EQ(f.text(6), "3.888,00");
    EXPECT_EQ(f.text(8), "47.952,00");
}

TEST(Freibetraege, KinderfreibetraegeBleibenImGitterNull) {
    const Freibetraege f = zeile(1000, 1, 2.0);
    EXPECT_EQ(f.text(5), "0,00");
}

TEST(Freibetraege, NegativesEinkommenZeigtNull) {
    // 10 * 54 = 540 DM a year lies below the allowances.
    const Freibetraege f = zeile(10, 1);
    EXPECT_EQ(f.text(0), "540,00");
    EXPECT_EQ(f.text(8), "0,00");
}

TEST(Freibetraege, AltersentlastungAusDemLohn) {
    // 40 % of 5.400.000 Pf is 21.600 DM, limited to 3.720 DM a year.
    Freibetragsauswahl a;
    a.scrollwert = 1000;
    a.altersentlastung = 1;
    EXPECT_EQ(freibetraegeberechnen(a).text(1), "3.720,00");
}

} // namespace lonvir
