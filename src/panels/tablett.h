// The panel Tablett without its window: one form that is some twenty small dialogs. Its
// controls are data; `Tablettseite` says which page it is, and each page builder lays the
// shared controls out anew. The Qt view renders whatever the model holds, in twips.
#pragma once

#include "core/feld.h"
#include "core/hilfe.h"
#include "core/seitenoeffner.h"
#include "engine/dienstalter.h"
#include "start/sitzung.h"

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace lonvir {

// Place and size in twips.
struct Lage {
    int links = 0;
    int oben = 0;
    int breite = 0;
    int hoehe = 0;
    bool operator==(const Lage&) const = default;
};

// A text box of the array Text.
struct Tablettfeld {
    bool sichtbar = false;
    bool aktiv = true;
    Lage lage;
    std::string text; // UTF-8
    int vordergrund = 0;
    int hintergrund = 15;
    std::string schrift = "arial";
    std::string passwortzeichen;
};

// A combo box of the array Combo.
struct Tablettliste {
    bool sichtbar = false;
    bool aktiv = true;
    Lage lage;
    std::vector<std::string> liste;
    int position = -1;
    int vordergrund = 0;
    int hintergrund = 15;
    double schriftgroesse = 8.25;
};

// A label of the array zeile: a row caption.
struct Tablettzeile {
    bool sichtbar = false;
    Lage lage;
    std::string text; // UTF-8
    bool fett = false;
    int vordergrund = 0;
    int hintergrund = 7;
    bool rahmen = false;
    std::string schrift = "arial";
};

// A framed output cell of the array kasten (Threed.SSPanel).
struct Tablettkasten {
    bool sichtbar = false;
    Lage lage{0, 0, 1100, 0};
    std::string text;
    int hintergrund = 7;
    bool autogroesse = true;
    double schriftgroesse = 8.25;
    int fase = 0; // the bevel: 0 none
};

// MSGrid.Grid.
struct Tablettgitter {
    bool sichtbar = false;
    Lage lage;
    int festzeilen = 1;
    int festspalten = 1;
    std::vector<std::vector<std::string>> zellen; // Rows x Cols
};

struct Tablettknopf {
    bool sichtbar = false;
    Lage lage;
    std::string text;
    double schriftgroesse = 8.25;
};

struct Tablettrollbalken {
    bool sichtbar = false;
    Lage lage;
    int wert = 0;
    int minimum = 0;
    int maximum = 0;
};

// What the panel must know of the main form Form1, and what it changes there: the result
// column Panel3D2 it covers, the left column Panel3D1 and the tops of rows 4, 5 and 19.
struct Form1lage {
    int links = 0;
    int oben = 0;
    int breite = 0;
    int panel3d1breite = 0;
    int panel3d2breite = 0;
    int panel3d2hoehe = 0;
    bool panel3d2sichtbar = true;
    int zeile4oben = 0;
    int zeile5oben = 0;
    int zeile19oben = 0;
};

// Where a builder leaves the focus.
enum class Tablettfokusart { keiner, text, combo, knopf };
struct Tablettfokus {
    Tablettfokusart art = Tablettfokusart::keiner;
    int index = 0;
    bool operator==(const Tablettfokus&) const = default;
};

class Tablett;
using Seitenbauer = std::function<void(Tablett&)>;

class Tablett : public Seitenoeffner {
public:
    Tablett(Sitzung& s, Form1lage& form, Hilfe* hilfe = nullptr);
    // One panel per main form: its builders keep a pointer to it.
    Tablett(const Tablett&) = delete;
    Tablett& operator=(const Tablett&) = delete;

    Sitzung& s;
    Form1lage& form;
    Hilfe* hilfe;

    // --- the controls
    Feld<Tablettfeld, 0, 17> Text;
    Feld<Tablettliste, 0, 17> Combo;
    Feld<Tablettzeile, 0, 28> zeile;
    Feld<Tablettkasten, 0, 28> kasten;
    Tablettgitter Grid1, Grid2;
    Tablettknopf Command1, Command2, Command3, Command4;
    Tablettrollbalken HScroll1, HScroll2, HScroll3;

    // --- the form
    bool sichtbar = false;
    Lage lage;
    int hintergrund = 7;
    Tablettfokus fokus;
    bool sanduhr = false;

    // --- the panel's state
    // Survives from page to page. 0 until a page has set it: a first page outside the width
    // rule then takes the rule's width, the width of the result column it covers.
    std::int16_t Tablettbreite = 0;
    std::int32_t Hilfeseite = 0;
    std::int16_t Comboaktiv = 0;
    std::int16_t Schirmsperre = 0; // -1 while a batch pass over the records runs
    bool wirdgeoeffnet = false;    // set while tablettoeffnen runs
    // The page the panel shows; the page number may go back to 0 (the main screen's help)
    // while the page stays in view.
    std::int16_t gezeigteSeite = 0;
    bool gespeichert = false; // the store mark of the form
    // A form the panel asks the face to show, e.g. "LStrTab" after a click on page 6, "Form2"
    // from page 66 with the choice of Combo(0), "Form3" from the menu.
    std::optional<std::string> formwunsch;
    // The levy per pay row of page 8 for civil servants, Pfennig.
    Feld<std::int32_t, 0, 27> umlagewert;
    // The text z(row) shows on the main screen; the screen model supplies it.
    std::function<std::string(int)> zeilenname;
    // Page 22: the search text, the hits as list positions at 1 to 7 (shown in zeile(10 + i)),
    // and their number.
    std::string suchtext;
    Feld<std::int16_t, 0, 8> trefferliste;
    std::int16_t trefferzahl = 0;
    // Page 4: the cost centre chosen, 35 characters; blank when all staff are summed.
    std::string kostenstellenauswahl = std::string(35, ' ');
    // The range of the text table the text editor opens on; the entries of "Txt" set it.
    std::int16_t textvon = 1;
    std::int16_t textbis = 6000;
    // What the settings pages ask of the main screen. Without a window the refresh of the
    // left column loads the month with its run, the preset mode only keeps its range, and
    // the password form is only noted.
    std::function<void()> linkespalteauffrischen;
    std::function<void(int von, int bis)> voreinstellmodus;
    std::function<void()> passwortzeigen;
    // The range of records page 61 marked last, first and last number.
    std::optional<std::pair<int, int>> markierbereich;
    bool passwortverlangt = false;
    // Page 42: the working values of the service-age worksheet, kept while the page lives.
    Dienstalterwerte dienstalter;
    // A report the page asks the face to print, e.g. "bda" from "Drucken" on page 42.
    std::optional<std::string> druckwunsch;
    // A pick in the list of row `zeile` of the main screen, as a click there makes it (the
    // month of row 20 loads that month; other rows recalculate). Page 42's "Übertrag" uses
    // it; without a window the pick is made on the session.
    std::function<void(int zeile, int position)> auswahlsetzen;
    // The start of the service age "MM.19JJ" typed into the box "BDA" and confirmed.
    std::function<void(const std::string& text)> bdauebernehmen;
    // Called by a page that works long (the year change) between two steps: the window
    // shows the labels as they stand and serves its events.
    std::function<void()> zwischendurch;

    // --- opening and clearing
    void tablettoeffnen();
    // The menu's way in: the hourglass on, `Tablettseite` set, the page opened.
    void seiteoeffnen(int nummer) override;
    void formwuenschen(const std::string& name) override { formwunsch = name; }
    void textbereichsetzen(std::int16_t von, std::int16_t bis) override {
        textvon = von;
        textbis = bis;
    }
    void tablettleeren();
    // The driver's refresh of the open page after a run (pages 6, 8, 35, and the
    // social-insurance builders under 7, which no menu sets).
    void auffrischen();
    // A builder for a page that a later unit brings; it replaces none of the pages here.
    void seiteanmelden(int seite, Seitenbauer bauer);

    // --- the events
    void Command1_Click();
    void command2_Click();
    void Command3_Click();
    void Command4_Click();
    void combo_GotFocus(int index);
    // A pick in Combo(index): its position is already in the model.
    void combo_Click(int index);
    // A key typed into Text(index): returns the key as it goes on, 0 when it is dropped.
    int text_KeyPress(int index, int taste);
    void text_GotFocus(int index);
    void zeile_Click(int index);
    void kasten_Click(int index);
    void Form_Click();
    // The three bars of page 43 (`nummer` 1 to 3): Change and Scroll run the same update,
    // except while the page is being built. `wert` is the bar's new position.
    void hscroll1_change(int wert) { rollbalkenbewegt(1, wert); }
    void hscroll1_scroll(int wert) { rollbalkenbewegt(1, wert); }
    void HScroll2_Change(int wert) { rollbalkenbewegt(2, wert); }
    void HScroll2_Scroll(int wert) { rollbalkenbewegt(2, wert); }
    void HScroll3_Change(int wert) { rollbalkenbewegt(3, wert); }
    void HScroll3_Scroll(int wert) { rollbalkenbewegt(3, wert); }
    void rollbalkenbewegt(int nummer, int wert);
    void Form_Load();
    void Form_Activate();
    void Form_Deactivate();
    void Form_Unload();
    // Every way back to Form1: the panel hidden, the result column shown again.
    void schliessen();
    // The page a click on the panel belongs to.
    [[nodiscard]] int klickseite() const;

private:
    void breiteregel();
    void platzieren();
    void verteilen();
    std::map<int, Seitenbauer> bauer_;
};

// The text z(row) of a pay row as the main screen shows it without a screen model: the
// entry of the row's fixed list in the text table, or the row's name.
[[nodiscard]] std::string zeilenbezeichnung(Sitzung& s, int zeile);

} // namespace lonvir
