// Seeding a working folder from the compiled installation data.
#include "start/einsetzen.h"

#include "core/laufzeitfehler.h"

#include <string>
#include <vector>

namespace lonvir::installation {

namespace fs = std::filesystem;

bool ohnebestand(const Arbeitsordner& ordner) {
    std::vector<std::string> namen = {"Texte.txt", "Lonvir97.dim", "Lonvir97.voe"};
    for (int jahr : {1997, 1998}) {
        for (int n = 1; n <= 4; ++n)
            namen.push_back("Lonvir" + std::to_string(jahr % 100) + "." + std::to_string(n) + "tr");
        for (const char* schicht : {"I", "P", "R"})
            for (int monat = 1; monat <= 13; ++monat)
                namen.push_back("L" + std::to_string(jahr) + schicht + "." + std::to_string(monat));
    }
    for (const std::string& name : namen)
        if (ordner.vorhanden(name))
            return false;
    return true;
}

bool einsetzen(const fs::path& installation, const Arbeitsordner& ordner) {
    if (!fs::is_directory(installation))
        return false;
    ordner.anlegen();
    bool kopiert = false;
    for (const fs::directory_entry& e : fs::recursive_directory_iterator(installation)) {
        const fs::path ziel = ordner.ordner() / fs::relative(e.path(), installation);
        std::error_code fehler;
        if (e.is_directory()) {
            fs::create_directories(ziel, fehler);
        } else if (e.is_regular_file()) {
            fs::copy_file(e.path(), ziel, fs::copy_options::overwrite_existing, fehler);
            kopiert = true;
        }
        if (fehler)
            throw Dateifehler(ziel.string(), "Installationsdatei kann nicht angelegt werden");
    }
    return kopiert;
}

} // namespace lonvir::installation
