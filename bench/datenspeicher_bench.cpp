// Reads of the data store that run at every start or change of year: the settings of the
// year with the twelve health-insurance records, the person count over the name table, and
// one tariff line.
#include "engine/tarifdatei.h"
#include "start/dateisatz.h"
#include "start/einstellungen.h"
#include "start/texte.h"

#include <benchmark/benchmark.h>

#include <filesystem>
#include <unistd.h>

namespace {

namespace fs = std::filesystem;

// A fresh folder with the set opened; removed when the object goes.
struct Benchordner {
    explicit Benchordner(const char* name)
        : pfad(fs::temp_directory_path() /
               (std::string("lonvir-bench-") + name + "-" + std::to_string(::getpid()))) {
        fs::remove_all(pfad);
        s.ordner = lonvir::Arbeitsordner(pfad);
        lonvir::dateienoeffnen(s);
    }
    ~Benchordner() {
        lonvir::dateienschliessen(s);
        fs::remove_all(pfad);
    }
    fs::path pfad;
    lonvir::Sitzung s;
};

void BM_voelesenMitKvSaetzen(benchmark::State& state) {
    Benchordner o("voe");
    lonvir::voeschreiben(o.s);
    for (auto _ : state) {
        lonvir::voelesen(o.s);
        benchmark::DoNotOptimize(o.s.kvsatz[11][27]);
    }
}
BENCHMARK(BM_voelesenMitKvSaetzen)->Unit(benchmark::kMicrosecond);

// The worst case: a single name at 5001, so the scan reads all 1000 records from 6000 down.
void BM_personenzaehlenUeber1000Saetze(benchmark::State& state) {
    Benchordner o("namen");
    lonvir::textschreiben(o.s, 5001, "1. Name");
    for (auto _ : state)
        benchmark::DoNotOptimize(lonvir::personenzaehlen(o.s));
}
BENCHMARK(BM_personenzaehlenUeber1000Saetze)->Unit(benchmark::kMicrosecond);

void BM_tarifsatzlesen(benchmark::State& state) {
    Benchordner o("tarif");
    lonvir::Tarifsatz t;
    t.wert[0] = 250000;
    lonvir::tarifsatzschreiben(o.s, 358, lonvir::datei::tarif1, t);
    for (auto _ : state) {
        lonvir::tarifsatzlesen(o.s, 358, lonvir::datei::tarif1);
        benchmark::DoNotOptimize(o.s.tarifwert[0]);
    }
}
BENCHMARK(BM_tarifsatzlesen)->Unit(benchmark::kMicrosecond);

} // namespace
