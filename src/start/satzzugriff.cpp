// Copies between the record buffer and the working arrays; every store ends with the settings.
#include "start/satzzugriff.h"

#include "start/einstellungen.h"

#include <array>

namespace lonvir {

namespace {
void monatsdateiSetzen(Sitzung& s) {
    const int nummer = s.merkmal[20] + 1;
    s.aktuellerdatei = static_cast<std::int16_t>(nummer < 1 ? 1 : nummer);
}
} // namespace

Personalsatz personalsatzlesen(Sitzung& s, int dateinummer, int satznummer) {
    std::array<std::uint8_t, Personalsatz::laenge> b{};
    s.datei(dateinummer).lesen(satznummer, b);
    return Personalsatz::lesen(b);
}

void personalsatzschreiben(Sitzung& s, int dateinummer, int satznummer, const Personalsatz& p) {
    s.datei(dateinummer).schreiben(satznummer, p.bytes());
}

void satzlesen(Sitzung& s) {
    monatsdateiSetzen(s);
    const Personalsatz p = personalsatzlesen(s, s.aktuellerdatei, s.aktuelleperson);
    for (int i = 1; i <= 45; ++i)
        s.merkmal[i] = p.merkmal[i];
    s.wert = p.wert;
    s.nebenwert = p.nebenwert;
    s.lst = p.lst;
    s.soz = p.soz;
    s.zvk = p.zvk;
    s.wei = p.wei;
    s.tei = p.tei;
    s.bru = p.bru;
    s.bdabeginn = p.bdabeginn;
}

Personalsatz arbeitssatz(const Sitzung& s) {
    Personalsatz p;
    for (int i = 1; i <= 45; ++i)
        p.merkmal[i] = s.merkmal[i];
    p.wert = s.wert;
    p.nebenwert = s.nebenwert;
    p.lst = s.lst;
    p.soz = s.soz;
    p.zvk = s.zvk;
    p.wei = s.wei;
    p.tei = s.tei;
    p.bru = s.bru;
    p.bdabeginn = s.bdabeginn;
    return p;
}

void satzschreiben(Sitzung& s) {
    satzschreiben(s, arbeitssatz(s));
}

void satzschreiben(Sitzung& s, const Personalsatz& satz) {
    monatsdateiSetzen(s);
    personalsatzschreiben(s, s.aktuellerdatei, s.aktuelleperson, satz);
    voeschreiben(s);
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
