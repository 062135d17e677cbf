// The wage-tax table viewer: one band of six classes, and a printed range of 1000 bands.
#include "druck/pdfdatei.h"
#include "reports/lohnsteuertabelle.h"
#include "reports/tabellendruck.h"

#include <benchmark/benchmark.h>

namespace lonvir {

namespace {

void BM_Tabelle_Band_Sechs_Klassen(benchmark::State& state) {
    std::int32_t v = 0;
    for (auto _ : state) {
        Lohnsteuertabelle t;
        t.auswahl.lohnzeitraum = 2;
        t.auswahl.scrollwert = v;
        v = (v + 1) % (lstrtabScrollMax + 1);
        benchmark::DoNotOptimize(tabellefuellen(t));
    }
}
BENCHMARK(BM_Tabelle_Band_Sechs_Klassen)->Unit(benchmark::kMicrosecond);

void BM_Tabelle_Bereich_1000_Baender_Pdf(benchmark::State& state) {
    druck::Druckumgebung umgebung;
    Tabellenbereich b;
    b.auswahl.lohnzeitraum = 2;
    b.von = 400;
    b.bis = 1399;
    for (auto _ : state) {
        Merkdrucker d;
        tabellenbereichdrucken(b, d);
        benchmark::DoNotOptimize(druck::pdferzeugen(d.dokumente, "Lohnsteuer-Tabelle").size());
    }
}
BENCHMARK(BM_Tabelle_Bereich_1000_Baender_Pdf)->Unit(benchmark::kMillisecond);

} // namespace

} // namespace lonvir
