// Texts and numbers for printed reports: character counts, cuts, trims and number formats.
#pragma once

#include "core/drucker.h"

#include <cstddef>
#include <cstdint>
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

// A number by a format of the printed reports with German separators: "#" an optional digit,
// "0" a digit always shown, "," in the whole part groups thousands with ".", "." the decimal
// comma. "##,##0.00": 1234.5 -> "1.234,50"; "###,###.00": 0.5 -> ",50"; "##0.0"; "#0.00000".
// The value is rounded to the decimals of the format, ties to even on the exact binary value.
[[nodiscard]] std::string formatzahl(double wert, std::string_view format);
// Pfennig as DM by a format: the amount divided by 100 (or by -100 for deductions shown
// positive).
[[nodiscard]] std::string formatpfennig(std::int64_t pfennig, std::string_view format);

// The right-alignment of money columns: the text at `Tab(endspalte - length)`, so its last
// character stands in column `endspalte - 1`.
void betragrechts(Drucker& d, int endspalte, const std::string& text,
                  Zeilenende ende = Zeilenende::bleiben);

} // namespace lonvir
