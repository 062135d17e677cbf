// Packing of the remark card and the assignment to its fixed fields.
#include "records/jahressatz.h"

#include "core/cp1252.h"
#include "records/bytes.h"

namespace lonvir {

Jahressatz::Jahressatz() {
    for (int i = 0; i <= 15; ++i)
        bemerkung[i] = std::string(feldlaenge(i), ' ');
}

void Jahressatz::setzen(int i, std::string_view utf8) {
    bemerkung[i] = bytes::fest(utf8NachCp1252(utf8), feldlaenge(i));
}

std::string Jahressatz::text(int i) const {
    return cp1252NachUtf8(bemerkung[i]);
}

Jahressatz Jahressatz::lesen(std::span<const std::uint8_t> satz) {
    Jahressatz j;
    for (int i = 0; i <= 15; ++i)
        j.bemerkung[i] = bytes::text(satz, versatz(i), feldlaenge(i));
    return j;
}

void Jahressatz::schreiben(std::span<std::uint8_t> satz) const {
    for (int i = 0; i <= 15; ++i)
        bytes::setzeText(satz, versatz(i), feldlaenge(i), bemerkung[i]);
}

void bemerkungenstempeln(Jahressatz& j) {
    j.setzen(1, bemerkungGedruckt);
    j.setzen(2, bemerkungGedruckt);
    j.setzen(3, bemerkungNichtGedruckt);
    j.setzen(4, bemerkungNichtGedruckt);
}

} // namespace lonvir
