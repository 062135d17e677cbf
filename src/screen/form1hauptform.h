// The main-screen model Form1 as the main form that the changes of layer and year, the
// delete of the persons and the reload drive.
#pragma once

#include "screen/form1.h"
#include "screen/hauptform.h"

namespace lonvir {

class Form1hauptform : public Hauptform {
public:
    explicit Form1hauptform(Form1& form) : f_(form) {}
    void bildauffrischen() override { f_.bildauffrischen(); }
    void schichtanzeigen(int schicht) override { f_.bild.aktiveSchicht = schicht; }
    void zeilenfarben() override { f_.farbenanwenden(); }
    // Form_Load writes the caption of the year.
    void jahresanzeige() override {}
    void sanduhr(bool an) override { f_.bild.sanduhr = an; }
    void entladen() override { f_.Form_Unload(); }
    void laden() override { f_.Form_Load(); }

private:
    Form1& f_;
};

} // namespace lonvir
