// The levy for civil servants' pensions: the rate of row 25 on the rows marked for it.
#include "engine/schritte.h"

#include <gtest/gtest.h>

namespace lonvir {

TEST(UmlageBeamte, SatzAufDieMarkiertenZeilen) {
    Sitzung s;
    s.merkmal[4] = 2;
    s.zahlwert[7] = Currency::ganz(400000); // Grundgehalt 4000.00 DM, zvk 1
    s.zvk[7] = 1;
    s.zahlwert[8] = Currency::ganz(100000); // Ortszuschlag 1000.00 DM, zvk 1
    s.zvk[8] = 1;
    s.zahlwert[15] = Currency::ganz(1300); // VWL 13.00 DM, not pensionable
    s.zvk[15] = 0;
    s.wert[25] = 1500; // 15 %
    for (int i = 0; i <= 6; ++i)
        s.nebenwert[i] = 99;
    s.nebenwert[7] = 77;
    s.wert[32] = 55;
    umlage_beamte(s);
    // zvkwert(7) = 400000 + 100000 = 500000; zvkwert(8) = 1500 / 10000 * 500000 = 75000.
    EXPECT_EQ(s.zvkwert[7], 500000);
    EXPECT_EQ(s.zvkwert[8], 75000);
    EXPECT_EQ(s.wert[31], 75000);
    EXPECT_EQ(s.wert[32], 0);
    for (int i = 0; i <= 6; ++i)
        EXPECT_EQ(s.nebenwert[i], 0) << i;
    EXPECT_EQ(s.nebenwert[7], 77); // beyond the cleared range
}

TEST(UmlageBeamte, SummeWirdNachJederZeileGerundet) {
    Sitzung s;
    s.merkmal[4] = 0;
    s.zahlwert[7] = Currency::roh(10006000); // 1000.6 Pfennig
    s.zvk[7] = 1;
    s.zahlwert[9] = Currency::roh(20006000); // 2000.6 Pfennig
    s.zvk[9] = 1;
    s.wert[25] = 10000; // 100 %, so the contribution shows the base
    umlage_beamte(s);
    // 0 + 1000.6 -> 1001; 1001 + 2000.6 = 3001.6 -> 3002 (the plain sum 3001.2 would give 3001).
    EXPECT_EQ(s.zvkwert[7], 3002);
    EXPECT_EQ(s.zvkwert[8], 3002);
}

} // namespace lonvir
