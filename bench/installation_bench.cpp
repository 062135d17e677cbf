// Compiling the installation data, and seeding a new working folder from them.
#include "installation/installieren.h"

#include <benchmark/benchmark.h>

#include <filesystem>
#include <unistd.h>

namespace {

namespace fs = std::filesystem;

fs::path benchordner(const char* name) {
    return fs::temp_directory_path() /
           ("lonvir-bench-" + std::string(name) + "-" + std::to_string(::getpid()));
}

void BM_installieren(benchmark::State& state) {
    const fs::path ziel = benchordner("installieren");
    for (auto _ : state) {
        state.PauseTiming();
        fs::remove_all(ziel);
        state.ResumeTiming();
        lonvir::installation::installieren(fs::path(LONVIR_QUELLEN) / "data", ziel);
    }
    fs::remove_all(ziel);
}
BENCHMARK(BM_installieren)->Unit(benchmark::kMillisecond);

void BM_einsetzen(benchmark::State& state) {
    const fs::path ziel = benchordner("einsetzen");
    for (auto _ : state) {
        state.PauseTiming();
        fs::remove_all(ziel);
        state.ResumeTiming();
        lonvir::installation::einsetzen(LONVIR_INSTALLATION, lonvir::Arbeitsordner(ziel));
    }
    fs::remove_all(ziel);
}
BENCHMARK(BM_einsetzen)->Unit(benchmark::kMillisecond);

} // namespace
