// Loading a person's month as the refresh of the screen does, and running its calculation.
#pragma once

#include "start/sitzung.h"

namespace lonvir {

// Month index 0..11 loads that month's record; 12 builds the year view. Then the run.
void monatladen(Sitzung& s, std::int16_t person, std::int16_t monatsindex);

} // namespace lonvir
