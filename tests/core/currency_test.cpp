// Currency: rounding ties to even, truncation, overflow.
#include "core/currency.h"
#include "core/laufzeitfehler.h"

#include <gtest/gtest.h>
#include <limits>

namespace lonvir {

TEST(Currency, RundetAufVierStellenZurGeradenNachbarzahl) {
    // 0.00005 lies exactly between 0.0000 and 0.0001 only in decimal; 0.5 / 10000 steps
    // are taken from exact binary halves: 2.5 / 10000 = 0.00025 -> 2 (even), 3.5 -> 4.
    EXPECT_EQ(Currency::gerundet(1.5).roh(), 15000);
    EXPECT_EQ(Currency::gerundet(0.00125).roh(), 12); // 12.5 ten-thousandths, tie to 12
    EXPECT_EQ(Currency::gerundet(-2.75).roh(), -27500);
}

TEST(Currency, GanzzahlGerundetZurGeraden) {
    EXPECT_EQ(Currency::roh(25000).gerundetInt32(), 2);   // 2.5 -> 2
    EXPECT_EQ(Currency::roh(35000).gerundetInt32(), 4);   // 3.5 -> 4
    EXPECT_EQ(Currency::roh(-25000).gerundetInt32(), -2); // -2.5 -> -2
    EXPECT_EQ(Currency::roh(-25001).gerundetInt32(), -3);
    EXPECT_EQ(Currency::roh(24999).gerundetInt32(), 2);
}

TEST(Currency, AbschneidenGehtGegenNull) {
    EXPECT_EQ(Currency::roh(29999).abgeschnittenInt32(), 2);
    EXPECT_EQ(Currency::roh(-29999).abgeschnittenInt32(), -2);
    EXPECT_EQ(Currency::roh(-29999).abgeschnitten().roh(), -20000);
}

TEST(Currency, ProduktWirdAufVierStellenGerundet) {
    // 1.2345 * 0.5 = 0.61725 -> 0.6172 (tie to even)
    EXPECT_EQ((Currency::roh(12345) * Currency::roh(5000)).roh(), 6172);
    // 1.2347 * 0.5 = 0.61735 -> 0.6174
    EXPECT_EQ((Currency::roh(12347) * Currency::roh(5000)).roh(), 6174);
}

TEST(Currency, UeberlaufIstLaufzeitfehler6) {
    try {
        (void)(Currency::roh(INT64_MAX) + Currency::roh(1));
        FAIL();
    } catch (const Laufzeitfehler& f) {
        EXPECT_EQ(f.nummer(), 6);
        EXPECT_STREQ(f.what(), "Laufzeitfehler 6: Überlauf");
    }
    EXPECT_THROW((void)Currency::ganz(3'000'000'000).gerundetInt32(), Laufzeitfehler);
}

TEST(Currency, TextMitVierNachkommastellen) {
    EXPECT_EQ(Currency::roh(-12345).text(), "-1.2345");
    EXPECT_EQ(Currency::ganz(38).text(), "38.0000");
}

TEST(Currency, TextDesKleinstenWertesOhneUeberlauf) {
    // -9 223 372 036 854 775 808 ten-thousandths: its magnitude has no signed 64-bit value.
    EXPECT_EQ(Currency::roh(std::numeric_limits<std::int64_t>::min()).text(),
              "-922337203685477.5808");
    EXPECT_EQ(Currency::roh(std::numeric_limits<std::int64_t>::max()).text(),
              "922337203685477.5807");
}

} // namespace lonvir
