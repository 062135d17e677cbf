// The picture of the main window on paper.
#include "reports/grafikdrucken.h"

namespace lonvir {

void grafikdrucken(Drucker& d) {
    d.Orientation(querformat);
    d.PrintForm();
    d.EndDoc();
}

void grafikhinweis(Sitzung& s) {
    if (s.dialoge)
        s.dialoge->zeigen(
            {"Gehaltsberechnung als Graphik", querformathinweis, Symbol::info, Knoepfe::ok});
}

} // namespace lonvir
