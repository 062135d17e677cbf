// Speed of the wage-tax routine: one run, and one fill of the six-class table viewer.
#include "engine/lohnsteuer.h"
#include "reports/lohnsteuertabelle.h"

#include <benchmark/benchmark.h>

namespace {

using lonvir::Currency;

// One month's run in class I with a child allowance: two tariff runs.
void BM_LohnsteuerEinLauf(benchmark::State& state) {
    lonvir::Lohnsteuerlauf l;
    l.re4 = Currency::ganz(400000);
    l.lzz = 2;
    l.stkl = 1;
    l.zkf = Currency::ganz(1);
    l.kirche = 1;
    for (auto _ : state) {
        lonvir::lohnsteuer(l);
        benchmark::DoNotOptimize(l.lstlzz);
    }
}
BENCHMARK(BM_LohnsteuerEinLauf);

// One fill of the viewer: six runs; the scroll value alternates so every fill computes.
void BM_LohnsteuertabelleFuellen(benchmark::State& state) {
    lonvir::Lohnsteuertabelle t;
    t.auswahl.lohnzeitraum = 2;
    t.auswahl.kinderfreibetraege = Currency::ganz(1);
    std::int32_t v = 888;
    for (auto _ : state) {
        t.auswahl.scrollwert = v;
        v = v == 888 ? 889 : 888;
        benchmark::DoNotOptimize(lonvir::tabellefuellen(t));
    }
}
BENCHMARK(BM_LohnsteuertabelleFuellen);

} // namespace
