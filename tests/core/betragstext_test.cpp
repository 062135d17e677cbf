// The screen's amount texts.
#include "core/betragstext.h"

#include <gtest/gtest.h>

namespace lonvir {

TEST(Betragstext, ZeichenHinterDerZahl) {
    EXPECT_EQ(zeilentext(7, 0), "0,00±");
    EXPECT_EQ(zeilentext(7, -1234), "12,34-");
    EXPECT_EQ(zeilentext(45, 5), "0,05+");
    EXPECT_EQ(zeilentext(45, 50), "0,50+");
    EXPECT_EQ(betragstext(0), "0,00+");
    EXPECT_EQ(betragstext(-1), "0,01-");
}

TEST(Betragstext, Tausenderpunkte) {
    EXPECT_EQ(zeilentext(22, 123), "1,23+");
    EXPECT_EQ(zeilentext(22, 12345), "123,45+");
    EXPECT_EQ(zeilentext(22, 123456), "1.234,56+");
    EXPECT_EQ(zeilentext(22, 12345678), "123.456,78+");
    EXPECT_EQ(zeilentext(22, 123456789), "1.234.567,89+");
}

TEST(Betragstext, StundenUndTageGanzOderMitNachkomma) {
    EXPECT_EQ(zeilentext(0, 3800), "38");
    EXPECT_EQ(zeilentext(0, 3850), "38,50");
    EXPECT_EQ(zeilentext(3, 3000), "30");
}

TEST(Betragstext, Zeilen27Bis32OhneText) {
    EXPECT_EQ(zeilentext(27, 5000), "");
    EXPECT_EQ(zeilentext(32, 5000), "");
}

} // namespace lonvir
