// The viewer's place in the display settings.
#include "reports/lstrtablage.h"

#include "start/einstellungen.h"

namespace lonvir {

Fensterort lstrtablage(const Sitzung& s) {
    // The settings hold whole twips; a stored fraction is cut.
    return {s.dim.lstrtabtop.abgeschnittenInt32(), s.dim.lstrtableft.abgeschnittenInt32()};
}

void lstrtablagespeichern(Sitzung& s, Fensterort ort) {
    s.dim.lstrtabtop = Currency::ganz(ort.oben);
    s.dim.lstrtableft = Currency::ganz(ort.links);
    dimschreiben(s);
}

} // namespace lonvir
