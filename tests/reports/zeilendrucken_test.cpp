// A stored free text printed line by line at column 10.
#include "reports/zeilendrucken.h"

#include <gtest/gtest.h>

namespace lonvir {
namespace {

TEST(Zeilendrucken, AnEmptyTextPrintsNothing) {
    Merkdrucker d;
    zeilendrucken(d, "     ");
    d.EndDoc();
    ASSERT_EQ(d.dokumente.size(), 1u);
    EXPECT_TRUE(d.dokumente[0].zeilen.empty());
}

TEST(Zeilendrucken, ThreeLinesStandAtColumnTenWithoutTheirLeadingBlanks) {
    Merkdrucker d;
    zeilendrucken(d, "  Erste Zeile\r\n   zweite Zeile\r\n  dritte   ");
    d.EndDoc();
    ASSERT_EQ(d.dokumente[0].zeilen.size(), 3u);
    EXPECT_EQ(d.zeile(0, 0), "         Erste Zeile");
    EXPECT_EQ(d.zeile(0, 1), "         zweite Zeile");
    EXPECT_EQ(d.zeile(0, 2), "         dritte");
    EXPECT_EQ(d.dokumente[0].zeilen[1].stuecke[0].spalte, 10);
}

} // namespace
} // namespace lonvir
