// A damaged store through the command line: reported with the file named, exit 4, nothing
// written; a run-time error stores nothing; read-only commands need no write access.
#include "clilauf.h"
#include "testhilfe.h"

#include <chrono>
#include <gtest/gtest.h>
#include <random>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

namespace lonvir {

namespace {

using test::clilauf;
using test::enthaelt;
namespace fs = std::filesystem;

// A working folder seeded with the installation data, as the first command creates it.
struct Musterordner {
    Musterordner() {
        EXPECT_EQ(clilauf("anlegen " + o()).status, 0);
        vorher = test::ordnerinhalt(t.pfad());
    }
    [[nodiscard]] std::string o() const { return "--ordner " + t.pfad().string(); }
    [[nodiscard]] bool unveraendert() const { return test::ordnerinhalt(t.pfad()) == vorher; }
    test::Tempordner t;
    std::map<std::string, std::string> vorher;
};

std::string zufallsbytes(std::size_t n, unsigned saat) {
    std::mt19937 z(saat);
    std::string b(n, '\0');
    for (char& c : b)
        c = static_cast<char>(z() & 0xFF);
    return b;
}

} // namespace

TEST(CliBestandsschaden, EinLeererJanuarLoeschtDasJahrNichtSondernWirdGemeldet) {
    Musterordner m;
    test::dateisetzen(m.t.pfad(), "L1997I.1", "");
    m.vorher = test::ordnerinhalt(m.t.pfad());
    for (const char* befehl : {"anlegen", "zeigen --person 1 --monat 2"}) {
        const test::Clilauf l = clilauf(std::string(befehl) + " " + m.o(), true);
        EXPECT_EQ(l.status, 4) << befehl;
        EXPECT_TRUE(enthaelt(l.aus, "Die Datei L1997I.1 ist beschädigt: die Datei ist leer oder "
                                    "fehlt, die übrigen Monatsdateien halten "))
            << l.aus;
        EXPECT_TRUE(m.unveraendert()) << befehl;
    }
}

TEST(CliBestandsschaden, EinFehlenderJanuarWirdGemeldetUndNichtAngelegt) {
    Musterordner m;
    fs::remove(m.t.pfad() / "L1997I.1");
    m.vorher = test::ordnerinhalt(m.t.pfad());
    const test::Clilauf l = clilauf("zeigen --person 1 --monat 2 " + m.o(), true);
    EXPECT_EQ(l.status, 4);
    EXPECT_TRUE(enthaelt(l.aus, "L1997I.1")) << l.aus;
    EXPECT_TRUE(m.unveraendert());
}

TEST(CliBestandsschaden, AngehaengteBytesInDerTexttabelleWerdenKeinePersonen) {
    Musterordner m;
    const std::string texte = test::dateiinhalt(m.t.pfad(), "Texte.txt");
    test::dateisetzen(m.t.pfad(), "Texte.txt", texte + zufallsbytes(333, 1));
    m.vorher = test::ordnerinhalt(m.t.pfad());
    const test::Clilauf l = clilauf("zeigen --person 1 --monat 1 " + m.o(), true);
    EXPECT_EQ(l.status, 4);
    EXPECT_TRUE(enthaelt(l.aus, "Die Datei Texte.txt ist beschädigt: der Name in Satz 502"))
        << l.aus;
    EXPECT_TRUE(m.unveraendert());
}

TEST(CliBestandsschaden, EinNameMitSteuerzeichenIstEinSchadenDerTexttabelle) {
    Musterordner m;
    std::string texte = test::dateiinhalt(m.t.pfad(), "Texte.txt");
    ASSERT_GE(texte.size(), 5020U * 35);
    // Whole records of garbage over the names 5011 to 5020.
    texte.replace(5010 * 35, 350, zufallsbytes(350, 7));
    test::dateisetzen(m.t.pfad(), "Texte.txt", texte);
    m.vorher = test::ordnerinhalt(m.t.pfad());
    const test::Clilauf l = clilauf("anlegen " + m.o(), true);
    EXPECT_EQ(l.status, 4);
    EXPECT_TRUE(enthaelt(l.aus, "Die Datei Texte.txt ist beschädigt: der Name in Satz 50"))
        << l.aus;
    EXPECT_TRUE(enthaelt(l.aus, "enthält Steuerzeichen")) << l.aus;
    EXPECT_TRUE(m.unveraendert());
}

TEST(CliBestandsschaden, EinJanuarAusFfBytesWirdNichtAlsZahlenGelesen) {
    Musterordner m;
    const std::size_t laenge = test::dateiinhalt(m.t.pfad(), "L1997I.1").size();
    test::dateisetzen(m.t.pfad(), "L1997I.1", std::string(laenge, '\xFF'));
    m.vorher = test::ordnerinhalt(m.t.pfad());
    const test::Clilauf l = clilauf("zeigen --person 2 --monat 7 " + m.o(), true);
    EXPECT_EQ(l.status, 4);
    EXPECT_TRUE(enthaelt(l.aus, "Die Datei L1997I.1 ist beschädigt: Satz 1 besteht nur aus "
                                "FF-Bytes"))
        << l.aus;
    EXPECT_TRUE(m.unveraendert());
}

TEST(CliBestandsschaden, EinSatzMitFremdemMonatIstEinSchaden) {
    Musterordner m;
    std::string maerz = test::dateiinhalt(m.t.pfad(), "L1997I.3");
    maerz[541 + 38] = 5; // person 2's March says June
    test::dateisetzen(m.t.pfad(), "L1997I.3", maerz);
    m.vorher = test::ordnerinhalt(m.t.pfad());
    const test::Clilauf l = clilauf("zeigen --person 1 --monat 1 " + m.o(), true);
    EXPECT_EQ(l.status, 4);
    EXPECT_TRUE(enthaelt(l.aus, "Die Datei L1997I.3 ist beschädigt: Satz 2 trägt den Monat 5 "
                                "statt 2 (März)"))
        << l.aus;
    EXPECT_TRUE(m.unveraendert());
}

TEST(CliBestandsschaden, EinSchadenNachDemLetztenSpeichernWirdTrotzDerVermerkeGemeldet) {
    // The start reads only the files that changed since they were last found sound; a file
    // damaged right after the program's own store has changed, and is read.
    Musterordner m;
    std::this_thread::sleep_for(std::chrono::milliseconds(150));
    ASSERT_EQ(clilauf("zeigen --person 1 --monat 1 " + m.o()).status, 0);
    ASSERT_EQ(clilauf("setzen --person 2 --monat 3 --zeile 12 --betrag 2500 " + m.o()).status, 0);
    std::string maerz = test::dateiinhalt(m.t.pfad(), "L1997I.3");
    std::fill(maerz.begin() + 541, maerz.begin() + 2 * 541, '\xFF');
    test::dateisetzen(m.t.pfad(), "L1997I.3", maerz);
    m.vorher = test::ordnerinhalt(m.t.pfad());
    const test::Clilauf l =
        clilauf("setzen --person 1 --monat 3 --zeile 12 --betrag 100 " + m.o(), true);
    EXPECT_EQ(l.status, 4);
    EXPECT_TRUE(enthaelt(l.aus, "Die Datei L1997I.3 ist beschädigt: Satz 2 besteht nur aus "
                                "FF-Bytes"))
        << l.aus;
    EXPECT_TRUE(m.unveraendert());
}

TEST(CliBestandsschaden, EinZerbrochenerDimsatzWirdGemeldetUndNichtUeberschrieben) {
    Musterordner m;
    std::string dim = test::dateiinhalt(m.t.pfad(), "Lonvir97.dim");
    dim.replace(0, 232, std::string(232, '\xFF'));
    test::dateisetzen(m.t.pfad(), "Lonvir97.dim", dim);
    m.vorher = test::ordnerinhalt(m.t.pfad());
    const test::Clilauf l = clilauf("anlegen " + m.o(), true);
    EXPECT_EQ(l.status, 0);
    EXPECT_TRUE(enthaelt(l.aus, "Einstellungen beschädigt: Satz 1 der Datei Lonvir97.dim ist "
                                "beschädigt: die Farbe der Zeile 0 ist -1, erlaubt sind 0 bis 15. "
                                "Für diesen Lauf gelten die Vorgaben"))
        << l.aus;
    EXPECT_EQ(test::dateiinhalt(m.t.pfad(), "Lonvir97.dim"), dim);
}

TEST(CliBestandsschaden, SatzZeigtDenKleinstenCurrencyWertOhneAbsturz) {
    Musterordner m;
    std::string voe = test::dateiinhalt(m.t.pfad(), "Lonvir97.voe");
    // voreinstellung(0) of record 1: the smallest 64-bit value, 0x8000000000000000.
    voe.replace(260, 8, std::string("\0\0\0\0\0\0\0\x80", 8));
    test::dateisetzen(m.t.pfad(), "Lonvir97.voe", voe);
    const test::Clilauf l = clilauf("satz --datei Lonvir97.voe --nummer 1 " + m.o(), true);
    EXPECT_EQ(l.status, 0) << l.aus;
    EXPECT_TRUE(enthaelt(l.aus, "-922337203685477.5808")) << l.aus;
}

TEST(CliBestandsschaden, EinLaufzeitfehlerSpeichertNichtsUndSagtEs) {
    Musterordner m;
    // The month as the screen loads it: its refresh stores the place in the settings.
    ASSERT_EQ(clilauf("zeigen " + m.o() + " --person 1 --monat 3").status, 0);
    m.vorher = test::ordnerinhalt(m.t.pfad());
    const test::Clilauf l =
        clilauf("setzen " + m.o() + " --person 1 --monat 3 --zeile 0 --betrag 1", true);
    EXPECT_EQ(l.status, 3);
    EXPECT_TRUE(enthaelt(l.aus, "Laufzeitfehler 6: Überlauf. Es wurde nichts gespeichert."))
        << l.aus;
    EXPECT_TRUE(m.unveraendert());
}

TEST(CliBestandsschaden, NurLesendeBefehleBrauchenKeinSchreibrecht) {
    Musterordner m;
    for (const fs::directory_entry& e : fs::directory_iterator(m.t.pfad()))
        if (e.is_regular_file())
            ::chmod(e.path().c_str(), 0444);
    ::chmod(m.t.pfad().c_str(), 0555);
    // The superuser writes through any mode: the commands then run as nobody.
    const std::string vor =
        ::geteuid() == 0 ? "setpriv --reuid=65534 --regid=65534 --clear-groups " : "";
    const auto lauf = [&](const std::string& argumente) {
        const std::string befehl = vor + std::string(LONVIR_CLI) + " " + argumente + " 2>&1";
        FILE* rohr = ::popen(befehl.c_str(), "r");
        std::string aus;
        char puffer[4096];
        while (std::size_t n = std::fread(puffer, 1, sizeof puffer, rohr))
            aus.append(puffer, n);
        return test::Clilauf{WEXITSTATUS(::pclose(rohr)), aus};
    };
    const test::Clilauf satz = lauf("satz --datei L1997I.3 --nummer 2 " + m.o());
    EXPECT_EQ(satz.status, 0) << satz.aus;
    const test::Clilauf zeigen = lauf("zeigen --nur-lesen --person 2 --monat 1 " + m.o());
    EXPECT_EQ(zeigen.status, 0) << zeigen.aus;
    EXPECT_TRUE(enthaelt(zeigen.aus, "Person 2, Monat 1, Jahr 1997")) << zeigen.aus;
    // The same folder refuses a command that stores.
    const test::Clilauf setzen =
        lauf("setzen " + m.o() + " --person 2 --monat 1 --zeile 12 --betrag 100");
    EXPECT_EQ(setzen.status, 4) << setzen.aus;
    ::chmod(m.t.pfad().c_str(), 0755);
    EXPECT_TRUE(m.unveraendert());
}

} // namespace lonvir
