// Compiling the installation data into a working folder.
#include "start/installation/installieren.h"

#include "core/dialoge.h"
#include "core/ganzkopie.h"
#include "core/laufzeitfehler.h"
#include "start/installation/hilfeseiten.h"
#include "start/installation/musterpersonal.h"
#include "start/installation/tariftabellen.h"
#include "start/installation/texttabelle.h"
#include "start/installation/vorgaben.h"
#include "start/start.h"

#include <string>
#include <vector>

namespace lonvir::installation {

namespace fs = std::filesystem;

namespace {

void tarifeuebersetzen(const fs::path& quellen, const fs::path& ziel) {
    for (int jahr : {1997, 1998})
        for (int n = 1; n <= 4; ++n)
            tariftabelleschreiben(tariftabellelesen(quellen / "tarife" / tarifquellname(jahr, n)),
                                  ziel / tarifdateiname(jahr, n));
}

// The store as the first start creates it, then the sample staff over its first persons.
void bestandanlegen(const fs::path& ziel, const std::map<int, Musterperson>& personal) {
    SkriptDialoge dialoge;
    Sitzung s;
    s.ordner = Arbeitsordner(ziel);
    s.dialoge = &dialoge;
    s.jahr = 1997;
    s.schicht = INFO;
    starten(s);
    musterpersonaleinsetzen(s, personal);
}

} // namespace

void installieren(const fs::path& quellen, const fs::path& ziel) {
    const Arbeitsordner ordner(ziel);
    ordner.anlegen();
    if (!ohnebestand(ordner))
        throw Dateifehler(ziel.string(), "Der Zielordner hält schon einen Datenbestand.");
    std::map<int, std::string> texte = texttabellelesen(quellen / "texte.tsv");
    const auto personal = musterpersonallesen(quellen / "personal" / "muster1997.tsv");
    for (const auto& [nummer, person] : personal)
        texte[5000 + nummer] = person.name;
    // The rest of the first twenty persons are named as a first start names them.
    for (int n = 1; n <= 20; ++n)
        texte.try_emplace(5000 + n, std::to_string(n) + ". Name");
    texttabelleschreiben(texte, ziel / "Texte.txt");
    tarifeuebersetzen(quellen, ziel);
    voeschreibennach(voelesenausquelle(quellen / "vorgaben" / "voe.tsv"), ziel / "Lonvir97.voe");
    dimschreibennach(dimlesenausquelle(quellen / "vorgaben" / "farben.tsv"),
                     kvlesenausquelle(quellen / "vorgaben" / "kv_saetze.tsv"),
                     ziel / "Lonvir97.dim");
    bestandanlegen(ziel, personal);
    hilfeschreiben(quellen / "hilfe", ziel);
}

bool ohnebestand(const Arbeitsordner& ordner) {
    std::vector<std::string> namen = {"Texte.txt", "Lonvir97.dim", "Lonvir97.voe"};
    for (int jahr : {1997, 1998}) {
        for (int n = 1; n <= 4; ++n)
            namen.push_back(tarifdateiname(jahr, n));
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
