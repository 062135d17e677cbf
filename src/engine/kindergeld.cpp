// Row 34, Kindergeld: fixed amounts by the number of children, or the typed amount.
#include "engine/schritte.h"

namespace lonvir {

void kindergeld(Sitzung& s) {
    // 220 DM for each of the first two children, 300 DM for the third, 350 DM from the fourth.
    static constexpr std::int32_t betraege[] = {0, 22000, 44000, 74000, 109000, 144000, 179000};
    const std::int16_t kinder = s.merkmal[34];
    if (kinder >= 1 && kinder <= 6)
        s.wert[34] = betraege[kinder];
    else
        s.wert[34] = s.eingabe[34];
}

} // namespace lonvir
