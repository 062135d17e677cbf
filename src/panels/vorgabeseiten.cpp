// What the settings pages share: their layout, the typed numbers and the recalculation of
// the person after a store.
#include "panels/vorgabeseiten.h"

#include "engine/monatladen.h"
#include "panels/seitenteile.h"

namespace lonvir {

void vorgabezeile(Tablett& t, int i, const std::string& text, int oben, int breite, bool fett) {
    zeilezeigen(t, i, text, {vorgabelage::links, oben, breite, vorgabelage::abstand}, fett);
}

void vorgabeknoepfe(Tablett& t, int oben, const std::string& speichern) {
    t.Command1.text = speichern;
    t.Command1.lage = {100, oben, 1500, 400};
    t.Command1.sichtbar = true;
    t.Command2.text = "Abbrechen";
    t.Command2.lage = {1800, oben, 1500, 400};
    t.Command2.sichtbar = true;
}

void vorgabeliste(Tablett& t, int index, std::vector<std::string> liste, int position,
                  const Lage& lage) {
    Tablettliste& c = t.Combo[index];
    c.liste = std::move(liste);
    c.position = position >= 0 && position < static_cast<int>(c.liste.size()) ? position : -1;
    c.lage = lage;
    c.vordergrund = 12;
    c.sichtbar = true;
}

void monatsbereichrechnen(Tablett& t) {
    Sitzung& s = t.s;
    const std::int16_t monat = s.merkmal[20];
    s.Neuberechnung = -1;
    for (std::int16_t m = 0; m <= 11; ++m)
        monatladen(s, s.aktuelleperson, m);
    s.Neuberechnung = 0;
    s.merkmal[20] = monat;
    if (t.linkespalteauffrischen)
        t.linkespalteauffrischen();
}

} // namespace lonvir
