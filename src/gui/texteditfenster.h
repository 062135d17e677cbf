// The window of the text editor Textedit: a thin view of the model.
#pragma once

#include "panels/textedit.h"

#include <QDialog>

#include <functional>
#include <memory>

class QLabel;
class QLineEdit;
class QPushButton;
class QScrollBar;

namespace lonvir::gui {

class TexteditFenster : public QDialog {
    Q_OBJECT
public:
    TexteditFenster(Sitzung& s, std::int16_t textvon, std::int16_t textbis,
                    Hauptbildauftrag auftrag,
                    std::function<void(const std::function<void()>&)> ereignis,
                    QWidget* eltern = nullptr);
    ~TexteditFenster() override;

    [[nodiscard]] Textedit& modell() { return *t_; }
    [[nodiscard]] QLineEdit* text1() const { return text1_; }
    [[nodiscard]] QLineEdit* text2() const { return text2_; }
    [[nodiscard]] QScrollBar* hscroll1() const { return hscroll1_; }
    void darstellen();

protected:
    bool eventFilter(QObject* objekt, QEvent* ereignis) override;
    void closeEvent(QCloseEvent* ereignis) override;

private:
    void ausfuehren(const std::function<void()>& handler);

    std::unique_ptr<Textedit> t_;
    std::function<void(const std::function<void()>&)> ereignis_;
    QLabel* label1_ = nullptr;
    QLabel* label3_ = nullptr;
    QLineEdit* text1_ = nullptr;
    QLineEdit* text2_ = nullptr;
    QScrollBar* hscroll1_ = nullptr;
    bool darstellend_ = false;
};

} // namespace lonvir::gui
