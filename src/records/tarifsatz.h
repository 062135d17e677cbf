// One line of a pay table: the pay of one group at every step, with its allowances, 108 bytes.
#pragma once

#include "core/feld.h"

#include <cstdint>
#include <span>

namespace lonvir {

// 27 signed 32-bit amounts in Pfennig, little-endian, element i at offset 4i: steps 1 to 15
// (elements 0 to 14, the last also "Stufe 15 o.a."), Ortszuschlag basic amount (15), married
// (16), one to six children (17 to 22), accommodation classes II and Ic (23, 24), the general
// position allowance (25) and the hourly overtime rate (26).
struct Tarifsatz {
    static constexpr int laenge = 108;

    Feld<std::int32_t, 0, 26> wert;

    [[nodiscard]] static Tarifsatz lesen(std::span<const std::uint8_t> satz);
    void schreiben(std::span<std::uint8_t> satz) const;
    bool operator==(const Tarifsatz&) const = default;
};

} // namespace lonvir
