// Page 2: the start lock switched off and on, and the way to a new password.
#include "panels/vorgabeseiten.h"
#include "start/einstellungen.h"

namespace lonvir {

namespace {

constexpr const char* hinweis[6] = {
    "Eine Paßwrteingabe besteht aus",      "max. 8 Tastenanschlägen. Bitte",
    "verwenden Sie nur Buchstabentasten!", "Tastenkombinationen (z.B. für Groß-",
    "buchstaben) sind nicht erlaubt.",     "Die Returntaste schließt"};

// The lock as the list shows it: 1 is on; anything else, above 1 as well, counts as off.
int passwortposition(const Sitzung& s) {
    return s.dim.passwortart == Currency::ganz(1) ? 1 : 0;
}

} // namespace

void passwortseite(Tablett& t) {
    listenfuellen(t);
    const int breite = t.Tablettbreite - 200;
    int oben = vorgabelage::anfang;
    for (int i = 0; i < 6; ++i, oben += vorgabelage::abstand)
        vorgabezeile(t, i, hinweis[i], oben, breite);
    oben += 200;
    vorgabeliste(t, 0, t.Combo[0].liste, passwortposition(t.s),
                 {vorgabelage::links, oben, breite, vorgabelage::feldhoehe});
    oben += 500;
    t.Command2.text = "Schließen";
    t.Command2.lage = {vorgabelage::links, oben, 1400, 400};
    t.Command2.sichtbar = true;
    t.Command3.text = "Passwort ändern";
    t.Command3.lage = {vorgabelage::links + 1500, oben, 1500, 400};
    t.Command3.sichtbar = true;
    t.fokus = {Tablettfokusart::combo, 0};
}

void passwortartklick(Tablett& t) {
    const int position = t.Combo[0].position;
    if (position != 0 && position != 1)
        return;
    t.s.dim.passwortart = Currency::ganz(position);
    dimschreiben(t.s);
}

} // namespace lonvir
