// Currency: a signed 64-bit count of 1/10000, the fixed-point money type of the program.
#pragma once

#include <compare>
#include <cstdint>
#include <string>

namespace lonvir {

class Currency {
public:
    static constexpr int64_t skala = 10000;

    constexpr Currency() = default;

    // The raw count of 1/10000, as stored in the 8-byte fields of the settings records.
    [[nodiscard]] static constexpr Currency roh(int64_t zehntausendstel) {
        Currency c;
        c.roh_ = zehntausendstel;
        return c;
    }
    // An integer taken as a whole unit (5 -> 5.0000); exact.
    [[nodiscard]] static Currency ganz(int64_t wert);
    // A floating-point value rounded to four decimals, ties to even.
    [[nodiscard]] static Currency gerundet(double wert);

    [[nodiscard]] constexpr int64_t roh() const { return roh_; }
    [[nodiscard]] double alsDouble() const { return static_cast<double>(roh_) / skala; }

    // To a whole number, to the nearest, ties to even; run-time error 6 beyond 32 bits.
    [[nodiscard]] int32_t gerundetInt32() const;
    [[nodiscard]] int16_t gerundetInt16() const;
    // To a whole number, cut towards zero.
    [[nodiscard]] int32_t abgeschnittenInt32() const;
    // Cut towards zero to a whole unit, still as Currency.
    [[nodiscard]] Currency abgeschnitten() const;

    Currency operator+(Currency b) const;
    Currency operator-(Currency b) const;
    Currency operator-() const;
    Currency& operator+=(Currency b) { return *this = *this + b; }
    Currency& operator-=(Currency b) { return *this = *this - b; }
    // The exact product rounded to four decimals, ties to even.
    Currency operator*(Currency b) const;

    constexpr auto operator<=>(const Currency&) const = default;

    // "1234.5600" style text for JSON and diagnostics.
    [[nodiscard]] std::string text() const;

private:
    int64_t roh_ = 0;
};

} // namespace lonvir
