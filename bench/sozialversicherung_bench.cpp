// One keystroke for an employee: the run with supplementary pension and social insurance,
// whose one-off room reads every earlier month's record, twice per run, and the later months.
#include "core/dialoge.h"
#include "engine/monatladen.h"
#include "engine/schritte.h"
#include "screen/eingabe.h"
#include "start/dateisatz.h"
#include "start/start.h"
#include "start/texte.h"

#include <benchmark/benchmark.h>

#include <filesystem>
#include <unistd.h>

namespace {

namespace fs = std::filesystem;

struct Angestelltenbestand {
    fs::path ordner = fs::temp_directory_path() / ("lonvir-sv-" + std::to_string(::getpid()));
    lonvir::SkriptDialoge dialoge;
    lonvir::Sitzung s;
    Angestelltenbestand() {
        fs::remove_all(ordner);
        s.ordner = lonvir::Arbeitsordner(ordner);
        s.dialoge = &dialoge;
        lonvir::dateienoeffnen(s);
        for (int n = 1; n <= 1000; ++n)
            lonvir::textschreiben(s, 5000 + n, std::to_string(n) + ". Name");
        lonvir::starten(s);
    }
    ~Angestelltenbestand() { fs::remove_all(ordner); }
};

// An amount confirmed in March for an employee (staff class 5, fund 0, rate 4.5 %), the
// nine later months following.
void BM_tastendruckAngestellterMitFolgemonaten(benchmark::State& state) {
    Angestelltenbestand b;
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
    Angestelltenbestand b;
    lonvir::monatladen(b.s, 500, 11);
    b.s.merkmal[4] = 5;
    for (auto _ : state)
        lonvir::sozialversicherung(b.s);
}
BENCHMARK(BM_sozialversicherungDezember)->Unit(benchmark::kMicrosecond);

} // namespace
