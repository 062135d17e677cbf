// The table of the deduction annex: the captions and amounts of the panel's working sheets
// of wage tax, social insurance and supplementary pension, side by side.
#pragma once

#include <array>
#include <string>

namespace lonvir {

// Columns 0, 2 and 4 hold labels, columns 1, 3 and 5 values; rows 0 to 28, UTF-8.
struct Druckspalten {
    std::array<std::array<std::string, 29>, 6> spalte;

    [[nodiscard]] std::string& operator()(int s, int zeile) {
        return spalte.at(static_cast<std::size_t>(s)).at(static_cast<std::size_t>(zeile));
    }
    [[nodiscard]] const std::string& operator()(int s, int zeile) const {
        return spalte.at(static_cast<std::size_t>(s)).at(static_cast<std::size_t>(zeile));
    }
};

} // namespace lonvir
