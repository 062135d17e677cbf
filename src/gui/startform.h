// The start form: the program's name, "startet. Bitte warten ...", the hourglass, centred.
#pragma once

#include <QWidget>

namespace lonvir::gui {

class Startform : public QWidget {
    Q_OBJECT
public:
    explicit Startform(QWidget* eltern = nullptr);
    // In the middle of the screen: (screen minus own size) / 2 in both directions.
    void zeigenMittig();
};

} // namespace lonvir::gui
