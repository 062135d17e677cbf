// The wage-tax routine of 1997/1998: wage tax, solidarity surcharge and church-tax base of one
// wage in one period, computed by steps of 54 DM of yearly wage as the printed tables do, with
// the tariff and surcharge of the law the run names (the law of 1997 unless said otherwise).
#pragma once

#include "engine/steuerrecht.h"
#include "start/lohnsteuerlauf.h"

#include <cstdint>

namespace lonvir {

// A row of the class table: splitting factor and the allowances of a year, DM.
struct Klassenzeile {
    std::int16_t kztab;
    std::int64_t arbeitnehmerpauschbetrag;
    std::int64_t sonderausgabenpauschbetrag;
    std::int64_t haushaltsfreibetrag;
    std::int64_t kinderfreibetrag; // per child allowance counted in zkf
    std::int64_t sonstiges;
};
// The row of tax class `stkl` (1 to 6); another class is run-time error 9.
[[nodiscard]] const Klassenzeile& klassenzeile(std::int16_t stkl);

// One run: reads the inputs, sets outputs and working values.
void lohnsteuer(Lohnsteuerlauf& l);

// A yearly amount w (Pfennig) as an amount of the period lzz, cut down to whole Pfennig.
[[nodiscard]] Currency anteilab(Currency w, std::int16_t lzz);
// The same, rounded up to the next whole Pfennig when at least 0.01 Pfennig is left.
[[nodiscard]] Currency anteilauf(Currency w, std::int16_t lzz);

} // namespace lonvir
