// Reading and writing the remark cards of file 13.
#include "start/jahressaetze.h"

#include <array>

namespace lonvir {

Jahressatz jahressatzlesen(Sitzung& s, int person) {
    std::array<std::uint8_t, Jahressatz::laenge> b{};
    s.datei(datei::jahressaetze).lesen(person, b);
    return Jahressatz::lesen(b);
}

void jahressatzschreiben(Sitzung& s, int person, const Jahressatz& j) {
    std::array<std::uint8_t, Jahressatz::laenge> b{};
    j.schreiben(b);
    s.datei(datei::jahressaetze).schreiben(person, b);
}

} // namespace lonvir
