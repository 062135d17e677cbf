// The remark cards of the open layer and year: file 13, one record per person.
#pragma once

#include "records/jahressatz.h"
#include "start/sitzung.h"

namespace lonvir {

// The card of person `person`; a record past the end of the file reads as blank fields.
[[nodiscard]] Jahressatz jahressatzlesen(Sitzung& s, int person);
// Writes the card at the person's number; a number past the end extends the file.
void jahressatzschreiben(Sitzung& s, int person, const Jahressatz& j);

} // namespace lonvir
