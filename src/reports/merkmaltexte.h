// The words the annual overview prints for a month's settings: pay group, family status,
// spouse in the public service, and the short month names.
#pragma once

#include <optional>
#include <string>

namespace lonvir {

// gruppeeinsetzen's name of group `gruppe` (merkmal(5)) in staff class `personalart`
// (merkmal(4)); none for a group outside the class's range.
[[nodiscard]] std::optional<std::string> gruppenname(int personalart, int gruppe);
// The family allowance text of merkmal(8) by staff class; empty where the list has no entry.
[[nodiscard]] std::string familientext(int personalart, int familie);
// merkmal(3): "nein", "ja voll", "ja > 49%", "ja < 50%"; empty for other values.
[[nodiscard]] std::string ehegattentext(int ehegatte);
// monatskuerzel: "Jan" .. "Dez" for 1 to 12, the last two digits of the year for 13.
[[nodiscard]] std::string monatskuerzel(int monat, int jahr);

} // namespace lonvir
