// The seeding of a new working folder: a copy of the compiled installation data, made only
// where the folder holds no store yet.
#pragma once

#include "core/arbeitsordner.h"

#include <filesystem>

namespace lonvir::installation {

// A working folder holds no store while no file of the set is there: text table, settings,
// tariff files, month and year files of any layer and year (names matched without regard
// to case). Only such a folder is seeded, so no file of the user is ever overwritten.
[[nodiscard]] bool ohnebestand(const Arbeitsordner& ordner);

// Copies every file of the compiled installation into the working folder, keeping the
// subfolders, all or nothing (built under a temporary name, then moved into place). An
// installation folder that does not exist seeds nothing; returns whether anything was copied.
bool einsetzen(const std::filesystem::path& installation, const Arbeitsordner& ordner);

} // namespace lonvir::installation
