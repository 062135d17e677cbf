// The two print-line helpers of the statements: a stored free text line by line, and the rule.
#pragma once

#include "core/drucker.h"

#include <string>

namespace lonvir {

// Prints a stored free text (UTF-8) at Tab(10), one printed line per carriage return. Each
// pass trims the text, so the leading blanks of a text line are lost; the line feed behind a
// carriage return ends the line before it. An empty text prints nothing. `drucktext` is the
// buffer and is empty afterwards.
void zeilendrucken(Drucker& d, std::string& drucktext);
// The literal rule at Tab(10), ending the line.
void strichzeile(Drucker& d);

inline constexpr const char* strichlinie =
    "--------------------------------------------------------------------";

} // namespace lonvir
