// The transfer buttons: the person's twelve months and year record are read in one layer and
// written in the other. The files of a layer other than the one on the screen stay open beside
// the set from one transfer to the next; the set on the screen stays open as it is.
#include "screen/uebertragung.h"

#include "start/dateisatz.h"
#include "start/vorgang.h"

#include <vector>

namespace lonvir {

void uebertragen(Sitzung& s, std::int16_t von, std::int16_t nach) {
    // The person arrives whole in the target, or not at all.
    Vorgang v(s);
    std::vector<const Satzdatei*> zieldateien;
    try {
        for (int nummer = 1; nummer <= datei::jahressaetze; ++nummer) {
            std::vector<std::uint8_t> puffer(static_cast<std::size_t>(satzlaengeVon(nummer)));
            // A record past the end of the source reads as zeros and is written so.
            personendatei(s, von, nummer).lesen(s.aktuelleperson, puffer);
            Satzdatei& z = personendatei(s, nach, nummer);
            z.schreiben(s.aktuelleperson, puffer);
            zieldateien.push_back(&z);
        }
    } catch (...) {
        nichtsgespeichert(v);
    }
    v.abschliessen(zieldateien);
}

std::optional<std::pair<std::int16_t, std::int16_t>> uebertragungsrichtung(int knopf) {
    using Richtung = std::pair<std::int16_t, std::int16_t>;
    switch (knopf) {
    case 2:
        return Richtung{INFO, PLAN};
    case 3:
        return Richtung{PLAN, INFO};
    case 4:
        return Richtung{PLAN, REAL};
    case 5:
        return Richtung{REAL, PLAN};
    }
    return std::nullopt;
}

void uebertragungsknopf(Sitzung& s, int knopf) {
    if (const auto r = uebertragungsrichtung(knopf))
        uebertragen(s, r->first, r->second);
}

bool benachbart(int von, int nach) {
    const bool gueltig = von >= INFO && von <= REAL && nach >= INFO && nach <= REAL;
    return gueltig && (von - nach == 1 || nach - von == 1);
}

} // namespace lonvir
