// Pages of printed documents.
#include "core/druckseiten.h"

#include <algorithm>

namespace lonvir {

Druckbereich a4bereich(int ausrichtung) {
    const double quer = (papier::randlinks + papier::randrechts) * papier::punktjemm;
    const double laengs = (papier::randoben + papier::randunten) * papier::punktjemm;
    if (ausrichtung == querformat)
        return {papier::hoehe - quer, papier::breite - laengs};
    return {papier::breite - quer, papier::hoehe - laengs};
}

double zeilenhoehe(const Druckzeile& zeile) {
    float groesste = zeile.hoehe;
    for (const Druckstueck& s : zeile.stuecke)
        groesste = std::max(groesste, s.groesse);
    return groesste * zeilenabstand;
}

std::vector<Druckseite> seitenumbruch(const std::vector<Druckdokument>& dokumente, double hochhoehe,
                                      double querhoehe) {
    std::vector<Druckseite> seiten;
    for (std::size_t d = 0; d < dokumente.size(); ++d) {
        const Druckdokument& dok = dokumente[d];
        const double seitenhoehe = dok.ausrichtung == querformat ? querhoehe : hochhoehe;
        std::size_t von = 0;
        double y = 0;
        for (std::size_t z = 0; z < dok.zeilen.size(); ++z) {
            const double h = zeilenhoehe(dok.zeilen[z]);
            // A line higher than a whole page still goes on a page of its own.
            if (z > von && y + h > seitenhoehe + 1e-6) {
                seiten.push_back({d, von, z, dok.ausrichtung});
                von = z;
                y = 0;
            }
            y += h;
        }
        if (von < dok.zeilen.size())
            seiten.push_back({d, von, dok.zeilen.size(), dok.ausrichtung});
    }
    return seiten;
}

} // namespace lonvir
