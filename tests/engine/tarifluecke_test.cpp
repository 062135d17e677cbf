// A month without an installed tariff amount says so instead of passing for a result of 0,00.
#include "engine/berechnen.h"
#include "engine/monatladen.h"
#include "engine/tarifluecke.h"
#include "testhilfe.h"

#include <gtest/gtest.h>

namespace lonvir {

namespace {
// Person 1 of a new store in layer PLAN: Besoldungsordnung A (class 0), group A 1 (0), West;
// the folder has no tariff tables at all.
struct OhneTarif : ::testing::Test {
    test::Umgebung u{1997, PLAN};
    Sitzung& s = u.s;
    OhneTarif() { monatladen(s, 1, 0); }
};
} // namespace

TEST_F(OhneTarif, NenntDateiUndSatzDerLeerenTarifzeile) {
    ASSERT_EQ(s.wert[22], 0);
    // Class 0 starts at record 1; group A 1 adds 0, the West nothing: record 1 of the first
    // table of 1997, which January uses.
    EXPECT_EQ(tariflueckenhinweis(s),
              "Für diese Gruppe ist kein Tarifbetrag installiert (Lonvir97.1tr, Satz 1)");
}

TEST_F(OhneTarif, DieGruppeImOstenLiegtDreihundertSaetzeWeiter) {
    s.merkmal[2] = 1;
    s.merkmal[5] = 4; // A 5
    berechnen(s);
    EXPECT_EQ(tariflueckenhinweis(s),
              "Für diese Gruppe ist kein Tarifbetrag installiert (Lonvir97.1tr, Satz 305)");
}

TEST_F(OhneTarif, EinBetragInDerZeileGiltAlsInstalliert) {
    // Only the overtime rate is installed: the line is not empty, the gross pay still 0.
    test::ueberstundensatzsetzen(s, 2500);
    berechnen(s);
    ASSERT_EQ(s.wert[22], 0);
    EXPECT_EQ(tariflueckenhinweis(s), std::nullopt);
}

TEST_F(OhneTarif, NichtInDerJahresansichtUndNichtOhnePersonalart) {
    s.merkmal[20] = 12;
    EXPECT_EQ(tariflueckenhinweis(s), std::nullopt);
    s.merkmal[20] = 0;
    s.merkmal[4] = 18;
    EXPECT_EQ(tariflueckenhinweis(s), std::nullopt);
}

} // namespace lonvir
