// A main screen without a window on a fresh store: lists filled, person 1 in January loaded.
#pragma once

#include "core/hilfe.h"
#include "screen/form1.h"
#include "testhilfe.h"

namespace lonvir::test {

struct Bild {
    explicit Bild(std::int16_t jahr = 1997) : u(jahr), f(u.s, &hilfe) {
        f.listenfuellen();
        f.namensliste();
        laden(1, 0);
    }
    // Person and month (0 January .. 11 December, 12 the year), as the refresh takes them.
    void laden(std::int16_t person, std::int16_t monat) {
        u.s.aktuelleperson = person;
        u.s.merkmal[0] = static_cast<std::int16_t>(person - 1);
        u.s.merkmal[20] = monat;
        f.bildauffrischen();
        u.dialoge.vergessen();
    }
    [[nodiscard]] const std::vector<Meldung>& meldungen() const { return u.dialoge.gezeigt(); }
    [[nodiscard]] Bildzeile& zeile(int z) { return f.bild.zeilen[static_cast<std::size_t>(z)]; }

    Umgebung u;
    MerkHilfe hilfe;
    Form1 f;
};

} // namespace lonvir::test
