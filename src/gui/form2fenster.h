// The totals over the staff, Form2, as a window: the grid of persons, totals and months, the
// two printed lists and the export for a spreadsheet; a thin view of the model Form2.
#pragma once

#include "gui/form3fenster.h"
#include "reports/form2.h"

#include <QWidget>

#include <array>

class QPushButton;

namespace lonvir::gui {

class Form2Fenster : public QWidget {
    Q_OBJECT
public:
    Form2Fenster(Sitzung& s, Kostenstellenwahl wahl, Druckauftrag drucken, QWidget* eltern);

    [[nodiscard]] Form2& modell() { return modell_; }
    // Form_Load: the sums, the grid, the window shown.
    void laden();
    [[nodiscard]] Gitteransicht* gitter() const { return gitter_; }
    [[nodiscard]] QPushButton* knopf(int i) const {
        return knoepfe_.at(static_cast<std::size_t>(i - 1));
    }
    bool exportieren(const QString& datei);

signals:
    // A click on a person's row: that person's annual overview.
    void personGewaehlt(int person);

private:
    void darstellen();
    Form2 modell_;
    Druckauftrag drucken_;
    Gitteransicht* gitter_ = nullptr;
    std::array<QPushButton*, 3> knoepfe_{};
    QPushButton* export_ = nullptr;
};

} // namespace lonvir::gui
