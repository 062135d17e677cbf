// The transition allowance of the pay reform of 1 July 1997 for Besoldungsordnung A.
#pragma once

#include "records/personalsatz.h"
#include "start/sitzung.h"

namespace lonvir {

// basis_alt: the pay of March 1997 at the old step from the service age (file 22, the group
// of July 1997), with the Ortszuschlag stage 1 and the Stellenzulage; basis_neu: the pay of
// July 1997 at the step now set (file 23), with the Stellenzulage. Ost in 1998: times 85/84.
void ueberleitung(Sitzung& s);

// Step 1 and 2 of the base: the step before the reform, from the service age in June 1997,
// held below the old top step of the July group `juli`.
[[nodiscard]] int altestufe(const Sitzung& s, const Personalsatz& juli);

// The highest old step plus 1 of a group of Besoldungsordnung A before the reform.
[[nodiscard]] int altestufengrenze(int gruppe);

} // namespace lonvir
