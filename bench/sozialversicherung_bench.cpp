// One keystroke for an employee: the run with supplementary pension and social insurance,
// whose one-off room reads every earlier month's record, twice per run, and the later months.
#include "engine/monatladen.h"
#include "engine/schritte.h"
#include "screen/eingabe.h"

#include "bestand.h"

#include <benchmark/benchmark.h>

namespace {

// An amount confirmed in March for an employee (staff class 5, fund 0, rate 4.5 %), the
// nine later months following.
void BM_tastendruckAngestellterMitFolgemonaten(benchmark::State& state) {
    lonvir::bench::Tausendbestand b("sv");
    lonvir::monatladen(b.s, 500, 2);
    b.s.merkmal[4] = 5;
    b.s.eingabe[25] = 450;
    std::int32_t betrag = 300000;
    for (auto _ : state)
        lonvir::betragbestaetigen(b.s, 12, ++betrag);
}
BENCHMARK(BM_tastendruckAngestellterMitFolgemonaten)->Unit(benchmark::kMicrosecond);

// The insurance step alone in December, which reads the eleven months before.
void BM_sozialversicherungDezember(benchmark::State& state) {
    lonvir::bench::Tausendbestand b("sv");
    lonvir::monatladen(b.s, 500, 11);
    b.s.merkmal[4] = 5;
    for (auto _ : state)
        lonvir::sozialversicherung(b.s);
}
BENCHMARK(BM_sozialversicherungDezember)->Unit(benchmark::kMicrosecond);

} // namespace
