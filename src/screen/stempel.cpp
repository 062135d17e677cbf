// The stamp onto the following persons: selections, rows and switches of the working set.
#include "screen/stempel.h"

#include "records/jahressatz.h"
#include "start/einstellungen.h"
#include "start/jahressaetze.h"
#include "start/satzzugriff.h"
#include "start/vorgang.h"

namespace lonvir {

namespace {

// The fields of the working set that the stamp gives on; the rest keeps what the buffer held.
void uebernehmen(const Sitzung& s, Personalsatz& p) {
    for (int k : {1, 2, 4, 11, 12, 13, 14, 15, 19, 25, 26, 36, 37, 41, 42, 43, 44})
        p.merkmal[k] = s.merkmal[k];
    p.wert[0] = s.wert[0];
    p.wert[1] = s.wert[0]; // the hours of the part-time factor are those of full time
    p.wert[25] = s.wert[25];
    p.wert[26] = s.wert[26];
    for (int i = 7; i <= 19; ++i) {
        p.lst[i] = s.lst[i];
        p.soz[i] = s.soz[i];
        p.zvk[i] = s.zvk[i];
    }
    // wei's elements 0 to 10 are the rows 7 to 17; 18 and 19 keep the buffer's.
    for (int i = 7; i <= 17; ++i)
        p.wei[i] = s.wei[i];
}

void stempelschreiben(Sitzung& s) {
    const int ab = s.dim.anzahlpersonen + 1;
    for (int monat = 1; monat <= 12; ++monat) {
        // The buffer holds the current person's month, so that its month field stays right.
        Personalsatz puffer = personalsatzlesen(s, monat, s.aktuelleperson);
        uebernehmen(s, puffer);
        for (int person = ab; person <= s.anzahlnamen; ++person)
            personalsatzschreiben(s, monat, person, puffer);
    }
    Jahressatz karte;
    bemerkungenstempeln(karte);
    for (int person = ab; person <= s.anzahlnamen; ++person)
        jahressatzschreiben(s, person, karte);
    s.dim.anzahlpersonen = s.anzahlnamen;
    dimschreiben(s);
}

} // namespace

void SSPanel1_Click(Sitzung& s) {
    if (s.Tablettseite == 61)
        stempeln(s);
}

void stempeln(Sitzung& s) {
    // All persons stamped, or none.
    alsVorgang(s, [&s] { stempelschreiben(s); });
}

} // namespace lonvir
