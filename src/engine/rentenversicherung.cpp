// Pension and unemployment insurance: the employee's half of the rate on the pension base.
#include "core/pfennig.h"
#include "engine/sozialversicherung.h"

namespace lonvir {

void rentenversicherung(Sitzung& s) {
    const std::int32_t basis = s.svwert[17];
    if (s.merkmal[39] == 0) {
        const double haelfte = basismal(basis, s.einstellungen.rvsatz) / 100.0;
        if (s.merkmal[32] > 1) {
            // The employer bears the whole contribution.
            s.nebenwert[2] = pf::gerundet(haelfte * 2.0);
            s.wert[39] = 0;
        } else {
            s.wert[39] = pf::gerundet(haelfte * -1.0);
            s.nebenwert[2] = pf::negiert(s.wert[39]);
        }
    } else if (s.merkmal[39] == 1) {
        s.wert[39] = 0;
        s.nebenwert[2] = 0;
    }
}

void arbeitslosenversicherung(Sitzung& s) {
    const std::int32_t basis = s.svwert[17];
    if (s.merkmal[40] == 0) {
        s.nebenwert[3] = pf::gerundet(basismal(basis, s.einstellungen.avsatz) / 100.0);
        s.wert[40] = pf::negiert(s.nebenwert[3]);
        if (s.merkmal[32] > 1) {
            // The employer bears the whole contribution: the rounded half, doubled.
            s.nebenwert[3] = pf::mal(s.nebenwert[3], 2);
            s.wert[40] = 0;
        }
    } else if (s.merkmal[40] == 1) {
        s.wert[40] = 0;
        s.nebenwert[3] = 0;
    }
}

} // namespace lonvir
