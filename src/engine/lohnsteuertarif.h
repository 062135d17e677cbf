// The inner steps of the wage-tax routine: tariff with Vorsorgepauschale, the basic tariff of
// section 32a EStG and the tariff of classes 5 and 6.
#pragma once

#include "engine/lohnsteuer.h"

namespace lonvir {

// zve and x from stufewert, ztabfb and the Vorsorgepauschale, then st by the class's tariff.
void tarif(Lohnsteuerlauf& l);

// The Vorsorgepauschale of the table step: vsp1, vhb and vsp.
void vorsorge(Lohnsteuerlauf& l);

// Half of what exceeds the first step of the Vorsorgepauschale: rounded to Currency, cut to
// whole Pfennig and raised by one Pfennig whenever the half is not whole DM.
[[nodiscard]] Currency haelfteDesRests(Currency ueberschuss);

// The tariff of the run's law (l.recht) on an amount on the grid, times kztab, into st. An
// amount between the end of the second zone and the start of the third leaves st as it was.
void grundtarif(Lohnsteuerlauf& l, Currency betrag);

// Classes 5 and 6: twice the difference of the tariff on 125 % and 75 %, at least 25.9 %.
void tarif56(Lohnsteuerlauf& l);

} // namespace lonvir
