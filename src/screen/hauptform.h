// What a change of person, month, layer or year asks of the main form: its refresh, its
// layer panels and row colours, its unload and load, the hourglass and the year's caption.
// The screen model answers it; without a window `Kernform` stands in.
#pragma once

#include "start/sitzung.h"

#include <string>

namespace lonvir {

// The caption of the main window: "LONVIR 1997 im öffentlichen Dienst    (ohne Gewähr)", with
// the year of the open set; in 1998 with the tax law of 1998 switched on followed by
// "    Lohnsteuer nach dem Steuerrecht 1998".
[[nodiscard]] std::string fenstertitel(const Sitzung& s);

class Hauptform {
public:
    virtual ~Hauptform() = default;
    // Rebuilds the screen from the record of the current person and month (the year view at
    // month 12), and runs the calculation.
    virtual void bildauffrischen() = 0;
    // The three layer panels: the active one highlighted, the other two normal.
    virtual void schichtanzeigen(int schicht) = 0;
    virtual void zeilenfarben() = 0;
    virtual void jahresanzeige() = 0;
    virtual void sanduhr(bool an) = 0;
    // Form_Unload and Form_Load of the main form.
    virtual void entladen() = 0;
    virtual void laden() = 0;
};

// The main form for callers without a window: the refresh is the load of the month with its
// run; the panels, colours, caption and hourglass are only noted.
class Kernform : public Hauptform {
public:
    explicit Kernform(Sitzung& s) : s_(s) {}

    void bildauffrischen() override;
    void schichtanzeigen(int schicht) override { aktiveSchicht = schicht; }
    void zeilenfarben() override {}
    void jahresanzeige() override;
    void sanduhr(bool an) override { sanduhrAn = an; }
    void entladen() override;
    void laden() override;

    int aktiveSchicht = 0;
    bool sanduhrAn = false;
    std::string titel;

private:
    Sitzung& s_;
};

} // namespace lonvir
