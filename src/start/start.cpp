// The start sequence: file set, settings, display settings, start lock, persons.
#include "start/start.h"

#include "start/dateisatz.h"
#include "start/einstellungen.h"
#include "start/personenanlegen.h"

namespace lonvir {

Startergebnis starten(Sitzung& s) {
    s.startphase = 1;
    s.aenderungssperre = -1;
    const std::int16_t schicht = s.schicht;
    dateienoeffnen(s);
    voelesen(s);
    dimlesen(s);
    personenanlegen(s);
    // Person creation leaves the last layer open; reopen the layer the start asked for.
    s.schicht = schicht;
    dateienoeffnen(s);
    Startergebnis ergebnis = Startergebnis::hauptform;
    if (s.dim.passwortart == Currency::ganz(1)) {
        ergebnis = Startergebnis::passwort;
    } else if (s.dim.passwortart > Currency::ganz(1)) {
        // Treated as no lock in memory; the start form stays and no main form follows.
        s.dim.passwortart = Currency::ganz(0);
        ergebnis = Startergebnis::angehalten;
    }
    s.startphase = 0;
    s.aenderungssperre = 0;
    return ergebnis;
}

} // namespace lonvir
