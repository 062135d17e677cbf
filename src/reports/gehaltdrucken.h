// The pay statement of one person and month as the main screen shows it, in three forms.
#pragma once

#include "core/drucker.h"
#include "start/schirmtexte.h"
#include "start/sitzung.h"

namespace lonvir {

// The form chosen by the menu: 1 gross only, 2 gross and net, 3 with the employer's cost.
enum Statementform : std::int16_t { nurbrutto = 1, bruttonetto = 2, mitarbeitgeber = 3 };

// Prints from the rows' texts as the screen shows them and the amounts of the working set:
// the letterhead, the title, the person, the pay rows, and per form the deductions and the
// payment, the employer's cost, then the report line of the settings and the remark of the
// person's remark card. Sums of the employer's cost raise the overflow error.
void gehaltdrucken(Sitzung& s, const Schirmtexte& bild, int statementform, Drucker& d);

inline constexpr const char* unterstrichlinie =
    "__________________________________________________";
inline constexpr const char* gleichlinie = "==================================================";

} // namespace lonvir
