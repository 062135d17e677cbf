// The contribution statement: what every employee of the layer and the employer pay to the
// five branches of social insurance in one month, with the totals per branch.
#pragma once

#include "core/csv.h"
#include "core/drucker.h"
#include "reports/nachweisbetrag.h"
#include "start/sitzung.h"

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace lonvir {

// Branches in the order of the columns and of the sums: G health, P nursing, K workers'
// pension, L employees' pension, M unemployment; each employee, then employer.
constexpr int beitragsspalten = 10;

struct Beitragszeile {
    int person = 0;
    std::string name;  // cut to 15 characters
    std::string kasse; // cut to 15 characters
    std::array<Nachweisbetrag, beitragsspalten> betraege;
};

struct Beitragsnachweis {
    int monat = 0; // 0 January .. 11 December
    std::vector<Beitragszeile> zeilen;
    std::array<std::int32_t, beitragsspalten> summen{}; // Pfennig, all positive
};

// Reads the stored records of month `monat` of every person of the layer; the employees and
// workers (staff classes 5 to 17) are on the statement. A sum beyond 32 bits is run-time
// error 6.
[[nodiscard]] Beitragsnachweis beitragsnachweisbilden(Sitzung& s, int monat);
// Prints the statement in landscape.
void beitragsnachweisdrucken(const Sitzung& s, const Beitragsnachweis& n, Drucker& d);
// The statement of the month selected on the main screen, printed.
void beitragsnachweis(Sitzung& s, Drucker& d);
// One row per person and a sum row.
[[nodiscard]] Csvtabelle beitragsnachweiscsv(const Beitragsnachweis& n);

} // namespace lonvir
