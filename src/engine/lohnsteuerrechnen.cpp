// The exact fixed-point steps of the wage-tax routine.
#include "engine/lohnsteuerrechnen.h"

#include "core/laufzeitfehler.h"

#include <cmath>
#include <limits>

namespace lonvir {

namespace {

using int128 = __int128;

std::int64_t passend(int128 v) {
    if (v < std::numeric_limits<std::int64_t>::min() ||
        v > std::numeric_limits<std::int64_t>::max())
        throw Laufzeitfehler::ueberlauf();
    return static_cast<std::int64_t>(v);
}

} // namespace

Currency geteiltGerundet(Currency a, std::int64_t zaehler, std::int64_t nenner) {
    // Both signs folded into the dividend, so the divisor is positive.
    int128 z = int128{a.roh()} * zaehler;
    int128 d = nenner;
    if (d < 0) {
        z = -z;
        d = -d;
    }
    int128 q = z / d;
    int128 r = z % d;
    int128 doppelt = (r < 0 ? -r : r) * 2;
    if (doppelt > d || (doppelt == d && q % 2 != 0))
        q += (z < 0) ? -1 : 1;
    return Currency::roh(passend(q));
}

Currency geteiltAbgeschnitten(Currency a, std::int64_t zaehler, std::int64_t nenner) {
    const int128 ganz = int128{a.roh()} * zaehler / (int128{nenner} * Currency::skala);
    return Currency::roh(passend(ganz * Currency::skala));
}

Currency aufHundertstelAbgeschnitten(Currency a) {
    return Currency::roh(a.roh() / 100 * 100);
}

Currency stufe54(Currency v) {
    return geteiltAbgeschnitten(v, 1, 54) * dm(54);
}

Currency produktViermalAbgeschnitten(Currency y, double faktor) {
    const double produkt = y.alsDouble() * faktor * 10000.0;
    return Currency::gerundet(std::trunc(produkt) / 10000.0);
}

} // namespace lonvir
