// The texts the main screen shows, for the printed statements.
#pragma once

#include "screen/hauptbild.h"
#include "start/schirmtexte.h"

namespace lonvir {

// z(row).Text is the entry shown in the row's list (nothing when none is shown), t(row).Text
// the box's text.
[[nodiscard]] Schirmtexte schirmtexte(const Hauptbild& bild);

} // namespace lonvir
