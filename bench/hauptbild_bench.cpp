// The main screen on a store of 1000 persons: a click on the step list of row 7, from the
// event to the repainted rows (the model, no window), and a change of person in row 0.
#include "screen/form1.h"

#include "bestand.h"

#include <benchmark/benchmark.h>

#include <memory>

namespace {

// Person 500 as an employee (BAT, group 6) whose step is given by hand, so a click on the step
// list asks nothing and goes straight to the calculation.
struct Bestand : lonvir::bench::Tausendbestand {
    std::unique_ptr<lonvir::Form1> f;
    explicit Bestand(std::int16_t monat) : Tausendbestand("bild") {
        f = std::make_unique<lonvir::Form1>(s);
        f->listenfuellen();
        f->namensliste();
        s.aktuelleperson = 500;
        s.merkmal[0] = 499;
        s.merkmal[20] = monat;
        f->bildauffrischen();
        f->auswahltreffen(4, 5);
        f->auswahltreffen(5, 6);
        f->auswahltreffen(1, 2);
    }
};

void stufenklicks(benchmark::State& state, std::int16_t monat) {
    Bestand b(monat);
    int stufe = 0;
    for (auto _ : state) {
        stufe = stufe == 3 ? 4 : 3;
        b.f->z_GotFocus(7);
        b.f->bild.zeilen[7].position = stufe;
        b.f->z_Click(7);
    }
    if (b.s.merkmal[7] != stufe || !b.dialoge.gezeigt().empty())
        state.SkipWithError("the click did not reach the step");
}

// January: the run, the store, the repaint and the eleven later months.
void BM_stufeImJanuar(benchmark::State& state) {
    stufenklicks(state, 0);
}
BENCHMARK(BM_stufeImJanuar)->Unit(benchmark::kMicrosecond);

// December: the run, the store and the repaint alone.
void BM_stufeImDezember(benchmark::State& state) {
    stufenklicks(state, 11);
}
BENCHMARK(BM_stufeImDezember)->Unit(benchmark::kMicrosecond);

// Another person picked in row 0: the refresh with its lists, the run and the repaint.
void BM_personenwechsel(benchmark::State& state) {
    Bestand b(2);
    int position = 0;
    for (auto _ : state) {
        position = position == 998 ? 2 : 998;
        b.f->auswahltreffen(0, position);
    }
}
BENCHMARK(BM_personenwechsel)->Unit(benchmark::kMicrosecond);

} // namespace
