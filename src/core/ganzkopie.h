// A folder copied into another all or nothing: the copy is built under a temporary name in the
// target and moved into place once complete. A temporary folder left by an interrupted copy is
// finished (when it was complete) or removed at the next start.
#pragma once

#include <filesystem>

namespace lonvir::ganzkopie {

// The temporary folder's name inside the target.
inline constexpr const char* zwischenname = ".Lonvir97.neu";

// Copies every file and folder of `quelle` into `ziel` (which is created), replacing files of
// the same name. Throws Dateifehler when a file cannot be written (a full disk): the target
// then holds none of the copied files.
void einsetzen(const std::filesystem::path& quelle, const std::filesystem::path& ziel);

// At start: moves a complete copy that was interrupted while being moved into place, and
// removes an incomplete one. Returns whether there was anything to tidy.
bool aufraeumen(const std::filesystem::path& ziel);

} // namespace lonvir::ganzkopie
