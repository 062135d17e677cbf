// Packing of the settings record of a year.
#include "records/voeinsatz.h"

#include "records/bytes.h"

namespace lonvir {

Voeinsatz Voeinsatz::lesen(std::span<const std::uint8_t> b) {
    Voeinsatz v;
    v.reserve0 = bytes::text(b, 0, 20);
    v.reserve20 = bytes::text(b, 20, 20);
    v.reserve40 = bytes::text(b, 40, 20);
    v.dienststelle1 = bytes::text(b, 60, 40);
    v.dienststelle2 = bytes::text(b, 100, 40);
    v.dienststellenort = bytes::text(b, 140, 20);
    v.berichtszeile = bytes::text(b, 160, 100);
    bytes::feldLesen(v.voreinstellung, b, 260);
    bytes::feldLesen(v.vorgabewert, b, 588);
    return v;
}

void Voeinsatz::schreiben(std::span<std::uint8_t> b) const {
    bytes::setzeText(b, 0, 20, reserve0);
    bytes::setzeText(b, 20, 20, reserve20);
    bytes::setzeText(b, 40, 20, reserve40);
    bytes::setzeText(b, 60, 40, dienststelle1);
    bytes::setzeText(b, 100, 40, dienststelle2);
    bytes::setzeText(b, 140, 20, dienststellenort);
    bytes::setzeText(b, 160, 100, berichtszeile);
    bytes::feldSchreiben(voreinstellung, b, 260);
    bytes::feldSchreiben(vorgabewert, b, 588);
}

} // namespace lonvir
