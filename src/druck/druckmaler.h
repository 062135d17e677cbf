// Printed documents painted on a paged device (PDF writer, printer, preview): each document
// from a new page in its orientation, pages broken where they are full, the fixed-pitch font.
#pragma once

#include "core/drucker.h"

#include <QFont>
#include <QString>

#include <string_view>
#include <vector>

class QPagedPaintDevice;

namespace lonvir::druck {

// The font family that stands for a font name of the reports: "courier new" is printed in
// Liberation Mono, which has its metrics, wherever that is installed.
[[nodiscard]] QString schriftfamilie(std::string_view name);
[[nodiscard]] QFont druckschrift(std::string_view name, float groesse, bool fett);

// Sets A4 and the margins, then paints every document; returns the number of pages. The
// device must not be painted on yet.
int dokumentemalen(QPagedPaintDevice& geraet, const std::vector<Druckdokument>& dokumente);

} // namespace lonvir::druck
