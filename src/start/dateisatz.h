// The file set of a layer and a year: 23 numbered record files in the working folder.
#pragma once

#include "start/sitzung.h"

#include <array>
#include <string>

namespace lonvir {

// The canonical name of file `nummer` for the given year and layer, e.g. "L1997I.1".
[[nodiscard]] std::string dateiname(int nummer, int jahr, int schicht);
[[nodiscard]] int satzlaengeVon(int nummer);
[[nodiscard]] char schichtbuchstabe(int schicht);

// Closes every file and opens the whole set for the current layer and year.
void dateienoeffnen(Sitzung& s);
// The person files 1 to 13 of layer `schicht` in the current year beside the open set, opened
// as the set would open them (created when absent, and with them the file the set creates
// beside them), writing through the session's transaction. Index = file number, 0 unused.
using Personendateien = std::array<Satzdatei, 14>;
[[nodiscard]] Personendateien personendateienoeffnen(Sitzung& s, std::int16_t schicht);
// Deletes a file of the folder (matched without regard to case); inside a transaction the
// deletion waits for its store, and the file reads as empty until then.
void dateiloeschen(Sitzung& s, const std::string& name);
// Closes every file of the set.
void dateienschliessen(Sitzung& s);
// Another layer: reopen the set and read the settings again; the caller refreshes the screen.
void schichtwechsel(Sitzung& s, std::int16_t neueschicht);

} // namespace lonvir
