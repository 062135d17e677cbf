// The one end of the program on a run-time or file error.
#include "core/programmende.h"

#include <cstdlib>
#include <iostream>

namespace lonvir {

Meldung abbruchmeldung(const std::exception& fehler) {
    return {"Lonvir 97", fehler.what(), Symbol::stop, Knoepfe::ok};
}

void programmende(Dialoge* dialoge, const std::exception& fehler) {
    const Meldung meldung = abbruchmeldung(fehler);
    std::cerr << meldung.text << "\n";
    if (dialoge)
        (void)dialoge->zeigen(meldung);
    std::exit(laufzeitfehlerstatus);
}

} // namespace lonvir
