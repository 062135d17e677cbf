// The law of the open year from its settings.
#include "engine/steuerrechtwahl.h"

namespace lonvir {

Steuerrecht steuerrechtfuer(const Sitzung& s) {
    return s.jahr == 1998 && s.einstellungen.steuerrecht1998 ? Steuerrecht::recht1998
                                                             : Steuerrecht::recht1997;
}

std::string steuerrechtzeile(const Sitzung& s) {
    return "Lohnsteuer nach dem Steuerrecht " + steuerrechtjahr(steuerrechtfuer(s));
}

} // namespace lonvir
