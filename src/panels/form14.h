// The form Form14: one small button beside each row of the main screen; a click gives the
// row the next of the sixteen colours. "Speichern" keeps them, "Abbrechen" brings back the
// stored ones, "Epfehlung" the recommended ones.
#pragma once

#include "core/feld.h"
#include "start/sitzung.h"

#include <functional>
#include <string>

namespace lonvir {

class Form14 {
public:
    // `farbenanwenden` paints the rows of the main screen from zeilenfarbe.
    Form14(Sitzung& s, std::function<void()> farbenanwenden);

    Sitzung& s;
    // The caption of colo(i): the colour number of row i.
    Feld<std::string, 0, 45> colo;
    bool geladen = false;

    static constexpr const char* abbrechen = "Abbrechen";
    static constexpr const char* empfehlung = "Epfehlung";
    static constexpr const char* farbenwahl = "Speichern";

    void Form_Load();
    void colo_Click(int zeile);
    void Farbenwahl_Click();
    void Command1_Click();
    void Empfehlung_Click();
    void Form_Deactivate();

private:
    void beschriften();
    std::function<void()> anwenden_;
};

} // namespace lonvir
