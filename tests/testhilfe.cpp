// Helpers of the tests.
#include "testhilfe.h"

#include "core/arbeitsordner.h"
#include "engine/tarifdatei.h"
#include "start/dateisatz.h"
#include "start/start.h"

#include <atomic>
#include <fstream>
#include <iterator>
#include <unistd.h>

namespace lonvir::test {

namespace fs = std::filesystem;

Tempordner::Tempordner() {
    static std::atomic<int> zaehler{0};
    pfad_ = fs::temp_directory_path() /
            ("lonvir-test-" + std::to_string(::getpid()) + "-" + std::to_string(zaehler++));
    fs::remove_all(pfad_);
    fs::create_directories(pfad_);
}

Tempordner::~Tempordner() {
    std::error_code fehler;
    fs::remove_all(pfad_, fehler);
}

Umgebung::Umgebung(std::int16_t jahr, std::int16_t schicht) {
    s.ordner = Arbeitsordner(ordner.pfad());
    s.dialoge = &dialoge;
    s.jahr = jahr;
    s.schicht = schicht;
    starten(s);
}

Musterumgebung::Musterumgebung(std::int16_t jahr, std::int16_t schicht) {
    s.ordner = Arbeitsordner(ordner.pfad());
    s.installation = LONVIR_INSTALLATION;
    s.dialoge = &dialoge;
    s.jahr = jahr;
    s.schicht = schicht;
    starten(s);
}

LeereUmgebung::LeereUmgebung(std::int16_t schicht) {
    s.ordner = Arbeitsordner(ordner.pfad());
    s.dialoge = &dialoge;
    s.schicht = schicht;
    dateienoeffnen(s);
}

void ueberstundensatzsetzen(Sitzung& s, std::int32_t pfennig) {
    const int nummer = tarifsatznummer(s);
    const int datei = tarifdatei(s);
    Tarifsatz t = tarifsatz(s, nummer, datei);
    t.wert[26] = pfennig;
    tarifsatzschreiben(s, nummer, datei, t);
}

std::string dateiinhalt(const fs::path& ordner, const std::string& name) {
    std::ifstream ein(Arbeitsordner(ordner).pfad(name), std::ios::binary);
    return {std::istreambuf_iterator<char>(ein), std::istreambuf_iterator<char>()};
}

void dateisetzen(const fs::path& ordner, const std::string& name, const std::string& inhalt) {
    std::ofstream(Arbeitsordner(ordner).pfad(name), std::ios::binary | std::ios::trunc) << inhalt;
}

std::map<std::string, std::string> ordnerinhalt(const fs::path& ordner) {
    std::map<std::string, std::string> alle;
    for (const fs::directory_entry& e : fs::directory_iterator(ordner))
        if (e.is_regular_file())
            alle[e.path().filename().string()] = dateiinhalt(ordner, e.path().filename().string());
    return alle;
}

} // namespace lonvir::test
