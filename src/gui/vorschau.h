// A report of the core on its way to paper from the window: recorded, then shown in the
// preview of the printer, from which it is printed or saved as PDF.
#pragma once

#include "gui/form3fenster.h"

class QWidget;

namespace lonvir::gui {

// The Druckauftrag of the overview forms: the preview over `eltern`.
[[nodiscard]] Druckauftrag vorschaudruck(QWidget* eltern);

} // namespace lonvir::gui
