// Printing pay statements: one statement as text and as PDF, and the month of a store of 1000
// persons, every person loaded, refreshed and printed into one PDF, as `drucken netto` without
// --person does it.
#include "core/textdrucker.h"
#include "druck/pdfdatei.h"
#include "reports/gehaltdrucken.h"
#include "screen/form1.h"
#include "screen/schirmtexte.h"

#include "bestand.h"

#include <benchmark/benchmark.h>

#include <memory>

namespace {

using namespace lonvir;

druck::Druckumgebung& umgebung() {
    static druck::Druckumgebung u;
    return u;
}

// Person 500 as a BAT employee, group 6, January.
struct Bestand : bench::Tausendbestand {
    std::unique_ptr<Form1> f;
    Bestand() : Tausendbestand("druck") {
        f = std::make_unique<Form1>(s);
        f->listenfuellen();
        f->namensliste();
        waehlen(500);
        f->auswahltreffen(4, 5);
        f->auswahltreffen(5, 6);
    }
    void waehlen(int person) {
        s.aktuelleperson = static_cast<std::int16_t>(person);
        s.merkmal[0] = static_cast<std::int16_t>(person - 1);
        s.merkmal[20] = 0;
        f->bildauffrischen();
    }
};

void BM_statementAlsText(benchmark::State& state) {
    Bestand b;
    const Schirmtexte texte = schirmtexte(b.f->bild);
    for (auto _ : state) {
        Textdrucker d;
        gehaltdrucken(b.s, texte, mitarbeitgeber, d);
        benchmark::DoNotOptimize(d.inhalt.data());
    }
}
BENCHMARK(BM_statementAlsText)->Unit(benchmark::kMicrosecond);

void BM_statementAlsPdf(benchmark::State& state) {
    umgebung();
    Bestand b;
    const Schirmtexte texte = schirmtexte(b.f->bild);
    for (auto _ : state) {
        Merkdrucker d;
        gehaltdrucken(b.s, texte, mitarbeitgeber, d);
        const QByteArray pdf = druck::pdferzeugen(d.dokumente, QStringLiteral("Statement"));
        benchmark::DoNotOptimize(pdf.constData());
    }
}
BENCHMARK(BM_statementAlsPdf)->Unit(benchmark::kMillisecond);

// The month's statements of all 1000 persons in one PDF.
void BM_tausendStatementsInEinemPdf(benchmark::State& state) {
    umgebung();
    Bestand b;
    qsizetype groesse = 0;
    for (auto _ : state) {
        Merkdrucker d;
        for (int person = 1; person <= 1000; ++person) {
            b.waehlen(person);
            gehaltdrucken(b.s, schirmtexte(b.f->bild), bruttonetto, d);
        }
        const QByteArray pdf = druck::pdferzeugen(d.dokumente, QStringLiteral("Januar"));
        groesse = pdf.size();
    }
    state.counters["pdf_kB"] = static_cast<double>(groesse) / 1024.0;
}
BENCHMARK(BM_tausendStatementsInEinemPdf)->Unit(benchmark::kMillisecond)->Iterations(1);

} // namespace
