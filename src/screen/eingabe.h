// Confirmed inputs of the main screen: an amount, a list entry, a switch, a name, a date.
#pragma once

#include "start/sitzung.h"

#include <string>

namespace lonvir {

// An amount confirmed with Enter in row `zeile`: stored as typed and as value, then the run
// and the later months.
void betragbestaetigen(Sitzung& s, int zeile, std::int32_t pfennig);
// A list entry picked in row `zeile`.
void auswahlbestaetigen(Sitzung& s, int zeile, std::int16_t position);
// A switch of a pay row (7 to 19) set or cleared.
void schalterklick(Sitzung& s, Schalter& schalter, int zeile, bool an);
// Enter on row 0: the person's new name.
void personumbenennen(Sitzung& s, const std::string& name);
// Enter in the service-age box: "MM.19JJ"; anything else empties the box.
void bdabestaetigen(Sitzung& s, const std::string& text);

// True and a message when the year view stands and refuses every change.
[[nodiscard]] bool jahresgehaltgesperrt(Sitzung& s);

} // namespace lonvir
