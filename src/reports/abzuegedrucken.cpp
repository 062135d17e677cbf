// The deduction annex.
#include "reports/abzuegedrucken.h"

#include "core/druckformat.h"
#include "start/texte.h"

namespace lonvir {

namespace {

constexpr int sonstigebezuege = 13; // the wage-tax sheet's heading of one-off pay

// The program-wide mark of the annex being built.
std::int16_t laufenderdruckmodus = 0;

// The entries of the social-insurance and pension sheets that hold only a filler on paper.
void fuellerleeren(Druckspalten& d) {
    d(2, 27).clear();
    for (int j : {0, 9, 10, 11, 18, 19, 21, 23, 25, 27})
        d(3, j).clear();
    for (int j : {13, 19})
        d(4, j).clear();
    for (int j : {9, 10, 13, 19, 20, 26})
        d(5, j).clear();
    d(4, 27) = "    werden hier nicht berücksichtigt.";
}

// A label cut to 34 characters unless it is the one printed in full.
std::string spaltentext(const std::string& text, bool voll) {
    return voll ? text : links(text, 34);
}

} // namespace

std::int16_t druckmodus() {
    return laufenderdruckmodus;
}

Druckspalten druckspaltenfuellen(Sitzung& s, const Arbeitsblaetter& blaetter) {
    // 3. and 5. or 6.
    const bool beamte = s.personalart() < 5;
    Druckspalten d = blaetter(!beamte);
    // 4.
    d(0, 0) = links(d(0, 0), 19);
    d(0, sonstigebezuege) = "Lohnsteuerberechnung aus \"Sonst. Bezug\"";
    d(1, sonstigebezuege).clear();
    if (beamte) {
        for (int spalte = 2; spalte <= 5; ++spalte)
            for (int j = 0; j <= 28; ++j)
                d(spalte, j).clear();
        d(2, 1) = "Entfällt bei Beamten.";
        d(4, 1) = "Entfällt bei Beamten.";
    } else {
        fuellerleeren(d);
    }
    // 7.
    d(5, 27).clear();
    d(1, 0).clear();
    d(5, 0).clear();
    d(2, 0) = "S O Z I A L V E R S I C H E R U N G";
    d(4, 0) = "Z U S A T Z V E R S O R G U N G";
    return d;
}

void abzuegedrucken(Sitzung& s, const Schirmtexte& bild, const Arbeitsblaetter& blaetter,
                    Drucker& d) {
    // 1.
    if (bild.position[15] == 12) {
        if (s.dialoge)
            s.dialoge->zeigen({"Jahr",
                               "Für das Jahresgehalt ist derzeit noch keine Übersicht über die "
                               "Berechnung der Abzüge zum Ausdrucken verfügbar.",
                               Symbol::keins, Knoepfe::okAbbrechen});
        return;
    }
    // 2.
    d.Orientation(querformat);
    // Reset however the sheets end: the panel's builders look at it.
    struct Druckmodus {
        Druckmodus() { laufenderdruckmodus = 41; }
        ~Druckmodus() { laufenderdruckmodus = 0; }
        Druckmodus(const Druckmodus&) = delete;
        Druckmodus& operator=(const Druckmodus&) = delete;
    } modus;
    d.FontName("courier new");
    d.FontSize(12);
    d.FontBold(true);
    d.Print({});
    d.Print({});
    // 3. to 7.
    const Druckspalten spalten = druckspaltenfuellen(s, blaetter);
    // 8.
    d.FontSize(14);
    d.FontBold(true);
    d.Print({Tab{1}, "A N L A G E  zu :  " + grossbuchstaben(getrimmt(bild.z[20])) + " für " +
                         textgetrimmt(s, textnummer::ersterName - 1 + s.aktuelleperson)});
    d.Print({});
    d.FontSize(8.25F);
    // 9.
    for (int j = 0; j <= 27; ++j) {
        d.FontBold(j == 0);
        d.Print({Tab{1}, spaltentext(spalten(0, j), j == sonstigebezuege)}, Zeilenende::bleiben);
        betragrechts(d, 46, getrimmt(spalten(1, j)));
        d.Print({Tab{54}, spaltentext(spalten(2, j), j == 0)}, Zeilenende::bleiben);
        betragrechts(d, 100, spalten(3, j));
        d.Print({Tab{108}, spaltentext(spalten(4, j), j == 27)}, Zeilenende::bleiben);
        betragrechts(d, 154, spalten(5, j), Zeilenende::neu);
        d.Print({});
    }
    // 10.
    d.EndDoc();
}

} // namespace lonvir
