// The small chart of the annual overview: a group of bars per month that follows the view,
// gross, deductions and net pay, or gross, the employer's side costs and the total cost.
#pragma once

#include "reports/jahresmatrix.h"

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace lonvir {

struct Balkenreihe {
    std::string name;
    int farbe = 0;                          // QBColor number
    std::array<std::int64_t, 12> pfennig{}; // January to December
};

struct Jahresdiagramm {
    std::vector<Balkenreihe> reihen;
    // The largest bar, Pfennig; 0 when the year holds nothing.
    [[nodiscard]] std::int64_t groesster() const;
};

// ansichtabzuege 1: "Brutto", "Abzüge" (shown positive), "Netto"; 0: "Brutto",
// "AG-Nebenkosten" (shares, levy, taxes), "Gesamtaufwand".
[[nodiscard]] Jahresdiagramm jahresdiagramm(const Jahresmatrix& m, int ansichtabzuege);

} // namespace lonvir
