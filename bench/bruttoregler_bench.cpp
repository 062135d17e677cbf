// The clerk's tools on a store of 1000 persons: one move of a scroll bar of page 43 (the run in
// gross mode and the page's amounts), and "1234,5 X 2 =" on the calculator with its carry
// into row 12 (the run, the store and the eleven later months).
#include "panels/seiten.h"
#include "panels/tablett.h"
#include "screen/rechner.h"

#include "bestand.h"

#include <benchmark/benchmark.h>

#include <memory>

namespace {

struct Bestand : lonvir::bench::Tausendbestand {
    std::unique_ptr<lonvir::Form1> f;
    lonvir::Form1lage lage{0, 0, 12000, 8000, 3600, 8000, true, 1200, 1450, 4950};
    Bestand() : Tausendbestand("werkzeuge") {
        f = std::make_unique<lonvir::Form1>(s);
        f->listenfuellen();
        f->namensliste();
        s.aktuelleperson = 500;
        s.merkmal[0] = 499;
        s.merkmal[20] = 0;
        f->bildauffrischen();
        f->auswahltreffen(4, 5);
        f->auswahltreffen(5, 6);
    }
};

void BM_bruttobalken(benchmark::State& state) {
    Bestand b;
    lonvir::Tablett t(b.s, b.lage);
    t.seiteoeffnen(43);
    int wert = 20;
    for (auto _ : state) {
        wert = wert == 20 ? 21 : 20;
        t.hscroll1_change(wert);
    }
    if (b.s.wert[21] / 10000 != wert)
        state.SkipWithError("the bar did not reach the gross");
}
BENCHMARK(BM_bruttobalken)->Unit(benchmark::kMicrosecond);

void BM_rechnerUebertrag(benchmark::State& state) {
    Bestand b;
    lonvir::Rechner r(*b.f);
    b.f->t_Click(12);
    for (auto _ : state) {
        for (char c : std::string("1234,5*2="))
            b.f->Form_KeyPress(c, false);
        r.Eintrag_Click();
    }
    if (b.s.eingabe[12] != 246900)
        state.SkipWithError("the result did not reach row 12");
}
BENCHMARK(BM_rechnerUebertrag)->Unit(benchmark::kMicrosecond);

} // namespace
