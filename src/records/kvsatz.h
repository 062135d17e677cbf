// One month of health-insurance rates: records 3 to 26 of the display settings file, 232 bytes.
#pragma once

#include "core/feld.h"

#include <array>
#include <cstdint>
#include <span>

namespace lonvir {

// The rate of fund k (0 to 27) as a signed 16-bit number of hundredths of a percent, 13.5 %
// as 1350, at offset 2k. The record has the size of the display settings; its bytes behind
// the 28 rates are kept as read.
struct Kvsatz {
    static constexpr int laenge = 232;
    static constexpr std::size_t ratenbytes = 56;

    Feld<std::int16_t, 0, 27> satz;
    std::array<std::uint8_t, laenge - ratenbytes> rest{};

    [[nodiscard]] static Kvsatz lesen(std::span<const std::uint8_t> b);
    void schreiben(std::span<std::uint8_t> b) const;
    bool operator==(const Kvsatz&) const = default;
};

} // namespace lonvir
