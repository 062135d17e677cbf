// Each operation beside its floor in the same loop, on the same store of 1000 persons: the
// floor is a raw program that does only the reads and writes the operation needs, on
// descriptors opened beforehand, and writes what the operation stores through a journal of the
// same bytes with the same number of flushes. The two run in turn, so both see the same load
// of the machine; the time of the benchmark is the operation's, the counters give the floor's
// and the ratio.
#include "core/journal.h"
#include "engine/monatladen.h"
#include "screen/eingabe.h"
#include "screen/uebertragung.h"
#include "start/dateisatz.h"
#include "start/satzzugriff.h"
#include "start/vorgang.h"

#include "bestand.h"

#include <benchmark/benchmark.h>

#include <chrono>
#include <cstdlib>
#include <fcntl.h>
#include <fstream>
#include <functional>
#include <map>
#include <spawn.h>
#include <string>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

extern char** environ;

namespace {

namespace fs = std::filesystem;
using lonvir::Schreibvorgang;
using Schritte = std::vector<Schreibvorgang::Schritt>;
using Uhr = std::chrono::steady_clock;

// The files of the folder that the floor reads or writes, opened once.
class Rohdateien {
public:
    explicit Rohdateien(fs::path ordner) : ordner_(std::move(ordner)) {}
    ~Rohdateien() {
        for (const auto& [name, fd] : fd_)
            ::close(fd);
    }
    Rohdateien(const Rohdateien&) = delete;
    Rohdateien& operator=(const Rohdateien&) = delete;

    int operator[](const std::string& name) {
        auto it = fd_.find(name);
        if (it == fd_.end()) {
            const int fd = ::open((ordner_ / name).c_str(), O_RDWR | O_CLOEXEC);
            if (fd < 0)
                std::abort();
            it = fd_.emplace(name, fd).first;
        }
        return it->second;
    }
    void lesen(const std::string& name, std::int64_t versatz, std::vector<std::uint8_t>& b) {
        if (::pread((*this)[name], b.data(), b.size(), versatz) < 0)
            std::abort();
    }
    // The journal written and flushed with the folder's entry, its steps applied and flushed,
    // the journal removed: the flushes of the program's store.
    void festschreiben(const Schritte& schritte) {
        const fs::path jnl = ordner_ / lonvir::journal::dateiname;
        const std::vector<std::uint8_t> bytes = lonvir::journal::kodieren(schritte);
        const int fd = ::open(jnl.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644);
        if (fd < 0 || ::pwrite(fd, bytes.data(), bytes.size(), 0) < 0 || ::fdatasync(fd) != 0)
            std::abort();
        ::close(fd);
        const int ordner = ::open(ordner_.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
        if (ordner < 0 || ::fsync(ordner) != 0)
            std::abort();
        for (const auto& s : schritte)
            if (::pwrite((*this)[s.pfad.filename().string()], s.bytes.data(), s.bytes.size(),
                         s.versatz) < 0)
                std::abort();
        if (::syncfs(ordner) != 0)
            std::abort();
        ::close(ordner);
        ::unlink(jnl.c_str());
    }

private:
    fs::path ordner_;
    std::map<std::string, int> fd_;
};

// What an operation stores: its steps, recorded in a transaction that is then forgotten, less
// those that give a record the bytes it already has.
Schritte aufnehmen(lonvir::Sitzung& s, const std::function<void()>& operation) {
    Schritte schritte;
    {
        lonvir::Vorgang v(s);
        operation();
        schritte = s.vorgang.schritte();
    }
    Schritte geaendert;
    for (auto& schritt : schritte) {
        std::ifstream ein(schritt.pfad, std::ios::binary);
        std::vector<char> alt(schritt.bytes.size());
        ein.seekg(schritt.versatz);
        ein.read(alt.data(), static_cast<std::streamsize>(alt.size()));
        const bool gleich = ein && std::equal(alt.begin(), alt.end(), schritt.bytes.begin(),
                                              [](char a, std::uint8_t b) {
                                                  return static_cast<std::uint8_t>(a) == b;
                                              });
        if (!gleich)
            geaendert.push_back(std::move(schritt));
    }
    return geaendert;
}

double sekunden(Uhr::time_point von) {
    return std::chrono::duration<double>(Uhr::now() - von).count();
}

// Runs the operation and its floor in turn; the benchmark's time is the operation's.
void imWechsel(benchmark::State& state, const std::function<void()>& operation,
               const std::function<void()>& boden) {
    double op = 0;
    double roh = 0;
    for (auto _ : state) {
        auto t = Uhr::now();
        operation();
        const double d = sekunden(t);
        op += d;
        state.SetIterationTime(d);
        t = Uhr::now();
        boden();
        roh += sekunden(t);
    }
    const double n = static_cast<double>(state.iterations());
    state.counters["boden_us"] = roh / n * 1e6;
    state.counters["mal_boden"] = roh > 0 ? op / roh : 0;
}

std::string monatsdatei(char schicht, int monat) {
    return std::string("L1997") + schicht + "." + std::to_string(monat);
}

// A keystroke in March of person 500: the run of March and the nine later months, stored
// through the journal. The floor reads the person's twelve months and the tariff record and
// stores the same records with one flush.
void BM_bodenTastendruck(benchmark::State& state) {
    lonvir::bench::Tausendbestand b("boden-taste");
    lonvir::monatladen(b.s, 500, 2);
    std::int32_t betrag = 10000;
    const Schritte schritte =
        aufnehmen(b.s, [&] { lonvir::betragbestaetigen(b.s, 12, betrag + 1); });
    lonvir::monatladen(b.s, 500, 2);
    Rohdateien roh(b.ordner);
    std::vector<std::uint8_t> satz(541), tarif(108);
    imWechsel(
        state, [&] { lonvir::betragbestaetigen(b.s, 12, ++betrag); },
        [&] {
            for (int m = 1; m <= 12; ++m)
                roh.lesen(monatsdatei('I', m), 499 * 541, satz);
            roh.lesen("Lonvir97.1tr", 0, tarif);
            roh.festschreiben(schritte);
        });
    state.counters["saetze"] = static_cast<double>(schritte.size());
}
BENCHMARK(BM_bodenTastendruck)->Unit(benchmark::kMicrosecond)->UseManualTime();

// The transfer of person 500 to PLAN, in turn from INFO (the layer on the screen) and from
// REAL, whose twelve months and year record differ from INFO's: every transfer changes all
// thirteen records of PLAN. The floor reads the thirteen records of the source and writes
// them to PLAN through the journal, one flush.
void BM_bodenUebertragung(benchmark::State& state) {
    lonvir::bench::Tausendbestand b("boden-uebertragung");
    lonvir::Sitzung& s = b.s;
    s.aktuelleperson = 500;
    for (const std::int16_t schicht : {lonvir::REAL, lonvir::INFO}) {
        s.schicht = schicht;
        lonvir::dateienoeffnen(s);
        for (int m = 1; m <= 12; ++m) {
            lonvir::Personalsatz p = lonvir::personalsatzlesen(s, m, 500);
            p.wert[12] = 1000 * (schicht + 1) + m;
            lonvir::personalsatzschreiben(s, m, 500, p);
        }
        std::vector<std::uint8_t> karte(1280, static_cast<std::uint8_t>('A' + schicht));
        s.datei(lonvir::datei::jahressaetze).schreiben(500, karte);
    }
    Rohdateien roh(b.ordner);
    bool vonInfo = true;
    bool rohVonInfo = true;
    std::vector<std::uint8_t> satz(541), karte(1280);
    imWechsel(
        state,
        [&] {
            lonvir::uebertragen(s, vonInfo ? lonvir::INFO : lonvir::REAL, lonvir::PLAN);
            vonInfo = !vonInfo;
        },
        [&] {
            const char von = rohVonInfo ? 'I' : 'R';
            rohVonInfo = !rohVonInfo;
            Schritte schritte;
            for (int m = 1; m <= 13; ++m) {
                std::vector<std::uint8_t>& puffer = m == 13 ? karte : satz;
                roh.lesen(monatsdatei(von, m), 499 * static_cast<std::int64_t>(puffer.size()),
                          puffer);
                schritte.push_back({Schreibvorgang::Schritt::Art::schreiben, monatsdatei('P', m),
                                    499 * static_cast<std::int64_t>(puffer.size()), puffer});
            }
            roh.festschreiben(schritte);
        });
}
BENCHMARK(BM_bodenUebertragung)->Unit(benchmark::kMicrosecond)->UseManualTime();

// A program started and waited for, its output thrown away.
void prozess(const std::vector<std::string>& argumente) {
    std::vector<char*> argv;
    for (const std::string& a : argumente)
        argv.push_back(const_cast<char*>(a.c_str()));
    argv.push_back(nullptr);
    posix_spawn_file_actions_t aktionen;
    posix_spawn_file_actions_init(&aktionen);
    posix_spawn_file_actions_addopen(&aktionen, 1, "/dev/null", O_WRONLY, 0);
    pid_t pid = 0;
    if (posix_spawn(&pid, argv[0], &aktionen, nullptr, argv.data(), environ) != 0)
        std::abort();
    posix_spawn_file_actions_destroy(&aktionen);
    int status = 0;
    ::waitpid(pid, &status, 0);
    if (!WIFEXITED(status) || WEXITSTATUS(status) != 0)
        std::abort();
}

// `lonvir97-cli setzen` as a process: start, the month loaded, one amount in March, the month
// printed. The raw process opens the files, reads the settings, the name, the person's twelve
// months and the tariff record, and stores the same records through the journal, one flush.
void BM_bodenCliSetzen(benchmark::State& state) {
    lonvir::bench::Tausendbestand b("boden-cli");
    lonvir::monatladen(b.s, 500, 2);
    const Schritte schritte = aufnehmen(b.s, [&] { lonvir::betragbestaetigen(b.s, 12, 10001); });
    const fs::path journal = b.ordner.string() + ".schritte";
    {
        const std::vector<std::uint8_t> bytes = lonvir::journal::kodieren(schritte);
        std::ofstream aus(journal, std::ios::binary);
        aus.write(reinterpret_cast<const char*>(bytes.data()),
                  static_cast<std::streamsize>(bytes.size()));
    }
    // The raw process works on a copy of the store on the same file system: its writes would
    // otherwise change the files behind the program's back, and each start would read again
    // what changed since the check last found it sound.
    const fs::path kopie = b.ordner.string() + "-roh";
    fs::remove_all(kopie);
    fs::copy(b.ordner, kopie, fs::copy_options::recursive);
    std::int32_t betrag = 10000;
    imWechsel(
        state,
        [&] {
            prozess({LONVIR_CLI, "setzen", "--ordner", b.ordner.string(), "--person", "500",
                     "--monat", "3", "--zeile", "12", "--betrag", std::to_string(++betrag)});
        },
        [&] { prozess({LONVIR_ROHPROZESS, kopie.string(), journal.string(), "500"}); });
    fs::remove(journal);
    fs::remove_all(kopie);
}
BENCHMARK(BM_bodenCliSetzen)->Unit(benchmark::kMillisecond)->UseManualTime();

} // namespace
