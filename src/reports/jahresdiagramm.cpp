// The bars of the annual overview's chart from the matrix.
#include "reports/jahresdiagramm.h"

#include <algorithm>
#include <functional>

namespace lonvir {

namespace {

Balkenreihe reihe(std::string name, int farbe, const std::function<Currency(int)>& wert) {
    Balkenreihe r{std::move(name), farbe, {}};
    for (int monat = 1; monat <= 12; ++monat)
        r.pfennig[static_cast<std::size_t>(monat - 1)] = wert(monat).roh() / Currency::skala;
    return r;
}

} // namespace

std::int64_t Jahresdiagramm::groesster() const {
    std::int64_t g = 0;
    for (const Balkenreihe& r : reihen)
        for (std::int64_t w : r.pfennig)
            g = std::max(g, w);
    return g;
}

Jahresdiagramm jahresdiagramm(const Jahresmatrix& m, int ansichtabzuege) {
    const auto kat = [&m](int k) { return [&m, k](int monat) { return m.wert(monat, k); }; };
    Jahresdiagramm d;
    d.reihen.push_back(reihe("Brutto", 14, kat(kategorie::brutto)));
    if (ansichtabzuege == 1) {
        d.reihen.push_back(reihe("Abzüge", 12, [&m](int monat) {
            return -(m.wert(monat, kategorie::steuern) + m.wert(monat, kategorie::kirchensteuer) +
                     m.wert(monat, kategorie::sozial));
        }));
        d.reihen.push_back(reihe("Netto", 10, kat(kategorie::netto)));
    } else {
        d.reihen.push_back(reihe("AG-Nebenkosten", 11, [&m](int monat) {
            return m.wert(monat, kategorie::agAnteile) + m.wert(monat, kategorie::umlage) +
                   m.wert(monat, kategorie::agSteuern);
        }));
        d.reihen.push_back(reihe("Gesamtaufwand", 9, kat(kategorie::aufwand)));
    }
    return d;
}

} // namespace lonvir
