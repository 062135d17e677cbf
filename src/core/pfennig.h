// Checked 32-bit (and 16-bit) integer arithmetic and the named conversions from floating point.
#pragma once

#include <cstdint>

namespace lonvir::pf {

// Each of these raises run-time error 6 when the result leaves the 32-bit range.
[[nodiscard]] int32_t plus(int32_t a, int32_t b);
[[nodiscard]] int32_t minus(int32_t a, int32_t b);
[[nodiscard]] int32_t mal(int32_t a, int32_t b);
[[nodiscard]] int32_t negiert(int32_t a);

// A 64-bit integer narrowed to 32 or 16 bits, error 6 when it does not fit.
[[nodiscard]] int32_t int32(int64_t a);
[[nodiscard]] int16_t int16(int64_t a);

// Floating point to integer, to the nearest, ties to the even neighbour (2.5 -> 2, 3.5 -> 4).
[[nodiscard]] int32_t gerundet(double d);
[[nodiscard]] int16_t gerundet16(double d);
// Floating point to integer, cut towards zero (2.9 -> 2, -2.9 -> -2).
[[nodiscard]] int32_t abgeschnitten(double d);

} // namespace lonvir::pf
