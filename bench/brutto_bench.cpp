// Gross pay: the tariff look-up of one month, and the service-age entry of a Besoldungsordnung A
// person in June 1997 with the ladder and the transition allowance in the months after it.
#include "core/dialoge.h"
#include "engine/monatladen.h"
#include "engine/schritte.h"
#include "engine/tarifdatei.h"
#include "screen/eingabe.h"
#include "start/start.h"

#include <benchmark/benchmark.h>

#include <filesystem>
#include <unistd.h>

namespace {

namespace fs = std::filesystem;

// One line for group 8 of Besoldungsordnung A in the month's table and in both 1997 tables.
struct Tarifbestand {
    fs::path ordner = fs::temp_directory_path() / ("lonvir-brutto-" + std::to_string(::getpid()));
    lonvir::SkriptDialoge dialoge;
    lonvir::Sitzung s;
    Tarifbestand() {
        fs::remove_all(ordner);
        s.ordner = lonvir::Arbeitsordner(ordner);
        s.dialoge = &dialoge;
        lonvir::starten(s);
        lonvir::Tarifsatz t;
        for (int i = 0; i <= 26; ++i)
            t.wert[i] = 100000 + 1000 * i;
        for (int datei :
             {lonvir::datei::tarif1, lonvir::datei::tarif2von1997, lonvir::datei::tarif3von1997})
            lonvir::tarifsatzschreiben(s, 9, datei, t);
    }
    ~Tarifbestand() { fs::remove_all(ordner); }
};

void BM_tarifwerte(benchmark::State& state) {
    Tarifbestand b;
    b.s.merkmal[4] = 0;
    b.s.merkmal[5] = 8;
    b.s.merkmal[7] = 5;
    b.s.merkmal[8] = 3;
    b.s.merkmal[20] = 6;
    for (auto _ : state)
        lonvir::tarifwerte(b.s);
}
BENCHMARK(BM_tarifwerte)->Unit(benchmark::kMicrosecond);

void BM_bdaImJuniMitFolgemonaten(benchmark::State& state) {
    Tarifbestand b;
    lonvir::monatladen(b.s, 1, 5);
    b.s.merkmal[5] = 8;
    bool wechsel = false;
    for (auto _ : state) {
        wechsel = !wechsel;
        lonvir::bdabestaetigen(b.s, wechsel ? "01.1971" : "07.1990");
    }
}
BENCHMARK(BM_bdaImJuniMitFolgemonaten)->Unit(benchmark::kMicrosecond);

} // namespace
