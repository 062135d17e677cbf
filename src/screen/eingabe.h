// Confirmed inputs for callers without a window: each goes through the main screen's handlers
// on the session as it stands, so the limits, the messages and the calculation are the screen's.
#pragma once

#include "start/sitzung.h"

#include <string>

namespace lonvir {

// An amount in Pfennig typed into row `zeile` and confirmed with Enter ("-" when negative).
void betragbestaetigen(Sitzung& s, int zeile, std::int32_t pfennig);
// The text typed into the service-age box and confirmed with Enter: "MM.19JJ"; anything
// else empties the box.
void bdabestaetigen(Sitzung& s, const std::string& text);

} // namespace lonvir
