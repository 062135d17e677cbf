// The bars of the annual overview's chart follow the view.
#include "reports/jahresdiagramm.h"

#include "jahreshilfe.h"

#include <gtest/gtest.h>

namespace lonvir {
namespace {

void monat(Personalsatz& p) {
    p.merkmal[4] = 5;
    p.wert[22] = 300000;
    p.nebenwert[0] = 20000;
    p.wert[31] = 10000;
    p.wert[33] = -50000;
    p.wert[36] = -4000;
    p.wert[37] = -20000;
}

TEST(Jahresdiagramm, DeductionsViewShowsGrossDeductionsAndNet) {
    test::Umgebung u;
    test::monatschreiben(u.s, 2, 4, monat);
    const Jahresdiagramm d = jahresdiagramm(jahresmatrixbilden(u.s, 2), 1);
    ASSERT_EQ(d.reihen.size(), 3u);
    EXPECT_EQ(d.reihen[1].name, "Abzüge");
    EXPECT_EQ(d.reihen[0].pfennig[3], 300000);
    EXPECT_EQ(d.reihen[1].pfennig[3], 74000); // 500 + 40 + 200
    EXPECT_EQ(d.reihen[2].pfennig[3], 226000);
    EXPECT_EQ(d.reihen[2].pfennig[2], 0);
    EXPECT_EQ(d.groesster(), 300000);
}

TEST(Jahresdiagramm, EmployerViewShowsGrossSideCostsAndTotal) {
    test::Umgebung u;
    test::monatschreiben(u.s, 2, 4, monat);
    const Jahresdiagramm d = jahresdiagramm(jahresmatrixbilden(u.s, 2), 0);
    ASSERT_EQ(d.reihen.size(), 3u);
    EXPECT_EQ(d.reihen[1].pfennig[3], 30000); // 200 shares + 100 levy
    EXPECT_EQ(d.reihen[2].pfennig[3], 330000);
    EXPECT_EQ(d.groesster(), 330000);
}

} // namespace
} // namespace lonvir
