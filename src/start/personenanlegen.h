// Creating persons: names for a new store and default records in every layer.
#pragma once

#include "start/sitzung.h"

namespace lonvir {

// Number of records in month file 1 of the open set: length / 541, rounded; 0 counts as 1.
[[nodiscard]] std::int32_t gespeichertesaetze(Sitzung& s);

// Names the first 20 persons of a store with fewer than 6 and fills the records up to the
// count in all three layers. Leaves the last layer's set open: the caller reopens its own.
void personenanlegen(Sitzung& s);

} // namespace lonvir
