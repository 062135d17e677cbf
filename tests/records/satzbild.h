// Hand-built byte images of records for the tests: little-endian values laid at given offsets.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace lonvir::test {

// An image of `laenge` bytes, all `fuell`, with values laid byte by byte, lowest byte first.
class Satzbild {
public:
    explicit Satzbild(std::size_t laenge, std::uint8_t fuell = 0) : b_(laenge, fuell) {}

    Satzbild& ganz(std::size_t ab, std::int64_t wert, std::size_t breite) {
        auto u = static_cast<std::uint64_t>(wert);
        for (std::size_t i = 0; i < breite; ++i)
            b_.at(ab + i) = static_cast<std::uint8_t>((u >> (8 * i)) & 0xFF);
        return *this;
    }
    Satzbild& i16(std::size_t ab, std::int16_t w) { return ganz(ab, w, 2); }
    Satzbild& i32(std::size_t ab, std::int32_t w) { return ganz(ab, w, 4); }
    // A Currency field: the count of 1/10000 in 8 bytes.
    Satzbild& waehrung(std::size_t ab, std::int64_t zehntausendstel) {
        return ganz(ab, zehntausendstel, 8);
    }
    Satzbild& text(std::size_t ab, std::string_view t) {
        for (std::size_t i = 0; i < t.size(); ++i)
            b_.at(ab + i) = static_cast<std::uint8_t>(t[i]);
        return *this;
    }

    [[nodiscard]] const std::vector<std::uint8_t>& bytes() const { return b_; }
    [[nodiscard]] std::vector<std::uint8_t>& bytes() { return b_; }

private:
    std::vector<std::uint8_t> b_;
};

} // namespace lonvir::test
