// Helpers of the overview tests: month records written straight into the month files.
#pragma once

#include "start/satzzugriff.h"
#include "start/sitzung.h"

#include <functional>

namespace lonvir::test {

// Writes person p's record of month m (1..12), changed by `aendern` from the new record.
inline void monatschreiben(Sitzung& s, int p, int m,
                           const std::function<void(Personalsatz&)>& aendern) {
    Personalsatz satz = Personalsatz::neu(static_cast<std::int16_t>(m - 1));
    aendern(satz);
    personalsatzschreiben(s, m, p, satz);
}

// The same change in all twelve months.
inline void jahrschreiben(Sitzung& s, int p, const std::function<void(Personalsatz&)>& aendern) {
    for (int m = 1; m <= 12; ++m)
        monatschreiben(s, p, m, aendern);
}

} // namespace lonvir::test

#include "core/dialoge.h"
#include "start/start.h"
#include "testhilfe.h"

namespace lonvir::test {

// The working folder as the first start leaves it: the sample staff in layer INFO of 1997.
struct Musterbestand {
    Musterbestand() {
        s.ordner = Arbeitsordner(t.pfad());
        s.dialoge = &dialoge;
        s.installation = LONVIR_INSTALLATION;
        starten(s);
    }
    Tempordner t;
    SkriptDialoge dialoge;
    Sitzung s;
};

} // namespace lonvir::test
