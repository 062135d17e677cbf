// The remark card of a person for a year in one layer: sixteen texts, 1280 bytes.
#pragma once

#include "core/feld.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace lonvir {

// Fields 0 to 7 hold 40 characters, fields 8 to 15 hold 120, one behind the other from
// offset 0; each is single-byte code page 1252, blank padded, with no terminator.
struct Jahressatz {
    static constexpr int laenge = 1280;
    // The label of field i is text record 4093 + i.
    static constexpr int ersterBeschriftungstext = 4093;

    [[nodiscard]] static constexpr std::size_t feldlaenge(int i) { return i < 8 ? 40 : 120; }
    [[nodiscard]] static constexpr std::size_t versatz(int i) {
        return i < 8 ? 40 * static_cast<std::size_t>(i)
                     : 320 + 120 * static_cast<std::size_t>(i - 8);
    }

    Jahressatz();

    // Raw code page 1252, each exactly as long as its field.
    Feld<std::string, 0, 15> bemerkung;

    // An assignment to field i: the UTF-8 text in code page 1252, cut to the field's length
    // or padded with blanks, as a fixed string takes it.
    void setzen(int i, std::string_view utf8);
    // Field i in UTF-8, with its blanks.
    [[nodiscard]] std::string text(int i) const;

    [[nodiscard]] static Jahressatz lesen(std::span<const std::uint8_t> satz);
    void schreiben(std::span<std::uint8_t> satz) const;
    bool operator==(const Jahressatz&) const = default;
};

// The texts the stamp onto the following persons puts into fields 1, 2 and 3, 4.
inline constexpr std::string_view bemerkungGedruckt = "Bemerkungen, die ausgedruckt werden.";
inline constexpr std::string_view bemerkungNichtGedruckt =
    "Bemerkungen, die nicht ausgedruckt werden.";
// Fields 1 and 2 get the first, 3 and 4 the second, which is 42 characters long and so
// stands in the record cut to 40.
void bemerkungenstempeln(Jahressatz& j);

} // namespace lonvir
