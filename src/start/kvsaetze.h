// The health-insurance rates of the year: twelve records of Lonvir97.dim, read into the
// engine's table kvsatz(month, fund).
#pragma once

#include "records/kvsatz.h"
#include "start/sitzung.h"

namespace lonvir {

// Record of month 0..11 in Lonvir97.dim: 3 to 14 for 1997, 15 to 26 for any other year.
[[nodiscard]] int kvsatznummer(const Sitzung& s, int monat);

// One month's record, as the rate form reads and writes it.
[[nodiscard]] Kvsatz kvsatzlesen(Sitzung& s, int satznummer);
void kvsatzschreiben(Sitzung& s, int satznummer, const Kvsatz& k);

// Fills s.kvsatz(0..11, 0..27) with the stored rates of the year, each a whole number of
// hundredths of a percent taken into Currency exactly (1350 -> 1350.0000); positions 28
// (typed subsidy) and 29 (none) have no rate and are 0. Months missing from the file are 0.
void kvsaetzelesen(Sitzung& s);

} // namespace lonvir
