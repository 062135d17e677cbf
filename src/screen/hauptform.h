// What a change of person, month, layer or year asks of the main form: its refresh, its
// layer panels and row colours, its unload and load, the hourglass and the year's caption.
// The screen model answers it; without a window `Kernform` stands in.
#pragma once

#include "start/sitzung.h"

#include <string>

namespace lonvir {

// The caption of the main window: "LONVIR 1997 im öffentlichen Dienst    (ohne Gewähr)", with
// the year of the open set; a folder opened for reading only adds that nothing is stored; in
// 1998 with the tax law of 1998 switched on followed by "    Lohnsteuer nach dem Steuerrecht
// 1998".
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
    // Form_Unload and Form_Load of the main form; the load is `hauptformladen` over the
    // two steps below.
    virtual void entladen() = 0;
    virtual void laden() = 0;
    // Step 2 of the load: the row lists, with the names of the person list.
    virtual void zeilenlistenfuellen() = 0;
    // Step 4 of the load: the 1998 entries of the menu, enabled once a 1998 set is filled.
    virtual void jahresmenue() = 0;
};

// The load of the main form, one sequence for the window and for callers without one: the
// hourglass and the change lock on, the row lists, person 1 as the working start, the year
// menu, the row colours, the caption, the place where the user stopped (person, month and
// layer of the settings) with its refresh, the lock and the hourglass off.
void hauptformladen(Sitzung& s, Hauptform& form);

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
    // Without a window the row lists are the count of names in the text table.
    void zeilenlistenfuellen() override;
    void jahresmenue() override {}

    int aktiveSchicht = 0;
    bool sanduhrAn = false;
    std::string titel;

private:
    Sitzung& s_;
};

} // namespace lonvir
