// Texts and numbers for printed reports: character counts, cuts, trims and number formats.
#pragma once

#include "core/drucker.h"
#include "core/zeichen.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace lonvir {

// A number by a format of the printed reports with German separators: "#" an optional digit,
// "0" a digit always shown, "," in the whole part groups thousands with ".", "." the decimal
// comma. "##,##0.00": 1234.5 -> "1.234,50"; "###,###.00": 0.5 -> ",50"; "##0.0"; "#0.00000".
// The value is rounded to the decimals of the format, ties to even on the exact binary value.
[[nodiscard]] std::string formatzahl(double wert, std::string_view format);
// Pfennig as DM by a format: the amount divided by 100 (or by -100 for deductions shown
// positive).
[[nodiscard]] std::string formatpfennig(std::int64_t pfennig, std::string_view format);

// The right-alignment of money columns: the text at `Tab(endspalte - length)`, so its last
// character stands in column `endspalte - 1`. `rechtsbuendig` adds it to a line being built,
// `betragrechts` prints it.
void rechtsbuendig(std::vector<Druckteil>& zeile, int endspalte, const std::string& text);
void betragrechts(Drucker& d, int endspalte, const std::string& text,
                  Zeilenende ende = Zeilenende::bleiben);

} // namespace lonvir
