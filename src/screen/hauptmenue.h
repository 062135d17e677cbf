// The menu bar of Form1 as data: entries in their order with captions and actions, and the
// handler of a click. Entries whose function another unit brings are added by that unit.
#pragma once

#include "core/hilfe.h"
#include "panels/tablett.h"
#include "screen/hauptform.h"

#include <optional>
#include <string>
#include <vector>

namespace lonvir {

enum class Menueaktion {
    keine,            // a menu that only holds entries
    seite,            // opens page `zahl` of the panel
    hilfe,            // shows help context `zahl`
    jahr,             // the year `zahl`
    personalloeschen, // deletes the persons of year `zahl`
    beenden,          // MBeenden
    zeilenhilfe,      // MHilfe: the help of the current row
    form,             // shows a form of its own; the entry's name says which (MFarben: Form14)
    kv,               // shows the form KV of the health-insurance rates
    texte,            // shows Textedit on the range of the entry (the menu "Txt")
};

struct Menuepunkt {
    std::string name; // the control's name, e.g. "MLohnsteuer"
    std::string text; // the caption
    Menueaktion aktion = Menueaktion::keine;
    int zahl = 0;
    bool aktiv = true;
    bool markiert = false;
    std::vector<Menuepunkt> punkte;
};

// The whole bar for the state of the session: the year entries checked and enabled as the
// main form's load sets them.
[[nodiscard]] std::vector<Menuepunkt> hauptmenue(const Sitzung& s);
// The entry of that name anywhere in the bar.
[[nodiscard]] std::optional<Menuepunkt> menuepunkt(const Sitzung& s, const std::string& name);

// The help context of a row for a staff class: Besoldungsordnung A, C and R and BAT have row
// topics; the other staff classes have none.
[[nodiscard]] std::optional<int> zeilenhilfe(int personalart, int zeile);

// What a click on the menu reaches.
struct Menueziel {
    Sitzung& s;
    Hauptform& form;
    Tablett& tablett;
    Hilfe* hilfe = nullptr;
    bool beendet = false;
    // The form a click asks the window to show, e.g. "Form14".
    std::optional<std::string> formwunsch = std::nullopt;
};

// The click on the entry `name`; an unknown name does nothing.
void menueklick(Menueziel& ziel, const std::string& name);

} // namespace lonvir
