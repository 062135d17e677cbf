// The model of the main screen: 46 rows with their lists, values, states and colours, and
// the switches of the pay rows. The window paints it; the handlers change it.
#pragma once

#include "core/feld.h"

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace lonvir {

struct Bildzeile {
    std::vector<std::string> liste; // entries of z(row), UTF-8
    int position = 0;               // list position shown
    std::string wert;               // text of t(row); empty where the row has no box
    bool hatWertfeld = true;        // the row shows a box t(row)
    bool aktiv = true;              // z(row) can be used
    bool gesperrt = false;          // t(row) refuses typing
    bool sichtbar = true;
    int farbe = 15;    // colour number 0..15 of the background
    int textfarbe = 0; // 15 white on dark colours, 0 black otherwise
};

struct Schalterspalte {
    bool sichtbar = true;
    Feld<bool, 7, 19> gesetzt;
    Feld<bool, 7, 19> aktiv;
};

struct Hauptbild {
    std::array<Bildzeile, 46> zeilen;
    // lst, soz, zvk, wei, tei, bru in this order, the columns "L S  Z    B R UT T O    W T P".
    std::array<Schalterspalte, 6> schalter;
    std::string bdabeginn;   // text of the box BDABeginn
    std::string hinweis;     // caption of the hint panel Panel3D6
    std::string titel;       // caption of the window
    std::string monatstitel; // month title above the result column
    int aktiveSchicht = 0;   // the layer panel shown as active; -1 none
};

} // namespace lonvir
