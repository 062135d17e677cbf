// Person creation over all three layers.
#include "start/personenanlegen.h"

#include "core/pfennig.h"
#include "start/dateisatz.h"
#include "start/einstellungen.h"
#include "start/satzzugriff.h"
#include "start/texte.h"
#include "start/vorgang.h"

#include <cmath>
#include <vector>

namespace lonvir {

std::int32_t gespeichertesaetze(Sitzung& s) {
    const std::int32_t n = pf::gerundet(static_cast<double>(s.datei(1).laenge()) / 541.0);
    return n == 0 ? 1 : n;
}

namespace {

void namenvergeben(Sitzung& s) {
    for (int n = s.anzahlnamen + 1; n <= 20; ++n)
        textschreiben(s, 5000 + n, std::to_string(n) + ". Name");
    s.anzahlnamen = 20;
}

} // namespace

void schichtfuellen(Sitzung& s, std::int32_t ab, Personalsatz& satz) {
    for (int monat = 1; monat <= 12; ++monat) {
        satz.merkmal[20] = static_cast<std::int16_t>(monat - 1);
        const auto b = satz.bytes();
        for (std::int32_t nummer = ab; nummer <= s.anzahlnamen; ++nummer)
            s.datei(monat).schreiben(nummer, b);
    }
    const std::vector<std::uint8_t> leererJahressatz(1280, ' ');
    for (std::int32_t nummer = ab; nummer <= s.anzahlnamen; ++nummer)
        s.datei(datei::jahressaetze).schreiben(nummer, leererJahressatz);
    s.dim.anzahlpersonen = s.anzahlnamen;
    dimschreiben(s);
}

bool personenanlegen(Sitzung& s) {
    s.anzahlnamen = personenzaehlen(s);
    if (s.anzahlnamen < 6)
        namenvergeben(s);
    const std::int32_t gespeichert = gespeichertesaetze(s);
    if (s.anzahlnamen <= gespeichert)
        return false;
    Personalsatz satz = Personalsatz::neu(0);
    // The new persons stand in all three layers, or in none.
    alsVorgang(s, [&] {
        for (std::int16_t schicht : {INFO, PLAN, REAL}) {
            s.schicht = schicht;
            dateienoeffnen(s);
            schichtfuellen(s, gespeichert, satz);
        }
    });
    return true;
}

} // namespace lonvir
