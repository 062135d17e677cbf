// Output files written whole or not at all: the bytes go to a temporary name beside the
// target, which is renamed over the target only when every byte is written.
#pragma once

#include <filesystem>
#include <string_view>

namespace lonvir {

// Writes `inhalt` as the file `ziel`. On any failure the target stays as it was, the
// temporary file is removed and a `Dateifehler` names the target.
void dateiersetzen(const std::filesystem::path& ziel, std::string_view inhalt);

} // namespace lonvir
