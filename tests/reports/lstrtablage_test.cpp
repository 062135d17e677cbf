// The viewer's place: read from the display settings, written back when it is unloaded.
#include "reports/lstrtablage.h"

#include "jahreshilfe.h"
#include "start/start.h"

#include <gtest/gtest.h>

namespace lonvir {
namespace {

TEST(Lstrtablage, DerErsteStartStelltDenBetrachterUnterDasHauptfenster) {
    test::Musterbestand m;
    // A new settings record places the viewer 650 twips below the main window's top edge.
    const Fensterort ort = lstrtablage(m.s);
    EXPECT_EQ(ort.oben, m.s.dim.form1top.abgeschnittenInt32() + 650);
    EXPECT_EQ(ort.links, m.s.dim.form1left.abgeschnittenInt32());
}

TEST(Lstrtablage, DerOrtBleibtUeberDenNaechstenStartErhalten) {
    test::Musterbestand m;
    lstrtablagespeichern(m.s, {2175, 3390});
    Sitzung neu;
    neu.ordner = m.s.ordner;
    neu.dialoge = &m.dialoge;
    starten(neu);
    EXPECT_EQ(lstrtablage(neu).oben, 2175);
    EXPECT_EQ(lstrtablage(neu).links, 3390);
    EXPECT_EQ(neu.dim.lstrtabtop, Currency::ganz(2175));
}

TEST(Lstrtablage, EinGespeicherterBruchteilWirdAbgeschnitten) {
    test::Musterbestand m;
    m.s.dim.lstrtabtop = Currency::roh(12'349'999); // 1234.9999 twips
    m.s.dim.lstrtableft = Currency::roh(-5'000);    // -0.5 twips
    EXPECT_EQ(lstrtablage(m.s).oben, 1234);
    EXPECT_EQ(lstrtablage(m.s).links, 0);
}

} // namespace
} // namespace lonvir
