// The year of one person in thirteen categories, read from the twelve stored month records.
#pragma once

#include "core/currency.h"
#include "core/feld.h"
#include "start/sitzung.h"

#include <cstdint>

namespace lonvir {

// Categories of the matrix (the second index less 1).
namespace kategorie {
constexpr int grundbezuege = 0;  // nebenwert(7..10): basic pay, Ortszuschlag, Stellenzulage, ...
constexpr int zulagen = 1;       // nebenwert(11..16)
constexpr int einmalzahlung = 2; // nebenwert(17..19)
constexpr int brutto = 3;        // wert(22)
constexpr int agAnteile = 4;     // nebenwert(0..3)
constexpr int umlage = 5;        // wert(31)
constexpr int agSteuern = 6;     // nebenwert(4..6), wert(32), wert(6)
constexpr int aufwand = 7;       // categories 3 to 6
constexpr int steuern = 8;       // wert(33), wert(35)
constexpr int kirchensteuer = 9; // wert(36)
constexpr int sozial = 10;       // wert(37..40)
constexpr int netto = 11;        // categories 3, 8, 9, 10
} // namespace kategorie

// jahresmatrix(1..13, 1..13): month (13 the year) by category index; the value in Pfennig.
struct Jahresmatrix {
    Feld<Feld<Currency, 1, 13>, 1, 13> zelle;

    // The Pfennig of category k (0..12) in month m (1..12, 13 the year).
    [[nodiscard]] Currency wert(int monat, int k) const { return zelle[monat][k + 1]; }
};

// jahresmatrixbilden: reads record `jahresperson` of the twelve month files and sums each
// category per month in Currency, then the year. Sets jahreslauf while it runs; the engine
// is not run, a month not yet calculated counts with what its record holds.
[[nodiscard]] Jahresmatrix jahresmatrixbilden(Sitzung& s, std::int16_t jahresperson);

} // namespace lonvir
