// Row 34, Kindergeld, and the church-tax rate from the selections.
#include "engine/kirchensteuer.h"
#include "engine/schritte.h"

#include <gtest/gtest.h>

namespace lonvir {

namespace {
std::int32_t kindergeldFuer(std::int16_t auswahl) {
    Sitzung s;
    s.merkmal[34] = auswahl;
    s.eingabe[34] = 4711;
    kindergeld(s);
    return s.wert[34];
}
} // namespace

TEST(Kindergeld, FesteBetraegeJeKinderzahl) {
    // 220 + 220 + 300 + 350 + 350 + 350 DM
    EXPECT_EQ(kindergeldFuer(1), 22000);
    EXPECT_EQ(kindergeldFuer(2), 44000);
    EXPECT_EQ(kindergeldFuer(3), 74000);
    EXPECT_EQ(kindergeldFuer(4), 109000);
    EXPECT_EQ(kindergeldFuer(5), 144000);
    EXPECT_EQ(kindergeldFuer(6), 179000);
}

TEST(Kindergeld, NullOderUeberSechsIstDieEingabe) {
    EXPECT_EQ(kindergeldFuer(0), 4711);
    EXPECT_EQ(kindergeldFuer(7), 4711);
}

TEST(Kirchensatz, NachAuswahlUndKonfession) {
    EXPECT_EQ(kirchensatzVon(0, 0), Currency::roh(800));
    EXPECT_EQ(kirchensatzVon(1, 0), Currency::roh(900));
    EXPECT_EQ(kirchensatzVon(2, 0), Currency{});
    EXPECT_EQ(kirchensatzVon(3, 0), Currency{});
    EXPECT_EQ(kirchensatzVon(0, 6), Currency{});
    EXPECT_EQ(kirchensatzVon(1, 5), Currency::roh(900));
}

} // namespace lonvir
