// The exact fixed-point steps of the wage-tax routine: quotients that round or truncate, the
// 54-DM grid, and the one step the tariff takes in 64-bit floating point.
#pragma once

#include "core/currency.h"

#include <cstdint>

namespace lonvir {

// a times zaehler divided by nenner, exactly, rounded to four decimals, ties to even.
[[nodiscard]] Currency geteiltGerundet(Currency a, std::int64_t zaehler, std::int64_t nenner);

// a times zaehler divided by nenner, exactly, cut towards zero to a whole unit.
[[nodiscard]] Currency geteiltAbgeschnitten(Currency a, std::int64_t zaehler, std::int64_t nenner);

// a cut towards zero to whole hundredths (Pfennig of a DM amount).
[[nodiscard]] Currency aufHundertstelAbgeschnitten(Currency a);

// v divided by 54, truncated, times 54: the bottom of v's step in the wage-tax table.
[[nodiscard]] Currency stufe54(Currency v);

// y times faktor, in 64-bit floating point, times 10000, truncated, divided by 10000, rounded
// back to Currency: the tariff's product keeps four decimals and drops the rest.
[[nodiscard]] Currency produktViermalAbgeschnitten(Currency y, double faktor);

// An integer count of DM as Currency.
[[nodiscard]] inline Currency dm(std::int64_t betrag) {
    return Currency::ganz(betrag);
}

} // namespace lonvir
