// Packing of a text-table record.
#include "records/textsatz.h"

#include "records/bytes.h"

namespace lonvir {

Textsatz Textsatz::lesen(std::span<const std::uint8_t> satz) {
    return Textsatz{bytes::text(satz, 0, laenge)};
}

void Textsatz::schreiben(std::span<std::uint8_t> satz) const {
    bytes::setzeText(satz, 0, laenge, text);
}

} // namespace lonvir
