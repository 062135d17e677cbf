// The plain-text face of the printer.
#include "core/textdrucker.h"

#include "core/druckformat.h"

namespace lonvir {

std::string textzeile(const Druckzeile& zeile) {
    std::string aus;
    std::size_t laenge = 0; // in characters
    for (const Druckstueck& s : zeile.stuecke) {
        const auto spalte = static_cast<std::size_t>(s.spalte - 1);
        if (spalte > laenge) {
            aus.append(spalte - laenge, ' ');
            laenge = spalte;
        }
        aus += s.text;
        laenge += zeichenzahl(s.text);
    }
    return rechtsgetrimmt(aus);
}

std::string textdokument(const Druckdokument& dokument) {
    std::string aus;
    for (const Druckzeile& z : dokument.zeilen) {
        aus += textzeile(z);
        aus += '\n';
    }
    aus += "\f\n";
    return aus;
}

} // namespace lonvir
