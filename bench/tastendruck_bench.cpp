// One keystroke on a store of 1000 persons: an amount confirmed in March, the run, the
// store, and the nine later months.
#include "core/dialoge.h"
#include "engine/monatladen.h"
#include "screen/eingabe.h"
#include "start/dateisatz.h"
#include "start/start.h"
#include "start/texte.h"

#include <benchmark/benchmark.h>

#include <filesystem>
#include <unistd.h>

namespace {

namespace fs = std::filesystem;

struct Bestand {
    fs::path ordner = fs::temp_directory_path() / ("lonvir-taste-" + std::to_string(::getpid()));
    lonvir::SkriptDialoge dialoge;
    lonvir::Sitzung s;
    Bestand() {
        fs::remove_all(ordner);
        s.ordner = lonvir::Arbeitsordner(ordner);
        s.dialoge = &dialoge;
        lonvir::dateienoeffnen(s);
        for (int n = 1; n <= 1000; ++n)
            lonvir::textschreiben(s, 5000 + n, std::to_string(n) + ". Name");
        lonvir::starten(s);
    }
    ~Bestand() { fs::remove_all(ordner); }
};

void BM_tastendruckMitFolgemonaten(benchmark::State& state) {
    Bestand b;
    lonvir::monatladen(b.s, 500, 2);
    std::int32_t betrag = 10000;
    for (auto _ : state)
        lonvir::betragbestaetigen(b.s, 12, ++betrag);
}
BENCHMARK(BM_tastendruckMitFolgemonaten)->Unit(benchmark::kMicrosecond);

void BM_monatladen(benchmark::State& state) {
    Bestand b;
    for (auto _ : state)
        lonvir::monatladen(b.s, 999, 5);
}
BENCHMARK(BM_monatladen)->Unit(benchmark::kMicrosecond);

} // namespace
