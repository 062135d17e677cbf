// Which tax law the months of the open year are computed with.
#pragma once

#include "engine/steuerrecht.h"
#include "start/sitzung.h"

#include <string>

namespace lonvir {

// The law of 1998 for the year 1998 when its settings switch it on ("Steuerrecht 1998
// anwenden"); the law of 1997 otherwise, and always in 1997.
[[nodiscard]] Steuerrecht steuerrechtfuer(const Sitzung& s);

// The line that says which law the months of the open year are computed with, e.g.
// "Lohnsteuer nach dem Steuerrecht 1998".
[[nodiscard]] std::string steuerrechtzeile(const Sitzung& s);

} // namespace lonvir
