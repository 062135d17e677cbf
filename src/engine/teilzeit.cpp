// Part-time pay: rows 7 to 19 times the part-time factor where the row's tei switch is set;
// the Ortszuschlag of a person whose spouse is in the public service keeps its upper part.
#include "engine/schritte.h"

namespace lonvir {

namespace {

Currency mitFaktor(const Sitzung& s, int zeile) {
    return Currency::gerundet(static_cast<double>(s.wert[zeile]) *
                              static_cast<double>(s.teilzeitfaktor));
}

Currency nachSchalter(const Sitzung& s, int zeile) {
    return s.tei[zeile] == 1 ? mitFaktor(s, zeile) : Currency::ganz(s.wert[zeile]);
}

bool ehegattenregelGilt(int personalart) {
    return (personalart >= 0 && personalart <= 3) || (personalart >= 5 && personalart <= 7) ||
           (personalart >= 13 && personalart <= 17);
}

// The Ortszuschlag less its step-1 base, plus the base times the factor.
Currency sonderteil(Sitzung& s) {
    const double stufe1 = s.tarifwert[15];
    return Currency::gerundet(static_cast<double>(s.wert[8]) - stufe1 +
                              static_cast<double>(s.teilzeitfaktor) * stufe1);
}

void ortszuschlag(Sitzung& s) {
    const int art = s.personalart();
    if (s.tei[8] != 1) {
        s.teilwert[8] = Currency::ganz(s.wert[8]);
    } else if (ehegattenregelGilt(art)) {
        const float faktor = s.teilzeitfaktor;
        bool sonder = false;
        if (s.merkmal[8] != 0 && s.merkmal[8] < 11) {
            switch (s.merkmal[3]) {
            case 1: // "ja voll"
                sonder = true;
                break;
            case 2: // "ja > 49%": one half counts as above the float 0.49999899
                sonder = faktor > 0.49999899f;
                break;
            case 3: // "ja < 50%"
                sonder = !(faktor < 1.0f);
                break;
            default:
                break;
            }
        }
        s.teilwert[8] = sonder ? sonderteil(s) : mitFaktor(s, 8);
        s.oz_sonder = sonder ? 1 : 0;
    } else if (art == 4 || (art >= 8 && art <= 12)) {
        s.teilwert[8] = mitFaktor(s, 8);
    }
    // Any other staff class keeps teilwert(8) from the run before.
    if (art == 18)
        s.teilwert[8] = Currency::ganz(0);
}

void vwl(Sitzung& s) {
    const int art = s.personalart();
    if (art >= 0 && art <= 4) {
        // Civil servants in part-time get half of any VWL, whatever the factor.
        const bool halb = s.teilzeitfaktor < 1.0f && s.merkmal[15] > 0;
        s.teilwert[15] = halb ? Currency::gerundet(static_cast<double>(s.wert[15]) / 2)
                              : Currency::ganz(s.wert[15]);
    } else if (art >= 5 && art <= 17) {
        s.teilwert[15] = nachSchalter(s, 15);
    }
    if (s.teilzeitfaktor == 0.0f)
        s.teilwert[15] = Currency::ganz(0);
}

} // namespace

void teilzeit(Sitzung& s) {
    s.oz_sonder = 0;
    s.teilwert[7] = nachSchalter(s, 7);
    ortszuschlag(s);
    for (int zeile = 9; zeile <= 14; ++zeile)
        s.teilwert[zeile] = nachSchalter(s, zeile);
    vwl(s);
    for (int zeile = 16; zeile <= 19; ++zeile)
        s.teilwert[zeile] = nachSchalter(s, zeile);
}

} // namespace lonvir
