// The pieces every page builder places: a caption and a box of the panel, shown at their place.
#pragma once

#include "panels/tablett.h"

#include <string>

namespace lonvir {

// zeile(i) with `text` at `lage`, bold when asked, shown.
void zeilezeigen(Tablett& t, int i, const std::string& text, Lage lage, bool fett = false);

// kasten(i) at `lage`, of fixed size with a sunken edge, shown; its text stays as it is.
void kastenzeigen(Tablett& t, int i, Lage lage);

} // namespace lonvir
