// The deduction annex: the working sheets of wage tax, social insurance and supplementary
// pension of the month on one landscape page.
#pragma once

#include "core/drucker.h"
#include "start/druckspalten.h"
#include "start/schirmtexte.h"
#include "start/sitzung.h"

#include <functional>

namespace lonvir {

// The panel's sheets, copied: columns 0 and 1 the wage tax, with `sozialversicherung` columns
// 2 to 5 social insurance and supplementary pension.
using Arbeitsblaetter = std::function<Druckspalten(bool sozialversicherung)>;

// 41 while the annex copies the panel's sheets, 0 otherwise: the panel's builders skip their
// screen work when they see it.
[[nodiscard]] std::int16_t druckmodus();

// Prints the annex. The refusal for the year looks at row 15, whose list has seven entries,
// so it never fires (row 20 holds the month); it stays so. `druckmodus` is 41 while the
// sheets are copied and 0 afterwards. Civil servants (staff classes below 5) get the wage-tax
// sheet only.
void abzuegedrucken(Sitzung& s, const Schirmtexte& bild, const Arbeitsblaetter& blaetter,
                    Drucker& d);

// The table as printed: the sheets with the captions that are only a builder's filler on
// paper blanked and the headings set.
[[nodiscard]] Druckspalten druckspaltenfuellen(Sitzung& s, const Arbeitsblaetter& blaetter);

} // namespace lonvir
