// The month's wage tax in the run: tax inputs from the selections, the month's tax with its
// marginal rate, the one-off pay comparison and the December equalisation.
#pragma once

#include "start/sitzung.h"

namespace lonvir {

// merkmal(33) as tax class and child allowances; false for position 49, "keine Lohnsteuer".
[[nodiscard]] bool steuerklasseVon(std::int16_t position, std::int16_t& stkl, Currency& zkf);

// Step 20: the inputs of the wage-tax run from merkmal(31), (33), (36), (28) and (29).
void steuereingaben(Sitzung& s);

// The December equalisation of the employer ("Mit LSt.jahresausgl. des AG im Dez."), run after
// the month's rows 33, 35 and 36 stand, negative.
void jahresausgleich(Sitzung& s);

} // namespace lonvir
