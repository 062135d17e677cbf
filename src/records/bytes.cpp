// Little-endian field access for the fixed records.
#include "records/bytes.h"

#include "core/laufzeitfehler.h"

namespace lonvir::bytes {

void ausserhalb() {
    throw Laufzeitfehler::indexfehler();
}

namespace {
void pruefen(std::size_t groesse, std::size_t ab, std::size_t n) {
    if (ab + n > groesse)
        ausserhalb();
}
} // namespace

std::string text(std::span<const std::uint8_t> b, std::size_t ab, std::size_t laenge) {
    pruefen(b.size(), ab, laenge);
    std::string s(laenge, ' ');
    for (std::size_t i = 0; i < laenge; ++i)
        s[i] = b[ab + i] == 0 ? ' ' : static_cast<char>(b[ab + i]);
    return s;
}

void setzeText(std::span<std::uint8_t> b, std::size_t ab, std::size_t laenge,
               std::string_view roh) {
    pruefen(b.size(), ab, laenge);
    for (std::size_t i = 0; i < laenge; ++i)
        b[ab + i] = i < roh.size() ? static_cast<std::uint8_t>(roh[i]) : std::uint8_t{' '};
}

std::string fest(std::string_view roh, std::size_t laenge) {
    std::string s(roh.substr(0, laenge));
    s.resize(laenge, ' ');
    return s;
}

} // namespace lonvir::bytes
