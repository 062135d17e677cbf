// The working set and the person-month record: load, store and the keyed values.
#pragma once

#include "start/sitzung.h"

#include <array>

namespace lonvir {

// Reads the current person's record of month merkmal(20) into the working set.
void satzlesen(Sitzung& s);
// The working set as a record.
[[nodiscard]] Personalsatz arbeitssatz(const Sitzung& s);
// Writes the working set (or the given record) as the current person's month, then the settings.
void satzschreiben(Sitzung& s);
void satzschreiben(Sitzung& s, const Personalsatz& satz);
// Copies wert to the keyed values, all rows but 4, 5, 15, 16, 17 and 18.
void eingabewerte(Sitzung& s);

// A whole record of a month file, read or written by number (reports, transfers, year view).
[[nodiscard]] Personalsatz personalsatzlesen(Sitzung& s, int dateinummer, int satznummer);
void personalsatzschreiben(Sitzung& s, int dateinummer, int satznummer, const Personalsatz& p);
// A stored month's record as it lies in the file, for a reader of a few fields
// (Personalsatz::wertLesen).
[[nodiscard]] std::array<std::uint8_t, Personalsatz::laenge>
personalsatzbytes(Sitzung& s, int dateinummer, int satznummer);

} // namespace lonvir
