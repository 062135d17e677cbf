// The tables a clerk keeps, at full size: the name search among 1000 persons, the text
// editor's search through all 6000 records without a hit, and a tariff cell written through
// the four tables of the year.
#include "bestand.h"
#include "panels/namen.h"
#include "panels/tarife.h"
#include "panels/textedit.h"

#include <benchmark/benchmark.h>

namespace {

using namespace lonvir;

void Namenssuche1000(benchmark::State& state) {
    bench::Tausendbestand b("namenssuche");
    for (auto _ : state)
        benchmark::DoNotOptimize(namensuche(b.s, "99"));
}
BENCHMARK(Namenssuche1000)->Unit(benchmark::kMillisecond);

void TexteditSucheOhneTreffer(benchmark::State& state) {
    bench::Tausendbestand b("textsuche");
    Textedit t(b.s, 1, 6000, {});
    t.Text2 = "keinsolchertext";
    for (auto _ : state) {
        t.Text2_KeyPress(13);
        b.dialoge.vergessen();
    }
}
BENCHMARK(TexteditSucheOhneTreffer)->Unit(benchmark::kMillisecond);

void TarifzelleDurchVierTabellen(benchmark::State& state) {
    bench::Tausendbestand b("tarifzelle");
    Tarife t(b.s, 54, {});
    t.schalter_Click(6);
    int wert = 100000;
    for (auto _ : state) {
        t.fieldboxes[3] = std::to_string(++wert);
        t.fieldboxes_KeyPress(3, 13);
    }
}
BENCHMARK(TarifzelleDurchVierTabellen)->Unit(benchmark::kMicrosecond);

} // namespace
