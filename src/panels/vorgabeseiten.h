// The settings pages of the panel: social insurance (63), Christmas-bonus quotas (64),
// supplementary pension (65), tariff structure (44), the marking of a preset (61) and the
// start lock (2). Every setting is a list position or a typed figure of the year's record.
#pragma once

#include "panels/tablett.h"

#include <string>
#include <vector>

namespace lonvir {

// Combo(9) of page 44 in 1998: "Steuerrecht 1998 anwenden", element 34 of the record.
inline constexpr int steuerrechtcombo = 9;

// --- the lists (listenfuellen): what Combo(index) of the page offers, entry by entry
[[nodiscard]] std::vector<std::string> sozvorgabenliste(int combo);
[[nodiscard]] std::vector<std::string> zvkvorgabenliste(Sitzung& s, int combo);
[[nodiscard]] std::vector<std::string> tarifstrukturliste(const Sitzung& s, int combo);
[[nodiscard]] std::vector<std::string> passwortliste();
// Fills the lists of the current page.
void listenfuellen(Tablett& t);

// --- the builders
void sozvorgabenseite(Tablett& t);
void weihnachtsseite(Tablett& t);
void zvkvorgabenseite(Tablett& t);
void tarifstrukturseite(Tablett& t);
void markierseite(Tablett& t);
void passwortseite(Tablett& t);

// --- Command1 of each page
void sozvorgabenspeichern(Tablett& t);
void weihnachtsspeichern(Tablett& t);
void zvkvorgabenspeichern(Tablett& t);
void tarifstrukturspeichern(Tablett& t);
void markieren(Tablett& t);

// --- the keys of the pages' text boxes; each returns the key as it goes on, 0 if dropped
int weihnachtstaste(Tablett& t, int index, int taste);
int zvktaste(Tablett& t, int index, int taste);
int markiertaste(Tablett& t, int index, int taste);

// A click in Combo(0) of page 2: the start lock off or on, written at once.
void passwortartklick(Tablett& t);

// The whole month range of the current person recalculated, each month from its own record,
// then the left column refreshed: the figures of a changed setting stand at once.
void monatsbereichrechnen(Tablett& t);

// The parts of a page layout the settings pages share.
namespace vorgabelage {
constexpr int anfang = 150;
constexpr int abstand = 240;
constexpr int links = 100;
constexpr int feldhoehe = 285;
} // namespace vorgabelage
// zeile(i) at `oben`, `breite` wide.
void vorgabezeile(Tablett& t, int i, const std::string& text, int oben, int breite,
                  bool fett = false);
// Command1 and Command2 at `oben`: store and cancel.
void vorgabeknoepfe(Tablett& t, int oben, const std::string& speichern = "Speichern");
// A Combo shown at `lage` with its list and the position stored in `position` (a position
// outside the list shows no entry).
void vorgabeliste(Tablett& t, int index, std::vector<std::string> liste, int position,
                  const Lage& lage);
// The year of the open set as the pages print it ("1997" for the year 0 of a new folder).
[[nodiscard]] std::string vorgabejahr(const Sitzung& s);

} // namespace lonvir
