// Page 64: the four Christmas-bonus quotas of the year, in percent of the pay.
#include "panels/vorgabeseiten.h"
#include "panels/vorgabezahl.h"
#include "start/einstellungen.h"
#include "start/texte.h"

#include <cstdio>

namespace lonvir {

namespace {

constexpr int erstertext = 4020;
constexpr int erklaerung = 4022; // thirteen lines, 4022 to 4034
constexpr int hoechstquote = 100;

// A stored quota as the box shows it: "93.78", "100", "0".
std::string quotentext(Currency quote) {
    char puffer[32];
    std::snprintf(puffer, sizeof puffer, "%.4f", quote.alsDouble());
    std::string text = puffer;
    while (text.back() == '0')
        text.pop_back();
    if (text.back() == '.')
        text.pop_back();
    return text;
}

} // namespace

void weihnachtsseite(Tablett& t) {
    const int breite = t.Tablettbreite - 200;
    int oben = vorgabelage::anfang;
    for (int i = 0; i <= 1; ++i, oben += vorgabelage::abstand)
        vorgabezeile(t, i, textlesen(t.s, erstertext + i), oben, breite, true);
    oben += 60;
    for (int i = 0; i < 13; ++i, oben += vorgabelage::abstand)
        vorgabezeile(t, 2 + i, textlesen(t.s, erklaerung + i), oben, breite);
    // Two columns, West and Ost; Text(0) and Text(1) the civil servants, Text(2) and Text(3)
    // the employees, as the engine reads the quotas.
    oben += 120;
    const int spalte = 1300;
    vorgabezeile(t, 15, "West", oben, 900);
    t.zeile[15].lage.links = 1100;
    vorgabezeile(t, 16, "Ost", oben, 900);
    t.zeile[16].lage.links = 1100 + spalte;
    oben += vorgabelage::abstand + 40;
    const char* gruppen[2] = {"Beamte", "Angest."};
    for (int r = 0; r < 2; ++r, oben += 360) {
        vorgabezeile(t, 17 + r, gruppen[r], oben + 30, 900);
        for (int k = 0; k < 2; ++k) {
            Tablettfeld& f = t.Text[2 * r + k];
            f.text = quotentext(t.s.voreinstellung[30 + 2 * r + k]);
            f.lage = {1100 + k * spalte, oben, spalte - 100, vorgabelage::feldhoehe};
            f.vordergrund = 12;
            f.sichtbar = true;
        }
    }
    vorgabeknoepfe(t, oben + 150);
    t.fokus = {Tablettfokusart::text, 0};
}

int weihnachtstaste(Tablett& t, int index, int taste) {
    if ((taste >= 32 && taste <= 43) || taste == 45 || taste == 47 || (taste >= 58 && taste <= 127))
        return 0;
    if (taste == ',')
        return '.';
    if (taste == 13) {
        t.fokus = index < 3 ? Tablettfokus{Tablettfokusart::text, index + 1}
                            : Tablettfokus{Tablettfokusart::knopf, 1};
        return 0;
    }
    return taste;
}

void weihnachtsspeichern(Tablett& t) {
    Sitzung& s = t.s;
    for (int i = 0; i <= 3; ++i) {
        double quote = vorgabezahl(t.Text[i].text);
        // A quota above the whole pay is no quota: it is cut to 100 without a word.
        if (quote > hoechstquote)
            quote = hoechstquote;
        s.voreinstellung[30 + i] = Currency::gerundet(quote);
    }
    voeschreiben(s);
    voelesen(s);
    vorgabenableiten(s);
    monatsbereichrechnen(t);
    t.gespeichert = true;
    t.schliessen();
}

} // namespace lonvir
