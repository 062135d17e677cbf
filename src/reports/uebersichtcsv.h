// The overviews as CSV for a spreadsheet (semicolon, decimal comma, UTF-8 with BOM, one
// header row): the amounts of the grids, as DM without thousands separators.
#pragma once

#include "core/csv.h"
#include "reports/form2.h"
#include "reports/form3.h"

namespace lonvir {

// The annual overview of the view shown: "Position", the twelve months and the year; a row
// per row of the three grids, named by its labels.
[[nodiscard]] Csvtabelle jahresuebersichtcsv(const Form3& f);
// The totals form's grid: a row per chosen person, the totals, the months.
[[nodiscard]] Csvtabelle gesamtsummencsv(Sitzung& s, const Form2& f);
// The salary list: a row per chosen person and the totals.
[[nodiscard]] Csvtabelle gehaelterlistecsv(Sitzung& s, const Jahressummen& j);
// The monthly overview: a row per month and the totals.
[[nodiscard]] Csvtabelle monatsuebersichtcsv(Sitzung& s, const Jahressummen& j);

} // namespace lonvir
