// Lists for a spreadsheet: semicolon-separated, decimal comma, UTF-8 with BOM, one header row.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace lonvir {

using Csvzeile = std::vector<std::string>;

// A header row and data rows of UTF-8 cells; `text()` is the whole file. A cell holding a
// semicolon, a quotation mark or a line break is quoted, its quotation marks doubled. Lines
// end in CR LF, as spreadsheet programs write them.
struct Csvtabelle {
    Csvzeile kopf;
    std::vector<Csvzeile> zeilen;

    [[nodiscard]] std::string text() const;
};

// Pfennig as a spreadsheet reads DM: "-1234,56", no thousands separator.
[[nodiscard]] std::string csvbetrag(std::int64_t pfennig);
// A DM amount that is not whole Pfennig (a half share of 5.005 DM): rounded to two decimals
// as the printed column shows it.
[[nodiscard]] std::string csvbetrag(double dm);

} // namespace lonvir
