// Captions and boxes placed by the page builders.
#include "panels/seitenteile.h"

namespace lonvir {

void zeilezeigen(Tablett& t, int i, const std::string& text, Lage lage, bool fett) {
    Tablettzeile& z = t.zeile[i];
    z.text = text;
    z.lage = lage;
    z.fett = fett;
    z.sichtbar = true;
}

void kastenzeigen(Tablett& t, int i, Lage lage) {
    Tablettkasten& k = t.kasten[i];
    k.lage = lage;
    k.autogroesse = false;
    k.fase = 1;
    k.sichtbar = true;
}

} // namespace lonvir
