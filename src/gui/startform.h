// The start form: the program's name, "startet. Bitte warten ...", the hourglass, centred.
#pragma once

#include "core/hilfe.h"

#include <QWidget>

namespace lonvir::gui {

class Startform : public QWidget {
    Q_OBJECT
public:
    explicit Startform(Hilfe* hilfe, QWidget* eltern = nullptr);
    // In the middle of the screen: (screen minus own size) / 2 in both directions.
    void zeigenMittig();

protected:
    // F1 opens the help context 96201.
    void keyPressEvent(QKeyEvent* ereignis) override;

private:
    Hilfe* hilfe_;
};

} // namespace lonvir::gui
