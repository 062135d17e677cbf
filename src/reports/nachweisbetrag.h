// One amount of a statement line: printed as DM, printed as 0,00, or left empty.
#pragma once

#include "core/drucker.h"

#include "core/csv.h"

#include <cstdint>
#include <span>
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

// A person's line: `anfang` (name, fund), then each amount at its end column.
void nachweiszeile(Drucker& d, std::vector<Druckteil> anfang,
                   std::span<const Nachweisbetrag> betraege, std::span<const int> endspalten);
// The line "Summe" with the sums in Pfennig at the end columns of the amounts.
void summenzeile(Drucker& d, std::span<const std::int32_t> summen, std::span<const int> endspalten);
// A line of the summary: the text, the two sums at end columns 45 and 69, their sum at 99.
void zusammenstellungszeile(Drucker& d, const std::string& text, std::int32_t erste,
                            std::int32_t zweite);
// A person's CSV row: `anfang`, then a cell per amount; the sum row likewise.
[[nodiscard]] Csvzeile csvzeile(Csvzeile anfang, std::span<const Nachweisbetrag> betraege);
[[nodiscard]] Csvzeile csvsummenzeile(Csvzeile anfang, std::span<const std::int32_t> summen);

} // namespace lonvir
