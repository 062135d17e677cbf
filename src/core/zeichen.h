// Text by characters rather than bytes: counts, cuts, trims and capitals of UTF-8 texts whose
// characters all lie in code page 1252, as every text of the files does.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace lonvir {

// Characters of a UTF-8 text (each character of code page 1252 is one column on paper).
[[nodiscard]] std::size_t zeichenzahl(std::string_view utf8);
// The first `anzahl` characters; the whole text when it is shorter.
[[nodiscard]] std::string links(std::string_view utf8, std::size_t anzahl);
// Blanks removed on both sides, on the left, on the right (only blanks, as the printer's
// text functions do).
[[nodiscard]] std::string getrimmt(std::string_view text);
[[nodiscard]] std::string linksgetrimmt(std::string_view text);
[[nodiscard]] std::string rechtsgetrimmt(std::string_view text);
// Upper case of the letters of code page 1252 (ä to Ä, é to É); ß stays ß.
[[nodiscard]] std::string grossbuchstaben(std::string_view utf8);

} // namespace lonvir
