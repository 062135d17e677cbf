// Currency arithmetic: every operation is checked; every conversion says how it rounds.
#include "core/currency.h"

#include "core/laufzeitfehler.h"
#include "core/pfennig.h"

#include <cmath>
#include <cstdlib>
#include <limits>

namespace lonvir {

namespace {

using int128 = __int128;

int64_t passend(int128 v) {
    if (v < std::numeric_limits<int64_t>::min() || v > std::numeric_limits<int64_t>::max())
        throw Laufzeitfehler::ueberlauf();
    return static_cast<int64_t>(v);
}

// Quotient of a / d to the nearest, ties to even (d > 0).
int128 geteiltGerundet(int128 a, int128 d) {
    int128 q = a / d;
    int128 r = a % d;
    int128 doppelt = (r < 0 ? -r : r) * 2;
    if (doppelt > d || (doppelt == d && (q % 2 != 0)))
        q += (a < 0) ? -1 : 1;
    return q;
}

} // namespace

Currency Currency::ganz(int64_t wert) {
    return roh(passend(int128{wert} * skala));
}

Currency Currency::gerundet(double wert) {
    double skaliert = wert * static_cast<double>(skala);
    if (!(skaliert > -9.2233720368547758e18 && skaliert < 9.2233720368547758e18))
        throw Laufzeitfehler::ueberlauf();
    return roh(static_cast<int64_t>(std::nearbyint(skaliert)));
}

int32_t Currency::gerundetInt32() const {
    return pf::int32(static_cast<int64_t>(geteiltGerundet(roh_, skala)));
}

int16_t Currency::gerundetInt16() const {
    return pf::int16(gerundetInt32());
}

int32_t Currency::abgeschnittenInt32() const {
    return pf::int32(roh_ / skala);
}

Currency Currency::abgeschnitten() const {
    return roh(roh_ / skala * skala);
}

Currency Currency::operator+(Currency b) const {
    return roh(passend(int128{roh_} + b.roh_));
}

Currency Currency::operator-(Currency b) const {
    return roh(passend(int128{roh_} - b.roh_));
}

Currency Currency::operator-() const {
    return roh(passend(-int128{roh_}));
}

Currency Currency::operator*(Currency b) const {
    return roh(passend(geteiltGerundet(int128{roh_} * b.roh_, skala)));
}

std::string Currency::text() const {
    // In unsigned arithmetic, so that the smallest value has a magnitude too.
    const uint64_t betrag =
        roh_ < 0 ? 0 - static_cast<uint64_t>(roh_) : static_cast<uint64_t>(roh_);
    std::string bruch = std::to_string(betrag % static_cast<uint64_t>(skala));
    bruch.insert(0, 4 - bruch.size(), '0');
    return (roh_ < 0 ? "-" : "") + std::to_string(betrag / static_cast<uint64_t>(skala)) + "." +
           bruch;
}

} // namespace lonvir
