// Little-endian packing of record fields; strings are single-byte, blank padded, no terminator.
#pragma once

#include "core/currency.h"
#include "core/feld.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <type_traits>

namespace lonvir::bytes {

// A field that does not fit into the record raises the index error.
[[noreturn]] void ausserhalb();

// The integer of `n` bytes at `ab`, little-endian; inline, since every record field passes here.
inline std::uint64_t lesenLE(std::span<const std::uint8_t> b, std::size_t ab, std::size_t n) {
    if (ab + n > b.size())
        ausserhalb();
    std::uint64_t v = 0;
    for (std::size_t i = 0; i < n; ++i)
        v |= std::uint64_t{b[ab + i]} << (8 * i);
    return v;
}

inline void schreibenLE(std::span<std::uint8_t> b, std::size_t ab, std::size_t n, std::uint64_t v) {
    if (ab + n > b.size())
        ausserhalb();
    for (std::size_t i = 0; i < n; ++i)
        b[ab + i] = static_cast<std::uint8_t>(v >> (8 * i));
}

[[nodiscard]] inline std::int16_t i16(std::span<const std::uint8_t> b, std::size_t ab) {
    return static_cast<std::int16_t>(lesenLE(b, ab, 2));
}
[[nodiscard]] inline std::int32_t i32(std::span<const std::uint8_t> b, std::size_t ab) {
    return static_cast<std::int32_t>(lesenLE(b, ab, 4));
}
[[nodiscard]] inline std::int64_t i64(std::span<const std::uint8_t> b, std::size_t ab) {
    return static_cast<std::int64_t>(lesenLE(b, ab, 8));
}
inline void setzeI16(std::span<std::uint8_t> b, std::size_t ab, std::int16_t v) {
    schreibenLE(b, ab, 2, static_cast<std::uint16_t>(v));
}
inline void setzeI32(std::span<std::uint8_t> b, std::size_t ab, std::int32_t v) {
    schreibenLE(b, ab, 4, static_cast<std::uint32_t>(v));
}
inline void setzeI64(std::span<std::uint8_t> b, std::size_t ab, std::int64_t v) {
    schreibenLE(b, ab, 8, static_cast<std::uint64_t>(v));
}

// The raw bytes of a fixed string; zero bytes (a read past the end) count as blanks.
[[nodiscard]] std::string text(std::span<const std::uint8_t> b, std::size_t ab, std::size_t laenge);
// Cuts `roh` to the field and pads it with blanks.
void setzeText(std::span<std::uint8_t> b, std::size_t ab, std::size_t laenge, std::string_view roh);
// A string cut or blank-padded to exactly `laenge` bytes, as an assignment to a fixed string does.
[[nodiscard]] std::string fest(std::string_view roh, std::size_t laenge);

// Element i of an array of 16-, 32-bit integers or Currency lies at ab + size * (i - lower bound).
template <typename T, int U, int O>
void feldLesen(Feld<T, U, O>& feld, std::span<const std::uint8_t> b, std::size_t ab) {
    for (int i = U; i <= O; ++i) {
        const std::size_t stelle = ab + sizeof(T) * static_cast<std::size_t>(i - U);
        if constexpr (std::is_same_v<T, Currency>)
            feld[i] = Currency::roh(i64(b, stelle));
        else if constexpr (sizeof(T) == 2)
            feld[i] = i16(b, stelle);
        else
            feld[i] = i32(b, stelle);
    }
}

template <typename T, int U, int O>
void feldSchreiben(const Feld<T, U, O>& feld, std::span<std::uint8_t> b, std::size_t ab) {
    for (int i = U; i <= O; ++i) {
        const std::size_t stelle = ab + sizeof(T) * static_cast<std::size_t>(i - U);
        if constexpr (std::is_same_v<T, Currency>)
            setzeI64(b, stelle, feld[i].roh());
        else if constexpr (sizeof(T) == 2)
            setzeI16(b, stelle, feld[i]);
        else
            setzeI32(b, stelle, feld[i]);
    }
}

} // namespace lonvir::bytes
