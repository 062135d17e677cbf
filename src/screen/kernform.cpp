// The main form without a window: refresh by loading the month, load and unload as the form.
#include "screen/hauptform.h"

#include "engine/monatladen.h"
#include "engine/steuerrechtwahl.h"
#include "start/einstellungen.h"
#include "start/texte.h"

namespace lonvir {

std::string fenstertitel(const Sitzung& s) {
    std::string titel = std::string("LONVIR ") + (s.ist1997() ? "1997" : std::to_string(s.jahr)) +
                        " im öffentlichen Dienst    (ohne Gewähr)";
    // The months of 1998 computed by the tax law of 1998 say so; the law of 1997 is the rule.
    if (steuerrechtfuer(s) == Steuerrecht::recht1998)
        titel += "    " + steuerrechtzeile(s);
    // A damaged store opened for reading only says so in the caption: nothing is stored.
    if (s.nurLesen)
        titel += "    - NUR LESEN: Eingaben werden nicht gespeichert";
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
    hauptformladen(s_, *this);
}

void Kernform::zeilenlistenfuellen() {
    s_.anzahlnamen = personenzaehlen(s_);
}

} // namespace lonvir
