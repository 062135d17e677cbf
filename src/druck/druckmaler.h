// Printed documents painted on a paged device (PDF writer, printer, preview): each document
// from a new page in its orientation, pages broken where they are full, the fixed-pitch font.
#pragma once

#include "core/drucker.h"
#include "core/druckseiten.h"

#include <QFont>
#include <QImage>
#include <QString>

#include <string_view>
#include <vector>

class QPagedPaintDevice;

namespace lonvir::druck {

// The font family that stands for a font name of the reports: "courier new" is printed in
// Liberation Mono, which has its metrics, wherever that is installed.
[[nodiscard]] QString schriftfamilie(std::string_view name);
[[nodiscard]] QFont druckschrift(std::string_view name, float groesse, bool fett);

// The factor a page is drawn at: 1, or less where its widest line, measured in the fonts it
// is printed in, runs past `breite` points; the whole page is then drawn that much smaller.
[[nodiscard]] double seitenmass(const Druckdokument& dok, const Druckseite& seite, double breite);

// Sets A4 and the margins, then paints every document; returns the number of pages. The
// device must not be painted on yet. A document that holds the picture of the main window
// gets `formbild` at the top left, at its size on the screen, made smaller where the page is
// too small for it.
int dokumentemalen(QPagedPaintDevice& geraet, const std::vector<Druckdokument>& dokumente,
                   const QImage& formbild = QImage());

} // namespace lonvir::druck
