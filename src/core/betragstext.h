// The screen's text of an amount: two decimals, "." thousands, the sign behind the number.
#pragma once

#include <cstdint>
#include <string>

namespace lonvir {

// Sign "-" behind a negative amount, "+" behind any other: 0 gives "0,00+".
[[nodiscard]] std::string betragstext(std::int32_t pfennig);
// The text a row box shows: rows 0 to 3 as whole hours or days where possible, rows 27 to
// 32 nothing, all others with the sign "-", "+" or "±" for zero behind the number.
[[nodiscard]] std::string zeilentext(int zeile, std::int32_t wert);

} // namespace lonvir
