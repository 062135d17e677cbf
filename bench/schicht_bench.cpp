// A layer transfer of one person (28 openings of the file set) and a layer change on a store
// of 1000 persons (reopen, settings, refresh of the month).
#include "screen/hauptform.h"
#include "screen/navigation.h"
#include "screen/uebertragung.h"

#include "bestand.h"

#include <benchmark/benchmark.h>

#include <string>

namespace {

// The store with person 500 in June as the current place.
struct Bestand : lonvir::bench::Tausendbestand {
    explicit Bestand(const std::string& name) : Tausendbestand(name) {
        s.aktuelleperson = 500;
        s.merkmal[20] = 5;
    }
};

void BM_uebertragungEinerPerson(benchmark::State& state) {
    Bestand b("uebertragung");
    for (auto _ : state)
        lonvir::uebertragungsknopf(b.s, 2); // "Info  > Plan"
}
BENCHMARK(BM_uebertragungEinerPerson)->Unit(benchmark::kMillisecond);

void BM_schichtwechsel1000Personen(benchmark::State& state) {
    Bestand b("schichtwechsel");
    lonvir::Kernform form(b.s);
    int schicht = lonvir::INFO;
    for (auto _ : state) {
        schicht = (schicht + 1) % 3; // PLAN, REAL, INFO, ...
        lonvir::schichtklick(b.s, form, static_cast<std::int16_t>(schicht));
    }
}
BENCHMARK(BM_schichtwechsel1000Personen)->Unit(benchmark::kMillisecond);

} // namespace
