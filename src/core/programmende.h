// The end of the program on an error it cannot go on from: a run-time error (overflow,
// subscript, record number) or a file of the set that cannot be read or written.
#pragma once

#include "core/dialoge.h"

#include <exception>

namespace lonvir {

// The exit status of such an end.
inline constexpr int laufzeitfehlerstatus = 3;

// The box of the end: title "Lonvir 97", the error's whole text with the place where it arose,
// the stop symbol and OK.
[[nodiscard]] Meldung abbruchmeldung(const std::exception& fehler);

// Shows the box through `dialoge` (none: only the standard error), writes the text to the
// standard error as well and ends the program with the status 3. Because a month's record is
// written once, at the end of a calculation, nothing is left half written.
[[noreturn]] void programmende(Dialoge* dialoge, const std::exception& fehler);

} // namespace lonvir
