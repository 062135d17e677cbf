// The print entries of the menu: the report printed into Qt's preview, from which the user
// prints or saves a PDF.
#pragma once

#include "engine/dienstalter.h"
#include "gui/form1fenster.h"

#include <string>

namespace lonvir::gui {

// The entry `name` of the menu "Druck": MGraphik, Mlinksbrutto, Mlinksnetto, MlinksAG, MLst.
// Every item shows the preview first; MGraphik gives its advice when the preview is closed.
void druckauftrag(Form1Fenster& fenster, Sitzung& s, const std::string& name);
// "Drucken" on page 42: the service-age sheet of the worksheet, in the preview first.
void bdadruckauftrag(Form1Fenster& fenster, Sitzung& s, const Dienstalterblatt& blatt);

} // namespace lonvir::gui
