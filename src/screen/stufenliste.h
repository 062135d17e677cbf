// The texts of the step list of row 7 as the screen shows them; the list itself is a pay rule.
#pragma once

#include "engine/stufenliste.h"
#include "start/sitzung.h"

#include <string>
#include <vector>

namespace lonvir {

// The entries of z(7) as the screen shows them.
[[nodiscard]] std::vector<std::string> stufentexte(Sitzung& s);

} // namespace lonvir
