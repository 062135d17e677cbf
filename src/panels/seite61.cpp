// Page 61: the range of records a preset of the main screen is given to.
#include "panels/vorgabeseiten.h"
#include "panels/vorgabezahl.h"
#include "start/texte.h"

namespace lonvir {

namespace {

constexpr int erstertext = 4201; // twenty-four lines of explanation
constexpr int zeilen = 24;
constexpr int hoechstzahl = 1000;
constexpr int knopfoben = 5500;

void meldung(Sitzung& s, const char* titel, const char* text) {
    if (s.dialoge)
        s.dialoge->zeigen({titel, text, Symbol::ausruf, Knoepfe::ok});
}

} // namespace

void markierseite(Tablett& t) {
    const int breite = t.Tablettbreite - 200;
    // Twenty-two lines above the buttons at 5500; the last two, a footnote, below them.
    for (int i = 0; i < zeilen; ++i) {
        const int oben = i < 22 ? vorgabelage::anfang + i * vorgabelage::abstand
                                : knopfoben + 500 + (i - 22) * vorgabelage::abstand;
        vorgabezeile(t, i, textlesen(t.s, erstertext + i), oben, breite, i == 0);
    }
    // Lines 20 and 21 ask for the first and the last number; their boxes stand beside.
    for (int k = 1; k <= 2; ++k) {
        Tablettfeld& f = t.Text[k];
        const Tablettzeile& z = t.zeile[19 + k];
        f.lage = {t.Tablettbreite - 1100, z.lage.oben, 900, vorgabelage::abstand};
        f.text.clear();
        f.vordergrund = 12;
        f.sichtbar = true;
    }
    vorgabeknoepfe(t, knopfoben, "Markieren");
    t.Command1.schriftgroesse = 10;
    t.Command2.schriftgroesse = 10;
    t.fokus = {Tablettfokusart::text, 1};
}

int markiertaste(Tablett& t, int index, int taste) {
    if (taste == 13) {
        t.fokus = index == 1 ? Tablettfokus{Tablettfokusart::text, 2}
                             : Tablettfokus{Tablettfokusart::knopf, 1};
        return 0;
    }
    if (taste < 32 || (taste >= '0' && taste <= '9'))
        return taste;
    return 0;
}

void markieren(Tablett& t) {
    Tablettfeld& erste = t.Text[1];
    Tablettfeld& letzte = t.Text[2];
    // 1.
    if (vorgabezahl(letzte.text) > hoechstzahl) {
        meldung(t.s, "Leistungsbeschränkung",
                "Es können maximal 1000 Datensätze bearbeitet werden.");
        letzte.text = "1000";
        if (vorgabezahl(erste.text) > vorgabezahl(letzte.text))
            erste.text = letzte.text;
        return;
    }
    const auto von = static_cast<int>(vorgabezahl(erste.text));
    const auto bis = static_cast<int>(vorgabezahl(letzte.text));
    // 2.
    if (von > bis) {
        meldung(t.s, "Unlogische Eingabe", "Bitte korrigieren Sie Ihre Eingabe");
        return;
    }
    // 3.
    t.markierbereich = std::make_pair(von, bis);
    if (t.voreinstellmodus)
        t.voreinstellmodus(von, bis);
    t.schliessen();
}

} // namespace lonvir
