// Pages of printed documents: the paper, its margins, the height of a line and where a page
// is full. Every page face (printer, PDF, preview) breaks a report the same way.
#pragma once

#include "core/drucker.h"

#include <cstddef>
#include <vector>

namespace lonvir {

// A4 with the margins of the office's letter paper, in points (1/72 inch).
namespace papier {
constexpr double breite = 595.276; // 210 mm
constexpr double hoehe = 841.890;  // 297 mm
constexpr double randlinks = 15.0; // mm
constexpr double randoben = 12.0;
constexpr double randrechts = 10.0;
constexpr double randunten = 12.0;
constexpr double punktjemm = 72.0 / 25.4;
} // namespace papier

// The printable area of an A4 page in the orientation, in points.
struct Druckbereich {
    double breite = 0;
    double hoehe = 0;
};
[[nodiscard]] Druckbereich a4bereich(int ausrichtung);

// The line pitch of the fixed-pitch font: its ascent and descent, 1.1328 of its size.
constexpr double zeilenabstand = 1.1328125;
// How far the base line of a line lies below its top: the font's ascent.
constexpr double oberlaenge = 0.83251953125;

// The height of a printed line in points: the pitch of the largest font on it, at least of
// the font in force when it ended (an empty line is as high as the font).
[[nodiscard]] double zeilenhoehe(const Druckzeile& zeile);

// One page: lines [von, bis) of one document.
struct Druckseite {
    std::size_t dokument = 0;
    std::size_t von = 0;
    std::size_t bis = 0;
    int ausrichtung = hochformat;
};

// Each document begins on a new page; a line that does not fit below the last goes to the
// next page. A document without lines gives no page. The page heights are the printable
// heights in points of portrait and landscape paper.
[[nodiscard]] std::vector<Druckseite> seitenumbruch(const std::vector<Druckdokument>& dokumente,
                                                    double hochhoehe, double querhoehe);

} // namespace lonvir
