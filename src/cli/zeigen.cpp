// zeigen: load a person's month, run it as the screen's refresh does, print the rows.
#include "cli/befehle.h"
#include "cli/monatsausgabe.h"

namespace lonvir::cli {

int zeigen(Kontext& k, std::ostream& aus) {
    k.optionen.nurErlaubt({"person", "monat", "nur-lesen"});
    if (k.s.nurLesen)
        gespeichertenmonatladen(k);
    else
        monatwaehlen(k);
    monatausgeben(k, aus);
    return 0;
}

} // namespace lonvir::cli
