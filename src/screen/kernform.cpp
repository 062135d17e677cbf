// The main form without a window: refresh by loading the month, load and unload as the form.
#include "screen/hauptform.h"

#include "engine/monatladen.h"
#include "engine/steuerrechtwahl.h"
#include "start/einstellungen.h"
#include "start/start.h"
#include "start/texte.h"

namespace lonvir {

std::string fenstertitel(const Sitzung& s) {
    std::string titel = std::string("LONVIR ") + (s.ist1997() ? "1997" : std::to_string(s.jahr)) +
                        " im öffentlichen Dienst    (ohne Gewähr)";
    // The months of 1998 computed by the tax law of 1998 say so; the law of 1997 is the rule.
    if (steuerrechtfuer(s) == Steuerrecht::recht1998)
        titel += "    " + steuerrechtzeile(s);
    return titel;
}

void Kernform::bildauffrischen() {
    const std::int16_t monat = s_.merkmal[20] >= 0 && s_.merkmal[20] <= 12 ? s_.merkmal[20] : 0;
    monatladen(s_, s_.aktuelleperson, monat);
    // The marks of the year menus end with the refresh of the left column.
    if (s_.Tablettseite == 48 || s_.Tablettseite == 49)
        s_.Tablettseite = 0;
}

void Kernform::jahresanzeige() {
    titel = fenstertitel(s_);
}

void Kernform::entladen() {
    dimschreiben(s_);
}

void Kernform::laden() {
    sanduhr(true);
    s_.aenderungssperre = -1;
    s_.anzahlnamen = personenzaehlen(s_);
    s_.startphase = 0;
    zeilenfarben();
    jahresanzeige();
    const int schicht = ortwiederherstellen(s_);
    aktiveSchicht = schicht;
    s_.aenderungssperre = 0;
    bildauffrischen();
    sanduhr(false);
}

} // namespace lonvir
