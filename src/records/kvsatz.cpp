// Packing of a month of health-insurance rates.
#include "records/kvsatz.h"

#include "core/laufzeitfehler.h"
#include "records/bytes.h"

#include <algorithm>

namespace lonvir {

Kvsatz Kvsatz::lesen(std::span<const std::uint8_t> b) {
    Kvsatz k;
    // A span shorter than the record is an index error, as with every other record.
    if (b.size() < static_cast<std::size_t>(laenge))
        throw Laufzeitfehler::indexfehler();
    bytes::feldLesen(k.satz, b, 0);
    const auto hinten = b.subspan(ratenbytes, k.rest.size());
    std::copy(hinten.begin(), hinten.end(), k.rest.begin());
    return k;
}

void Kvsatz::schreiben(std::span<std::uint8_t> b) const {
    if (b.size() < static_cast<std::size_t>(laenge))
        throw Laufzeitfehler::indexfehler();
    bytes::feldSchreiben(satz, b, 0);
    std::copy(rest.begin(), rest.end(), b.subspan(ratenbytes, rest.size()).begin());
}

} // namespace lonvir
