// The employer's levy for civil servants' pensions: the rate of row 25 on the pensionable rows.
#include "core/pfennig.h"
#include "engine/schaltersumme.h"
#include "engine/schritte.h"

namespace lonvir {

void umlage_beamte(Sitzung& s) {
    for (int i = 0; i <= 6; ++i)
        s.nebenwert[i] = 0;
    s.wert[32] = 0;
    s.zvkwert[7] = zahlwertsumme(s, s.zvk, 1, 7, 19);
    // Row 25 holds the rate in hundredths of a percent.
    s.zvkwert[8] =
        pf::gerundet(static_cast<double>(s.wert[25]) / 10000.0 * static_cast<double>(s.zvkwert[7]));
    s.wert[31] = s.zvkwert[8];
}

} // namespace lonvir
