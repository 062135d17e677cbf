// Checked 32-bit arithmetic and the named conversions.
#include "core/laufzeitfehler.h"
#include "core/pfennig.h"

#include <gtest/gtest.h>

#include <climits>

namespace lonvir {

TEST(Pfennig, GerundetZurGeradenNachbarzahl) {
    EXPECT_EQ(pf::gerundet(2.5), 2);
    EXPECT_EQ(pf::gerundet(3.5), 4);
    EXPECT_EQ(pf::gerundet(-2.5), -2);
    EXPECT_EQ(pf::gerundet(5000.5), 5000);
    EXPECT_EQ(pf::gerundet(5001.5), 5002);
}

TEST(Pfennig, AbgeschnittenGegenNull) {
    EXPECT_EQ(pf::abgeschnitten(2.9), 2);
    EXPECT_EQ(pf::abgeschnitten(-2.9), -2);
}

TEST(Pfennig, UeberlaufDerSummeIstFehler6) {
    EXPECT_EQ(pf::plus(INT_MAX - 1, 1), INT_MAX);
    try {
        (void)pf::plus(INT_MAX, 1);
        FAIL();
    } catch (const Laufzeitfehler& f) {
        EXPECT_EQ(f.nummer(), 6);
    }
    EXPECT_THROW((void)pf::minus(INT_MIN, 1), Laufzeitfehler);
    EXPECT_THROW((void)pf::mal(100000, 100000), Laufzeitfehler);
    EXPECT_THROW((void)pf::negiert(INT_MIN), Laufzeitfehler);
    EXPECT_THROW((void)pf::gerundet(2147483647.5), Laufzeitfehler);
    EXPECT_EQ(pf::gerundet(-2147483648.4), INT_MIN);
    EXPECT_THROW((void)pf::int16(32768), Laufzeitfehler);
}

} // namespace lonvir
