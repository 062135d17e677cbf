// The wage-tax routine of 1997/1998: wage tax, solidarity surcharge and church-tax base of one
// wage in one period, computed by steps of 54 DM of yearly wage as the printed tables do.
#pragma once

#include "start/lohnsteuerlauf.h"

#include <cstdint>

namespace lonvir {

// One run: reads the inputs, sets outputs and working values.
void lohnsteuer(Lohnsteuerlauf& l);

// A yearly amount w (Pfennig) as an amount of the period lzz, cut down to whole Pfennig.
[[nodiscard]] Currency anteilab(Currency w, std::int16_t lzz);
// The same, rounded up to the next whole Pfennig when at least 0.01 Pfennig is left.
[[nodiscard]] Currency anteilauf(Currency w, std::int16_t lzz);

} // namespace lonvir
