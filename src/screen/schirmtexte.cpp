// The texts the main screen shows.
#include "screen/schirmtexte.h"

namespace lonvir {

Schirmtexte schirmtexte(const Hauptbild& bild) {
    Schirmtexte texte;
    for (std::size_t zeile = 0; zeile < bild.zeilen.size(); ++zeile) {
        const Bildzeile& b = bild.zeilen[zeile];
        const bool gezeigt =
            b.hatListe && b.position >= 0 && b.position < static_cast<int>(b.liste.size());
        texte.z[zeile] = gezeigt ? b.liste[static_cast<std::size_t>(b.position)] : std::string();
        texte.t[zeile] = b.hatWertfeld ? b.wert : std::string();
        texte.position[zeile] = b.hatListe ? b.position : -1;
    }
    return texte;
}

} // namespace lonvir
