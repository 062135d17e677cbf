// The grid MSGrid.Grid of the overview forms as data: cells, fixed rows and columns, colours.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace lonvir {

struct Gitter {
    int festzeilen = 1;
    int festspalten = 1;
    int hintergrund = 15;                         // QBColor number of BackColor
    int vordergrund = 0;                          // QBColor number of ForeColor
    std::vector<std::vector<std::string>> zellen; // Rows x Cols, UTF-8

    // Rows and Cols set anew: every cell empty.
    void groesse(int zeilen, int spalten) {
        zellen.assign(static_cast<std::size_t>(zeilen),
                      std::vector<std::string>(static_cast<std::size_t>(spalten)));
    }
    [[nodiscard]] int zeilen() const { return static_cast<int>(zellen.size()); }
    [[nodiscard]] int spalten() const {
        return zellen.empty() ? 0 : static_cast<int>(zellen.front().size());
    }
    // A cell outside the grid raises the run-time error 9, as the grid's Row and Col do.
    [[nodiscard]] std::string& zelle(int zeile, int spalte);
    [[nodiscard]] const std::string& zelle(int zeile, int spalte) const;
};

} // namespace lonvir
