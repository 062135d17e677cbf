// The plain-text face of the printer: the column grid as text, a form feed per document.
#pragma once

#include "core/drucker.h"

#include <string>

namespace lonvir {

// One printed line as text: each piece from its column, a later piece that would overlap
// the one before it follows directly behind it.
[[nodiscard]] std::string textzeile(const Druckzeile& zeile);
// A document as text: one line per printed line, then a form feed and a line end.
[[nodiscard]] std::string textdokument(const Druckdokument& dokument);

// Collects every document as text, for scripts and diffs.
class Textdrucker : public Spaltendrucker {
public:
    std::string inhalt;

protected:
    void dokumentfertig(Druckdokument&& dokument) override { inhalt += textdokument(dokument); }
};

} // namespace lonvir
