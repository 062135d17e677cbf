// File names matched without regard to case.
#include "core/arbeitsordner.h"
#include "testhilfe.h"

#include <gtest/gtest.h>

#include <fstream>

namespace lonvir {

TEST(Arbeitsordner, VorhandeneDateiInAndererSchreibweiseWirdGenommen) {
    test::Tempordner t;
    std::ofstream(t.pfad() / "l1997i.1") << "x";
    Arbeitsordner o(t.pfad());
    EXPECT_EQ(o.pfad("L1997I.1"), t.pfad() / "l1997i.1");
    EXPECT_EQ(o.laenge("L1997I.1"), 1u);
}

TEST(Arbeitsordner, NeueDateiBekommtDenKanonischenNamen) {
    test::Tempordner t;
    Arbeitsordner o(t.pfad());
    EXPECT_EQ(o.pfad("Lonvir97.voe"), t.pfad() / "Lonvir97.voe");
    EXPECT_FALSE(o.vorhanden("Lonvir97.voe"));
    EXPECT_EQ(o.laenge("Lonvir97.voe"), 0u);
}

TEST(Arbeitsordner, LoeschenFindetKleingeschriebenenNamen) {
    test::Tempordner t;
    std::ofstream(t.pfad() / "L1997P.3") << "x";
    Arbeitsordner o(t.pfad());
    o.loeschen("l1997p.3");
    EXPECT_FALSE(std::filesystem::exists(t.pfad() / "L1997P.3"));
    o.loeschen("l1997p.3"); // a missing file is no error
}

} // namespace lonvir
