// The window of the form KV: the rates of one health-insurance fund for the twelve months,
// a thin view of the model.
#pragma once

#include "panels/kv.h"

#include <QDialog>

#include <array>
#include <functional>
#include <memory>

class QComboBox;
class QLabel;
class QLineEdit;

namespace lonvir::gui {

class KvFenster : public QDialog {
    Q_OBJECT
public:
    KvFenster(Sitzung& s, Hauptbildauftrag auftrag,
              std::function<void(const std::function<void()>&)> ereignis,
              QWidget* eltern = nullptr);
    ~KvFenster() override;

    [[nodiscard]] KV& modell() { return *k_; }
    [[nodiscard]] QLineEdit* kvzahl(int monat) const {
        return kvzahl_.at(static_cast<std::size_t>(monat));
    }
    [[nodiscard]] QComboBox* combo1() const { return combo1_; }
    void darstellen();

protected:
    bool eventFilter(QObject* objekt, QEvent* ereignis) override;

private:
    void ausfuehren(const std::function<void()>& handler);

    std::unique_ptr<KV> k_;
    std::function<void(const std::function<void()>&)> ereignis_;
    QLabel* label1_ = nullptr;
    QComboBox* combo1_ = nullptr;
    std::array<QLabel*, 12> monate_{};
    std::array<QLineEdit*, 12> kvzahl_{};
    bool darstellend_ = false;
};

} // namespace lonvir::gui
