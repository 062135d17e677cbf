// A month that computes to nothing because the tariff file holds no amount for the person's
// group: the clerk is told so, so that a 0,00 is not taken for a result.
#pragma once

#include "start/sitzung.h"

#include <optional>
#include <string>

namespace lonvir {

// After a run of the month: when the gross pay is 0 and the tariff line that the run read
// (`tarifwert`) holds no amount at all, the hint "Für diese Gruppe ist kein Tarifbetrag
// installiert" with the file and record of that line, e.g. "(Lonvir97.1tr, Satz 1)". Nothing
// for the year view, the gross slider and staff class 18, which has no tariff.
[[nodiscard]] std::optional<std::string> tariflueckenhinweis(const Sitzung& s);

} // namespace lonvir
