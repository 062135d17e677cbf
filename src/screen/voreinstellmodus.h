// The preset mode of the main screen: after page 61 has marked a range of records, the rows
// turn white, the presettable ones yellow, and two transfer buttons read "Ü B E R T R A G E N"
// and "A B B R E C H E N". The first gives the yellow rows' selections of the current person
// to every month of the marked persons and recalculates them; the second leaves the mode.
#pragma once

#include "screen/hauptbild.h"
#include "start/sitzung.h"

#include <functional>
#include <string>

namespace lonvir {

class Form1;

struct Voreinstellmodus {
    bool aktiv = false;
    int von = 0; // first and last record number as page 61 took them
    int bis = 0;
};

// The rows a preset gives on: their list positions (merkmal).
[[nodiscard]] bool voreinstellbar(int zeile);

// Enters the mode for the records von..bis.
void voreinstellmodusbeginnen(Form1& f, int von, int bis);
// Leaves it: the rows take their own colours again, the buttons their captions.
void voreinstellmodusbeenden(Form1& f);

// The colours of the mode: every row white, the presettable ones yellow.
void voreinstellfarben(Hauptbild& bild);

// Caption and visibility of the transfer button Command2..Command5 in the current mode.
[[nodiscard]] std::string uebertragknopftext(const Form1& f, int knopf);
[[nodiscard]] bool uebertragknopfsichtbar(const Form1& f, int knopf);

// Progress of a preset: persons done, persons in all.
using Fortschritt = std::function<void(int erledigt, int gesamt)>;

// A click on a transfer button while the mode stands: Command2 transfers, Command3 cancels.
// Returns false when the mode does not stand, so that the button does its own work.
bool voreinstellknopf(Form1& f, int knopf, const Fortschritt& fortschritt = {});

// The confirmed preset: the selections of the yellow rows of the working set go into every
// month record of the persons von..bis (cut to the persons that exist), and each of their
// months is recalculated from its record. All or nothing: the month files are kept aside
// first and put back if anything fails. Returns the number of persons preset. The working
// set afterwards holds the last month run; the caller refreshes the screen.
int voreinstellungenuebertragen(Sitzung& s, int von, int bis, const Fortschritt& fortschritt = {});

} // namespace lonvir
