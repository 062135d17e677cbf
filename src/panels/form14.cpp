// The row colours of the main screen, chosen row by row and kept in the display settings.
#include "panels/form14.h"

#include "start/einstellungen.h"

namespace lonvir {

Form14::Form14(Sitzung& sitzung, std::function<void()> farbenanwenden)
    : s(sitzung), anwenden_(std::move(farbenanwenden)) {}

void Form14::beschriften() {
    for (int i = 0; i <= 45; ++i)
        colo[i] = std::to_string(s.dim.zeilenfarbe[i]);
}

void Form14::Form_Load() {
    beschriften();
    geladen = true;
}

void Form14::colo_Click(int zeile) {
    const int farbe = s.dim.zeilenfarbe[zeile];
    s.dim.zeilenfarbe[zeile] = static_cast<std::int16_t>(farbe >= 15 || farbe < 0 ? 0 : farbe + 1);
    colo[zeile] = std::to_string(s.dim.zeilenfarbe[zeile]);
    if (anwenden_)
        anwenden_();
}

void Form14::Farbenwahl_Click() {
    dimschreiben(s);
    geladen = false;
}

void Form14::Command1_Click() {
    dimlesen(s);
    if (anwenden_)
        anwenden_();
    geladen = false;
}

void Form14::Empfehlung_Click() {
    // Only the colours of the recommendation: the window places and the start lock stay.
    const Dimsatz vorgabe = dimvorgaben(s);
    s.dim.zeilenfarbe = vorgabe.zeilenfarbe;
    beschriften();
    if (anwenden_)
        anwenden_();
}

void Form14::Form_Deactivate() {
    geladen = false;
}

} // namespace lonvir
