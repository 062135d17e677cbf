// Finding a person's line in the tariff files: which file applies in a month, which record
// holds the group, and reading it into the working array `tarifwert`.
//
// Use for gross pay:
//     tarifsatzlesen(s, tarifsatznummer(s), tarifdatei(s));
//     // s.tarifwert[0..26] now holds the line in Pfennig
// and for the comparison with the 1997 tables, the same record number (or one of its own)
// read from datei::tarif2von1997 (22, Lonvir97.2tr) or datei::tarif3von1997 (23, Lonvir97.3tr),
// which stay open in both years.
#pragma once

#include "records/tarifsatz.h"
#include "start/sitzung.h"

namespace lonvir {

// The Ost half of a file lies this many records behind the West half.
constexpr int tarifOstversatz = 300;

// First record of the look-up for staff class 0..18 (merkmal(4)); any other class is
// run-time error 9. The Kraftfahrer of the Bund (9) and of a Land (10) look up one record
// below the first of their block in the editor; class 18 has no block and looks up from 300.
[[nodiscard]] int tarifbasis(int personalart);

// Record number of a group: base of the staff class plus the group, plus 300 in the Ost.
[[nodiscard]] int tarifsatznummer(int personalart, int gruppe, bool ost);
// The same for the current person: merkmal(4) staff class, merkmal(5) group, merkmal(2) = 1 Ost.
[[nodiscard]] int tarifsatznummer(const Sitzung& s);

// File number (14 to 17) of the tariff file for the month merkmal(20) + 1: file 14, then 15,
// 16 and 17 for each setting ab_tarif2..4 above 0 that the month has reached. The tests run
// in that order and the last that holds wins, even when the settings are not ascending.
[[nodiscard]] int tarifdatei(const Sitzung& s);
// The same for a month number m, 1 to 12.
[[nodiscard]] int tarifdatei(const Einstellungswerte& e, int monat);

// Reads record `satznummer` of tariff file `dateinummer` (14 to 17, 22, 23) into
// s.tarifwert(0..26), each amount taken through Currency and back so it is kept exactly.
// A record past the end of the file (a missing or empty table) reads as zeros.
void tarifsatzlesen(Sitzung& s, int satznummer, int dateinummer);

// Whole lines for the tariff editor.
[[nodiscard]] Tarifsatz tarifsatz(Sitzung& s, int satznummer, int dateinummer);
void tarifsatzschreiben(Sitzung& s, int satznummer, int dateinummer, const Tarifsatz& t);

// A group block as the editor's `Schalter` shows it: caption and first record in West and Ost.
struct Tarifblock {
    const char* schalter; // UTF-8
    int ersterWest;
    int ersterOst;
};
// The block of staff class 0..17; class 18 has none (run-time error 9).
[[nodiscard]] const Tarifblock& tarifblock(int personalart);

} // namespace lonvir
