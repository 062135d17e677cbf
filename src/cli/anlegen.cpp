// anlegen: open (and so create) the file set as the start of the program does.
#include "cli/befehle.h"

#include <ostream>

namespace lonvir::cli {

int anlegen(Kontext& k, std::ostream& aus) {
    k.optionen.nurErlaubt({});
    if (k.json) {
        Json j;
        j.objektAnfang()
            .text("ordner", k.s.ordner.ordner().string())
            .zahl("jahr", k.s.jahr)
            .zahl("schicht", k.s.schicht)
            .zahl("personen", k.s.anzahlnamen);
        k.meldungenAnhaengen(j);
        aus << j.objektEnde().ergebnis() << "\n";
    } else {
        aus << "Arbeitsordner " << k.s.ordner.ordner().string() << ": " << k.s.anzahlnamen
            << " Personen, Jahr " << k.s.jahr << "\n";
    }
    return 0;
}

} // namespace lonvir::cli
