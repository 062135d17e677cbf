// The help pages of the installation: the written pages of data/hilfe and the pay-table
// topics of the "GTab" menu, generated from the compiled tariff files.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace lonvir::installation {

// One topic of the "GTab" menu: its help context, caption, year, tariff file (1 to 4), Ost
// or West, and the staff classes it shows.
struct Tabellenthema {
    int kontext;
    const char* titel;
    int jahr;
    int datei;
    bool ost;
    std::vector<int> personalarten;
};

[[nodiscard]] const std::vector<Tabellenthema>& tabellenthemen();

// The page of one topic, read from the tariff files and the text table in `ordner`.
[[nodiscard]] std::string tabellenseite(const std::filesystem::path& ordner,
                                        const Tabellenthema& thema);

// Copies data/hilfe/*.html to ziel/hilfe, writes the row topics from data/hilfe/zeilen.tsv
// (11000, 12500, 45000 and 96200 plus the row, for Besoldungsordnung A, C, R and BAT) and
// the pay-table topics there; a written page of a pay-table context is an error.
void hilfeschreiben(const std::filesystem::path& quellen, const std::filesystem::path& ziel);

} // namespace lonvir::installation
