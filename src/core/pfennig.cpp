// Checked integer arithmetic: an overflow is run-time error 6, never a silent wrap.
#include "core/pfennig.h"

#include "core/laufzeitfehler.h"

#include <cfenv>
#include <cmath>
#include <limits>

namespace lonvir::pf {

int32_t int32(int64_t a) {
    if (a < std::numeric_limits<int32_t>::min() || a > std::numeric_limits<int32_t>::max())
        throw Laufzeitfehler::ueberlauf();
    return static_cast<int32_t>(a);
}

int16_t int16(int64_t a) {
    if (a < std::numeric_limits<int16_t>::min() || a > std::numeric_limits<int16_t>::max())
        throw Laufzeitfehler::ueberlauf();
    return static_cast<int16_t>(a);
}

int32_t plus(int32_t a, int32_t b) {
    return int32(int64_t{a} + b);
}
int32_t minus(int32_t a, int32_t b) {
    return int32(int64_t{a} - b);
}
int32_t mal(int32_t a, int32_t b) {
    return int32(int64_t{a} * b);
}
int32_t negiert(int32_t a) {
    return int32(-int64_t{a});
}

namespace {
double pruefen(double d) {
    // 2^31 is the first value that no longer fits; NaN fails every comparison.
    if (!(d > -2147483648.5 && d < 2147483647.5))
        throw Laufzeitfehler::ueberlauf();
    return d;
}
} // namespace

int32_t gerundet(double d) {
    // The default floating-point environment rounds to nearest, ties to even.
    return int32(static_cast<int64_t>(std::nearbyint(pruefen(d))));
}

int16_t gerundet16(double d) {
    return int16(gerundet(d));
}

int32_t abgeschnitten(double d) {
    return int32(static_cast<int64_t>(std::trunc(pruefen(d))));
}

} // namespace lonvir::pf
