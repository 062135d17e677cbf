// Health insurance: the fund's rate of the month on the base, a typed subsidy, or nothing.
#include "core/pfennig.h"
#include "engine/sozialversicherung.h"

namespace lonvir {

namespace {
constexpr int zuschuss = 28;
constexpr int keine = 29;
} // namespace

void krankenversicherung(Sitzung& s) {
    const int kasse = s.merkmal[37];
    const std::int32_t basis = s.svwert[14];
    if (kasse < zuschuss) {
        // The rate is held in hundredths of a percent; the employee bears half.
        const Currency satz = s.kvsatz[beitragsmonat(s)][kasse];
        s.wert[37] = pf::gerundet(basismal(basis, satz) / 20000.0 * -1.0);
        s.nebenwert[0] = pf::negiert(s.wert[37]);
    } else if (kasse == zuschuss) {
        // A subsidy paid with the salary, hence positive.
        s.wert[37] = s.eingabe[37];
        s.nebenwert[0] = s.eingabe[37];
    } else if (kasse == keine) {
        s.wert[37] = 0;
        s.nebenwert[0] = 0;
    }
    // The employer bears the whole contribution.
    if (kasse < keine && s.merkmal[32] > 1) {
        const Currency satz = s.kvsatz[beitragsmonat(s)][kasse];
        s.nebenwert[0] = pf::gerundet(basismal(basis, satz) / 10000.0);
        s.wert[37] = 0;
    }
}

} // namespace lonvir
