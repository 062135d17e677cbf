// Creating persons: names for a new store and default records in every layer.
#pragma once

#include "start/sitzung.h"

namespace lonvir {

// Number of records in month file 1 of the open set: length / 541, rounded; 0 counts as 1.
[[nodiscard]] std::int32_t gespeichertesaetze(Sitzung& s);

// Writes the records of a new person at every number from `ab` to the name count in the
// open layer's twelve month files (the month field set per file) and a blank remark card,
// then stores the count as anzahlpersonen of the display settings.
void schichtfuellen(Sitzung& s, std::int32_t ab, Personalsatz& satz);

// Names the first 20 persons of a store with fewer than 6 and fills the records up to the
// count in all three layers. Leaves the last layer's set open: the caller reopens its own.
// Whether it filled any (and so opened the layers' sets).
bool personenanlegen(Sitzung& s);

} // namespace lonvir
