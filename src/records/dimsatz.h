// The display settings of the installation: row colours, window places, start lock, 232 bytes.
#pragma once

#include "core/currency.h"
#include "core/feld.h"

#include <cstdint>
#include <span>

namespace lonvir {

struct Dimsatz {
    static constexpr int laenge = 232;

    Feld<std::int16_t, 0, 45> zeilenfarbe;
    Currency form1top, form1left, form1height, form1width;
    Currency form2top, form2left, form2height, form2width;
    Currency form3top, form3left;
    Currency reserve172, reserve180; // kept as read
    Currency lstrtabtop, lstrtableft;
    Currency passwortart;
    Feld<std::int16_t, 0, 7> passwort;
    std::int16_t anzahlpersonen = 0;
    std::int16_t reserve230 = 0; // kept as read

    [[nodiscard]] static Dimsatz lesen(std::span<const std::uint8_t> satz);
    void schreiben(std::span<std::uint8_t> satz) const;
    bool operator==(const Dimsatz&) const = default;
};

} // namespace lonvir
