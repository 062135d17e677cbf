// The solidarity surcharge: a zone of 20 % above the threshold softens the step to 7.5 %.
#include "engine/solidaritaet.h"

#include "engine/lohnsteuerrechnen.h"

namespace lonvir {

Currency solidaritaetszuschlag(Currency t, Currency grenze, std::int64_t promille) {
    if (t <= grenze)
        return Currency{};
    const Currency a = geteiltGerundet(t, promille, 1000);
    const Currency b = geteiltGerundet(t - grenze, 20, 100);
    return b < a ? b : a;
}

} // namespace lonvir
