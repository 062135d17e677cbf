// Page 42, the service-age worksheet: its builder, its keys, "Übertrag" into the main screen,
// "Drucken", and what the printed sheet takes from it.
#pragma once

#include "engine/dienstalter.h"
#include "panels/tablett.h"

namespace lonvir {

// Builds the page for the person's staff group; BAT employees get the age step.
void dienstalterseite(Tablett& t);
// A key in Text(index): returns the key as it goes on, 0 when it is dropped or taken.
int dienstaltertaste(Tablett& t, int index, int taste);
// The birth date field got the focus: the page starts afresh.
void dienstalterfokus(Tablett& t, int index);
// Command1 "Übertrag": the step into the step list of the main screen, from January.
void dienstalteruebertrag(Tablett& t);
// Command2 "Drucken": asks the face to print the sheet, or says why not.
void dienstalterdrucken(Tablett& t);
// The sheet's data as the page shows them.
[[nodiscard]] Dienstalterblatt dienstalterblatt(const Tablett& t);

} // namespace lonvir
