// Row 17, Urlaubsgeld: paid in July, 650 or 500 DM by staff class and pay group.
#include "engine/schritte.h"

namespace lonvir {

namespace {

constexpr std::int16_t juli = 6;
constexpr std::int32_t hoch = 65000;
constexpr std::int32_t normal = 50000;

std::int32_t betragNachKlasse(int art, int gruppe) {
    switch (art) {
    case 0:
        return gruppe < 9 ? hoch : normal;
    case 4:
        return normal;
    case 5:
        return gruppe > 10 ? hoch : normal;
    case 6:
        return gruppe > 8 ? hoch : normal;
    case 7:
        return gruppe < 7 ? hoch : normal;
    case 9:
        return gruppe > 7 ? hoch : normal;
    case 10:
        return hoch;
    case 11:
        return 0;
    default:
        return normal;
    }
}

} // namespace

void urlaubsgeld(Sitzung& s) {
    const int art = s.personalart();
    if (art < 0 || art > 17)
        return;
    if (s.merkmal[20] != juli) {
        s.wert[17] = 0;
        return;
    }
    // The Ost pays 500 DM to everyone, staff class 11 included.
    s.wert[17] = s.merkmal[2] == 1 ? normal : betragNachKlasse(art, s.merkmal[5]);
    if (s.merkmal[17] == 1)
        s.wert[17] = s.eingabe[17];
}

} // namespace lonvir
