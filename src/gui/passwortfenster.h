// The form Password: eight one-key boxes and "Ihr Passwort bitte.", centred on the screen; a
// thin view of the model Password.
#pragma once

#include "panels/password.h"

#include <QDialog>

#include <array>

class QLineEdit;

namespace lonvir::gui {

class PasswortFenster : public QDialog {
    Q_OBJECT
public:
    PasswortFenster(Sitzung& s, QWidget* eltern = nullptr);

    [[nodiscard]] Password& modell() { return modell_; }
    [[nodiscard]] QLineEdit* pawo(int i) const { return pawo_.at(static_cast<std::size_t>(i)); }
    // Shows the form in the middle of the screen and waits for its end.
    Password::Stand zeigen();
    // Centred: (screen minus own size) / 2 in both directions.
    void mittig();

protected:
    bool eventFilter(QObject* objekt, QEvent* ereignis) override;

private:
    void darstellen();
    Password modell_;
    std::array<QLineEdit*, 8> pawo_{};
};

// The key code of a key event as the boxes of the start lock take it.
[[nodiscard]] int passworttastencode(const QKeyEvent* e);

} // namespace lonvir::gui
