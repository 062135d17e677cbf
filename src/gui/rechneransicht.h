// The pocket calculator of the main screen as widgets: the display and its buttons in one strip
// at the foot of Form1, beside the hint panel. Every button goes to the calculator model.
#pragma once

#include "screen/rechner.h"

#include <QFrame>

#include <array>
#include <functional>

class QLabel;
class QPushButton;

namespace lonvir::gui {

class RechnerAnsicht : public QFrame {
    Q_OBJECT
public:
    // `ereignis` runs a handler the way the main window runs its own.
    RechnerAnsicht(Rechner& modell, std::function<void(const std::function<void()>&)> ereignis,
                   QWidget* eltern);

    // The display from the model.
    void darstellen();
    // Places the display and the buttons in the strip, with a font for its height.
    void ausrichten(int hoehe);

    [[nodiscard]] QLabel* readout() const { return readout_; }
    [[nodiscard]] QPushButton* number(int i) const {
        return number_.at(static_cast<std::size_t>(i));
    }
    [[nodiscard]] QPushButton* operatorknopf(int i) const {
        return operator_.at(static_cast<std::size_t>(i));
    }
    [[nodiscard]] QPushButton* eintrag() const { return eintrag_; }

protected:
    void resizeEvent(QResizeEvent* ereignis) override;

private:
    QPushButton* knopf(const QString& name, const QString& text, const std::function<void()>& h);

    Rechner& r_;
    std::function<void(const std::function<void()>&)> ereignis_;
    QLabel* readout_ = nullptr;
    std::array<QPushButton*, 10> number_{};
    std::array<QPushButton*, 5> operator_{};
    QPushButton* decimalp_ = nullptr;
    QPushButton* cancel_ = nullptr;
    QPushButton* cancelentry_ = nullptr;
    QPushButton* eintrag_ = nullptr;
};

} // namespace lonvir::gui
