// The window of the tariff editor Tarife: a thin view of the model. The events go to the
// model's handlers; after each the widgets follow the model.
#pragma once

#include "panels/tarife.h"

#include <QDialog>

#include <array>
#include <functional>
#include <memory>

class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;
class QScrollBar;

namespace lonvir::gui {

class TarifeFenster : public QDialog {
    Q_OBJECT
public:
    // `ereignis` runs a handler the way the main window runs its own.
    TarifeFenster(Sitzung& s, int seite, Hauptbildauftrag auftrag,
                  std::function<void(const std::function<void()>&)> ereignis,
                  QWidget* eltern = nullptr);
    ~TarifeFenster() override;

    [[nodiscard]] Tarife& modell() { return *t_; }
    [[nodiscard]] QLineEdit* feld(int i) const { return felder_.at(static_cast<std::size_t>(i)); }
    [[nodiscard]] QPushButton* schalter(int i) const {
        return schalter_.at(static_cast<std::size_t>(i));
    }
    void darstellen();

protected:
    bool eventFilter(QObject* objekt, QEvent* ereignis) override;
    void closeEvent(QCloseEvent* ereignis) override;

private:
    void ausfuehren(const std::function<void()>& handler);

    std::unique_ptr<Tarife> t_;
    std::function<void(const std::function<void()>&)> ereignis_;
    QLabel* ueberschrift_ = nullptr;
    QLabel* panel3D2_ = nullptr;
    std::array<QPushButton*, 18> schalter_{};
    std::array<QLineEdit*, 27> felder_{};
    QScrollBar* hscroll1_ = nullptr;
    QRadioButton* option1_ = nullptr;
    QRadioButton* option2_ = nullptr;
    bool darstellend_ = false;
    bool meldet_ = false; // a message of leaving a field is up
};

} // namespace lonvir::gui
