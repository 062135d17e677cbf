// The print-line helper of the reports: a stored free text, line by line at column 10.
#pragma once

#include "core/drucker.h"

#include <string>

namespace lonvir {

// Trims the text and prints it part by part: up to each carriage return at Tab(10) with the
// position kept (the line feed behind it ends the printed line), the rest as a line of its
// own. Each part is trimmed first, so the leading blanks of a line are lost.
void zeilendrucken(Drucker& d, std::string text);

} // namespace lonvir
