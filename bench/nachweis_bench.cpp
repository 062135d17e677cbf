// The month's statements for the insurers and the tax office over 1000 persons, to text and
// to PDF, beside a loop that only reads the same 1000 records.
#include "bestand.h"

#include "core/textdrucker.h"
#include "druck/pdfdatei.h"
#include "reports/beitragsnachweis.h"
#include "reports/lohnsteuernachweis.h"
#include "start/satzzugriff.h"

#include <benchmark/benchmark.h>

namespace lonvir::bench {

namespace {

// 1000 employees with contributions and taxes in January.
struct Nachweisbestand : Tausendbestand {
    Nachweisbestand() : Tausendbestand("nachweis") {
        for (int p = 1; p <= 1000; ++p) {
            Personalsatz satz = personalsatzlesen(s, 1, p);
            satz.merkmal[4] = 5;
            satz.merkmal[28] = static_cast<std::int16_t>(p % 7);
            satz.wert[33] = -67683 - p;
            satz.wert[35] = -5076;
            satz.wert[36] = -6091 - p;
            satz.wert[37] = -26053;
            satz.wert[38] = -3305;
            satz.wert[39] = -39469;
            satz.wert[40] = -12638;
            satz.wert[45] = 228541;
            satz.nebenwert[0] = 26053;
            satz.nebenwert[1] = 3305;
            satz.nebenwert[2] = 39469;
            satz.nebenwert[3] = 12638;
            personalsatzschreiben(s, 1, p, satz);
        }
    }
};

Nachweisbestand& bestand() {
    static Nachweisbestand b;
    return b;
}

void beidedrucken(Sitzung& s, Drucker& d) {
    beitragsnachweisdrucken(s, beitragsnachweisbilden(s, 0), d);
    lohnsteuernachweisdrucken(s, lohnsteuernachweisbilden(s, 0), d);
}

void BM_Nachweise_1000_Satzlesen(benchmark::State& state) {
    Sitzung& s = bestand().s;
    for (auto _ : state) {
        std::int64_t summe = 0;
        for (int p = 1; p <= 1000; ++p)
            summe += personalsatzlesen(s, 1, p).wert[45];
        benchmark::DoNotOptimize(summe);
    }
}
BENCHMARK(BM_Nachweise_1000_Satzlesen)->Unit(benchmark::kMillisecond);

void BM_Nachweise_1000_Text(benchmark::State& state) {
    Sitzung& s = bestand().s;
    for (auto _ : state) {
        Textdrucker d;
        beidedrucken(s, d);
        benchmark::DoNotOptimize(d.inhalt.size());
    }
}
BENCHMARK(BM_Nachweise_1000_Text)->Unit(benchmark::kMillisecond);

void BM_Nachweise_1000_Pdf(benchmark::State& state) {
    Sitzung& s = bestand().s;
    druck::Druckumgebung umgebung;
    for (auto _ : state) {
        Merkdrucker d;
        beidedrucken(s, d);
        benchmark::DoNotOptimize(druck::pdferzeugen(d.dokumente, "Nachweise").size());
    }
}
BENCHMARK(BM_Nachweise_1000_Pdf)->Unit(benchmark::kMillisecond);

} // namespace

} // namespace lonvir::bench
