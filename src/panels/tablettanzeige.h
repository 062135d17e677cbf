// The driver's view of the screen with the panel beside it: rows go to the main screen, the
// refresh of the open page to the panel.
#pragma once

#include "panels/tablett.h"

namespace lonvir {

class Tablettanzeige : public Anzeige {
public:
    Tablettanzeige(Tablett& tablett, Anzeige* hauptbild) : t_(tablett), weiter_(hauptbild) {}
    void zeilemalen(int zeile) override {
        if (weiter_)
            weiter_->zeilemalen(zeile);
    }
    void tablettauffrischen() override { t_.auffrischen(); }
    void mauszeigerNormal() override {
        t_.sanduhr = false;
        if (weiter_)
            weiter_->mauszeigerNormal();
    }

private:
    Tablett& t_;
    Anzeige* weiter_;
};

} // namespace lonvir
