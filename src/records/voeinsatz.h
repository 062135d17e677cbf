// The settings of the pay law and the employer, one record per year, 648 bytes.
#pragma once

#include "core/currency.h"
#include "core/feld.h"

#include <cstdint>
#include <span>
#include <string>

namespace lonvir {

struct Voeinsatz {
    static constexpr int laenge = 648;

    // Raw code page 1252, each exactly as long as its field.
    std::string reserve0 = std::string(20, ' ');
    std::string reserve20 = std::string(20, ' ');
    std::string reserve40 = std::string(20, ' ');
    std::string dienststelle1 = std::string(40, ' ');
    std::string dienststelle2 = std::string(40, ' ');
    std::string dienststellenort = std::string(20, ' ');
    std::string berichtszeile = std::string(100, ' ');
    Feld<Currency, 0, 40> voreinstellung;
    Feld<std::int32_t, 0, 14> vorgabewert;

    [[nodiscard]] static Voeinsatz lesen(std::span<const std::uint8_t> satz);
    void schreiben(std::span<std::uint8_t> satz) const;
    bool operator==(const Voeinsatz&) const = default;
};

} // namespace lonvir
