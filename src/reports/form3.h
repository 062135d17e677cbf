// The annual overview Form3 without its window: one person's year in three grids, the view
// of deductions and net pay or of the employer's cost, the scroll bar over the staff, the
// jump to a month of the main screen, and the print. Reads stored records; runs no engine.
#pragma once

#include "core/drucker.h"
#include "reports/gitter.h"
#include "reports/jahresmatrix.h"
#include "start/sitzung.h"

#include <cstdint>
#include <string>

namespace lonvir {

struct Rollbalken {
    int wert = 0;
    int minimum = 0;
    int maximum = 0;
};

class Form3 {
public:
    explicit Form3(Sitzung& s);

    Sitzung& s;

    // --- the controls
    std::string caption = "Jahresübersicht";
    Gitter Grid1, Grid2, Grid3;
    std::string Command1 = "Schließen";
    std::string Command2;
    std::string Command3 = "Drucken";
    Rollbalken HScroll1;
    bool sichtbar = false;

    // --- the form's state
    std::int16_t ansichtabzuege = 0; // 1 deductions and net, 0 employer cost
    std::int16_t jahresperson = 1;   // apart from the main screen's current person
    std::int16_t monatswechsel = 0;  // 1: the main screen is to show a new month
    Jahresmatrix jahresmatrix;

    // --- the events
    void Form_Load();
    // Opens in the employer view: the deductions view set, then flipped once.
    void Form_Activate();
    void Command2_Click();
    void HScroll1_Change(int wert);
    // A click on column `spalte` of Grid1, Grid2 or Grid3: a month from February to December
    // becomes the main screen's month and jahresperson its person; the form hides. Returns
    // whether the main form is to show that month.
    bool Grid_Click(int spalte);
    // Command1 "Schließen": the form's place and the display settings stored.
    void Command1_Click(int oben, int links);
    // Command3 "Drucken".
    void Command3_Click(Drucker& d);

    // Fills caption, button and grids for jahresperson and the view.
    void jahresansicht();

private:
    void beschriften();
    void zahleneintragen();
    bool klickLaeuft_ = false;
};

// The month headings of the grids, columns 4 to 15.
inline constexpr const char* monatskoepfe[12] = {"Jan",  "Feb", "März", "April", "Mai", "Juni",
                                                 "Juli", "Aug", "Sept", "Okt",   "Nov", "Dez"};

// The annual overview on paper: letterhead, the grids with rows and columns exchanged,
// non-cash benefits and side costs per month, the settings of each month, the remarks.
void jahresuebersichtdrucken(Sitzung& s, const Form3& f, Drucker& d);

} // namespace lonvir
