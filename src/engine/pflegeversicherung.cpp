// Care insurance: the employee's factor by the row's selection, then row 38 and the
// employer's share by the same selection.
#include "core/pfennig.h"
#include "engine/sozialversicherung.h"

namespace lonvir {

namespace {

// pvsatz / 100, 0.01, (2 * pvsatz - 1) / 100 or 0; any other selection keeps the last factor.
void faktorwaehlen(Sitzung& s) {
    const double pvsatz = s.einstellungen.pvsatz.alsDouble();
    switch (s.merkmal[38]) {
    case 0:
    case 1:
    case 2:
    case 5:
        s.pvfaktor = Currency::gerundet(pvsatz / 100.0);
        break;
    case 3:
        s.pvfaktor = Currency::gerundet(0.01);
        break;
    case 4:
        s.pvfaktor = Currency::gerundet((2.0 * pvsatz - 1.0) / 100.0);
        break;
    case 6:
        s.pvfaktor = Currency::ganz(0);
        break;
    default:
        break;
    }
}

// The base times pvsatz / 100, and the base times the employer's part (2 * pvsatz - 1) / 100.
double anteil(const Sitzung& s, std::int32_t basis) {
    return basismal(basis, s.einstellungen.pvsatz) / 100.0;
}
std::int32_t arbeitgeberteil(const Sitzung& s, std::int32_t basis) {
    const Currency satz = s.einstellungen.pvsatz * Currency::ganz(2) - Currency::ganz(1);
    return pf::gerundet(basismal(basis, satz) / 100.0);
}

} // namespace

void pflegeversicherung(Sitzung& s) {
    const std::int32_t basis = s.svwert[14];
    faktorwaehlen(s);
    s.wert[38] = (Currency::ganz(basis) * s.pvfaktor).gerundetInt32();
    switch (s.merkmal[38]) {
    case 0:
        s.wert[38] = pf::gerundet(anteil(s, basis) * -1.0);
        s.nebenwert[1] = pf::negiert(s.wert[38]);
        break;
    case 1: // a subsidy
        s.wert[38] = pf::gerundet(anteil(s, basis));
        s.nebenwert[1] = s.wert[38];
        break;
    case 2:
        s.wert[38] = pf::gerundet(static_cast<double>(basis) * 0.01 * -1.0);
        s.nebenwert[1] = arbeitgeberteil(s, basis);
        break;
    case 3: // a subsidy of the employer's part
        s.nebenwert[1] = arbeitgeberteil(s, basis);
        s.wert[38] = s.nebenwert[1];
        break;
    case 4:
        s.wert[38] = 0;
        s.nebenwert[1] = 0;
        break;
    case 6:
        s.wert[38] = 0;
        break;
    default: // 5 and the others keep the row as the factor gave it
        break;
    }
    // The employer bears the whole contribution.
    if (s.merkmal[38] < 4 && s.merkmal[32] > 1) {
        const std::int32_t betrag = s.wert[38] < 0 ? pf::negiert(s.wert[38]) : s.wert[38];
        s.nebenwert[1] = pf::mal(betrag, 2);
        s.wert[38] = 0;
    }
}

} // namespace lonvir
