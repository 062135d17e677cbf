// The entries of the menu "Txt": each opens the form Textedit on a range of the text table.
#pragma once

#include <cstdint>
#include <vector>

namespace lonvir {

// A menu entry of "Txt": the range of text records it opens.
struct Textmenue {
    const char* name; // the control, e.g. "MNamen"
    const char* text; // the caption
    std::int16_t textvon;
    std::int16_t textbis;
};
// The 21 entries in their order, from "Namen eingeben" to "Alles".
[[nodiscard]] const std::vector<Textmenue>& textmenues();

} // namespace lonvir
