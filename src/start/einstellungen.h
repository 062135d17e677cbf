// Reading and writing the two settings records, and the working values derived from them.
#pragma once

#include "start/sitzung.h"

namespace lonvir {

// Display settings, record 1 of Lonvir97.dim; an empty file gives the defaults.
void dimlesen(Sitzung& s);
void dimschreiben(Sitzung& s);
// The defaults of an empty display settings file.
[[nodiscard]] Dimsatz dimvorgaben(const Sitzung& s);

// Settings of the year: record 1 for 1997, record 2 for any other year, then aktualisieren;
// an empty file gives zeros and blanks. Reads the year's health-insurance rates as well
// (kvsaetzelesen), so that every change of year through voelesen brings its own rates.
void voelesen(Sitzung& s);
// Writes the working settings as the year's record, with elements 14, 15 and 16 replaced
// in the record by the current layer, person and month.
void voeschreiben(Sitzung& s);
[[nodiscard]] int voesatznummer(const Sitzung& s);

// The element of `voreinstellung` that switches the tax law of 1998 on (1) or off (0).
inline constexpr int steuerrecht1998element = 34;

// Turns the stored steps of the settings into rates, ceilings and months; restores the person.
void aktualisieren(Sitzung& s);
// The rates, ceilings, months and factors alone, as the settings pages derive them after a
// store: the current person stays where it is.
void vorgabenableiten(Sitzung& s);

// A dark row colour (0 to 6, 8, 9, 12, 13) gets white text (15), all others black (0).
[[nodiscard]] int textfarbe(int zeilenfarbe);

} // namespace lonvir
