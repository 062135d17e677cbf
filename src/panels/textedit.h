// The form Textedit without its window: any record of the text table, chosen by a scroll bar
// over a range, shown with the caption of its block, stored with Enter, found by a search.
#pragma once

#include "panels/hauptbildauftrag.h"
#include "start/sitzung.h"

#include <string>
#include <vector>

namespace lonvir {

inline constexpr const char* texteditTitel = "Texte editieren";

// A menu entry of "Txt": the range of text records it opens.
struct Textmenue {
    const char* name; // the control, e.g. "MNamen"
    const char* text; // the caption
    std::int16_t textvon;
    std::int16_t textbis;
};
// The 21 entries in their order, from "Namen eingeben" to "Alles".
[[nodiscard]] const std::vector<Textmenue>& textmenues();

struct Textrollbalken {
    int wert = 0;
    int minimum = 0;
    int maximum = 0;
};

class Textedit {
public:
    // Form_Load and Form_Activate on the range textvon..textbis.
    Textedit(Sitzung& s, std::int16_t textvon, std::int16_t textbis, Hauptbildauftrag auftrag);

    Sitzung& s;
    Hauptbildauftrag auftrag;
    std::int16_t textvon;
    std::int16_t textbis;

    // --- the controls
    std::string Text1;          // the record's text
    int Text1farbe = 0;         // 12 (red) while the text is longer than 35 characters
    std::string Text2;          // the search text
    bool Text2markiert = false; // its whole text selected
    Textrollbalken HScroll1;
    std::vector<std::string> Label1; // the explanation of the range
    std::string Label3;              // the caption of the record's block
    std::string kopf;                // the heading of Text1: the caption and the record number
    bool sanduhr = false;
    bool geschlossen = false;
    bool gespeichert = false; // the last Enter stored the text
    int suchposition = 0;     // the record the last search stopped at

    // --- the events
    void hscroll1_change(int wert);
    // Enter stores the text and moves on.
    void text1_KeyDown(int taste);
    void text1_KeyUp();
    void Text2_GotFocus() { Text2markiert = true; }
    // Enter starts the search from the first record.
    void Text2_KeyPress(int taste);
    // "Weiter": the search from the record after the one shown.
    void Command1_Click();
    // "Abbrechen": the names counted, the form unloaded.
    void command2_Click();
    void Form_Unload();

    // Reads the record at the scroll bar into Text1 with its caption.
    void aufstocken();

private:
    void suchen(int ab);
};

// A record's place in the search: the trimmed search text within the trimmed record, without
// regard to case (the letters of code page 1252 with their capitals).
[[nodiscard]] bool textenthaelt(const std::string& text, const std::string& suchtext);

} // namespace lonvir
