// The annual overview and the totals beside the main window: Form3 opened by the menu entry
// Jahr or the word JAHR, Form2 from page 66, a month chosen in Form3 shown on the main
// screen, a person chosen in Form2 shown in Form3.
#pragma once

#include "gui/form2fenster.h"
#include "gui/form3fenster.h"
#include "gui/tablettanbindung.h"

#include <QObject>

namespace lonvir::gui {

class Uebersichtanbindung : public QObject {
    Q_OBJECT
public:
    Uebersichtanbindung(Form1Fenster& fenster, Tablettanbindung& tablett, Sitzung& s,
                        Druckauftrag drucken);

    // "Form3": the annual overview of the main screen's person; "Form2": the totals of the
    // choice in Combo(0) of the panel.
    void zeigen(const std::string& name);
    void jahresuebersicht(std::int16_t person);
    [[nodiscard]] Form3Fenster* form3() const { return form3_; }
    [[nodiscard]] Form2Fenster* form2() const { return form2_; }

private:
    Form1Fenster& f_;
    Tablettanbindung& t_;
    Sitzung& s_;
    Druckauftrag drucken_;
    Form3Fenster* form3_ = nullptr;
    Form2Fenster* form2_ = nullptr;
};

} // namespace lonvir::gui
