// Page 65: the supplementary pension: fund, taxation mode, church tax on the flat-rate tax,
// and the ten amounts of the ZVK table (four steps and the limit, West and Ost).
#include "panels/vorgabeseiten.h"
#include "panels/vorgabezahl.h"
#include "start/einstellungen.h"
#include "start/texte.h"

#include <cmath>

namespace lonvir {

namespace {

constexpr int erstesfeld = 2; // Text(i) is vorgabewert(i + 2)
constexpr double hoechstbetrag = 20000;

std::string betragtext(std::int32_t dm) {
    return std::to_string(dm);
}

// The caption of row r of the table: the first month of the tariff period of that row, or
// the limit. Rows 0 to 4 are the West, 5 to 9 the Ost.
std::string tabellenzeile(const Sitzung& s, int r) {
    const int zeile = r % 5;
    const std::string ort = r < 5 ? " West" : " Ost";
    if (zeile == 4)
        return "Grenze" + ort;
    const Einstellungswerte& e = s.einstellungen;
    const std::int32_t ab[4] = {1, e.ab_tarif2, e.ab_tarif3, e.ab_tarif4};
    const std::int32_t monat = ab[zeile];
    if (monat <= 0)
        return "Tarif " + std::to_string(zeile + 1) + " inaktiv" + ort;
    const std::string m = std::to_string(monat);
    return "ab " + std::string(m.size() < 2 ? " " : "") + m + " / " + vorgabejahr(s) + ort;
}

// Enter in a box of a block copies its value into the boxes below it in that block.
int blockende(int index) {
    if (index >= 0 && index <= 2)
        return 3;
    if (index >= 5 && index <= 7)
        return 8;
    return index;
}

void meldung(Sitzung& s, const char* titel, const char* text) {
    if (s.dialoge)
        s.dialoge->zeigen({titel, text, Symbol::ausruf, Knoepfe::ok});
}

} // namespace

void zvkvorgabenseite(Tablett& t) {
    listenfuellen(t);
    Sitzung& s = t.s;
    const int breite = t.Tablettbreite - 200;
    int oben = vorgabelage::anfang;
    vorgabezeile(t, 0, "Zusatzversorgungskasse", oben, breite, true);
    oben += vorgabelage::abstand;
    vorgabezeile(t, 1, "im Jahr " + vorgabejahr(s), oben, breite);
    oben += vorgabelage::abstand;
    const int texte[8] = {4037, 4040, 4041, 4042, 4043, 4044, 4045, 4046};
    for (int i = 0; i < 8; ++i, oben += vorgabelage::abstand)
        vorgabezeile(t, 2 + i, textlesen(s, texte[i]), oben, breite);
    oben += 60;
    for (int i = 0; i <= 2; ++i, oben += 330)
        vorgabeliste(t, i, t.Combo[i].liste, s.voreinstellung[26 + i].gerundetInt32(),
                     {vorgabelage::links, oben, breite, vorgabelage::feldhoehe});
    oben += 60;
    const int feldlinks = breite - 1200;
    for (int r = 0; r < 10; ++r, oben += 300) {
        vorgabezeile(t, 10 + r, tabellenzeile(s, r), oben + 30, feldlinks - 150);
        Tablettfeld& f = t.Text[r];
        f.text = betragtext(s.vorgabewert[erstesfeld + r]);
        f.lage = {feldlinks, oben, 1300, vorgabelage::feldhoehe};
        f.vordergrund = 12;
        f.sichtbar = true;
    }
    vorgabeknoepfe(t, oben + 100);
    t.fokus = {Tablettfokusart::combo, 0};
}

int zvktaste(Tablett& t, int index, int taste) {
    if ((taste >= 32 && taste <= 43) || (taste >= 45 && taste <= 47) ||
        (taste >= 58 && taste <= 127))
        return 0;
    if (taste == ',')
        return '.';
    if (taste != 13)
        return taste;
    const std::string wert = t.Text[index].text;
    if (vorgabezahl(wert) > hoechstbetrag) {
        t.Text[index].text.clear();
        meldung(t.s, "Fehler", "Ein Betrag über 20.000 ist sicher falsch.");
        return 0;
    }
    for (int i = index + 1; i <= blockende(index); ++i)
        t.Text[i].text = wert;
    t.fokus = {Tablettfokusart::knopf, 1};
    return 0;
}

void zvkvorgabenspeichern(Tablett& t) {
    Sitzung& s = t.s;
    for (int i = 0; i <= 2; ++i)
        if (t.Combo[i].position >= 0)
            s.voreinstellung[26 + i] = Currency::ganz(t.Combo[i].position);
    for (int i = 0; i <= 9; ++i) {
        double betrag = vorgabezahl(t.Text[i].text);
        if (betrag > hoechstbetrag) {
            betrag = hoechstbetrag;
            meldung(s, "Eingriff", "Ein Betrag war zu groß und wurde auf 20.000 zurückgesetzt.");
        }
        // Whole DM, rounded to the nearest, ties to even.
        s.vorgabewert[erstesfeld + i] = static_cast<std::int32_t>(std::nearbyint(betrag));
    }
    voeschreiben(s);
    vorgabenableiten(s);
    monatsbereichrechnen(t);
    for (int i = 0; i <= 4; ++i)
        t.Combo[i].aktiv = true;
    t.gespeichert = true;
    t.schliessen();
}

} // namespace lonvir
