// Lists for a spreadsheet: byte-order mark, header, semicolons, decimal comma, quoting.
#include "core/csvdatei.h"

#include <gtest/gtest.h>

namespace lonvir {
namespace {

TEST(Csvdatei, KopfMitByteOrderMarkUndCrLf) {
    const Csvtabelle t({"Person", "Name", "Brutto"});
    EXPECT_EQ(t.inhalt(), "\xEF\xBB\xBFPerson;Name;Brutto\r\n");
    EXPECT_EQ(t.zeilen(), 0u);
}

TEST(Csvdatei, BetraegeMitDezimalkommaOhneTausenderpunkt) {
    Csvtabelle t({"a"});
    t.zeile({Csvfeld::pfennig(388856), Csvfeld::pfennig(-67683), Csvfeld::pfennig(-5),
             Csvfeld::pfennig(0), Csvfeld::zahl(-12)});
    EXPECT_EQ(t.inhalt(), "\xEF\xBB\xBF"
                          "a\r\n3888,56;-676,83;-0,05;0,00;-12\r\n");
    EXPECT_EQ(t.zeilen(), 1u);
}

TEST(Csvdatei, DezimalzahlRundetAufDieStellen) {
    EXPECT_EQ(Csvfeld::dezimal(12.345678, 5).inhalt(), "12,34568");
    EXPECT_EQ(Csvfeld::dezimal(1234.5, 1).inhalt(), "1234,5");
    EXPECT_EQ(Csvfeld::dezimal(0.25, 1).inhalt(), "0,2"); // ties to even
}

TEST(Csvdatei, TexteMitTrennzeichenWerdenGequotet) {
    Csvtabelle t({"Name"});
    t.zeile({Csvfeld::text("Müller; Hans")});
    t.zeile({Csvfeld::text("der \"Chef\"")});
    t.zeile({Csvfeld::text("Schneider     "), Csvfeld::leer()});
    EXPECT_EQ(t.inhalt(), "\xEF\xBB\xBFName\r\n\"Müller; Hans\"\r\n\"der \"\"Chef\"\"\"\r\n"
                          "Schneider;\r\n");
}

} // namespace
} // namespace lonvir
