// Changing person, month, layer and year: each ends in a full refresh of the main form.
#pragma once

#include "screen/hauptform.h"

namespace lonvir {

// z_Click(0): the person at list position `position` becomes current.
void personwechseln(Sitzung& s, Hauptform& form, int position);
// z_Click(20): a month 0..11, or 12 for the year view.
void monatwechseln(Sitzung& s, Hauptform& form, int position);
// SSPanel5_Click to SSPanel7_Click: the layer INFO, PLAN or REAL.
void schichtklick(Sitzung& s, Hauptform& form, std::int16_t schicht);

// The year menus: M1997 is checked while the set of 1997 is open, M1998 while 1998 is.
[[nodiscard]] bool jahrgewaehlt(const Sitzung& s, int jahr);
// M1997_Click and M1998_Click: nothing when the entry is already checked.
void jahrklick(Sitzung& s, Hauptform& form, std::int16_t jahr);

} // namespace lonvir
