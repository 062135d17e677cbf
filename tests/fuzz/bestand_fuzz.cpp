// Whole damaged files through the command line's entry: bytes laid over one file of a sample
// store, then the commands that open, show, store and dump it. Every run ends with one of the
// exit states of the command line (0, 2, 3 or 4), never with a crash or an uncaught error.
#include "cli/befehle.h"
#include "fuzzziel.h"

#include <array>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <sstream>
#include <string>
#include <unistd.h>
#include <vector>

namespace {

namespace fs = std::filesystem;

const std::array<const char*, 10> dateien = {
    "L1997I.1",  "L1997I.3",     "L1997I.7",     "L1997I.13",    "L1997P.2",
    "Texte.txt", "Lonvir97.1tr", "Lonvir97.dim", "Lonvir97.voe", "Lonvir97.jnl"};

int cli(std::vector<std::string> argumente) {
    std::vector<char*> argv;
    argumente.insert(argumente.begin(), "lonvir97-cli");
    for (std::string& a : argumente)
        argv.push_back(a.data());
    std::ostringstream weg;
    auto* aus = std::cout.rdbuf(weg.rdbuf());
    auto* fehler = std::cerr.rdbuf(weg.rdbuf());
    const int status = lonvir::cli::ausfuehren(static_cast<int>(argv.size()), argv.data());
    std::cout.rdbuf(aus);
    std::cerr.rdbuf(fehler);
    return status;
}

// The sample store, created once per process, and the folder each input damages.
struct Ordner {
    Ordner() {
        const fs::path basis =
            fs::temp_directory_path() / ("lonvir-fuzz-" + std::to_string(::getpid()));
        urbild = basis / "urbild";
        arbeit = basis / "arbeit";
        fs::remove_all(basis);
        if (cli({"anlegen", "--ordner", urbild.string()}) != 0)
            lonvir::fuzz::befund("der Musterbestand lässt sich nicht anlegen");
    }
    ~Ordner() { fs::remove_all(urbild.parent_path()); }
    void zuruecksetzen() const {
        fs::remove_all(arbeit);
        fs::copy(urbild, arbeit, fs::copy_options::recursive);
    }
    fs::path urbild, arbeit;
};

std::uint32_t le32(std::span<const std::uint8_t> d) {
    return d[0] | d[1] << 8 | d[2] << 16 | static_cast<std::uint32_t>(d[3]) << 24;
}

} // namespace

// Byte 0 picks the file, bytes 1 to 4 the offset (modulo its length plus one), byte 5 the person
// and month; the rest is written at that offset. The journal is written whole.
LONVIR_FUZZZIEL(bestand) {
    static const Ordner ordner;
    if (daten.size() < 6)
        return;
    ordner.zuruecksetzen();
    const std::string name = dateien[daten[0] % dateien.size()];
    const fs::path pfad = ordner.arbeit / name;
    const auto rest = daten.subspan(6);
    std::error_code fehler;
    const std::uintmax_t laenge = fs::exists(pfad) ? fs::file_size(pfad, fehler) : 0;
    const std::uintmax_t ab = name == "Lonvir97.jnl" ? 0 : le32(daten.subspan(1)) % (laenge + 1);
    {
        std::fstream f(pfad, std::ios::in | std::ios::out | std::ios::binary);
        if (!f)
            f.open(pfad, std::ios::out | std::ios::binary);
        f.seekp(static_cast<std::streamoff>(ab));
        f.write(reinterpret_cast<const char*>(rest.data()),
                static_cast<std::streamsize>(rest.size()));
    }
    const std::string o = ordner.arbeit.string();
    const std::string person = std::to_string(1 + daten[5] % 6);
    const std::string monat = std::to_string(1 + (daten[5] >> 3) % 13);
    const std::vector<std::vector<std::string>> befehle = {
        {"zeigen", "--ordner", o, "--person", person, "--monat", monat, "--json"},
        {"setzen", "--ordner", o, "--person", person, "--monat", monat == "13" ? "12" : monat,
         "--zeile", "12", "--betrag", "12345"},
        {"zeigen", "--ordner", o, "--nur-lesen", "--person", person, "--monat", monat},
        {"satz", "--ordner", o, "--datei", name, "--nummer", person},
    };
    for (const auto& befehl : befehle) {
        const int status = cli(befehl);
        if (status != 0 && status != 2 && status != 3 && status != 4)
            lonvir::fuzz::befund("ein Befehl endet mit einem unbekannten Status");
    }
}
