// The panel's working sheets copied for the deduction annex.
#include "panels/arbeitsblaetter.h"

#include "panels/seiten.h"

namespace lonvir {

namespace {

void kopieren(const Tablett& t, Druckspalten& d, int beschriftung) {
    for (int j = 0; j <= 27; ++j) {
        d(beschriftung, j) = t.zeile[j].text;
        d(beschriftung + 1, j) = t.kasten[j].text;
    }
}

} // namespace

Druckspalten arbeitsblaetterkopieren(Sitzung& s, bool sozialversicherung) {
    Form1lage lage;
    Tablett t(s, lage);
    t.Form_Load();
    Druckspalten d;
    lohnsteuerzeilen(t);
    lohnsteuerbetraege(t);
    kopieren(t, d, 0);
    if (sozialversicherung) {
        sozialzeilen(t);
        sozialbetraege(t);
        kopieren(t, d, 2);
        zvkzeilen(t);
        zvkbetraege(t);
        kopieren(t, d, 4);
    }
    return d;
}

} // namespace lonvir
