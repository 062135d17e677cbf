// The tax law a run of the wage-tax routine follows: the income-tax tariff of section 32a EStG
// and the solidarity surcharge. The months of 1997 and, unless the settings of 1998 say
// otherwise, of 1998 are computed with the tariff of 1996/1997 and the surcharge of 7.5 %; the
// law of 1998 has its own tariff and a surcharge of 5.5 %. One table holds the figures of both;
// the routine is the same.
#pragma once

#include "core/currency.h"
#include "start/lohnsteuerlauf.h"

#include <cstdint>
#include <string>

namespace lonvir {

// The figures of one law, in DM unless said otherwise.
struct Steuertarif {
    // Basic tariff: 0 below `eingang`; from there (faktor1 y + konstante1) y with y the
    // ten-thousandth part of x above `abzug1`; from `anfang2` (faktor2 z + konstante2) z + sockel2
    // with z above `abzug2`, up to `ende2`; from `anfang3` 53 % of x less `abzug3`.
    std::int32_t eingang;
    std::int32_t abzug1;
    double faktor1;
    std::int32_t konstante1;
    std::int32_t anfang2;
    std::int32_t abzug2;
    double faktor2;
    std::int32_t konstante2;
    std::int32_t sockel2;
    std::int32_t ende2;
    std::int32_t anfang3;
    std::int32_t abzug3;
    // Solidarity surcharge: `zuschlagpromille` per thousand of the tax, nothing up to
    // `freigrenze` times kztab, above it at most 20 % of the excess.
    std::int32_t zuschlagpromille;
    std::int32_t freigrenze;
    // The same rate in floating point, and one plus it, for the steps that compute in double.
    double zuschlag;
    double mitzuschlag;

    // The surcharge rate as a factor: 0.075 or 0.055.
    [[nodiscard]] Currency zuschlagsatz() const { return Currency::roh(zuschlagpromille * 10); }
};

// The table of both laws.
[[nodiscard]] const Steuertarif& steuertarif(Steuerrecht recht);

// The year of the law as the user reads it: "1997" or "1998".
[[nodiscard]] std::string steuerrechtjahr(Steuerrecht recht);

} // namespace lonvir
