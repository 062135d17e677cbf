// The display settings keep places and sizes in twips, 1440 to the inch; the screen counts
// pixels.
#pragma once

class QWidget;

namespace lonvir::gui {

// Twips per pixel on the screen `w` stands on (96 dpi where the screen says nothing).
[[nodiscard]] double twipsJePixel(const QWidget* w);

} // namespace lonvir::gui
