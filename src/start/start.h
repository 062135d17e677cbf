// The start of the program as far as the store goes: open, read the settings, create persons.
#pragma once

#include "start/sitzung.h"

namespace lonvir {

enum class Startergebnis { hauptform, passwort, angehalten };

// Opens the set of s.jahr / s.schicht in s.ordner, reads settings and display settings,
// creates the persons of a new store and loads nothing yet.
Startergebnis starten(Sitzung& s);

} // namespace lonvir
