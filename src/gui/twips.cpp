// Twips and pixels.
#include "gui/twips.h"

#include <QScreen>
#include <QWidget>

namespace lonvir::gui {

double twipsJePixel(const QWidget* w) {
    const QScreen* bildschirm = w->screen();
    const double dpi = bildschirm ? bildschirm->logicalDotsPerInchX() : 96.0;
    return 1440.0 / (dpi > 0 ? dpi : 96.0);
}

} // namespace lonvir::gui
