// The start sequence: file set, settings, display settings, start lock, persons.
#include "start/start.h"

#include "core/dateitausch.h"
#include "core/ganzkopie.h"
#include "core/journal.h"
#include "core/pfennig.h"
#include "start/bestandspruefung.h"
#include "start/dateisatz.h"
#include "start/einsetzen.h"
#include "start/einstellungen.h"
#include "start/personenanlegen.h"
#include "start/texte.h"
#include "start/vorgang.h"

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
    // The start stops here; it says why instead of standing still without a word.
    if (s.dialoge)
        s.dialoge->zeigen({"Startsperre",
                           "Die Startsperre in Lonvir97.dim hat den Wert " +
                               s.dim.passwortart.text() +
                               ", der weder \"keine Sperre\" (0) noch \"Sperre\" (1) ist. "
                               "Das Hauptfenster öffnet sich nicht.",
                           Symbol::stop, Knoepfe::ok});
    if (s.dim.passwortart > Currency::ganz(1))
        s.dim.passwortart = Currency::ganz(0);
    return Startergebnis::angehalten;
}
// A folder for reading only: nothing is created; what the session writes stays in memory, and
// a complete journal left by an interrupted store is shown as stored.
void lesendvorbereiten(Sitzung& s) {
    if (!std::filesystem::is_directory(s.ordner.ordner()))
        throw Dateifehler(s.ordner.ordner().string(), "Der Arbeitsordner ist nicht vorhanden.");
    s.vorgang.beginnen();
    if (const auto schritte = journal::lesen(s.ordner.ordner()))
        for (const auto& schritt : *schritte) {
            const auto pfad = s.ordner.pfad(schritt.pfad.filename().string());
            if (schritt.art == Schreibvorgang::Schritt::Art::loeschen)
                s.vorgang.loeschen(pfad);
            else
                s.vorgang.schreiben(pfad, schritt.versatz, schritt.bytes);
        }
}

} // namespace

Startergebnis starten(Sitzung& s) {
    if (s.nurLesen) {
        lesendvorbereiten(s);
    } else {
        // A creation or a store interrupted by the end of the process is finished first.
        ganzkopie::aufraeumen(s.ordner.ordner());
        // A year change that was interrupted is completed or undone before any file is opened.
        dateitauschaufraeumen(s.ordner.ordner());
        journal::nachholen(s.ordner.ordner());
        // A working folder without a store is first seeded from the installation data.
        if (!s.installation.empty() && installation::ohnebestand(s.ordner))
            installation::einsetzen(s.installation, s.ordner);
        // Only the files that changed since they were last found sound are read.
        s.pruefvermerk.laden(s.ordner.ordner(), pruefregeln);
        if (auto schaden = bestandpruefen(s.ordner, s.jahr, &s.pruefvermerk))
            throw Bestandsschaden(*schaden);
    }
    // The start reads the names and settings once.
    Lesezeitraum zeitraum(s);
    s.startphase = 1;
    s.aenderungssperre = -1;
    const std::int16_t schicht = s.schicht;
    dateienoeffnen(s);
    voelesen(s);
    dimlesen(s);
    // A folder opened for reading only gets no new persons: it is shown as it stands.
    if (s.nurLesen) {
        s.anzahlnamen = personenzaehlen(s);
    } else if (personenanlegen(s)) {
        // Person creation leaves the last layer open; reopen the layer the start asked for.
        s.schicht = schicht;
        dateienoeffnen(s);
    }
    const Startergebnis ergebnis = startsperre(s);
    s.startphase = 0;
    s.aenderungssperre = 0;
    return ergebnis;
}

Startergebnis startenOderNurLesen(Sitzung& s) {
    try {
        return starten(s);
    } catch (const Bestandsschaden& schaden) {
        const bool nurLesen =
            s.dialoge != nullptr &&
            s.dialoge->zeigen({"Datenbestand beschädigt",
                               schaden.schaden().meldung() +
                                   "\n\nSoll der Arbeitsordner nur zum Lesen geöffnet werden? "
                                   "Eingaben werden dann gerechnet, aber nicht gespeichert. Mit "
                                   "\"Nein\" endet das Programm.",
                               Symbol::stop, Knoepfe::jaNein}) == Knopf::ja;
        if (!nurLesen)
            throw;
    }
    s.nurLesen = true;
    return starten(s);
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
