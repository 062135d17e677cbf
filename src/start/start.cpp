// The start sequence: file set, settings, display settings, start lock, persons.
#include "start/start.h"

#include "core/dateitausch.h"
#include "core/pfennig.h"
#include "start/dateisatz.h"
#include "start/einsetzen.h"
#include "start/einstellungen.h"
#include "start/personenanlegen.h"

#include <cstdint>

namespace lonvir {

namespace {
// The branch on the start lock: 0 opens the main form, 1 the password form. Above 1 the lock
// counts as 0 in memory only, and the start form stays up with no main form after it; any
// other value (below 0, or not whole) matches no branch and likewise stops the start.
Startergebnis startsperre(Sitzung& s) {
    if (s.dim.passwortart == Currency::ganz(0))
        return Startergebnis::hauptform;
    if (s.dim.passwortart == Currency::ganz(1))
        return Startergebnis::passwort;
    if (s.dim.passwortart > Currency::ganz(1))
        s.dim.passwortart = Currency::ganz(0);
    return Startergebnis::angehalten;
}
} // namespace

Startergebnis starten(Sitzung& s) {
    // A working folder without a store is first seeded from the installation data.
    if (!s.installation.empty() && installation::ohnebestand(s.ordner))
        installation::einsetzen(s.installation, s.ordner);
    // A year change that was interrupted is completed or undone before any file is opened.
    dateitauschaufraeumen(s.ordner.ordner());
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
    const Startergebnis ergebnis = startsperre(s);
    s.startphase = 0;
    s.aenderungssperre = 0;
    return ergebnis;
}

int ortwiederherstellen(Sitzung& s) {
    // The person of the settings, as far as the name list reaches; 0 counts as person 1.
    std::int32_t person = s.voreinstellung[15].gerundetInt32();
    if (person < 1 || person > 1000)
        person = 1;
    if (person > s.anzahlnamen)
        person = s.anzahlnamen < 1 ? 1 : s.anzahlnamen;
    s.aktuelleperson = static_cast<std::int16_t>(person);
    s.merkmal[0] = pf::int16(s.aktuelleperson - 1);
    const std::int32_t monat = s.voreinstellung[16].gerundetInt32();
    if (monat >= 0 && monat <= 12)
        s.merkmal[20] = static_cast<std::int16_t>(monat);
    const std::int32_t schicht = s.voreinstellung[14].gerundetInt32();
    if (schicht < INFO || schicht > REAL)
        return -1;
    if (schicht != s.schicht) {
        s.schicht = static_cast<std::int16_t>(schicht);
        dateienoeffnen(s);
    }
    return schicht;
}

} // namespace lonvir
