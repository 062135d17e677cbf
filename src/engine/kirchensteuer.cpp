// The church-tax rate: 8 % or 9 % of the tax after child allowances, or nothing.
#include "engine/kirchensteuer.h"

namespace lonvir {

Currency kirchensatzVon(std::int16_t kirchensteuerwahl, std::int16_t konfession) {
    Currency satz;
    if (kirchensteuerwahl == 0)
        satz = Currency::roh(800);
    else if (kirchensteuerwahl == 1)
        satz = Currency::roh(900);
    // No denomination: no church tax, though the base is still computed and shown.
    if (konfession == 6)
        satz = Currency{};
    return satz;
}

} // namespace lonvir
