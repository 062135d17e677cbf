// Copies between the record buffer and the working arrays; every store ends with the settings.
#include "start/satzzugriff.h"

#include "start/einstellungen.h"
#include "start/vorgang.h"

#include <array>

namespace lonvir {

namespace {
void monatsdateiSetzen(Sitzung& s) {
    const int nummer = s.merkmal[20] + 1;
    s.aktuellerdatei = static_cast<std::int16_t>(nummer < 1 ? 1 : nummer);
}
} // namespace

std::array<std::uint8_t, Personalsatz::laenge> personalsatzbytes(Sitzung& s, int dateinummer,
                                                                 int satznummer) {
    std::array<std::uint8_t, Personalsatz::laenge> b{};
    s.datei(dateinummer).lesen(satznummer, b);
    return b;
}

Personalsatz personalsatzlesen(Sitzung& s, int dateinummer, int satznummer) {
    return Personalsatz::lesen(personalsatzbytes(s, dateinummer, satznummer));
}

void personalsatzschreiben(Sitzung& s, int dateinummer, int satznummer, const Personalsatz& p) {
    s.datei(dateinummer).schreiben(satznummer, p.bytes());
}

namespace {
// The fields a record and the working set share, from one to the other; element 0 of
// merkmal has no place in the record and stays.
template <typename Von, typename Nach> void felderkopieren(const Von& von, Nach& nach) {
    for (int i = 1; i <= 45; ++i)
        nach.merkmal[i] = von.merkmal[i];
    nach.wert = von.wert;
    nach.nebenwert = von.nebenwert;
    nach.lst = von.lst;
    nach.soz = von.soz;
    nach.zvk = von.zvk;
    nach.wei = von.wei;
    nach.tei = von.tei;
    nach.bru = von.bru;
    nach.bdabeginn = von.bdabeginn;
}
} // namespace

void satzlesen(Sitzung& s) {
    monatsdateiSetzen(s);
    felderkopieren(personalsatzlesen(s, s.aktuellerdatei, s.aktuelleperson), s);
}

Personalsatz arbeitssatz(const Sitzung& s) {
    Personalsatz p;
    felderkopieren(s, p);
    return p;
}

void satzschreiben(Sitzung& s) {
    satzschreiben(s, arbeitssatz(s));
}

void satzschreiben(Sitzung& s, const Personalsatz& satz) {
    // The month and the settings that name it are stored together.
    alsVorgang(s, [&s, &satz] {
        monatsdateiSetzen(s);
        personalsatzschreiben(s, s.aktuellerdatei, s.aktuelleperson, satz);
        voeschreiben(s);
    });
}

void eingabewerte(Sitzung& s) {
    for (int i = 0; i <= 45; ++i) {
        // Overtime, its rate, VWL, overtime pay and the two bonuses are not kept as keyed.
        if (i == 4 || i == 5 || (i >= 15 && i <= 18))
            continue;
        s.eingabe[i] = s.wert[i];
    }
}

} // namespace lonvir
