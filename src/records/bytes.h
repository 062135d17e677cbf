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

[[nodiscard]] std::int16_t i16(std::span<const std::uint8_t> b, std::size_t ab);
[[nodiscard]] std::int32_t i32(std::span<const std::uint8_t> b, std::size_t ab);
[[nodiscard]] std::int64_t i64(std::span<const std::uint8_t> b, std::size_t ab);
void setzeI16(std::span<std::uint8_t> b, std::size_t ab, std::int16_t v);
void setzeI32(std::span<std::uint8_t> b, std::size_t ab, std::int32_t v);
void setzeI64(std::span<std::uint8_t> b, std::size_t ab, std::int64_t v);

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
