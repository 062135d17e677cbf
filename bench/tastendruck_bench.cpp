// One keystroke on a store of 1000 persons: an amount confirmed in March, the run, the
// store, and the nine later months.
#include "engine/monatladen.h"
#include "screen/eingabe.h"

#include "bestand.h"

#include <benchmark/benchmark.h>

namespace {

void BM_tastendruckMitFolgemonaten(benchmark::State& state) {
    lonvir::bench::Tausendbestand b("taste");
    lonvir::monatladen(b.s, 500, 2);
    std::int32_t betrag = 10000;
    for (auto _ : state)
        lonvir::betragbestaetigen(b.s, 12, ++betrag);
}
BENCHMARK(BM_tastendruckMitFolgemonaten)->Unit(benchmark::kMicrosecond);

void BM_monatladen(benchmark::State& state) {
    lonvir::bench::Tausendbestand b("taste");
    for (auto _ : state)
        lonvir::monatladen(b.s, 999, 5);
}
BENCHMARK(BM_monatladen)->Unit(benchmark::kMicrosecond);

} // namespace
