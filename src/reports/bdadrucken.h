// The printed sheet of the service-age calculation: how the start of the service age follows
// from the birth date and the months without pay, the steps with their dates and basic pay,
// and a form for working out credited periods by hand.
#pragma once

#include "core/drucker.h"
#include "engine/dienstalter.h"
#include "start/sitzung.h"

namespace lonvir {

// The basic pay of each step comes from the person's tariff line of the month on the screen.
void bdadrucken(Sitzung& s, const Dienstalterblatt& blatt, Drucker& d);

} // namespace lonvir
