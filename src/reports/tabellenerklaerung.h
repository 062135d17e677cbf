// A double click on a class of the wage-tax table viewer: the wage of the band run for that
// class alone, its steps in the working rows of the tax panel (page 6), as the month's tax
// step leaves them for the person's month.
#pragma once

#include "reports/lohnsteuertabelle.h"
#include "start/sitzung.h"

namespace lonvir {

// The working rows of the panel: the band's wage as the gross and the current taxable wage,
// the band's bounds, and the class's wage tax, surcharge and church tax; every other row 0.
// `t` must be filled (`tabellefuellen`). The next run of the month fills the rows for the
// person again.
void tabellenzeileerklaeren(Sitzung& s, const Lohnsteuertabelle& t, std::int16_t steuerklasse);

} // namespace lonvir
