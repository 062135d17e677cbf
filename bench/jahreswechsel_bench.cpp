// The year change of a store of 1000 persons against a raw copy of the same records in the
// same run: December of the three layers read, 36 000 records written one by one, each file
// synced once. The change writes the same records under temporary names, the year records,
// settings and tariff tables besides, and puts them in place by rename.
#include "start/dateisatz.h"
#include "transfer/jahreswechsel.h"

#include "bestand.h"

#include <benchmark/benchmark.h>

#include <array>
#include <fcntl.h>
#include <string>
#include <unistd.h>
#include <vector>

namespace {

namespace fs = std::filesystem;

// The 1998 files and the layer-lettered settings go, so each run is a first change.
void ohne1998(const fs::path& ordner) {
    std::vector<fs::path> weg;
    for (const auto& e : fs::directory_iterator(ordner)) {
        const std::string name = e.path().filename().string();
        if (name.rfind("L1998", 0) == 0 || name.rfind("Lonvir97I.", 0) == 0 ||
            name.rfind("Lonvir97P.", 0) == 0 || name.rfind("Lonvir97R.", 0) == 0 ||
            name.rfind("roh", 0) == 0)
            weg.push_back(e.path());
    }
    for (const fs::path& p : weg)
        fs::remove(p);
}

void rohkopie(const fs::path& ordner) {
    for (int x = lonvir::INFO; x <= lonvir::REAL; ++x) {
        const int dezember =
            ::open((ordner / lonvir::dateiname(12, 1997, x)).c_str(), O_RDONLY | O_CLOEXEC);
        std::array<int, 12> monate{};
        for (int f = 0; f < 12; ++f)
            monate[static_cast<std::size_t>(f)] =
                ::open((ordner / ("roh" + std::to_string(x) + "." + std::to_string(f + 1))).c_str(),
                       O_RDWR | O_CREAT | O_TRUNC | O_CLOEXEC, 0644);
        std::array<std::uint8_t, 541> satz{};
        for (int p = 1; p <= 1000; ++p) {
            const off_t ab = static_cast<off_t>(p - 1) * 541;
            if (::pread(dezember, satz.data(), satz.size(), ab) != 541)
                std::abort();
            for (int f = 0; f < 12; ++f) {
                satz[38] = static_cast<std::uint8_t>(f);
                if (::pwrite(monate[static_cast<std::size_t>(f)], satz.data(), satz.size(), ab) !=
                    541)
                    std::abort();
            }
        }
        for (int fd : monate) {
            ::fsync(fd);
            ::close(fd);
        }
        ::close(dezember);
    }
}

void BM_rohkopie36000Saetze(benchmark::State& state) {
    lonvir::bench::Tausendbestand b("rohkopie");
    for (auto _ : state) {
        state.PauseTiming();
        ohne1998(b.ordner);
        state.ResumeTiming();
        rohkopie(b.ordner);
    }
}
BENCHMARK(BM_rohkopie36000Saetze)->Unit(benchmark::kMillisecond)->UseRealTime();

void BM_jahreswechsel1000Personen(benchmark::State& state) {
    lonvir::bench::Tausendbestand b("jahreswechsel");
    for (auto _ : state) {
        state.PauseTiming();
        lonvir::dateienschliessen(b.s);
        ohne1998(b.ordner);
        lonvir::dateienoeffnen(b.s);
        state.ResumeTiming();
        if (!lonvir::jahrkopieren(b.s, nullptr).erfolgreich)
            state.SkipWithError("Jahreswechsel fehlgeschlagen");
    }
}
BENCHMARK(BM_jahreswechsel1000Personen)->Unit(benchmark::kMillisecond)->UseRealTime();

// Over a store of 1998 from an earlier change: every new file begins as a copy of the old.
void BM_jahreswechselUeberBestand1998(benchmark::State& state) {
    lonvir::bench::Tausendbestand b("jahreswechsel2");
    if (!lonvir::jahrkopieren(b.s, nullptr).erfolgreich)
        state.SkipWithError("Jahreswechsel fehlgeschlagen");
    for (auto _ : state)
        if (!lonvir::jahrkopieren(b.s, nullptr).erfolgreich)
            state.SkipWithError("Jahreswechsel fehlgeschlagen");
}
BENCHMARK(BM_jahreswechselUeberBestand1998)->Unit(benchmark::kMillisecond)->UseRealTime();

} // namespace
