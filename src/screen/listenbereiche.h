// Which text records fill a row's list, by staff class, pay group, month and year.
#pragma once

#include <vector>

namespace lonvir {

// Text records anfang..ende; a range with ende below anfang is an empty list.
struct Textbereich {
    int anfang = 1;
    int ende = 0;
    [[nodiscard]] int eintraege() const { return ende >= anfang ? ende - anfang + 1 : 0; }
    bool operator==(const Textbereich&) const = default;
};

// Row 5: the pay groups of a staff class.
[[nodiscard]] Textbereich gruppenbereich(int personalart, int jahr);
// Row 6: the blocks of official titles of a staff class, one per pay group; empty where a
// group has no titles.
[[nodiscard]] std::vector<Textbereich> amtsbloecke(int personalart);
// Row 8: the family status by staff class; `reform` is July 1997 or later.
[[nodiscard]] Textbereich familienbereich(int personalart, bool reform);
// Row 11: the allowance types, for staff class 0 its performance steps.
[[nodiscard]] Textbereich zulagenbereich(int personalart);
// Row 20: the twelve months and the year.
[[nodiscard]] Textbereich monatsbereich(int personalart);
// Row 25: the pension levy rows of civil servants, the contribution rows of all others.
[[nodiscard]] Textbereich umlagebereich(int personalart);

} // namespace lonvir
