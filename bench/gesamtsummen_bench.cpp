// The totals over the staff on a store of 1000 persons: jahressummen reads all 12 000 month
// records and the cost centre of each, against a loop that only reads the same records.
#include "bestand.h"

#include "reports/jahressummen.h"
#include "start/satzzugriff.h"

#include <benchmark/benchmark.h>

#include <array>

namespace {

using lonvir::Personalsatz;

// Persons 1 to 200 work in the Bauamt, the others in the Schulamt; everybody is paid. The
// form sums at most 200 persons, so the Bauamt is chosen: every record is still read.
struct Summenbestand : lonvir::bench::Tausendbestand {
    Summenbestand() : Tausendbestand("summen") {
        lonvir::textschreiben(s, 4801, "Bauamt");
        lonvir::textschreiben(s, 4802, "Schulamt");
        for (int m = 1; m <= 12; ++m)
            for (int p = 1; p <= 1000; ++p) {
                Personalsatz satz = lonvir::personalsatzlesen(s, m, p);
                satz.merkmal[4] = 5;
                satz.merkmal[27] = p <= 200 ? 0 : 1;
                satz.wert[22] = 300000 + p;
                satz.nebenwert[0] = 20000;
                lonvir::personalsatzschreiben(s, m, p, satz);
            }
    }
};

Summenbestand& bestand() {
    static Summenbestand b;
    return b;
}

void BM_Jahressummen1000Personen(benchmark::State& state) {
    Summenbestand& b = bestand();
    const lonvir::Kostenstellenwahl wahl{1, "Bauamt"};
    for (auto _ : state) {
        const lonvir::Jahressummen j = lonvir::jahressummen(b.s, wahl);
        benchmark::DoNotOptimize(j.gesamtsummen[lonvir::slot::gesamt]);
    }
}
BENCHMARK(BM_Jahressummen1000Personen)->Unit(benchmark::kMillisecond);

// Only the reads: the 12 000 records of the same files, byte by byte, nothing decoded.
void BM_NurLesen12000Saetze(benchmark::State& state) {
    Summenbestand& b = bestand();
    std::array<std::uint8_t, Personalsatz::laenge> puffer{};
    for (auto _ : state) {
        std::uint64_t summe = 0;
        for (int m = 1; m <= 12; ++m)
            for (int p = 1; p <= 1000; ++p) {
                b.s.datei(m).lesen(p, puffer);
                summe += puffer[90 + 4 * 22];
            }
        benchmark::DoNotOptimize(summe);
    }
}
BENCHMARK(BM_NurLesen12000Saetze)->Unit(benchmark::kMillisecond);

} // namespace
