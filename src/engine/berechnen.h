// The calculation of one person's month, the later months and the year view.
#pragma once

#include "start/sitzung.h"

namespace lonvir {

// Turns the working set of the selected month into its result and stores the month.
void berechnen(Sitzung& s);
// The edit entry: runs the calculation when one is due, repaints, and keeps the later
// months in step.
void nachrechnen(Sitzung& s);
// Recalculates the months after the selected one with the working set carried forward.
void folgemonate(Sitzung& s);
// The year view: every row is the sum of the twelve stored months.
void jahressumme(Sitzung& s);

// The step at which a run starts for a given aenderungscode (1, 4, 14, 25 or 26).
[[nodiscard]] int startschritt(int aenderungscode);

} // namespace lonvir
