// Packing of a pay-table line.
#include "records/tarifsatz.h"

#include "records/bytes.h"

namespace lonvir {

Tarifsatz Tarifsatz::lesen(std::span<const std::uint8_t> satz) {
    Tarifsatz t;
    bytes::feldLesen(t.wert, satz, 0);
    return t;
}

void Tarifsatz::schreiben(std::span<std::uint8_t> satz) const {
    bytes::feldSchreiben(wert, satz, 0);
}

} // namespace lonvir
