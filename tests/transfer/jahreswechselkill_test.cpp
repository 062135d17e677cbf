// The command line's year change on a store of 200 persons, killed with SIGKILL at random
// moments: after the next start the folder is, byte for byte, the store before the change or
// the store after a whole one.
#include "ordnerbild.h"
#include "start/dateisatz.h"
#include "start/start.h"
#include "start/texte.h"

#include <gtest/gtest.h>

#include <chrono>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <iostream>
#include <random>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace lonvir {

namespace {

namespace fs = std::filesystem;
using Uhr = std::chrono::steady_clock;

int killzahl() {
    const char* lang = std::getenv("LONVIR_LANG");
    return lang && *lang && std::string(lang) != "0" ? 50 : 15;
}

pid_t starte(const std::vector<std::string>& argumente) {
    const pid_t kind = ::fork();
    if (kind == 0) {
        const int leer = ::open("/dev/null", O_WRONLY);
        ::dup2(leer, STDOUT_FILENO);
        ::dup2(leer, STDERR_FILENO);
        std::vector<char*> argv;
        argv.push_back(const_cast<char*>(LONVIR_CLI));
        for (const std::string& a : argumente)
            argv.push_back(const_cast<char*>(a.c_str()));
        argv.push_back(nullptr);
        ::execv(LONVIR_CLI, argv.data());
        ::_exit(127);
    }
    return kind;
}

int warte(pid_t kind) {
    int status = 0;
    ::waitpid(kind, &status, 0);
    return status;
}

// 200 persons in all three layers, each December with its own gross pay.
struct Zweihundert {
    Zweihundert() {
        s.ordner = Arbeitsordner(ordner.pfad());
        s.dialoge = &dialoge;
        dateienoeffnen(s);
        for (int n = 1; n <= 200; ++n)
            textschreiben(s, 5000 + n, std::to_string(n) + ". Name");
        starten(s);
        for (int x = INFO; x <= REAL; ++x)
            for (int p = 1; p <= 200; ++p)
                test::dezembersetzen(s, x, p, 100000 * (x + 1) + p);
        dateienschliessen(s);
    }
    test::Tempordner ordner;
    SkriptDialoge dialoge;
    Sitzung s;
};

void kopieren(const fs::path& von, const fs::path& nach) {
    fs::remove_all(nach);
    fs::copy(von, nach, fs::copy_options::recursive);
}

bool mitresten(const fs::path& ordner) {
    for (const auto& e : fs::directory_iterator(ordner))
        if (e.path().extension() == ".jwneu" || e.path().extension() == ".jwliste")
            return true;
    return false;
}

} // namespace

TEST(JahreswechselKill, NachJedemKillIstDerOrdnerAltOderNeu) {
    Zweihundert vorlage;
    const test::Ordnerbild vorher = test::ordnerbild(vorlage.ordner.pfad());
    test::Tempordner arbeit;
    const fs::path w = arbeit.pfad() / "w";
    // The whole change once, timed.
    kopieren(vorlage.ordner.pfad(), w);
    const auto anfang = Uhr::now();
    ASSERT_EQ(warte(starte({"jahreswechsel", "--ja", "--leer", "--ordner", w.string()})), 0);
    const auto dauer = Uhr::now() - anfang;
    const test::Ordnerbild nachher = test::ordnerbild(w);
    ASSERT_NE(vorher, nachher);
    ASSERT_EQ(test::teilbild(vorher, "L1997"), test::teilbild(nachher, "L1997"));

    std::mt19937 zufall(1997);
    const auto mikro = std::chrono::duration_cast<std::chrono::microseconds>(dauer).count();
    std::uniform_int_distribution<long> moment(0, mikro + mikro / 4);
    int alt = 0, neu = 0, mittendrin = 0;
    const int kills = killzahl();
    for (int i = 0; i < kills; ++i) {
        kopieren(vorlage.ordner.pfad(), w);
        const pid_t kind = starte({"jahreswechsel", "--ja", "--leer", "--ordner", w.string()});
        std::this_thread::sleep_for(std::chrono::microseconds(moment(zufall)));
        ::kill(kind, SIGKILL);
        warte(kind);
        mittendrin += mitresten(w);
        // The next start.
        ASSERT_EQ(warte(starte({"anlegen", "--leer", "--ordner", w.string()})), 0);
        const test::Ordnerbild jetzt = test::ordnerbild(w);
        const bool istalt = jetzt == vorher;
        const bool istneu = jetzt == nachher;
        EXPECT_TRUE(istalt || istneu) << "Kill " << i << ": " << test::unterschied(jetzt, vorher);
        alt += istalt;
        neu += istneu;
    }
    std::cout << "[ kills ] " << kills << " Kills in " << mikro << " us Laufzeit: " << alt
              << " alt, " << neu << " neu, " << mittendrin << " mit Resten beim Kill\n";
    EXPECT_EQ(alt + neu, kills);
}

} // namespace lonvir
