// The sixteen colours of the classic palette, QBColor(0..15), as screen colours.
#pragma once

#include <QColor>

namespace lonvir::gui {

[[nodiscard]] QColor qbcolor(int nummer);

} // namespace lonvir::gui
