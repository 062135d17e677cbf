// One amount of a statement line: printed as DM, printed as 0,00, or left empty.
#pragma once

#include "core/drucker.h"

#include <string>
#include <vector>

namespace lonvir {

struct Nachweisbetrag {
    bool gedruckt = false; // false: nothing stands in the column
    double dm = 0;

    [[nodiscard]] static Nachweisbetrag betrag(double dm) { return {true, dm}; }
    [[nodiscard]] static Nachweisbetrag null() { return {true, 0.0}; }
    [[nodiscard]] static Nachweisbetrag leer() { return {}; }
};

// Adds the amount, formatted "##,##0.00", to a line so that it ends before `endspalte`;
// an empty amount adds nothing.
void betraganfuegen(std::vector<Druckteil>& zeile, int endspalte, const Nachweisbetrag& b);
// The amount as a spreadsheet cell: two decimals with a comma, an empty cell for nothing.
[[nodiscard]] std::string betragzelle(const Nachweisbetrag& b);

} // namespace lonvir
