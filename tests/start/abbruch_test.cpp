// Keystrokes killed at random moments: after each kill and a restart, every person's twelve
// months and the settings hold the state before or after one input, byte for byte against an
// uninterrupted run.
#include "engine/monatladen.h"
#include "screen/eingabe.h"
#include "start/start.h"
#include "testhilfe.h"

#include <gtest/gtest.h>

#include <chrono>
#include <csignal>
#include <functional>
#include <random>
#include <set>
#include <sys/wait.h>
#include <unistd.h>

namespace lonvir {

namespace {

namespace fs = std::filesystem;

struct Eingabe {
    std::int16_t person;
    std::int16_t monat;
    int zeile;
    std::int32_t betrag;
};

// 200 inputs as a pay office keys them: amounts in the free allowance and deduction rows of
// the first persons, in January to November, so that the later months follow each one.
std::vector<Eingabe> eingaben() {
    std::vector<Eingabe> e;
    const int zeilen[] = {12, 13, 14, 41, 42};
    for (int i = 0; i < 200; ++i)
        e.push_back({static_cast<std::int16_t>(1 + i % 4), static_cast<std::int16_t>(i % 11),
                     zeilen[i % 5], 1000 + 37 * i});
    return e;
}

// The person files of every layer and the settings, as one fingerprint.
std::size_t zustand(const fs::path& ordner) {
    std::string alles;
    for (const char* schicht : {"I", "P", "R"})
        for (int m = 1; m <= 13; ++m)
            alles += test::dateiinhalt(ordner,
                                       std::string("L1997") + schicht + "." + std::to_string(m)) +
                     "|";
    alles += test::dateiinhalt(ordner, "Lonvir97.voe") + "|";
    alles += test::dateiinhalt(ordner, "Lonvir97.dim");
    return std::hash<std::string>{}(alles);
}

// Loads each input's month and confirms its amount; `danach` sees every stored state.
void tippen(const fs::path& ordner, const std::function<void()>& danach) {
    SkriptDialoge d;
    Sitzung s;
    s.ordner = Arbeitsordner(ordner);
    s.dialoge = &d;
    starten(s);
    for (const Eingabe& e : eingaben()) {
        monatladen(s, e.person, e.monat);
        danach();
        betragbestaetigen(s, e.zeile, e.betrag);
        danach();
    }
}

void kopieren(const fs::path& von, const fs::path& nach) {
    fs::remove_all(nach);
    fs::copy(von, nach, fs::copy_options::recursive);
}

// A folder in memory where there is one: a kill leaves the page cache as it is, so the flush
// of a real disk adds nothing to the test but time.
struct Speicherordner {
    Speicherordner() {
        const fs::path shm = "/dev/shm";
        const fs::path basis = fs::is_directory(shm) ? shm : fs::temp_directory_path();
        pfad = basis / ("lonvir-abbruch-" + std::to_string(::getpid()));
        fs::remove_all(pfad);
        fs::create_directories(pfad);
    }
    ~Speicherordner() { fs::remove_all(pfad); }
    fs::path pfad;
};

void abbrechen(int toetungen) {
    test::Musterumgebung muster;
    Speicherordner arbeit;
    const fs::path urbild = arbeit.pfad / "urbild";
    kopieren(muster.ordner.pfad(), urbild);
    const fs::path ordner = arbeit.pfad / "ordner";

    // The uninterrupted run: every state a store may leave, and how long the inputs take.
    kopieren(urbild, ordner);
    std::set<std::size_t> staende = {zustand(ordner)};
    tippen(ordner, [&] { staende.insert(zustand(ordner)); });
    ASSERT_GT(staende.size(), 300U);
    kopieren(urbild, ordner);
    const auto anfang = std::chrono::steady_clock::now();
    tippen(ordner, [] {});
    const auto dauer = std::chrono::duration_cast<std::chrono::microseconds>(
                           std::chrono::steady_clock::now() - anfang)
                           .count();

    std::mt19937 zufall(4711);
    std::uniform_int_distribution<long> zeitpunkt(0, dauer);
    int mittendrin = 0;
    for (int n = 0; n < toetungen; ++n) {
        kopieren(urbild, ordner);
        const pid_t kind = ::fork();
        ASSERT_GE(kind, 0);
        if (kind == 0) {
            try {
                tippen(ordner, [] {});
            } catch (...) {
                ::_exit(2);
            }
            ::_exit(0);
        }
        ::usleep(static_cast<useconds_t>(zeitpunkt(zufall)));
        ::kill(kind, SIGKILL);
        int status = 0;
        ::waitpid(kind, &status, 0);
        if (WIFSIGNALED(status))
            ++mittendrin;
        else
            ASSERT_EQ(WEXITSTATUS(status), 0);
        // The restart finishes or discards what the kill interrupted.
        SkriptDialoge d;
        Sitzung s;
        s.ordner = Arbeitsordner(ordner);
        s.dialoge = &d;
        ASSERT_NO_THROW(starten(s)) << "Tötung " << n;
        EXPECT_TRUE(staende.count(zustand(ordner))) << "Tötung " << n << ": ein Mischstand";
    }
    // Most kills must have hit the inputs, not the finished run.
    EXPECT_GT(mittendrin, toetungen / 2);
    std::cout << toetungen << " Tötungen, " << mittendrin << " mitten in den Eingaben, "
              << staende.size() << " Stände, ein Lauf " << dauer / 1000 << " ms\n";
}

} // namespace

TEST(Abbruch, DreissigGetoeteteEingabereihenHinterlassenNurGanzeStaende) {
    abbrechen(30);
}

// The long run, under the ctest label "lang".
TEST(AbbruchLang, DreihundertGetoeteteEingabereihenHinterlassenNurGanzeStaende) {
    abbrechen(300);
}

} // namespace lonvir
