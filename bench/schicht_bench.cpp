// A layer transfer of one person (28 openings of the file set) and a layer change on a store
// of 1000 persons (reopen, settings, refresh of the month).
#include "core/dialoge.h"
#include "screen/hauptform.h"
#include "screen/navigation.h"
#include "screen/uebertragung.h"
#include "start/dateisatz.h"
#include "start/start.h"
#include "start/texte.h"

#include <benchmark/benchmark.h>

#include <filesystem>
#include <unistd.h>

namespace {

namespace fs = std::filesystem;

// A started store of 1000 persons in all three layers, on its own folder.
struct Bestand {
    explicit Bestand(const std::string& name)
        : ordner(fs::temp_directory_path() /
                 ("lonvir-bench-" + name + "-" + std::to_string(::getpid()))) {
        fs::remove_all(ordner);
        s.ordner = lonvir::Arbeitsordner(ordner);
        s.dialoge = &dialoge;
        lonvir::dateienoeffnen(s);
        for (int n = 1; n <= 1000; ++n)
            lonvir::textschreiben(s, 5000 + n, std::to_string(n) + ". Name");
        lonvir::starten(s);
        s.aktuelleperson = 500;
        s.merkmal[20] = 5;
    }
    ~Bestand() { fs::remove_all(ordner); }
    fs::path ordner;
    lonvir::SkriptDialoge dialoge;
    lonvir::Sitzung s;
};

void BM_uebertragungEinerPerson(benchmark::State& state) {
    Bestand b("uebertragung");
    for (auto _ : state)
        lonvir::uebertragungsknopf(b.s, 2); // "Info  > Plan"
}
BENCHMARK(BM_uebertragungEinerPerson)->Unit(benchmark::kMillisecond);

void BM_schichtwechsel1000Personen(benchmark::State& state) {
    Bestand b("schichtwechsel");
    lonvir::Kernform form(b.s);
    int schicht = lonvir::INFO;
    for (auto _ : state) {
        schicht = (schicht + 1) % 3; // PLAN, REAL, INFO, ...
        lonvir::schichtklick(b.s, form, static_cast<std::int16_t>(schicht));
    }
}
BENCHMARK(BM_schichtwechsel1000Personen)->Unit(benchmark::kMillisecond);

} // namespace
