// The main window opens maximised until it has stored a place of its own.
#include "screen/fensterlage.h"
#include "start/einstellungen.h"
#include "testhilfe.h"

#include <gtest/gtest.h>

namespace lonvir {

TEST(Fensterlage, DieVorgabeEinesNeuenBestandsIstKeineEigeneLage) {
    test::Umgebung u;
    Sitzung& s = u.s;
    // 1024 by 768 pixels at 15 twips: 15360 wide, 11520 - 320 = 11200 high, at 0, 0.
    s.dim.form1top = Currency::ganz(0);
    s.dim.form1left = Currency::ganz(0);
    s.dim.form1width = Currency::ganz(15360);
    s.dim.form1height = Currency::ganz(11200);
    EXPECT_FALSE(eigenefensterlage(s));
}

TEST(Fensterlage, DieVorgabeFuerDenBildschirmDiesesStartsAuchNicht) {
    test::Umgebung u;
    Sitzung& s = u.s;
    s.bildschirmbreite = 24000; // 1600 pixels
    s.bildschirmhoehe = 15000;  // 1000 pixels
    s.dim = dimvorgaben(s);
    EXPECT_EQ(s.dim.form1height, Currency::ganz(14680));
    EXPECT_FALSE(eigenefensterlage(s));
}

TEST(Fensterlage, EineGespeicherteLageGilt) {
    test::Umgebung u;
    Sitzung& s = u.s;
    s.dim.form1top = Currency::ganz(300);
    s.dim.form1left = Currency::ganz(450);
    s.dim.form1width = Currency::ganz(18000);
    s.dim.form1height = Currency::ganz(12000);
    EXPECT_TRUE(eigenefensterlage(s));
}

TEST(Fensterlage, OhneBreiteOderHoeheKeineLage) {
    test::Umgebung u;
    Sitzung& s = u.s;
    s.dim.form1top = Currency::ganz(300);
    s.dim.form1width = Currency::ganz(0);
    s.dim.form1height = Currency::ganz(12000);
    EXPECT_FALSE(eigenefensterlage(s));
}

} // namespace lonvir
