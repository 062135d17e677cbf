// The words of the annual overview's list of settings.
#include "reports/merkmaltexte.h"

#include <gtest/gtest.h>

namespace lonvir {
namespace {

TEST(Gruppenname, NamesTheGroupOfEachStaffClass) {
    EXPECT_EQ(gruppenname(0, 4), "A 5");
    EXPECT_EQ(gruppenname(0, 5), "A 5");
    EXPECT_EQ(gruppenname(0, 11), "A 9");
    EXPECT_EQ(gruppenname(0, 12), "A 10");
    EXPECT_EQ(gruppenname(0, 17), "A 13");
    EXPECT_EQ(gruppenname(0, 20), "A 16");
    EXPECT_EQ(gruppenname(1, 10), "B 11");
    EXPECT_EQ(gruppenname(4, 5), "Anw. hD");
    EXPECT_EQ(gruppenname(5, 11), "BAT Vc");
    EXPECT_EQ(gruppenname(14, 16), "BAT VIII");
    EXPECT_EQ(gruppenname(6, 3), "BAT II");
    EXPECT_EQ(gruppenname(7, 13), "KR XIII");
    EXPECT_EQ(gruppenname(8, 16), "Lohngr. 9");
    EXPECT_EQ(gruppenname(10, 15), "LG5a > 248");
    EXPECT_EQ(gruppenname(12, 99), "Azubi");
    EXPECT_EQ(gruppenname(15, 20), "XVI");
    EXPECT_EQ(gruppenname(16, 14), "AT 4");
    EXPECT_EQ(gruppenname(17, 3), "ohne");
    EXPECT_EQ(gruppenname(18, 19), "XX");
}

TEST(Gruppenname, AGroupWithoutANamePrintsNothingButInTheBatLists) {
    EXPECT_EQ(gruppenname(0, 21), std::nullopt);
    EXPECT_EQ(gruppenname(1, 11), std::nullopt);
    EXPECT_EQ(gruppenname(8, -1), std::nullopt);
    EXPECT_EQ(gruppenname(18, 20), std::nullopt);
    // The BAT list of class 6 names 0 to 16; 17 to 19 fall to the catch-all.
    EXPECT_EQ(gruppenname(6, 17), "BAT X");
    EXPECT_EQ(gruppenname(6, 19), "BAT X");
    EXPECT_EQ(gruppenname(6, 20), std::nullopt);
    EXPECT_EQ(gruppenname(5, 20), std::nullopt);
}

TEST(Familientext, FollowsTheListOfTheStaffClass) {
    EXPECT_EQ(familientext(0, 3), "vh, 2 Ki");
    EXPECT_EQ(familientext(5, 10), "ld. in U.");
    EXPECT_EQ(familientext(17, 11), "manuell");
    EXPECT_EQ(familientext(8, 0), "kein SZ");
    EXPECT_EQ(familientext(11, 6), "SZ 6 Ki");
    EXPECT_EQ(familientext(11, 7), "");
    EXPECT_EQ(familientext(4, 2), "vh §62(2)");
    EXPECT_EQ(familientext(12, 0), "ld");
    EXPECT_EQ(familientext(18, 3), "");
}

TEST(Ehegattentext, FourAnswers) {
    EXPECT_EQ(ehegattentext(0), "nein");
    EXPECT_EQ(ehegattentext(1), "ja voll");
    EXPECT_EQ(ehegattentext(2), "ja > 49%");
    EXPECT_EQ(ehegattentext(3), "ja < 50%");
    EXPECT_EQ(ehegattentext(4), "");
}

TEST(Monatskuerzel, MonthsAndTheYearsLastTwoDigits) {
    EXPECT_EQ(monatskuerzel(1, 1997), "Jan");
    EXPECT_EQ(monatskuerzel(3, 1997), "Mrz");
    EXPECT_EQ(monatskuerzel(12, 1997), "Dez");
    EXPECT_EQ(monatskuerzel(13, 1997), "97");
    EXPECT_EQ(monatskuerzel(13, 1998), "98");
}

} // namespace
} // namespace lonvir
