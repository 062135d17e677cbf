// The classic sixteen-colour palette.
#include "gui/farben.h"

#include <array>

namespace lonvir::gui {

QColor qbcolor(int nummer) {
    static const std::array<QRgb, 16> palette = {
        0x000000, 0x000080, 0x008000, 0x008080, 0x800000, 0x800080, 0x808000, 0xC0C0C0,
        0x808080, 0x0000FF, 0x00FF00, 0x00FFFF, 0xFF0000, 0xFF00FF, 0xFFFF00, 0xFFFFFF};
    return QColor(palette[static_cast<std::size_t>(nummer & 15)]);
}

} // namespace lonvir::gui
