// A small tariff line with a known amount in every element, for the gross-pay tests.
#pragma once

#include "engine/tarifdatei.h"
#include "records/tarifsatz.h"

namespace lonvir::test {

// Steps 1 to 14 (elements 0 to 13): 1,500.00 DM plus 100.00 DM per step, 150000 to 280000.
// Element 14 (Stellenzulage, second kind, or step 15): 9000.
// Ortszuschlag: stage 1 80000, married 15001 (odd, so half of it ends in .5), children
// 20000, 21000, 22000, 23000, 24000, 25000; accommodation II 30000, Ic 31000.
// Stellenzulage, first kind: 12000. Overtime per hour: 3001.
inline Tarifsatz testsatz(std::int32_t aufschlag = 0) {
    Tarifsatz t;
    for (int i = 0; i <= 13; ++i)
        t.wert[i] = 150000 + 10000 * i + aufschlag;
    t.wert[14] = 9000;
    t.wert[15] = 80000;
    t.wert[16] = 15001;
    for (int i = 17; i <= 22; ++i)
        t.wert[i] = 20000 + 1000 * (i - 17);
    t.wert[23] = 30000;
    t.wert[24] = 31000;
    t.wert[25] = 12000;
    t.wert[26] = 3001;
    return t;
}

// Lays the line down as record `satz` of the open tariff file `datei`.
inline void tarifzeile(Sitzung& s, int datei, int satz, const Tarifsatz& t) {
    tarifsatzschreiben(s, satz, datei, t);
}

} // namespace lonvir::test
