// The form Form14 over the left column of Form1: a small button beside each row with its
// colour number, "Abbrechen", "Epfehlung" and "Speichern"; a thin view of the model Form14.
#pragma once

#include "gui/form1fenster.h"
#include "panels/form14.h"

#include <QWidget>

#include <array>

class QPushButton;

namespace lonvir::gui {

class FarbenFenster : public QWidget {
    Q_OBJECT
public:
    explicit FarbenFenster(Form1Fenster& form1);

    [[nodiscard]] Form14& modell() { return modell_; }
    [[nodiscard]] QPushButton* colo(int i) const { return colo_.at(static_cast<std::size_t>(i)); }
    [[nodiscard]] QPushButton* knopf(const char* name) const;
    // Form_Load: laid over the left column, each button at the top of its row.
    void laden();

signals:
    void entladen();

private:
    void darstellen();
    Form1Fenster& form1_;
    Form14 modell_;
    std::array<QPushButton*, 46> colo_{};
};

} // namespace lonvir::gui
