// Page 44: the tariff structure of the year: the multipliers of the pay of civil servants
// and employees with their first months, and the month from which each tariff file applies.
#include "panels/vorgabeseiten.h"
#include "start/einstellungen.h"
#include "start/texte.h"

namespace lonvir {

namespace {

constexpr int erstesElement = 18; // Combo(i) is voreinstellung(i + 17)

} // namespace

void tarifstrukturseite(Tablett& t) {
    listenfuellen(t);
    Sitzung& s = t.s;
    const int breite = t.Tablettbreite - 200;
    int oben = vorgabelage::anfang;
    vorgabezeile(t, 0, "Einsatz der Tariftabellen", oben, breite, true);
    oben += vorgabelage::abstand;
    vorgabezeile(t, 1, "im Jahr " + vorgabejahr(s), oben, breite);
    oben += vorgabelage::abstand + 120;
    const auto liste = [&](int combo) {
        vorgabeliste(t, combo, t.Combo[combo].liste,
                     s.voreinstellung[erstesElement + combo - 1].gerundetInt32(),
                     {vorgabelage::links, oben, breite, vorgabelage::feldhoehe});
        oben += 330;
    };
    // The four tariff files, each under its caption (text records 4005 to 4008).
    for (int datei = 0; datei < 4; ++datei) {
        vorgabezeile(t, 2 + datei, textlesen(s, 4005 + datei), oben, breite);
        oben += vorgabelage::abstand;
        liste(5 + datei);
    }
    // The multipliers (text record 4009) and their first months.
    vorgabezeile(t, 6, textlesen(s, 4009), oben, breite);
    oben += vorgabelage::abstand;
    for (int combo = 1; combo <= 4; ++combo)
        liste(combo);
    // In 1998 the law of the wage tax: that of 1996/1997 as before, or that of 1998.
    if (!s.ist1997()) {
        vorgabezeile(t, 7, "Lohnsteuer der Monate 1998", oben, breite);
        oben += vorgabelage::abstand;
        vorgabeliste(t, steuerrechtcombo, t.Combo[steuerrechtcombo].liste,
                     s.voreinstellung[steuerrecht1998element].gerundetInt32(),
                     {vorgabelage::links, oben, breite, vorgabelage::feldhoehe});
        oben += 330;
    }
    vorgabeknoepfe(t, oben + 150);
    t.fokus = {Tablettfokusart::combo, 5};
}

void tarifstrukturspeichern(Tablett& t) {
    Sitzung& s = t.s;
    for (int combo = 1; combo <= 8; ++combo)
        if (t.Combo[combo].position >= 0)
            s.voreinstellung[erstesElement + combo - 1] = Currency::ganz(t.Combo[combo].position);
    if (!s.ist1997() && t.Combo[steuerrechtcombo].position >= 0)
        s.voreinstellung[steuerrecht1998element] =
            Currency::ganz(t.Combo[steuerrechtcombo].position);
    vorgabenableiten(s);
    voeschreiben(s);
    t.gespeichert = true;
    monatsbereichrechnen(t);
    t.schliessen();
}

} // namespace lonvir
