// The church-tax rate of a person: from the church-tax selection and the denomination.
#pragma once

#include "core/currency.h"

#include <cstdint>

namespace lonvir {

// merkmal(36): 0 8 %, 1 9 %, 2 typed, 3 none; merkmal(28) 6 (no denomination) sets 0 as well.
[[nodiscard]] Currency kirchensatzVon(std::int16_t kirchensteuerwahl, std::int16_t konfession);

} // namespace lonvir
