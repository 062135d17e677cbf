// The step list of row 7 as a pay rule: which text records it spans for a staff class and pay
// group, the cut of the group and the clamp of the step.
#pragma once

#include "start/sitzung.h"

namespace lonvir {

// The last pay group of a staff class whose step list cuts the group; -1 for no cut.
[[nodiscard]] int letztestufengruppe(int personalart);

// The list for a staff class and group; `reform` is July 1997 or later. Classes whose list is
// not rebuilt give `vorher` back, and a list without an end of its own keeps the end of `vorher`.
[[nodiscard]] Stufenliste stufenlistefuer(int personalart, int gruppe, bool reform,
                                          const Stufenliste& vorher);

// Rebuilds z(7) for the person: cuts the group, sets the list, then the step from the service
// age (not for Besoldungsordnung B, whose list is the fixed pay alone).
void stufenliste(Sitzung& s);

// The refresh's clamp of row 7: above the last list position the last, below 0 the 0.
void stufeklemmen(Sitzung& s);

} // namespace lonvir
