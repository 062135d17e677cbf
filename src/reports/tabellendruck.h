// The wage-tax table on paper: the band the viewer shows, and a range of consecutive bands
// with one line per band, as a printed table booklet has it.
#pragma once

#include "core/csv.h"
#include "core/drucker.h"
#include "reports/lohnsteuertabelle.h"

#include <cstdint>
#include <string>

namespace lonvir {

// The scroll value of the band that holds `pfennig` in the period (1 year .. 4 day): the
// last band whose lower bound is not above it, within 0 and the end of the scroll bar.
[[nodiscard]] std::int32_t scrollwertfuer(std::int16_t lohnzeitraum, std::int64_t pfennig);

// The selections of the form in words, as the lists show them, one per line.
[[nodiscard]] std::vector<std::string> auswahltexte(const Tabellenauswahl& a);

// The band the viewer shows, with its six classes, on a portrait page.
void tabelledrucken(const Lohnsteuertabelle& t, Drucker& d);

// Bands `von` to `bis` (scroll values) of the selected table, landscape, one line per band.
struct Tabellenbereich {
    Tabellenauswahl auswahl; // its scroll value is not used
    std::int32_t von = 0;
    std::int32_t bis = 0;
};
// Bad bounds (outside the scroll bar, `bis` before `von`): the German reason; empty if good.
[[nodiscard]] std::string bereichpruefen(const Tabellenbereich& b);
void tabellenbereichdrucken(const Tabellenbereich& b, Drucker& d);
[[nodiscard]] Csvtabelle tabellenbereichcsv(const Tabellenbereich& b);

} // namespace lonvir
