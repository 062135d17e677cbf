// Names and cost centres: the count of names that keeps the data files in step, the name
// search of page 22, the cost-centre choice of page 4 and the reform page 68.
#pragma once

#include "panels/tablett.h"

#include <string>
#include <vector>

namespace lonvir {

// Counts the names from record 6000 downward and extends the data files of every layer to a
// grown name table: each new person gets blank months with the service age "01.1997" and,
// where the name is blank, the name "n. Name". The open layer stays open.
void namenzaehlen(Sitzung& s);

// The list positions (person less 1) whose name contains `suchtext`, without regard to case,
// from position 0 to the count of names; "" finds every name.
[[nodiscard]] std::vector<int> namensuche(Sitzung& s, const std::string& suchtext);

// Page 22: the heading, the search field and "Abbrechen".
void namenseite(Tablett& t);
// Enter in the search field: the hits in the rows, or the only one made current.
void namensuchen(Tablett& t);
// A click on a hit: that person made current.
void trefferwaehlen(Tablett& t, int zeile);

// Page 4: the cost centres to choose from, position 0 for all staff.
void amtseite(Tablett& t);
// A choice on page 4 by the user: the cost centre stored, the panel closed, the totals asked.
void kostenstellewaehlen(Tablett& t);

// Page 68: whether it may open for the month; the caption of Command7 otherwise.
[[nodiscard]] bool reformseiteoffen(const Sitzung& s);
inline constexpr const char* reformgesperrt = "Reformgesetz ab 1.7.1997";
void reformseite(Tablett& t);

} // namespace lonvir
