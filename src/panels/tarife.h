// The tariff editor Tarife without its window: one line of a pay table at a time, chosen by a
// group button, a scroll bar and West or Ost; an entry goes into this file and every later
// tariff file of the year.
#pragma once

#include "core/feld.h"
#include "core/satzdatei.h"
#include "panels/hauptbildauftrag.h"
#include "records/tarifsatz.h"
#include "start/sitzung.h"

#include <array>
#include <string>

namespace lonvir {

inline constexpr const char* tarifeTitel = "Grundgehaltssätze,  Ortszuschlag, Allg. Stellenzulage";

// The column captions of the 27 fields, in the order of the elements of a tariff line.
[[nodiscard]] const char* tarifspalte(int feld);

// The pages that open the editor: 54 to 57 the four tables of 1997, 58 to 60 and 62 those of
// 1998.
[[nodiscard]] bool tarifseite(int seite);

struct Tarifschalter {
    std::string text;
    int farbe = 7; // palette colour of the back
};

struct Tarifrollbalken {
    int wert = 0;
    int minimum = 0;
    int maximum = 0;
};

class Tarife {
public:
    // Form_Load for the page that opened the editor.
    Tarife(Sitzung& s, int seite, Hauptbildauftrag auftrag);
    Tarife(const Tarife&) = delete;
    Tarife& operator=(const Tarife&) = delete;

    Sitzung& s;
    Hauptbildauftrag auftrag;

    // --- the controls
    Feld<std::string, 0, 26> fieldboxes;
    Feld<Tarifschalter, 0, 17> Schalter;
    Tarifrollbalken HScroll1;
    bool Option1 = true;       // "West"
    bool Option2 = false;      // "Ost"
    std::string Panel3D2;      // the heading of the current line
    std::string ueberschrift;  // the table: "LONVIR    1 9 9 7 _ 1  (Grundgeh., OZ, Allg.St.Z.)"
    int fokus = 0;             // the field that has the focus
    bool alleszeichen = false; // the whole text of the focused field is selected
    int pieptoene = 0;         // the warning sounds of the last entry
    bool geschlossen = false;
    bool gespeichert = false; // the last Enter stored its value

    // --- the form's state
    Feld<std::int32_t, 0, 26> satzbild; // the current line
    int satznummer = 0;                 // the line last read
    int ostversatz = 0;                 // 0 West, 300 Ost
    int schalter = 0;                   // the last group chosen
    int tariffilenummer = 1;            // 1 to 4: the ".1tr" to ".4tr" file of the year
    int jahr = 1997;

    // --- the events
    void schalter_Click(int index);
    void hscroll1_change(int wert);
    void Option1_Click();
    void Option2_Click();
    void FieldBoxes_GotFocus(int feld);
    // Returns the key as it goes on into the field, 0 when it is dropped.
    int fieldboxes_KeyPress(int feld, int taste);
    // False when the field keeps the focus because its number is too large.
    bool fieldboxes_lostfocus(int feld);
    void Command1_Click();
    void Form_Unload();

    // Reads line `satznummer` of the form's file into the image and the fields.
    void recordlesen();
    void satzanzeigen();

private:
    void einzelzeile(int feld, std::int32_t wert, Tarifsatz& t) const;
    void durchschreiben(int feld, std::int32_t wert);
    [[nodiscard]] bool betrifftaktuelleperson() const;
    Tarifsatz lesen(int datei);
    void schreiben(int datei, const Tarifsatz& t);
    Satzdatei& datei(int nummer);

    // The four tables of the page's year when that year's set is not the one open.
    std::array<Satzdatei, 4> eigene_;
    bool eigenedateien_ = false;
};

// The tidy-up of pasted text on leaving a field: a comma becomes a full stop with the two
// characters after it as cents; a blank after the first position is taken out, leaving the
// part left of it and the last two characters.
[[nodiscard]] std::string tarifaufraeumen(const std::string& text);

} // namespace lonvir
