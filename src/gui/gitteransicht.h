// A grid of the overview forms (MSGrid.Grid) as a table widget: fixed rows and columns grey,
// the other cells in the grid's colours; read only, a click reports row and column.
#pragma once

#include "reports/gitter.h"

#include <QTableWidget>

namespace lonvir::gui {

class Gitteransicht : public QTableWidget {
public:
    explicit Gitteransicht(QWidget* eltern);
    // Cells, colours and sizes from the model.
    void darstellen(const Gitter& g);
    // The amounts in a fixed-pitch font, so that underscored columns line up.
    void festeschrift(bool an) { festeschrift_ = an; }
    // The height that shows every row.
    [[nodiscard]] int vollehoehe() const;

private:
    bool festeschrift_ = false;
};

} // namespace lonvir::gui
