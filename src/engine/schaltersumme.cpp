// Row sums by switch; each step goes through Currency and back to a rounded 32-bit amount.
#include "engine/schaltersumme.h"

namespace lonvir {

std::int32_t zahlwertsumme(const Sitzung& s, const Schalter& schalter, std::int16_t stellung,
                           int von, int bis) {
    std::int32_t summe = 0;
    for (int i = von; i <= bis; ++i)
        if (schalter[i] == stellung)
            summe = (Currency::ganz(summe) + s.zahlwert[i]).gerundetInt32();
    return summe;
}

std::int32_t zahlwertabzug(const Sitzung& s, const Schalter& schalter, std::int16_t stellung,
                           int von, int bis) {
    std::int32_t summe = 0;
    for (int i = von; i <= bis; ++i)
        if (schalter[i] == stellung)
            summe = (Currency::ganz(summe) - s.zahlwert[i]).gerundetInt32();
    return summe;
}

} // namespace lonvir
