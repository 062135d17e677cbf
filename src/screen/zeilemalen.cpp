// Painting the rows: the value boxes, the switch columns and the row colours.
#include "screen/betragstext.h"
#include "screen/form1.h"
#include "start/einstellungen.h"

namespace lonvir {

void Form1::zeilemalen(int zeile) {
    if (zeile == 9)
        bild.zeilen[9].aktiv = s.zeile9aktiv != 0;
    // Rows 27 to 32 are not painted.
    if (zeile >= 27 && zeile <= 32)
        return;
    bild.zeilen[static_cast<std::size_t>(zeile)].wert = zeilentext(zeile, s.wert[zeile]);
}

void Form1::allezeilen() {
    for (int zeile = 0; zeile <= 45; ++zeile)
        if (zeile != 32)
            zeilemalen(zeile);
}

void Form1::schaltermalen() {
    for (Schalterart art : {L, S, Z, W, T, P})
        schaltermalen(art);
}

// One painter per switch array. The part-time column shows only while row 0's text sorts
// above "0,00+" and differs from row 1's; the paid-days column the same with rows 2 and 3;
// the pension column while row 25's text is not "0,00".
void Form1::schaltermalen(Schalterart art) {
    s.aenderungssperre = -1;
    const Schalter* felder[] = {&s.lst, &s.soz, &s.zvk, &s.wei, &s.tei, &s.bru};
    Schalterspalte& spalte = bild.schalter[static_cast<std::size_t>(art)];
    const Schalter& feld = *felder[art];
    for (int zeile = 7; zeile <= 19; ++zeile)
        spalte.gesetzt[zeile] = feld[zeile] == 1;
    const auto text = [this](int zeile) -> const std::string& {
        return bild.zeilen[static_cast<std::size_t>(zeile)].wert;
    };
    if (art == T)
        spalte.sichtbar = text(0) > "0,00+" && text(0) != text(1);
    else if (art == P)
        spalte.sichtbar = text(2) > "0,00+" && text(2) != text(3);
    else if (art == Z)
        spalte.sichtbar = text(25) != "0,00";
    else
        spalte.sichtbar = true;
    s.aenderungssperre = 0;
}

void Form1::farbenanwenden() {
    if (voreinstellung.aktiv) {
        voreinstellfarben(bild);
        return;
    }
    for (int zeile = 0; zeile <= 45; ++zeile) {
        Bildzeile& z = bild.zeilen[static_cast<std::size_t>(zeile)];
        z.farbe = s.dim.zeilenfarbe[zeile];
        z.textfarbe = textfarbe(z.farbe);
    }
}

} // namespace lonvir
