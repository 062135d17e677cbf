// The solidarity surcharge on the yearly tax.
#pragma once

#include "core/currency.h"

#include <cstdint>

namespace lonvir {

// The surcharge of the year on the tax t, in DM: `promille` per thousand of t (75 under the
// law of 1997, 55 under that of 1998), or 20 % of what t exceeds the threshold grenze,
// whichever is smaller (on equality the rate); 0 up to the threshold.
[[nodiscard]] Currency solidaritaetszuschlag(Currency t, Currency grenze,
                                             std::int64_t promille = 75);

} // namespace lonvir
