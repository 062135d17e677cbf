// The start of the program as far as the store goes: open, read the settings, create persons.
#pragma once

#include "start/sitzung.h"

namespace lonvir {

// What follows the start: the main form; the password form (start lock 1); or nothing, the
// start form staying up (a start lock above 1, which then counts as 0 in memory, or any
// other value that is neither 0 nor 1).
enum class Startergebnis { hauptform, passwort, angehalten };

// Opens the set of s.jahr / s.schicht in s.ordner, reads the settings of the year (which
// restores the person: voreinstellung(15), 0 counting as person 1) and the display settings,
// creates the persons of a new store and branches on the start lock. Loads no record.
// A damaged store raises Bestandsschaden before anything is written.
Startergebnis starten(Sitzung& s);

// The start of the window: a damaged store is reported with the file and what is wrong, and
// the user opens the folder for reading only (Yes) or ends the program (No: Bestandsschaden
// goes on to the caller).
Startergebnis startenOderNurLesen(Sitzung& s);

// The rest of the place where the user stopped, as the main form restores it after the
// start: the person from voreinstellung(15) cut to the name list (0 and anything outside
// 1..1000 count as person 1), its list position merkmal(0), the month
// merkmal(20) from voreinstellung(16) (a value outside 0..12 leaves the month as it is) and
// the layer from voreinstellung(14), reopening the set when that layer is not the open one.
// Returns the layer shown as active, or -1 when element 14 is not 0, 1 or 2: then no layer
// is active and the open one stays. The command line, which names its layer, person and
// month itself, does not call it.
int ortwiederherstellen(Sitzung& s);

} // namespace lonvir
