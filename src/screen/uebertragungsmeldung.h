// The status line after a transfer between layers, which itself asks nothing and refreshes
// nothing: the clerk sees that it happened.
#pragma once

#include <string>

namespace lonvir {

// "Person 2 von INFO nach PLAN übertragen, 12 Monate und Bemerkungen".
[[nodiscard]] std::string uebertragungsmeldung(int person, int von, int nach);

} // namespace lonvir
