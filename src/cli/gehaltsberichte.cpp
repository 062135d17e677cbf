// drucken brutto|netto|ag: the pay statement of one person, or of every person of the layer,
// for a month, each loaded and refreshed as a click on the person does it.
#include "cli/druckberichte.h"

#include "reports/gehaltdrucken.h"
#include "screen/form1.h"
#include "screen/schirmtexte.h"

namespace lonvir::cli {

namespace {

// --person (default: all persons of the layer) and --monat 1..12.
struct Auswahl {
    int erste = 1;
    int letzte = 0;
    int monat = 1;
};

Auswahl auswahlAus(Kontext& k) {
    Auswahl a;
    a.monat = static_cast<int>(k.optionen.zahl("monat", 1, 12));
    a.letzte = k.s.anzahlnamen;
    if (k.optionen.wert("person")) {
        const long person = k.optionen.zahl("person", 1, 1000);
        if (person > k.s.anzahlnamen)
            throw Aufruffehler("Person " + std::to_string(person) +
                               " gibt es nicht; angelegt sind " + std::to_string(k.s.anzahlnamen) +
                               ".");
        a.erste = a.letzte = static_cast<int>(person);
    } else if (k.s.anzahlnamen == 0) {
        throw Aufruffehler("In dieser Schicht ist keine Person angelegt.");
    }
    return a;
}

// Calls `drucken` with the main screen of each chosen person's month.
template <typename F> void jedePerson(Kontext& k, F drucken) {
    const Auswahl a = auswahlAus(k);
    Form1 form(k.s);
    form.listenfuellen();
    form.namensliste();
    for (int person = a.erste; person <= a.letzte; ++person) {
        k.s.aktuelleperson = static_cast<std::int16_t>(person);
        k.s.merkmal[0] = static_cast<std::int16_t>(person - 1);
        k.s.merkmal[20] = static_cast<std::int16_t>(a.monat - 1);
        form.bildauffrischen();
        drucken(form);
    }
}

Druckbericht gehaltsbericht(const char* name, const char* titel, int statementform) {
    Druckbericht b;
    b.name = name;
    b.titel = titel;
    b.optionen = {"person", "monat"};
    b.drucken = [statementform](Kontext& k, Drucker& d) {
        jedePerson(
            k, [&](Form1& form) { gehaltdrucken(k.s, schirmtexte(form.bild), statementform, d); });
    };
    return b;
}

const Druckberichtanmeldung brutto(gehaltsbericht("brutto", "Gehaltsberechnung nur brutto",
                                                  nurbrutto));
const Druckberichtanmeldung netto(gehaltsbericht("netto", "Gehaltsberechnung brutto/netto",
                                                 bruttonetto));
const Druckberichtanmeldung ag(gehaltsbericht("ag", "Gehaltsberechnung mit AG-Aufw.",
                                              mitarbeitgeber));

} // namespace

} // namespace lonvir::cli
