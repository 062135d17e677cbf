// How wide a printed page is drawn: a page whose lines fit is drawn at its size, a wider one
// smaller as a whole, so that its right-hand column stands on the paper.
#include "druck/druckmaler.h"

#include <gtest/gtest.h>

namespace lonvir {
namespace {

// One line of `zeichen` characters in 12-point Courier New from the left margin.
Druckdokument einzeiler(std::size_t zeichen) {
    Druckdokument d;
    Druckzeile z;
    Druckstueck s;
    s.text = std::string(zeichen, 'X');
    s.schrift = "courier new";
    s.groesse = 12;
    z.stuecke.push_back(s);
    d.zeilen.push_back(z);
    return d;
}

TEST(Seitenmass, EineZeileDiePasstBleibtInIhrerGroesse) {
    const Druckdokument d = einzeiler(100);
    EXPECT_DOUBLE_EQ(druck::seitenmass(d, {0, 0, 1, querformat}, 780.0), 1.0);
}

TEST(Seitenmass, EineBreitereZeileWirdAufDieBreiteVerkleinert) {
    // 134 characters of the fixed-pitch font at 12 points: 0.6 of the size each, 964.8 points.
    const Druckdokument d = einzeiler(134);
    const double mass = druck::seitenmass(d, {0, 0, 1, querformat}, 780.0);
    EXPECT_NEAR(mass, 780.0 / 964.8, 0.01);
    EXPECT_LT(mass, 1.0);
}

TEST(Seitenmass, NurDieZeilenDerSeiteZaehlen) {
    Druckdokument d = einzeiler(40);
    d.zeilen.push_back(einzeiler(200).zeilen.front());
    EXPECT_DOUBLE_EQ(druck::seitenmass(d, {0, 0, 1, hochformat}, 500.0), 1.0);
    EXPECT_LT(druck::seitenmass(d, {0, 1, 2, hochformat}, 500.0), 1.0);
}

} // namespace
} // namespace lonvir
