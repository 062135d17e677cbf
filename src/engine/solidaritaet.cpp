// The solidarity surcharge: a zone of 20 % above the threshold softens the step to 7.5 %.
#include "engine/solidaritaet.h"

#include "engine/lohnsteuerrechnen.h"

namespace lonvir {

Currency solidaritaetszuschlag(Currency t, Currency grenze) {
    if (t <= grenze)
        return Currency{};
    const Currency a = geteiltGerundet(t, 75, 1000);
    const Currency b = geteiltGerundet(t - grenze, 20, 100);
    return b < a ? b : a;
}

} // namespace lonvir
