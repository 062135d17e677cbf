// The solidarity surcharge of 1997/1998 on the yearly tax.
#pragma once

#include "core/currency.h"

namespace lonvir {

// The surcharge of the year on the tax t, in DM: 7.5 % of t, or 20 % of what t exceeds the
// threshold grenze, whichever is smaller (on equality the 7.5 %); 0 up to the threshold.
[[nodiscard]] Currency solidaritaetszuschlag(Currency t, Currency grenze);

} // namespace lonvir
