// Lists for a spreadsheet.
#include "core/csv.h"

#include <cstdint>
#include <gtest/gtest.h>
#include <limits>

namespace lonvir {

TEST(Csv, KopfZeilenBomUndCrLf) {
    Csvtabelle t{{"Name", "Betrag"}, {{"Schneider, Petra", "3888,56"}}};
    EXPECT_EQ(t.text(), "\xEF\xBB\xBFName;Betrag\r\nSchneider, Petra;3888,56\r\n");
}

TEST(Csv, ZellenMitTrennzeichenWerdenGequotet) {
    Csvtabelle t{{"a;b", "sagt \"ja\""}, {}};
    EXPECT_EQ(t.text(), "\xEF\xBB\xBF\"a;b\";\"sagt \"\"ja\"\"\"\r\n");
}

TEST(Csv, BetraegeMitDezimalkomma) {
    EXPECT_EQ(csvbetrag(std::int64_t{388856}), "3888,56");
    EXPECT_EQ(csvbetrag(std::int64_t{-5}), "-0,05");
    EXPECT_EQ(csvbetrag(std::int64_t{0}), "0,00");
    EXPECT_EQ(csvbetrag(std::int64_t{std::numeric_limits<std::int32_t>::min()}), "-21474836,48");
    EXPECT_EQ(csvbetrag(5.005), "5,00");
    EXPECT_EQ(csvbetrag(-1234.5), "-1234,50");
}

} // namespace lonvir
