// Creating 1000 persons in all three layers on a fresh folder.
#include "core/dialoge.h"
#include "start/dateisatz.h"
#include "start/personenanlegen.h"
#include "start/texte.h"

#include <benchmark/benchmark.h>

#include <filesystem>
#include <unistd.h>

namespace {

namespace fs = std::filesystem;

void BM_personenanlegen1000(benchmark::State& state) {
    const fs::path ordner =
        fs::temp_directory_path() / ("lonvir-bench-" + std::to_string(::getpid()));
    for (auto _ : state) {
        state.PauseTiming();
        fs::remove_all(ordner);
        lonvir::SkriptDialoge dialoge;
        lonvir::Sitzung s;
        s.ordner = lonvir::Arbeitsordner(ordner);
        s.dialoge = &dialoge;
        lonvir::dateienoeffnen(s);
        for (int n = 1; n <= 1000; ++n)
            lonvir::textschreiben(s, 5000 + n, std::to_string(n) + ". Name");
        state.ResumeTiming();
        lonvir::personenanlegen(s);
    }
    fs::remove_all(ordner);
}
BENCHMARK(BM_personenanlegen1000)->Unit(benchmark::kMillisecond);

} // namespace
