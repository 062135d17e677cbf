// The installation data: the readable sources of data/ compiled into the binary files of a
// working folder, and the seeding of a new working folder from them.
#pragma once

#include "core/arbeitsordner.h"

#include <filesystem>

namespace lonvir::installation {

// Compiles the sources in `quellen` (the project's data/ folder) into `ziel`, which must
// not yet hold a store: Texte.txt, Lonvir97.1tr to .4tr, Lonvir98.1tr to .4tr,
// Lonvir97.dim, Lonvir97.voe, the store of 1997 as the first start creates it with the
// sample staff in layer INFO, and the help pages in hilfe/.
void installieren(const std::filesystem::path& quellen, const std::filesystem::path& ziel);

// A working folder holds no store while no file of the set is there: text table, settings,
// tariff files, month and year files of any layer and year (names matched without regard
// to case). Only such a folder is seeded, so no file of the user is ever overwritten.
[[nodiscard]] bool ohnebestand(const Arbeitsordner& ordner);

// Copies every file of the compiled installation into the working folder, keeping the
// subfolders, all or nothing (built under a temporary name, then moved into place). An
// installation folder that does not exist seeds nothing; returns whether anything was copied.
bool einsetzen(const std::filesystem::path& installation, const Arbeitsordner& ordner);

} // namespace lonvir::installation
