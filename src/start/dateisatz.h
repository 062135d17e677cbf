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
// Person file `nummer` (1 to 13) of layer `schicht` in the current year: the set's own for the
// layer on the screen. Those of another layer are opened at their first use beside the set, as
// the set would open them (created when absent, and with them the file the set creates beside
// them), and stay open for the next use until the set is opened or closed again or a file of
// the folder is deleted; they write through the session's transaction as well.
[[nodiscard]] Satzdatei& personendatei(Sitzung& s, std::int16_t schicht, int nummer);
// Deletes a file of the folder (matched without regard to case); inside a transaction the
// deletion waits for its store, and the file reads as empty until then. The person files of
// the other layers are closed, so that none is written after it has gone.
void dateiloeschen(Sitzung& s, const std::string& name);
// Closes every file of the set and the person files of the other layers.
void dateienschliessen(Sitzung& s);
// Another layer: reopen the set and read the settings again; the caller refreshes the screen.
void schichtwechsel(Sitzung& s, std::int16_t neueschicht);

} // namespace lonvir
