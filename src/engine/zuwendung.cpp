// Row 18, the Zuwendung (Weihnachtsgeld): a quota of the month's pay rows, 50 DM per child,
// in twelfths of the months of service, paid in December to civil servants and in November
// to everyone else.
#include "engine/schritte.h"

#include "core/pfennig.h"
#include "start/satzzugriff.h"

namespace lonvir {

namespace {

constexpr std::int16_t november = 10;
constexpr std::int16_t dezember = 11;
constexpr std::int16_t getippt = 7;

bool beamter(int art) {
    return art >= 0 && art <= 4;
}
bool angestellter(int art) {
    return art >= 5 && art <= 17;
}

bool zuwendungsmonat(const Sitzung& s) {
    const int art = s.personalart();
    return (beamter(art) && s.merkmal[20] == dezember) ||
           (angestellter(art) && s.merkmal[20] == november);
}

std::int32_t zeile7imMonat(Sitzung& s, int monatsindex) {
    return Personalsatz::wertLesen(personalsatzbytes(s, monatsindex + 1, s.aktuelleperson), 7);
}

// The records of September, then October, then November are read until one has pay; the
// read fills the record buffer only and the quota is taken of the month being computed.
void septembersatzlesen(Sitzung& s) {
    for (int monat = 8; monat <= 10; ++monat)
        if (zeile7imMonat(s, monat) != 0)
            return;
}

// Sum of the working set's rows 7 to 16 that count for the Zuwendung, times the quota.
std::int32_t quotenbetrag(const Sitzung& s, Currency quote) {
    std::int32_t summe = 0;
    for (int zeile = 7; zeile <= 16; ++zeile)
        if (s.wei[zeile] == 1)
            summe = pf::plus(summe, s.wert[zeile]);
    // Sum times the quota in Currency, then divided by 100 and rounded to the nearest Pfennig.
    return pf::gerundet((Currency::ganz(summe) * quote).alsDouble() / 100.0);
}

// The months that count: January to September and October, November with pay in row 7.
int zuwendungsmonate(Sitzung& s) {
    int vorher = 0;
    int nachher = 0;
    for (int monat = 0; monat <= 8; ++monat)
        vorher += zeile7imMonat(s, monat) > 0 ? 1 : 0;
    for (int monat = 9; monat <= 10; ++monat)
        nachher += zeile7imMonat(s, monat) > 0 ? 1 : 0;
    const bool berechtigt = s.wert[7] > 0 && (nachher == 2 || vorher >= 6);
    return berechtigt ? vorher + nachher + 1 : 0;
}

} // namespace

void zuwendung(Sitzung& s) {
    if (!zuwendungsmonat(s)) {
        s.wert[18] = 0;
        s.eingabe[18] = 0;
        return;
    }
    if (s.merkmal[18] == getippt) {
        // A typed Zuwendung bypasses quota, children and twelfths.
        s.wert[18] = s.eingabe[18];
        return;
    }
    s.wert[18] = 0;
    const int art = s.personalart();
    const std::int16_t ost = s.merkmal[2];
    if (angestellter(art)) {
        septembersatzlesen(s);
        s.wert[18] = quotenbetrag(s, s.einstellungen.zuwendungsquote[ost + 2]);
    } else {
        s.wert[18] = quotenbetrag(s, s.einstellungen.zuwendungsquote[ost]);
    }
    s.wert[18] = pf::plus(s.wert[18], pf::mal(s.merkmal[18], 5000));
    const int monate = zuwendungsmonate(s);
    s.wert[18] = pf::gerundet(static_cast<double>(s.wert[18]) / 12.0 * monate);
}

} // namespace lonvir
