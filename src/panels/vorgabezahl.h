// Numbers typed into the boxes of the settings pages, read as the pages read them.
#pragma once

#include <string>

namespace lonvir {

// The number at the start of the text: blanks skipped, an optional sign, digits with at most
// one full stop; it ends at the first other character. No number reads as 0.
[[nodiscard]] double vorgabezahl(const std::string& text);

} // namespace lonvir
