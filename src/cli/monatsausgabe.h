// The 46 rows of a person's month as text or JSON, shared by zeigen and setzen.
#pragma once

#include "cli/befehle.h"
#include "screen/form1.h"

#include <iosfwd>
#include <memory>

namespace lonvir::cli {

void monatausgeben(Kontext& k, std::ostream& aus);
// --person and --monat, checked against the store; loads the month and runs it.
void monatwaehlen(Kontext& k);
// --person and --monat, the month as stored, without a calculation (the year view sums the
// stored months).
void gespeichertenmonatladen(Kontext& k);
// The same through a main screen without a window, which stays open for the inputs that follow:
// the lists filled, the person and the month chosen, the screen refreshed from the record.
[[nodiscard]] std::unique_ptr<Form1> hauptformoeffnen(Kontext& k);

} // namespace lonvir::cli
