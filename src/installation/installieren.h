// The installation data: the readable sources of data/ compiled into the binary files of a
// working folder; the seeding of a new working folder from them is the start-up's own.
#pragma once

#include "start/einsetzen.h"

#include <filesystem>

namespace lonvir::installation {

// Compiles the sources in `quellen` (the project's data/ folder) into `ziel`, which must
// not yet hold a store: Texte.txt, Lonvir97.1tr to .4tr, Lonvir98.1tr to .4tr,
// Lonvir97.dim, Lonvir97.voe, the store of 1997 as the first start creates it with the
// sample staff in layer INFO, and the help pages in hilfe/.
void installieren(const std::filesystem::path& quellen, const std::filesystem::path& ziel);

} // namespace lonvir::installation
