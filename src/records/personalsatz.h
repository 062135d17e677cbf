// The person-month record: everything known of one person in one month, 541 bytes packed.
#pragma once

#include "core/feld.h"

#include <array>
#include <cstdint>
#include <span>
#include <string>

namespace lonvir {

using Schalter = Feld<std::int16_t, 7, 19>;

struct Personalsatz {
    static constexpr int laenge = 541;
    // Offsets of the blocks; the two-byte gap behind merkmal in memory is not in the file.
    static constexpr std::size_t abMerkmal = 0;
    static constexpr std::size_t abWert = 90;
    static constexpr std::size_t abNebenwert = 274;
    static constexpr std::size_t abLst = 378;
    static constexpr std::size_t abSoz = 404;
    static constexpr std::size_t abZvk = 430;
    static constexpr std::size_t abWei = 456;
    static constexpr std::size_t abTei = 482;
    static constexpr std::size_t abBru = 508;
    static constexpr std::size_t abBdabeginn = 534;

    Feld<std::int16_t, 1, 45> merkmal;
    Feld<std::int32_t, 0, 45> wert;
    Feld<std::int32_t, 0, 25> nebenwert;
    Schalter lst, soz, zvk, wei, tei, bru;
    std::string bdabeginn = std::string(7, ' '); // raw code page 1252, exactly 7 bytes

    // The record of a new person in month index `monat` (0 January .. 11 December).
    [[nodiscard]] static Personalsatz neu(std::int16_t monat);

    [[nodiscard]] static Personalsatz lesen(std::span<const std::uint8_t> satz);
    // Element `zeile` of `wert` alone, for a reader that needs no other field.
    [[nodiscard]] static std::int32_t wertLesen(std::span<const std::uint8_t> satz, int zeile);
    void schreiben(std::span<std::uint8_t> satz) const;
    [[nodiscard]] std::array<std::uint8_t, laenge> bytes() const;

    bool operator==(const Personalsatz&) const = default;
};

} // namespace lonvir
