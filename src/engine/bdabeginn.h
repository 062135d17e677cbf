// Month and year of the start of the service age, "MM.19JJ", read as the runtime reads numbers.
#pragma once

#include <string_view>

namespace lonvir {

// The first two characters as a number: leading blanks, then digits; nothing readable is 0.
[[nodiscard]] double bdamonat(std::string_view bdabeginn);
// The last two characters, read the same way.
[[nodiscard]] double bdajahr(std::string_view bdabeginn);

} // namespace lonvir
