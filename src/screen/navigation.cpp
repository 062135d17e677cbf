// Person, month, layer and year of the main form.
#include "screen/navigation.h"

#include "start/dateisatz.h"
#include "start/einstellungen.h"

namespace lonvir {

void personwechseln(Sitzung& s, Hauptform& form, int position) {
    // Every change was stored when it was calculated: the old person needs no store.
    s.merkmal[0] = static_cast<std::int16_t>(position);
    s.aktuelleperson = static_cast<std::int16_t>(position + 1);
    form.bildauffrischen();
}

void monatwechseln(Sitzung& s, Hauptform& form, int position) {
    // Below 12 the refresh reads that month's record; at 12 it builds the year view.
    s.merkmal[20] = static_cast<std::int16_t>(position);
    form.bildauffrischen();
}

void schichtklick(Sitzung& s, Hauptform& form, std::int16_t schicht) {
    // 1.
    s.schicht = schicht;
    // 2.
    form.schichtanzeigen(schicht);
    // 3.
    dateienoeffnen(s);
    dimlesen(s);
    form.zeilenfarben();
    form.bildauffrischen();
}

bool jahrgewaehlt(const Sitzung& s, int jahr) {
    return jahr == 1997 ? s.ist1997() : s.jahr == jahr;
}

void jahrklick(Sitzung& s, Hauptform& form, std::int16_t jahr) {
    if (jahrgewaehlt(s, jahr))
        return;
    s.jahr = jahr;
    form.sanduhr(true);
    s.Tablettseite = jahr == 1997 ? 49 : 48;
    form.entladen();
    dateienoeffnen(s);
    voelesen(s);
    form.jahresanzeige();
    form.laden();
    form.sanduhr(false);
}

} // namespace lonvir
