// A record decoder under arbitrary bytes: a span shorter than the record is an index error,
// and a decoded record written and read again is the same record.
#pragma once

#include "core/laufzeitfehler.h"
#include "fuzzziel.h"

#include <vector>

namespace lonvir::fuzz {

template <typename Satz> void rundreise(std::span<const std::uint8_t> daten) {
    Satz satz;
    try {
        satz = Satz::lesen(daten);
    } catch (const Laufzeitfehler&) {
        if (daten.size() >= static_cast<std::size_t>(Satz::laenge))
            befund("ein ganzer Satz wird nicht gelesen");
        return;
    }
    if (daten.size() < static_cast<std::size_t>(Satz::laenge))
        befund("ein zu kurzer Bereich wird gelesen");
    std::vector<std::uint8_t> b(static_cast<std::size_t>(Satz::laenge));
    satz.schreiben(b);
    if (!(Satz::lesen(b) == satz))
        befund("geschrieben und wieder gelesen ist der Satz ein anderer");
}

} // namespace lonvir::fuzz
