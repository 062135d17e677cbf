// The 46 rows of a person's month as text or JSON, shared by zeigen and setzen.
#pragma once

#include "cli/befehle.h"

#include <iosfwd>

namespace lonvir::cli {

void monatausgeben(Kontext& k, std::ostream& aus);
// --person and --monat, checked against the store; loads the month and runs it.
void monatwaehlen(Kontext& k);

} // namespace lonvir::cli
