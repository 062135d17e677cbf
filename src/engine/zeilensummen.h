// The sums of the pay rows: full time, part time, paid days, and by the rows' switches.
#pragma once

#include "start/sitzung.h"

namespace lonvir {

// Step 11: rows 20 and 21.
void teilzeitsumme(Sitzung& s);
// Step 12: zahlwert(7..19) and row 22.
void zahlwertebestimmen(Sitzung& s);
// Step 13: taxable, tax-free (lstwert(2)), insured and pensionable sums of zahlwert.
void viersummen(Sitzung& s);
// The taxable zahlwert rows von..bis, summed.
[[nodiscard]] std::int32_t steuerpflichtigesumme(const Sitzung& s, int von, int bis);

} // namespace lonvir
