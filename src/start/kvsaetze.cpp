// Reading and writing the monthly health-insurance rates of Lonvir97.dim.
#include "start/kvsaetze.h"

namespace lonvir {

int kvsatznummer(const Sitzung& s, int monat) {
    if (monat < 0 || monat > 11)
        throw Laufzeitfehler::indexfehler();
    return (s.ist1997() ? 3 : 15) + monat;
}

Kvsatz kvsatzlesen(Sitzung& s, int satznummer) {
    std::array<std::uint8_t, Kvsatz::laenge> b{};
    s.datei(datei::dim).lesen(satznummer, b);
    return Kvsatz::lesen(b);
}

void kvsatzschreiben(Sitzung& s, int satznummer, const Kvsatz& k) {
    std::array<std::uint8_t, Kvsatz::laenge> b{};
    k.schreiben(b);
    s.datei(datei::dim).schreiben(satznummer, b);
}

void kvsaetzelesen(Sitzung& s) {
    for (int monat = 0; monat <= 11; ++monat) {
        const Kvsatz k = kvsatzlesen(s, kvsatznummer(s, monat));
        Feld<Currency, 0, 29>& zeile = s.kvsatz[monat];
        zeile.fuellen(Currency{});
        for (int kasse = 0; kasse <= 27; ++kasse)
            zeile[kasse] = Currency::ganz(k.satz[kasse]);
    }
}

} // namespace lonvir
