// drucken jahresuebersicht, gehaelterliste, monatsuebersicht: the same text as the golden
// files of the forms, the CSV lists, the cost centre and the bad usages.
#include "cli/clilauf.h"
#include "testhilfe.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

namespace lonvir::test {
namespace {

namespace fs = std::filesystem;

std::string golden(const std::string& name) {
    std::ifstream ein(fs::path(LONVIR_QUELLEN) / "tests" / "reports" / "golden" / name,
                      std::ios::binary);
    return {std::istreambuf_iterator<char>(ein), {}};
}

struct Ordner {
    Ordner() { clilauf("anlegen --ordner " + o); }
    Tempordner t;
    std::string o = (t.pfad() / "a").string();
};

TEST(CliUebersicht, TheAnnualOverviewAsTextIsTheFormsPrint) {
    Ordner d;
    const Clilauf l =
        clilauf("drucken jahresuebersicht --ordner " + d.o + " --person 2 --ansicht abzuege");
    EXPECT_EQ(l.status, 0);
    EXPECT_EQ(l.aus, golden("jahresuebersicht-2.txt"));
    const Clilauf ag = clilauf("drucken jahresuebersicht --ordner " + d.o + " --person 1");
    EXPECT_EQ(ag.aus, golden("jahresuebersicht-1.txt"));
}

TEST(CliUebersicht, TheTwoListsOfAllStaffAsText) {
    Ordner d;
    EXPECT_EQ(clilauf("drucken gehaelterliste --ordner " + d.o).aus, golden("gehaelterliste.txt"));
    EXPECT_EQ(clilauf("drucken monatsuebersicht --ordner " + d.o).aus,
              golden("monatsuebersicht.txt"));
}

TEST(CliUebersicht, ACostCentreNarrowsTheListAndNamesItInTheTitle) {
    Ordner d;
    const Clilauf alle = clilauf("drucken gehaelterliste --ordner " + d.o + " --format csv");
    const Clilauf eins =
        clilauf("drucken gehaelterliste --ordner " + d.o + " --kostenstelle 1 --format csv");
    // The sample staff all stand in cost centre 1; cost centre 2 holds nobody.
    EXPECT_EQ(alle.aus, eins.aus);
    const Clilauf zwei =
        clilauf("drucken gehaelterliste --ordner " + d.o + " --kostenstelle 2 --format csv");
    EXPECT_EQ(zwei.status, 0);
    EXPECT_FALSE(enthaelt(zwei.aus, "Schneider"));
    EXPECT_TRUE(enthaelt(zwei.aus,
                         "\r\nGESAMTSUMME 1997;;0,00;0,00;0,00;0,00;0,00;0,00;0,00;0,00;0,00\r\n"))
        << zwei.aus;
    const Clilauf text = clilauf("drucken monatsuebersicht --ordner " + d.o + " --kostenstelle 2");
    EXPECT_TRUE(enthaelt(text.aus, "F Ü R   K O S T E N S T E L L E   Kostenstelle 2")) << text.aus;
}

TEST(CliUebersicht, TheAnnualOverviewAsCsv) {
    Ordner d;
    const Clilauf l =
        clilauf("drucken jahresuebersicht --ordner " + d.o + " --person 2 --format csv");
    EXPECT_EQ(l.status, 0);
    EXPECT_EQ(l.aus.rfind("\xEF\xBB\xBFPosition;Jan;Feb;März;April;", 0), 0u);
    EXPECT_TRUE(enthaelt(l.aus, "\r\nBRUTTO- GEHALT;3888,56;")) << l.aus;
}

TEST(CliUebersicht, BadUsageGetsAGermanMessage) {
    Ordner d;
    const Clilauf ohne = clilauf("drucken jahresuebersicht --ordner " + d.o, true);
    EXPECT_EQ(ohne.status, 2);
    const Clilauf person =
        clilauf("drucken jahresuebersicht --ordner " + d.o + " --person 99", true);
    EXPECT_EQ(person.status, 2);
    EXPECT_TRUE(enthaelt(person.aus, "Person 99 gibt es nicht")) << person.aus;
    const Clilauf ansicht =
        clilauf("drucken jahresuebersicht --ordner " + d.o + " --person 2 --ansicht netto", true);
    EXPECT_EQ(ansicht.status, 2);
    EXPECT_TRUE(enthaelt(ansicht.aus, "--ansicht muss ag oder abzuege sein")) << ansicht.aus;
    const Clilauf stelle =
        clilauf("drucken gehaelterliste --ordner " + d.o + " --kostenstelle 99", true);
    EXPECT_EQ(stelle.status, 2);
    EXPECT_TRUE(enthaelt(stelle.aus, "Kostenstelle 99 gibt es nicht; angelegt sind 20."))
        << stelle.aus;
}

TEST(CliUebersicht, APdfIsWrittenWholeUnderItsName) {
    Ordner d;
    const std::string datei = (d.t.pfad() / "jahr.pdf").string();
    const Clilauf l = clilauf("drucken jahresuebersicht --ordner " + d.o +
                              " --person 1 --format pdf --aus " + datei);
    EXPECT_EQ(l.status, 0);
    std::ifstream ein(datei, std::ios::binary);
    std::string anfang(5, ' ');
    ein.read(anfang.data(), 5);
    EXPECT_EQ(anfang, "%PDF-");
}

} // namespace
} // namespace lonvir::test
