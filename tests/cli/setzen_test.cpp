// setzen on the command line goes through the screen's handlers: their limits, messages and
// questions, and what the window would not let a user do is refused with nothing stored.
#include "testhilfe.h"

#include "cli/clilauf.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <string>
#include <sys/wait.h>

namespace lonvir {

namespace {

using test::enthaelt;

test::Clilauf cli(const std::string& argumente) {
    return test::clilauf(argumente, true);
}

struct Ordner {
    // A folder without the installation data: twenty new persons and nothing else.
    Ordner() { cli("anlegen --leer " + o); }
    test::Tempordner t;
    std::string o = "--ordner " + t.pfad().string();
};

} // namespace

TEST(Setzen, StundenUeber80WerdenMitMeldungGekappt) {
    Ordner d;
    const test::Clilauf l = cli("setzen " + d.o + " --person 2 --monat 1 --zeile 0 --betrag 8001");
    EXPECT_EQ(l.status, 0);
    EXPECT_TRUE(enthaelt(l.aus, "Korrektur: Der Wert mußte auf 80 herabgesetzt werden")) << l.aus;
    EXPECT_TRUE(enthaelt(l.aus, "\n 0    1         8000  80\n")) << l.aus;
}

TEST(Setzen, GesperrtesFeldUndZuLangerBetragSpeichernNichts) {
    Ordner d;
    // A civil servant's health-insurance box is locked.
    test::Clilauf l = cli("setzen " + d.o + " --person 1 --monat 1 --zeile 37 --betrag 100");
    EXPECT_EQ(l.status, 2);
    EXPECT_TRUE(
        enthaelt(l.aus, "Das Betragsfeld der Zeile 37 ist für diese Personalart gesperrt."));
    // 123456.78 DM is "123456,78": nine characters, which the box does not take.
    l = cli("setzen " + d.o + " --person 1 --monat 1 --zeile 12 --betrag 12345678");
    EXPECT_EQ(l.status, 2);
    EXPECT_TRUE(enthaelt(l.aus, "Der Betrag 123456,78 hat mehr als sieben Zeichen")) << l.aus;
    // 9999.99 DM is "9999,99": seven characters, and it passes.
    l = cli("setzen " + d.o + " --person 1 --monat 1 --zeile 12 --betrag 999999");
    EXPECT_EQ(l.status, 0) << l.aus;
    EXPECT_TRUE(enthaelt(l.aus, "\n12    0       999999  9.999,99+\n")) << l.aus;
    // A list position past the end of the list, a row without a box.
    l = cli("setzen " + d.o + " --person 1 --monat 1 --zeile 3 --auswahl 4");
    EXPECT_EQ(l.status, 2);
    EXPECT_TRUE(enthaelt(l.aus, "Die Liste der Zeile 3 hat 4 Einträge, Positionen 0 bis 3."));
    EXPECT_EQ(cli("setzen " + d.o + " --person 1 --monat 1 --zeile 28 --betrag 5").status, 2);
}

TEST(Setzen, StufeVonHandFragtUndDieAntwortEntscheidet) {
    Ordner d;
    // Besoldungsordnung A with the service age from 01.1997: the step is computed.
    test::Clilauf l = cli("setzen " + d.o + " --person 1 --monat 12 --zeile 7 --auswahl 3 --nein");
    EXPECT_EQ(l.status, 0);
    EXPECT_TRUE(enthaelt(l.aus, "BDA: Das Programm hat die Dienstaltersstufe")) << l.aus;
    EXPECT_TRUE(enthaelt(l.aus, "\n 7    0 ")) << l.aus;
    l = cli("setzen " + d.o + " --person 1 --monat 12 --zeile 7 --auswahl 3 --ja --json");
    EXPECT_EQ(l.status, 0);
    EXPECT_TRUE(enthaelt(l.aus, "\"bdabeginn\":\"       \"")) << l.aus;
    EXPECT_TRUE(enthaelt(l.aus, "\"merkmal\":[0,0,0,0,0,0,0,3,")) << l.aus;
}

TEST(Setzen, NameUndBdaUeberDieHandler) {
    Ordner d;
    test::Clilauf l = cli("setzen " + d.o + " --person 4 --monat 6 --bda 07.1990 --json");
    EXPECT_EQ(l.status, 0);
    // June 1997: (97 - 90) * 12 - 7 + 6 = 83 months, step 83 / 24 = 3.
    EXPECT_TRUE(enthaelt(l.aus, "\"merkmal\":[3,0,0,0,0,0,0,3,")) << l.aus;
    l = cli("setzen " + d.o + " --person 4 --monat 6 --bda 13.1990 --json");
    EXPECT_TRUE(enthaelt(l.aus, "\"bdabeginn\":\"       \"")) << l.aus;
    l = cli("setzen " + d.o + " --person 4 --monat 6 --name \"Meier, Hans\"");
    EXPECT_EQ(l.status, 0);
    const std::string texte = test::dateiinhalt(d.t.pfad(), "Texte.txt");
    EXPECT_EQ(texte.substr(5003 * 35, 11), "Meier, Hans");
}

} // namespace lonvir
