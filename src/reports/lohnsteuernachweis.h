// The wage-tax statement: the taxes withheld from every person of the layer in one month,
// the employer's lump taxes on the supplementary pension, the child benefit paid out, and
// the amount to remit to the tax office.
#pragma once

#include "core/csv.h"
#include "core/drucker.h"
#include "reports/nachweisbetrag.h"
#include "start/sitzung.h"

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace lonvir {

// Columns and sums: 0 wage tax, 1 surcharge, 2 Protestant, 3 Roman Catholic, 4 Old Catholic
// (withheld), 5 lump wage tax, 6 lump surcharge, 7 to 9 lump church tax, 10 child benefit.
constexpr int lohnsteuerspalten = 11;

struct Lohnsteuerzeile {
    int person = 0;
    std::string name; // cut to 15 characters
    std::array<Nachweisbetrag, lohnsteuerspalten> betraege;
};

struct Lohnsteuernachweis {
    int monat = 0;
    std::vector<Lohnsteuerzeile> zeilen;
    std::array<std::int32_t, lohnsteuerspalten> summen{}; // Pfennig
};

// Reads the stored records of month `monat` of every person of the layer; a person without
// a payment in the month is not on it. A sum beyond 32 bits is run-time error 6.
[[nodiscard]] Lohnsteuernachweis lohnsteuernachweisbilden(Sitzung& s, int monat);
void lohnsteuernachweisdrucken(const Sitzung& s, const Lohnsteuernachweis& n, Drucker& d);
// The statement of the month selected on the main screen, printed.
void lohnsteuernachweis(Sitzung& s, Drucker& d);
// One row per person and a sum row.
[[nodiscard]] Csvtabelle lohnsteuernachweiscsv(const Lohnsteuernachweis& n);

} // namespace lonvir
