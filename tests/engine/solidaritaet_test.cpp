// The solidarity surcharge on the yearly tax: threshold, the 20 % zone and the 7.5 % rate.
#include "engine/solidaritaet.h"

#include <gtest/gtest.h>

namespace lonvir {

namespace {
Currency dmBetrag(std::int64_t zehntausendstel) {
    return Currency::roh(zehntausendstel);
}
const Currency grenzeKlasseEins = Currency::ganz(1332);
} // namespace

TEST(Solidaritaetszuschlag, NullBisEinschliesslichDerGrenze) {
    // t = grenze = 1332: nothing.
    EXPECT_EQ(solidaritaetszuschlag(Currency::ganz(1332), grenzeKlasseEins), Currency{});
    EXPECT_EQ(solidaritaetszuschlag(Currency::ganz(0), grenzeKlasseEins), Currency{});
}

TEST(Solidaritaetszuschlag, KnappUeberDerGrenzeZwanzigProzentDesUeberschusses) {
    // t = 1333: 7.5 % = 99.975, 20 % of 1 = 0.2 -> 0.2
    EXPECT_EQ(solidaritaetszuschlag(Currency::ganz(1333), grenzeKlasseEins), dmBetrag(2000));
    // t = 2131: 7.5 % = 159.825, 20 % of 799 = 159.8 -> 159.8
    EXPECT_EQ(solidaritaetszuschlag(Currency::ganz(2131), grenzeKlasseEins), dmBetrag(1598000));
}

TEST(Solidaritaetszuschlag, AbEtwaDemEinKommaSechsfachenSiebenEinhalbProzent) {
    // t = 2132 (1.6 times 1332 is 2131.2): 7.5 % = 159.9 < 20 % of 800 = 160 -> 159.9
    EXPECT_EQ(solidaritaetszuschlag(Currency::ganz(2132), grenzeKlasseEins), dmBetrag(1599000));
    // t = 2131.2: both are 159.84; the 7.5 % is taken.
    EXPECT_EQ(solidaritaetszuschlag(dmBetrag(21312000), grenzeKlasseEins), dmBetrag(1598400));
    // t = 10000: 750 < 1733.6 -> 750
    EXPECT_EQ(solidaritaetszuschlag(Currency::ganz(10000), grenzeKlasseEins), Currency::ganz(750));
}

TEST(Solidaritaetszuschlag, SiebenEinhalbProzentWerdenAufVierStellenGerundet) {
    // t = 8523: 7.5 % = 639.225 exactly; t = 3333.3333: 249.99999... -> 250.0000
    EXPECT_EQ(solidaritaetszuschlag(Currency::ganz(8523), grenzeKlasseEins), dmBetrag(6392250));
    EXPECT_EQ(solidaritaetszuschlag(dmBetrag(33333333), grenzeKlasseEins), Currency::ganz(250));
}

TEST(Solidaritaetszuschlag, KlasseDreiGrenze2664) {
    const Currency grenze = Currency::ganz(2664);
    EXPECT_EQ(solidaritaetszuschlag(Currency::ganz(2664), grenze), Currency{});
    // t = 2665: 20 % of 1 = 0.2
    EXPECT_EQ(solidaritaetszuschlag(Currency::ganz(2665), grenze), dmBetrag(2000));
}

} // namespace lonvir
