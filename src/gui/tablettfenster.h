// The panel Tablett as widgets: a thin view of the panel model, laid over the result column
// of Form1. Every widget event goes to the model's handler; then the widgets follow the model.
#pragma once

#include "panels/tablett.h"

#include <QFrame>

#include <array>
#include <functional>

class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QScrollBar;
class QTableWidget;

namespace lonvir::gui {

class TablettFenster : public QFrame {
    Q_OBJECT
public:
    // `ereignis` runs a handler of the model the way the main window runs its own.
    TablettFenster(Tablett& modell, std::function<void(const std::function<void()>&)> ereignis,
                   QWidget* eltern);

    // Widgets, place and size from the model; `twipsJePixel` converts its twips.
    void darstellen(double twipsJePixel);

    [[nodiscard]] QLabel* zeile(int i) const { return zeilen_.at(static_cast<std::size_t>(i)); }
    [[nodiscard]] QLabel* kasten(int i) const { return kaesten_.at(static_cast<std::size_t>(i)); }
    [[nodiscard]] QLineEdit* text(int i) const { return texte_.at(static_cast<std::size_t>(i)); }
    [[nodiscard]] QComboBox* liste(int i) const { return listen_.at(static_cast<std::size_t>(i)); }
    [[nodiscard]] QPushButton* knopf(int i) const {
        return knoepfe_.at(static_cast<std::size_t>(i - 1));
    }

protected:
    bool eventFilter(QObject* objekt, QEvent* ereignis) override;
    void mouseReleaseEvent(QMouseEvent* ereignis) override;

private:
    Tablett& t_;
    std::function<void(const std::function<void()>&)> ereignis_;
    std::array<QLineEdit*, 18> texte_{};
    std::array<QComboBox*, 18> listen_{};
    std::array<QLabel*, 29> zeilen_{};
    std::array<QLabel*, 29> kaesten_{};
    std::array<QTableWidget*, 2> gitter_{};
    std::array<QPushButton*, 4> knoepfe_{};
    std::array<QScrollBar*, 3> rollbalken_{};
    double tpp_ = 15.0;
    bool darstellend_ = false;
    Tablettfokus gesetzterfokus_;
    // The model's wish for the focus, taken once each time it changes.
    void fokusuebergeben();
};

} // namespace lonvir::gui
