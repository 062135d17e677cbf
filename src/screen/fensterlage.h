// Whether the main window has a place of its own in the display settings.
#pragma once

#include "start/sitzung.h"

namespace lonvir {

// True once the window has stored its place (moved, sized or closed). A place of width or
// height 0, and the preset of a new store (the whole width of a 1024 by 768 screen, or of the
// screen of this start, less 320 twips of height, at 0, 0), count as none: the window then
// opens maximised.
[[nodiscard]] bool eigenefensterlage(const Sitzung& s);

} // namespace lonvir
