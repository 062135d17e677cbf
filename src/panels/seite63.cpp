// Page 63: the rates and ceilings of social insurance, fourteen lists of the year's record.
#include "panels/vorgabeseiten.h"
#include "start/einstellungen.h"

namespace lonvir {

namespace {

// Combo(i) by row and column: the rate, the ceiling West, the ceiling Ost; the limit of
// marginal employment has no rate.
constexpr int keine = -1;
constexpr int raster[5][3] = {{0, 4, 9}, {1, 5, 10}, {2, 6, 11}, {3, 7, 12}, {keine, 8, 13}};
constexpr const char* zeilen[5] = {"KV", "PV", "RV", "AV", "Geringfüg.Grenze"};
constexpr int kopf = 3;
constexpr int zeilenanfang = 900;
constexpr int zeilenabstand = 360;
constexpr int beschriftung = 1400;

} // namespace

void sozvorgabenseite(Tablett& t) {
    listenfuellen(t);
    const int breite = t.Tablettbreite;
    vorgabezeile(t, 0, "Vorgaben für die Soz.Vers.", vorgabelage::anfang, breite - 200, true);
    vorgabezeile(t, 1, "im Jahr " + vorgabejahr(t.s), vorgabelage::anfang + 240, breite - 200);
    vorgabezeile(t, 2, "       Beitragssätze     BMG-West        BMG-Ost",
                 vorgabelage::anfang + 480, breite - 200);
    const int spalte = (breite - beschriftung - 200) / 3;
    for (int r = 0; r < 5; ++r) {
        const int oben = zeilenanfang + r * zeilenabstand;
        vorgabezeile(t, kopf + r, zeilen[r], oben + 30, beschriftung - 150);
        for (int k = 0; k < 3; ++k) {
            const int i = raster[r][k];
            if (i == keine)
                continue;
            vorgabeliste(t, i, t.Combo[i].liste, t.s.voreinstellung[i].gerundetInt32(),
                         {beschriftung + k * spalte, oben, spalte - 60, vorgabelage::feldhoehe});
        }
    }
    vorgabeknoepfe(t, zeilenanfang + 5 * zeilenabstand + 200);
    t.fokus = {Tablettfokusart::combo, 0};
}

void sozvorgabenspeichern(Tablett& t) {
    Sitzung& s = t.s;
    for (int i = 0; i <= 13; ++i) {
        // A list that shows no entry (a stored step outside its list) keeps the step.
        const int position = t.Combo[i].position;
        if (position >= 0)
            s.voreinstellung[i] = Currency::ganz(position);
    }
    voeschreiben(s);
    vorgabenableiten(s);
    // kostenneu: the employer's cost and every figure of the person follow the new rates.
    monatsbereichrechnen(t);
    t.gespeichert = true;
    t.schliessen();
}

} // namespace lonvir
