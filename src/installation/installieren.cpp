// Compiling the installation data into a working folder.
#include "installation/installieren.h"

#include "core/dialoge.h"
#include "core/laufzeitfehler.h"
#include "installation/hilfeseiten.h"
#include "installation/musterpersonal.h"
#include "installation/tariftabellen.h"
#include "installation/texttabelle.h"
#include "installation/vorgaben.h"
#include "start/start.h"

#include <string>

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

} // namespace lonvir::installation
