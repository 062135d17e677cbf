// One amount of a statement line.
#include "reports/nachweisbetrag.h"

#include "core/csv.h"
#include "core/druckformat.h"

namespace lonvir {

void betraganfuegen(std::vector<Druckteil>& zeile, int endspalte, const Nachweisbetrag& b) {
    if (!b.gedruckt) {
        return;
    }
    const std::string text = formatzahl(b.dm, "##,##0.00");
    zeile.emplace_back(Tab{endspalte - static_cast<int>(zeichenzahl(text))});
    zeile.emplace_back(text);
}

std::string betragzelle(const Nachweisbetrag& b) {
    return b.gedruckt ? csvbetrag(b.dm) : "";
}

} // namespace lonvir
