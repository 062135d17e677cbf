// The events of the panel: the buttons, the clicks that hand back to Form1, the form's own.
#include "panels/dienstalterseite.h"
#include "panels/namen.h"
#include "panels/seiten.h"
#include "panels/tablett.h"
#include "panels/vorgabeseiten.h"

namespace lonvir {

namespace {

// Pages whose click on a caption, a cell or the form hands back to the main screen.
bool erklaerseite(int seite) {
    return seite == 6 || seite == 8 || seite == 29 || seite == 35;
}

// The help context of Command3 by page; none where the page has no such button.
std::optional<std::int32_t> hilfekontext(int seite, int personalart) {
    switch (seite) {
    case 21:
        return 90020;
    case 23:
        return 90000;
    case 26:
        return 90010;
    case 28:
        return 96110;
    case 29:
        return 96100;
    case 32:
        return 96150;
    case 34:
        return 96170;
    case 37:
        return 96194;
    case 38:
        return 96190;
    case 40:
        return 96204;
    case 42:
        switch (personalart) {
        case 0:
            return 11000;
        case 2:
            return 12500;
        case 3:
            return 45000;
        case 5:
            return 96200;
        }
        return std::nullopt; // any other keeps the last value
    }
    return std::nullopt;
}

} // namespace

void Tablett::schliessen() {
    sichtbar = false;
    form.panel3d2sichtbar = true;
}

void Tablett::Command1_Click() {
    switch (s.Tablettseite) {
    case 42:
        dienstalteruebertrag(*this);
        break;
    case 23:
        jahreswertespeichern(*this);
        break;
    case 67:
        versionuebernehmen(*this);
        break;
    case 66:
        vkeerlaeuterung(*this);
        break;
    case 44:
        tarifstrukturspeichern(*this);
        break;
    case 61:
        markieren(*this);
        break;
    case 63:
        sozvorgabenspeichern(*this);
        break;
    case 64:
        weihnachtsspeichern(*this);
        break;
    case 65:
        zvkvorgabenspeichern(*this);
        break;
    default:
        break;
    }
}

void Tablett::combo_Click(int index) {
    // The settings pages take their lists at "Speichern"; page 2 writes the lock at once.
    if (s.Tablettseite == 2 && index == 0)
        passwortartklick(*this);
    // On page 4 only a choice after the focus came to the list is the user's.
    if (s.Tablettseite == 4 && index == 0 && Comboaktiv == 1) {
        Comboaktiv = 0;
        kostenstellewaehlen(*this);
    }
    // Page 66: the chosen cost centre's totals; position 0 is all staff.
    if (s.Tablettseite == 66 && index == 0 && Combo[0].sichtbar) {
        schliessen();
        formwunsch = "Form2";
    }
}

int Tablett::text_KeyPress(int index, int taste) {
    switch (s.Tablettseite) {
    case 42:
        return dienstaltertaste(*this, index, taste);
    case 61:
        return markiertaste(*this, index, taste);
    case 64:
        return weihnachtstaste(*this, index, taste);
    case 65:
        return zvktaste(*this, index, taste);
    case 22:
        // Enter in the search field starts the name search.
        if (index == 1 && taste == 13) {
            namensuchen(*this);
            return 0;
        }
        return taste;
    default:
        return taste;
    }
}

void Tablett::command2_Click() {
    switch (s.Tablettseite) {
    case 42:
        dienstalterdrucken(*this);
        break;
    case 22:
    case 44:
    case 61:
    case 63:
    case 64:
    case 65:
        for (int i = 0; i <= 4; ++i)
            Combo[i].aktiv = true;
        schliessen();
        break;
    case 2:
    case 66:
    case 67:
    case 68:
        schliessen();
        break;
    default:
        break;
    }
}

void Tablett::Command3_Click() {
    if (s.Tablettseite == 2) {
        // "Passwort ändern": the entry of the form Password is the new password.
        s.Tablettseite = 70;
        if (passwortzeigen)
            passwortzeigen();
        return;
    }
    const int seite = s.Tablettseite;
    if (seite == 66) {
        kostenstellenliste(*this);
        return;
    }
    const auto kontext = hilfekontext(seite, s.personalart());
    if (kontext)
        Hilfeseite = *kontext;
    else if (seite != 42)
        return;
    if (hilfe)
        hilfe->zeigen(Hilfeseite);
}

void Tablett::Command4_Click() {
    if (s.Tablettseite == 66)
        gesamtauswertung(*this);
}

void Tablett::combo_GotFocus(int index) {
    Comboaktiv = 1;
    fokus = {Tablettfokusart::combo, index};
}

void Tablett::text_GotFocus(int index) {
    fokus = {Tablettfokusart::text, index};
    if (s.Tablettseite == 42)
        dienstalterfokus(*this, index);
}

// The main screen's help sets the page number to 0 while the page stays in view: a click on
// it then still belongs to the page shown, so that it closes and gives the result column back.
int Tablett::klickseite() const {
    return s.Tablettseite == 0 && sichtbar ? gezeigteSeite : s.Tablettseite;
}

void Tablett::zeile_Click(int index) {
    if (s.Tablettseite == 22 && index >= 10 && index <= 18)
        trefferwaehlen(*this, index);
    if (erklaerseite(klickseite()))
        schliessen();
}

void Tablett::kasten_Click(int) {
    const int seite = klickseite();
    if (!erklaerseite(seite))
        return;
    schliessen();
    if (seite == 6)
        formwunsch = "LStrTab";
}

void Tablett::Form_Click() {
    if (erklaerseite(klickseite()))
        schliessen();
}

void Tablett::Form_Load() {
    gespeichert = false;
}

void Tablett::Form_Activate() {
    Text[1].passwortzeichen.clear();
}

void Tablett::Form_Deactivate() {
    if (s.bruttomodus != 1)
        return;
    s.bruttomodus = 0;
    s.Neuberechnung = 0;
    s.aktuellezeile = 45;
    s.Tablettseite = 8;
    // The gross mode stored nothing: the month is loaded again and run as a normal run runs
    // it, so that the screen and the stored record are those of the typed inputs again.
    schliessen();
    if (linkespalteauffrischen)
        linkespalteauffrischen();
}

void Tablett::rollbalkenbewegt(int nummer, int wert) {
    Tablettrollbalken& b = nummer == 1 ? HScroll1 : nummer == 2 ? HScroll2 : HScroll3;
    b.wert = wert < b.minimum ? b.minimum : wert > b.maximum ? b.maximum : wert;
    if (s.bruttomodus == 2 || s.Tablettseite != 43)
        return;
    bruttoaendern(*this);
}

void Tablett::Form_Unload() {
    if (s.Tablettseite != 44 || gespeichert)
        return;
    if (s.dialoge)
        s.dialoge->zeigen({"Kein Speichern",
                           "Sie haben das Eingabefenster VOREINSTELLUNGEN verlassen, ohne die "
                           "Änderungen durch Anklicken der Schaltfläche SPEICHERN zu sichern.",
                           Symbol::ausruf, Knoepfe::ok});
    schliessen();
}

} // namespace lonvir
