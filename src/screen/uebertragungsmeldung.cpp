// The status line after a transfer between layers.
#include "screen/uebertragungsmeldung.h"

namespace lonvir {

namespace {
const char* schichtname(int schicht) {
    switch (schicht) {
    case 0:
        return "INFO";
    case 1:
        return "PLAN";
    default:
        return "REAL";
    }
}
} // namespace

std::string uebertragungsmeldung(int person, int von, int nach) {
    return "Person " + std::to_string(person) + " von " + schichtname(von) + " nach " +
           schichtname(nach) + " übertragen, 12 Monate und Bemerkungen";
}

} // namespace lonvir
