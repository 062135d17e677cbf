// The text table: every list text, title, name and cost centre, one 35-byte record each.
#pragma once

#include "start/sitzung.h"

#include <string>

namespace lonvir {

namespace textnummer {
constexpr int ersterName = 5001;  // person n at 5000 + n
constexpr int letzterName = 6000; // at most 1000 persons
constexpr int ersteKostenstelle = 4801;
} // namespace textnummer

// The text of record `nummer` in UTF-8, 35 characters with the blanks; past the end blanks.
[[nodiscard]] std::string textlesen(Sitzung& s, int nummer);
// Writes `text` (UTF-8), cut to 35 characters of code page 1252 and blank padded.
void textschreiben(Sitzung& s, int nummer, const std::string& text);
// The text without the blanks on the right.
[[nodiscard]] std::string textgetrimmt(Sitzung& s, int nummer);

// Persons: the last non-blank name from record 6000 downward, less 5000; not below 0.
[[nodiscard]] std::int16_t personenzaehlen(Sitzung& s);
// Cost centres: from record 4801 up to the first blank one.
[[nodiscard]] std::int16_t kostenstellenzaehlen(Sitzung& s);

} // namespace lonvir
