// The settings at full size: a confirmed preset over 100 and over all 1000 persons of a store
// (twelve months each written and recalculated), and the store of page 63 with the current
// person's twelve months recalculated.
#include "engine/monatladen.h"
#include "panels/vorgabeseiten.h"
#include "screen/voreinstellmodus.h"

#include "bestand.h"

#include <benchmark/benchmark.h>

namespace {

void BM_voreinstellungUebertragen(benchmark::State& state) {
    lonvir::bench::Tausendbestand b("voreinstellung");
    lonvir::monatladen(b.s, 1, 0);
    const auto bis = static_cast<int>(state.range(0));
    for (auto _ : state)
        benchmark::DoNotOptimize(lonvir::voreinstellungenuebertragen(b.s, 1, bis));
}
BENCHMARK(BM_voreinstellungUebertragen)->Arg(100)->Arg(1000)->Unit(benchmark::kMillisecond);

void BM_seite63Speichern(benchmark::State& state) {
    lonvir::bench::Tausendbestand b("seite63");
    lonvir::monatladen(b.s, 500, 2);
    lonvir::Form1lage lage;
    lage.breite = 12000;
    lage.panel3d2breite = 4800;
    lage.panel3d2hoehe = 9000;
    lonvir::Tablett t(b.s, lage);
    int position = 0;
    for (auto _ : state) {
        b.s.Tablettseite = 63;
        t.tablettoeffnen();
        t.Combo[2].position = ++position % 11;
        t.Command1_Click();
    }
}
BENCHMARK(BM_seite63Speichern)->Unit(benchmark::kMillisecond);

} // namespace
