// The screen's text of an amount: two decimals, "." thousands, the sign behind the number.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace lonvir {

// Sign "-" behind a negative amount, "+" behind any other: 0 gives "0,00+".
[[nodiscard]] std::string betragstext(std::int32_t pfennig);
// The text a row box shows: rows 0 to 3 as whole hours or days where possible, rows 27 to
// 32 nothing, all others with the sign "-", "+" or "±" for zero behind the number.
[[nodiscard]] std::string zeilentext(int zeile, std::int32_t wert);
// A typed DM amount as Pfennig: "2000", "2000,5", "2000,50", "2.000,50" or "2000.50", at most
// seven digits before the decimals; nothing for any other text.
[[nodiscard]] std::optional<std::int64_t> dmlesen(std::string_view text);

} // namespace lonvir
