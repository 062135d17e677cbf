// The scripted message boxes of the tests and the CLI.
#include "core/dialoge.h"

namespace lonvir {

Knopf SkriptDialoge::zeigen(const Meldung& meldung) {
    gezeigt_.push_back(meldung);
    if (!antworten_.empty()) {
        Knopf k = antworten_.front();
        antworten_.pop_front();
        return k;
    }
    switch (meldung.knoepfe) {
    case Knoepfe::ok:
    case Knoepfe::okAbbrechen:
        return Knopf::ok;
    case Knoepfe::wiederholenAbbrechen:
        return Knopf::abbrechen;
    case Knoepfe::jaNein:
        return jaAufFragen_ ? Knopf::ja : Knopf::nein;
    }
    return Knopf::ok;
}

} // namespace lonvir
