// Copying one person between neighbouring layers: twelve months and the remark card.
#pragma once

#include "start/sitzung.h"

#include <optional>
#include <utility>

namespace lonvir {

// Copies the current person's records of the month files 1 to 12 and of file 13 from layer
// `von` into layer `nach`, as they stand: no recalculation, no question, the target
// overwritten. The layer and the working set stay as they were; the screen is not refreshed.
void uebertragen(Sitzung& s, std::int16_t von, std::int16_t nach);

// The transfer buttons of the main form: Command2 "Info  > Plan", Command3 "Plan >  Info",
// Command4 "Plan > Real", Command5 "Real > Plan". Source and target of button `knopf`.
[[nodiscard]] std::optional<std::pair<std::int16_t, std::int16_t>> uebertragungsrichtung(int knopf);
// Command2_Click to Command5_Click.
void uebertragungsknopf(Sitzung& s, int knopf);
// Whether two layers are neighbours: INFO and PLAN, PLAN and REAL.
[[nodiscard]] bool benachbart(int von, int nach);

} // namespace lonvir
