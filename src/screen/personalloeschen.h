// Deleting all persons of the open layer and year, from the menus MSaetze1997 / MSaetze1998.
#pragma once

#include "screen/hauptform.h"

namespace lonvir {

// After a warning (OK, Cancel): names and cost centres back to their defaults for every layer
// and year, the thirteen files of the open layer and year deleted, the program in 1997 and
// the main form loaded again. Returns false when the user cancels.
bool personalloeschen(Sitzung& s, Hauptform& form);

// MSaetze1997_Click and MSaetze1998_Click: the delete when `jahr` is the open year, otherwise
// only the hint to open that year first.
void personalsaetzeklick(Sitzung& s, Hauptform& form, int jahr);

} // namespace lonvir
