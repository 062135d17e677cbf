// Reading the readable installation sources: tab-separated lines and decimal amounts.
#pragma once

#include "core/currency.h"

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

namespace lonvir::installation {

// One data line of a source: its line number in the file and its tab-separated fields.
struct Quellzeile {
    int zeile = 0;
    std::vector<std::string> felder;
};

// A source file without its blank lines and its comment lines (beginning with '#'). A
// missing file is an error that names it.
[[nodiscard]] std::vector<Quellzeile> tsvlesen(const std::filesystem::path& datei);

// A source that cannot be read: the message names the file and the line.
[[noreturn]] void quellfehler(const std::filesystem::path& datei, int zeile,
                              const std::string& grund);

// A decimal amount such as "2408.53" or "-2" to Pfennig, exactly: at most two decimals.
// An empty field is 0.
[[nodiscard]] std::int32_t pfennig(const std::string& text, const std::filesystem::path& datei,
                                   int zeile);
// A decimal number with at most four decimals to Currency, exactly.
[[nodiscard]] Currency currency(const std::string& text, const std::filesystem::path& datei,
                                int zeile);
// A whole number.
[[nodiscard]] std::int32_t ganzzahl(const std::string& text, const std::filesystem::path& datei,
                                    int zeile);

} // namespace lonvir::installation
