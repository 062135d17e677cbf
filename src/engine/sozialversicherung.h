// The branches of the social insurance, each reading the bases that `sozialversicherung` has
// left in svwert and writing its employee row and employer share.
#pragma once

#include "start/sitzung.h"

namespace lonvir {

// Health insurance: row 37 and nebenwert(0) on the base svwert(14).
void krankenversicherung(Sitzung& s);
// Care insurance: row 38 and nebenwert(1) on the base svwert(14).
void pflegeversicherung(Sitzung& s);
// Pension and unemployment insurance: rows 39, 40 and nebenwert(2), nebenwert(3) on svwert(17).
void rentenversicherung(Sitzung& s);
void arbeitslosenversicherung(Sitzung& s);

// The month index of the rates and of the earlier months: the year view (12) runs with the
// selections of December, which it read last.
[[nodiscard]] int beitragsmonat(const Sitzung& s);

// A Pfennig base times a Currency rate, the exact product taken as a float.
[[nodiscard]] double basismal(std::int32_t basis, Currency satz);

} // namespace lonvir
