// The figures of the income-tax tariff and the solidarity surcharge of 1996/1997 and of 1998.
#include "engine/steuerrecht.h"

namespace lonvir {

namespace {

// Section 32a EStG 1996/1997 as the wage-tax tables of 1997 compute it, and the SolZG 1995.
constexpr Steuertarif recht1997{12096, 12042,  86.63,  2590,  55728, 55674, 151.94, 3346,
                                12949, 120041, 120042, 22842, 75,    1332,  0.075,  1.075};

// Section 32a EStG 1998: basic allowance 12 365 DM, the zones up to 58 643 and 120 041 DM;
// SolZG as of 1998: 5.5 %, exemption limit 1 836 DM (3 672 DM in the splitting class).
constexpr Steuertarif recht1998{12366, 12312,  91.19,  2590,  58644, 58590, 151.96, 3434,
                                13938, 120041, 120042, 22843, 55,    1836,  0.055,  1.055};

} // namespace

const Steuertarif& steuertarif(Steuerrecht recht) {
    return recht == Steuerrecht::recht1998 ? recht1998 : recht1997;
}

std::string steuerrechtjahr(Steuerrecht recht) {
    return recht == Steuerrecht::recht1998 ? "1998" : "1997";
}

} // namespace lonvir
