// Little-endian field access for the fixed records.
#include "records/bytes.h"

#include "core/laufzeitfehler.h"

namespace lonvir::bytes {

namespace {
void pruefen(std::size_t groesse, std::size_t ab, std::size_t n) {
    if (ab + n > groesse)
        throw Laufzeitfehler::indexfehler();
}

std::uint64_t lesenLE(std::span<const std::uint8_t> b, std::size_t ab, std::size_t n) {
    pruefen(b.size(), ab, n);
    std::uint64_t v = 0;
    for (std::size_t i = 0; i < n; ++i)
        v |= std::uint64_t{b[ab + i]} << (8 * i);
    return v;
}

void schreibenLE(std::span<std::uint8_t> b, std::size_t ab, std::size_t n, std::uint64_t v) {
    pruefen(b.size(), ab, n);
    for (std::size_t i = 0; i < n; ++i)
        b[ab + i] = static_cast<std::uint8_t>(v >> (8 * i));
}
} // namespace

std::int16_t i16(std::span<const std::uint8_t> b, std::size_t ab) {
    return static_cast<std::int16_t>(lesenLE(b, ab, 2));
}
std::int32_t i32(std::span<const std::uint8_t> b, std::size_t ab) {
    return static_cast<std::int32_t>(lesenLE(b, ab, 4));
}
std::int64_t i64(std::span<const std::uint8_t> b, std::size_t ab) {
    return static_cast<std::int64_t>(lesenLE(b, ab, 8));
}
void setzeI16(std::span<std::uint8_t> b, std::size_t ab, std::int16_t v) {
    schreibenLE(b, ab, 2, static_cast<std::uint16_t>(v));
}
void setzeI32(std::span<std::uint8_t> b, std::size_t ab, std::int32_t v) {
    schreibenLE(b, ab, 4, static_cast<std::uint32_t>(v));
}
void setzeI64(std::span<std::uint8_t> b, std::size_t ab, std::int64_t v) {
    schreibenLE(b, ab, 8, static_cast<std::uint64_t>(v));
}

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
