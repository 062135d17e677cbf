// The whole content of a working folder, name by name, to compare before and after.
#pragma once

#include "core/dialoge.h"
#include "start/sitzung.h"
#include "testhilfe.h"

#include <filesystem>
#include <map>
#include <string>

namespace lonvir::test {

using Ordnerbild = std::map<std::string, std::string>;

[[nodiscard]] Ordnerbild ordnerbild(const std::filesystem::path& ordner);

// The names of the files in which two pictures differ, or "" when they are equal.
[[nodiscard]] std::string unterschied(const Ordnerbild& a, const Ordnerbild& b);

// The files of `bild` whose name begins with `anfang` (e.g. "L1997").
[[nodiscard]] Ordnerbild teilbild(const Ordnerbild& bild, const std::string& anfang);

// A started store seeded with the installation data, as a new working folder is.
struct Bestand {
    Bestand();
    Tempordner ordner;
    SkriptDialoge dialoge;
    Sitzung s;
};

// Writes record `nummer` of a month file of 1997 with `wert(22)` = `brutto`, so each person's
// December can be told apart.
void dezembersetzen(Sitzung& s, int schicht, int nummer, std::int32_t brutto);

} // namespace lonvir::test
