// Sums of the paid rows chosen by one of their switches, as the pension and insurance steps
// take them: a Currency row at a time, rounded to whole Pfennig after every step.
#pragma once

#include "start/sitzung.h"

namespace lonvir {

// The zahlwert rows von..bis whose switch stands at `stellung`, added.
[[nodiscard]] std::int32_t zahlwertsumme(const Sitzung& s, const Schalter& schalter,
                                         std::int16_t stellung, int von, int bis);
// The same rows, each subtracted from 0: the sum as a deduction.
[[nodiscard]] std::int32_t zahlwertabzug(const Sitzung& s, const Schalter& schalter,
                                         std::int16_t stellung, int von, int bis);

} // namespace lonvir
