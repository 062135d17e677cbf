// The panel's working sheets of the deductions as the annex prints them: the captions and
// amounts of pages 6, 29 and 8 side by side.
#pragma once

#include "start/druckspalten.h"
#include "start/sitzung.h"

namespace lonvir {

// Runs the builders of the wage-tax sheet and copies zeile(J) and kasten(J), J 0 to 27, to
// columns 0 and 1; with `sozialversicherung` also the social-insurance sheet to columns 2 and
// 3 and then the supplementary-pension sheet to columns 4 and 5, on the same panel, so that
// rows the pension sheet leaves alone keep what the social-insurance sheet put there. Without
// it columns 2 to 5 stay empty. The builders work on a panel of their own: the one on the
// screen keeps its page.
[[nodiscard]] Druckspalten arbeitsblaetterkopieren(Sitzung& s, bool sozialversicherung);

} // namespace lonvir
