// Row 15: the vermögenswirksame Leistungen picked in the row's list.
#include "engine/schritte.h"

#include <array>

namespace lonvir {

void vwlzeile(Sitzung& s) {
    // 6.50, 13.00, 26.00, 39.00, 52.00 and 78.00 DM a month; any later entry keeps what was typed.
    static constexpr std::array<std::int32_t, 7> betraege = {0, 650, 1300, 2600, 3900, 5200, 7800};
    const int stufe = s.merkmal[15];
    if (stufe < 0 || stufe > 6)
        return;
    s.wert[15] = betraege[static_cast<std::size_t>(stufe)];
    s.eingabe[15] = betraege[static_cast<std::size_t>(stufe)];
}

} // namespace lonvir
