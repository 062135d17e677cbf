// The transfer buttons: each record is read in one layer and written in the other, with the
// whole file set reopened in between, since a layer is reached only through its set.
#include "screen/uebertragung.h"

#include "start/dateisatz.h"
#include "start/vorgang.h"

#include <vector>

namespace lonvir {

namespace {

void satzkopieren(Sitzung& s, int nummer, std::int16_t von, std::int16_t nach) {
    std::vector<std::uint8_t> puffer(static_cast<std::size_t>(satzlaengeVon(nummer)));
    s.schicht = von;
    dateienoeffnen(s);
    // A record past the end of the source reads as zeros and is written so.
    s.datei(nummer).lesen(s.aktuelleperson, puffer);
    s.schicht = nach;
    dateienoeffnen(s);
    s.datei(nummer).schreiben(s.aktuelleperson, puffer);
}

} // namespace

void uebertragen(Sitzung& s, std::int16_t von, std::int16_t nach) {
    // 1.
    const std::int16_t schicht = s.schicht;
    // 2. and 3. The person arrives whole in the target, or not at all.
    try {
        alsVorgang(s, [&] {
            for (int monat = 1; monat <= 12; ++monat)
                satzkopieren(s, monat, von, nach);
            satzkopieren(s, datei::jahressaetze, von, nach);
        });
    } catch (...) {
        s.schicht = schicht;
        dateienoeffnen(s);
        throw;
    }
    // 4.
    s.schicht = schicht;
    dateienoeffnen(s);
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
