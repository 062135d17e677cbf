// The grid's cells by row and column, with the grid's bounds.
#include "reports/gitter.h"

#include "core/laufzeitfehler.h"

namespace lonvir {

std::string& Gitter::zelle(int zeile, int spalte) {
    if (zeile < 0 || zeile >= zeilen() || spalte < 0 || spalte >= spalten())
        throw Laufzeitfehler::indexfehler();
    return zellen[static_cast<std::size_t>(zeile)][static_cast<std::size_t>(spalte)];
}

const std::string& Gitter::zelle(int zeile, int spalte) const {
    if (zeile < 0 || zeile >= zeilen() || spalte < 0 || spalte >= spalten())
        throw Laufzeitfehler::indexfehler();
    return zellen[static_cast<std::size_t>(zeile)][static_cast<std::size_t>(spalte)];
}

} // namespace lonvir
