// Packing of the display settings record.
#include "records/dimsatz.h"

#include "records/bytes.h"

#include <array>

namespace lonvir {

namespace {
// The fourteen Currency fields from offset 92 to 196, in file order.
template <typename D> auto waehrungsfelder(D& d) {
    return std::array{&d.form1top,   &d.form1left,   &d.form1height, &d.form1width, &d.form2top,
                      &d.form2left,  &d.form2height, &d.form2width,  &d.form3top,   &d.form3left,
                      &d.reserve172, &d.reserve180,  &d.lstrtabtop,  &d.lstrtableft};
}
} // namespace

Dimsatz Dimsatz::lesen(std::span<const std::uint8_t> b) {
    Dimsatz d;
    bytes::feldLesen(d.zeilenfarbe, b, 0);
    std::size_t ab = 92;
    for (Currency* c : waehrungsfelder(d)) {
        *c = Currency::roh(bytes::i64(b, ab));
        ab += 8;
    }
    d.passwortart = Currency::roh(bytes::i64(b, 204));
    bytes::feldLesen(d.passwort, b, 212);
    d.anzahlpersonen = bytes::i16(b, 228);
    d.reserve230 = bytes::i16(b, 230);
    return d;
}

void Dimsatz::schreiben(std::span<std::uint8_t> b) const {
    bytes::feldSchreiben(zeilenfarbe, b, 0);
    std::size_t ab = 92;
    for (const Currency* c : waehrungsfelder(*this)) {
        bytes::setzeI64(b, ab, c->roh());
        ab += 8;
    }
    bytes::setzeI64(b, 204, passwortart.roh());
    bytes::feldSchreiben(passwort, b, 212);
    bytes::setzeI16(b, 228, anzahlpersonen);
    bytes::setzeI16(b, 230, reserve230);
}

} // namespace lonvir
