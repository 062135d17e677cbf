// Seeding a working folder from the compiled installation data.
#include "start/einsetzen.h"

#include "core/ganzkopie.h"

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
    if (!fs::is_directory(installation) || fs::is_empty(installation))
        return false;
    // All files arrive, or none: a full disk leaves the folder without a store.
    ganzkopie::einsetzen(installation, ordner.ordner());
    return true;
}

} // namespace lonvir::installation
