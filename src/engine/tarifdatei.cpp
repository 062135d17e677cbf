// Tariff look-up: record number by staff class and group, file by month, reading a line.
#include "engine/tarifdatei.h"

#include "core/currency.h"

#include <array>

namespace lonvir {

namespace {

constexpr std::array<int, 19> basen = {1,   23,  35,  40,  51,  58,  79,  97,  112, 129,
                                       147, 164, 181, 191, 212, 233, 255, 271, 300};

// The captions give 130 and 148 for the Kraftfahrer of the Bund and of a Land, and 447 (300
// plus the look-up base, not plus the caption) for the Land in the Ost; all stay as they are.
const std::array<Tarifblock, 18> bloecke = {{
    {"Bes.Ordn. A", 1, 301},
    {"Bes.Ordn. B", 23, 323},
    {"Bes.Ordn. C", 35, 335},
    {"Bes.Ordn. R", 40, 340},
    {"Anwärter", 51, 351},
    {"BAT Bund/Länder", 58, 358},
    {"BAT VKA", 79, 379},
    {"BAT KR", 97, 397},
    {"Arbeiter B/L/VKA", 112, 412},
    {"Kraftfahrer Bund", 130, 430},
    {"Kraftfahrer Land", 148, 447},
    {"Kraftfahrer VKA", 164, 464},
    {"Auszubildende", 181, 481},
    {"AVR Kirche", 191, 491},
    {"AVR Caritas", 212, 512},
    {"AVR Parität.Wohlfahrtsv.", 233, 533},
    {"Deutsche Bahn AG", 255, 555},
    {"Sondertarifliche Angest.", 271, 571},
}};

void pruefen(int personalart, std::size_t anzahl) {
    if (personalart < 0 || static_cast<std::size_t>(personalart) >= anzahl)
        throw Laufzeitfehler::indexfehler();
}

} // namespace

int tarifbasis(int personalart) {
    pruefen(personalart, basen.size());
    return basen[static_cast<std::size_t>(personalart)];
}

int tarifsatznummer(int personalart, int gruppe, bool ost) {
    int nummer = tarifbasis(personalart) + gruppe;
    if (ost)
        nummer += tarifOstversatz;
    return nummer;
}

int tarifsatznummer(const Sitzung& s) {
    return tarifsatznummer(s.merkmal[4], s.merkmal[5], s.merkmal[2] == 1);
}

int tarifdatei(const Einstellungswerte& e, int monat) {
    int nummer = datei::tarif1;
    if (e.ab_tarif2 > 0 && monat >= e.ab_tarif2)
        nummer = datei::tarif2;
    if (e.ab_tarif3 > 0 && monat >= e.ab_tarif3)
        nummer = datei::tarif3;
    if (e.ab_tarif4 > 0 && monat >= e.ab_tarif4)
        nummer = datei::tarif4;
    return nummer;
}

int tarifdatei(const Sitzung& s) {
    return tarifdatei(s.einstellungen, s.merkmal[20] + 1);
}

Tarifsatz tarifsatz(Sitzung& s, int satznummer, int dateinummer) {
    std::array<std::uint8_t, Tarifsatz::laenge> b{};
    s.datei(dateinummer).lesen(satznummer, b);
    return Tarifsatz::lesen(b);
}

void tarifsatzlesen(Sitzung& s, int satznummer, int dateinummer) {
    const Tarifsatz t = tarifsatz(s, satznummer, dateinummer);
    for (int i = 0; i <= 26; ++i)
        s.tarifwert[i] = Currency::ganz(t.wert[i]).gerundetInt32();
}

void tarifsatzschreiben(Sitzung& s, int satznummer, int dateinummer, const Tarifsatz& t) {
    std::array<std::uint8_t, Tarifsatz::laenge> b{};
    t.schreiben(b);
    s.datei(dateinummer).schreiben(satznummer, b);
}

const Tarifblock& tarifblock(int personalart) {
    pruefen(personalart, bloecke.size());
    return bloecke[static_cast<std::size_t>(personalart)];
}

} // namespace lonvir
