// uebertragen: one person's twelve months and remark card into the neighbouring layer.
#include "cli/befehle.h"
#include "screen/uebertragung.h"

#include <ostream>

namespace lonvir::cli {

namespace {

const char* const namen[] = {"INFO", "PLAN", "REAL"};

std::int16_t schichtoption(const Optionen& o, const std::string& name) {
    const std::string w = o.pflicht(name);
    for (std::int16_t x : {INFO, PLAN, REAL})
        if (w == namen[x])
            return x;
    throw Aufruffehler("--" + name + " muss INFO, PLAN oder REAL sein, nicht \"" + w + "\".");
}

} // namespace

int uebertragen(Kontext& k, std::ostream& aus) {
    k.optionen.nurErlaubt({"von", "nach", "person"});
    const std::int16_t von = schichtoption(k.optionen, "von");
    const std::int16_t nach = schichtoption(k.optionen, "nach");
    if (!benachbart(von, nach))
        throw Aufruffehler("Übertragen wird nur zwischen benachbarten Schichten: INFO und PLAN, "
                           "PLAN und REAL.");
    const long person = k.optionen.zahl("person", 1, 1000);
    if (person > k.s.anzahlnamen)
        throw Aufruffehler("Person " + std::to_string(person) + " gibt es nicht; angelegt sind " +
                           std::to_string(k.s.anzahlnamen) + ".");
    k.s.aktuelleperson = static_cast<std::int16_t>(person);
    lonvir::uebertragen(k.s, von, nach);
    if (k.json) {
        Json j;
        j.objektAnfang()
            .zahl("jahr", k.s.jahr)
            .zahl("person", person)
            .text("von", namen[von])
            .text("nach", namen[nach]);
        k.meldungenAnhaengen(j);
        aus << j.objektEnde().ergebnis() << "\n";
    } else {
        aus << "Person " << person << ", Jahr " << k.s.jahr << ": " << namen[von] << " > "
            << namen[nach] << " übertragen (12 Monate und Bemerkungen)\n";
    }
    return 0;
}

} // namespace lonvir::cli
