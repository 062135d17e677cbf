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
    int position = 0;               // list position shown; -1 for none
    std::string editiertext;        // what was typed into the edit part of z(row)
    std::string wert;               // text of t(row)
    bool hatListe = true;           // the row has a list z(row)
    bool hatWertfeld = true;        // the row shows a box t(row)
    bool aktiv = true;              // z(row) can be used
    bool gesperrt = false;          // t(row) refuses typing
    bool sichtbar = true;
    int farbe = 15;                // colour number 0..15 of the background
    int textfarbe = 0;             // 15 white on dark colours, 0 black otherwise
    std::uint32_t listenstand = 0; // grows with every rebuild of the list
};

// The six switch arrays beside the pay rows, in the order of their columns.
enum Schalterart { L = 0, S = 1, Z = 2, W = 3, T = 4, P = 5 };

struct Schalterspalte {
    bool sichtbar = true;
    Feld<bool, 7, 19> gesetzt;
};

enum class Fokusziel { keiner, liste, wertfeld, bdabeginn };

struct Fokus {
    Fokusziel art = Fokusziel::keiner;
    int zeile = 0;
    bool operator==(const Fokus&) const = default;
};

struct Hauptbild {
    std::array<Bildzeile, 46> zeilen;
    // lst, soz, zvk, wei, tei, bru: the columns L S Z, then W T P behind the amounts, under
    // the heading "L S  Z    B R UT T O    W T P".
    std::array<Schalterspalte, 6> schalter;
    bool schalterblock = true; // the whole switch block; hidden for civil servants
    std::string bdabeginn;     // text of the box BDABeginn
    std::string hinweis;       // caption of the hint panel Panel3D6
    std::string titel;         // caption of the window
    std::string monatstitel;   // month title above the result column
    int aktiveSchicht = 0;     // the layer panel shown as active; -1 none
    bool sanduhr = false;      // the hourglass pointer
    bool jahr1998 = false;     // the 1998 menu entries can be used
    Fokus fokuswunsch;         // where the handlers want the focus; the view takes it
};

} // namespace lonvir
