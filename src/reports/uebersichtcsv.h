// The overviews as CSV for a spreadsheet (semicolon, decimal comma, UTF-8 with BOM, one
// header row): the amounts of the grids, as DM without thousands separators.
#pragma once

#include "reports/form2.h"
#include "reports/form3.h"

#include <string>

namespace lonvir {

// The annual overview of the view shown: "Position", the twelve months and the year; a row
// per row of the three grids, named by its labels.
[[nodiscard]] std::string jahresuebersichtcsv(const Form3& f);
// The totals form's grid: a row per chosen person, the totals, the months.
[[nodiscard]] std::string gesamtsummencsv(Sitzung& s, const Form2& f);
// The salary list: a row per chosen person and the totals.
[[nodiscard]] std::string gehaelterlistecsv(Sitzung& s, const Jahressummen& j);
// The monthly overview: a row per month and the totals.
[[nodiscard]] std::string monatsuebersichtcsv(Sitzung& s, const Jahressummen& j);

} // namespace lonvir
