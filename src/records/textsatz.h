// One text of the text table: 35 bytes of code page 1252, blank padded.
#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string>

namespace lonvir {

struct Textsatz {
    static constexpr int laenge = 35;
    std::string text = std::string(laenge, ' '); // raw code page 1252, exactly 35 bytes

    [[nodiscard]] static Textsatz lesen(std::span<const std::uint8_t> satz);
    void schreiben(std::span<std::uint8_t> satz) const;
    bool operator==(const Textsatz&) const = default;
};

} // namespace lonvir
