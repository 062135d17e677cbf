// The load of a month: record, keyed values, calculation.
#include "engine/monatladen.h"

#include "engine/berechnen.h"
#include "engine/stufenliste.h"
#include "start/satzzugriff.h"
#include "start/vorgang.h"

namespace lonvir {

void monatladen(Sitzung& s, std::int16_t person, std::int16_t monatsindex) {
    // The load reads the person's months once, however often the run needs them.
    Lesezeitraum zeitraum(s);
    s.aenderungssperre = -1;
    s.aktuelleperson = person;
    s.merkmal[0] = static_cast<std::int16_t>(person - 1);
    s.merkmal[20] = monatsindex;
    s.jahressperre = 0;
    if (monatsindex == 12) {
        jahressumme(s);
    } else {
        satzlesen(s);
        eingabewerte(s);
        // The step list is rebuilt with the month, and with it the step from the service age.
        stufenliste(s);
        stufeklemmen(s);
    }
    s.aenderungscode = 0;
    berechnen(s);
    s.aenderungssperre = 0;
}

} // namespace lonvir
