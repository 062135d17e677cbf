// The preset settings of the installation: Lonvir97.voe (two years) and Lonvir97.dim (row
// colours, window places, and the monthly health-insurance rates of 1997 and 1998).
#pragma once

#include "records/dimsatz.h"
#include "records/kvsatz.h"
#include "records/voeinsatz.h"

#include <array>
#include <filesystem>

namespace lonvir::installation {

// data/vorgaben/voe.tsv: year, field, index, value, explanation. The field is
// voreinstellung or vorgabewert (with the element as index) or one of the four lines
// dienststelle1, dienststelle2, dienststellenort, berichtszeile (index "-"). Elements not
// named stay 0, lines blank. Element [0] is the 1997 record, [1] the 1998 record.
[[nodiscard]] std::array<Voeinsatz, 2> voelesenausquelle(const std::filesystem::path& quelle);

// data/vorgaben/farben.tsv: row, colour number 0 to 15; every row 0 to 45 exactly once.
// The rest of the record are the defaults of an empty file for the standard screen.
[[nodiscard]] Dimsatz dimlesenausquelle(const std::filesystem::path& quelle);

// data/vorgaben/kv_saetze.tsv: fund 0 to 27, year, first month 1 to 12, rate in percent
// (two decimals), source. A rate holds from its month to December, as the rate form keys it;
// a later line for the same fund and year overrides from its month on.
// Element m is month m (0 January) of 1997 for m 0 to 11, of 1998 for m 12 to 23.
[[nodiscard]] std::array<Kvsatz, 24> kvlesenausquelle(const std::filesystem::path& quelle);

// Lonvir97.voe records 1 and 2; Lonvir97.dim record 1, an empty record 2 and records 3 to 26.
void voeschreibennach(const std::array<Voeinsatz, 2>& voe, const std::filesystem::path& ziel);
void dimschreibennach(const Dimsatz& dim, const std::array<Kvsatz, 24>& kv,
                      const std::filesystem::path& ziel);

} // namespace lonvir::installation
