// One keystroke on a store of 1000 persons: an amount confirmed in March, the run, the nine
// later months, and the store of all of them through the journal (one flush).
#include "core/journal.h"
#include "engine/monatladen.h"
#include "screen/eingabe.h"

#include "bestand.h"

#include <benchmark/benchmark.h>
#include <vector>

namespace {

void BM_tastendruckMitFolgemonaten(benchmark::State& state) {
    lonvir::bench::Tausendbestand b("taste");
    lonvir::monatladen(b.s, 500, 2);
    std::int32_t betrag = 10000;
    for (auto _ : state)
        lonvir::betragbestaetigen(b.s, 12, ++betrag);
}
BENCHMARK(BM_tastendruckMitFolgemonaten)->Unit(benchmark::kMicrosecond);

// The journal's share of a keystroke: ten month records and the settings record written into
// the journal, flushed once, applied and the journal removed.
void BM_journalEinesTastendrucks(benchmark::State& state) {
    lonvir::bench::Tausendbestand b("journal");
    std::vector<std::uint8_t> satz(541, 7);
    for (auto _ : state) {
        lonvir::Schreibvorgang v;
        v.beginnen();
        for (int monat = 3; monat <= 12; ++monat)
            v.schreiben(b.ordner / ("L1997I." + std::to_string(monat)), 499 * 541, satz);
        v.schreiben(b.ordner / "Lonvir97.voe", 0, std::vector<std::uint8_t>(648, 32));
        lonvir::journal::festschreiben(b.ordner, v);
    }
}
BENCHMARK(BM_journalEinesTastendrucks)->Unit(benchmark::kMicrosecond);

void BM_monatladen(benchmark::State& state) {
    lonvir::bench::Tausendbestand b("taste");
    for (auto _ : state)
        lonvir::monatladen(b.s, 999, 5);
}
BENCHMARK(BM_monatladen)->Unit(benchmark::kMicrosecond);

} // namespace
