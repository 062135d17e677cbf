// The confirmed inputs: each ends in a run of the calculation and a store.
#include "screen/eingabe.h"

#include "engine/berechnen.h"
#include "engine/schritte.h"
#include "screen/stufenliste.h"
#include "start/texte.h"

#include <cctype>

namespace lonvir {

namespace {
void neuberechnen(Sitzung& s, int zeile) {
    s.aktuellezeile = static_cast<std::int16_t>(zeile);
    s.Neuberechnung = -1;
    s.aenderungscode = static_cast<std::int16_t>(zeile);
    nachrechnen(s);
}
} // namespace

bool jahresgehaltgesperrt(Sitzung& s) {
    if (s.merkmal[20] != 12)
        return false;
    if (s.dialoge)
        s.dialoge->zeigen({"Keine Änderung möglich",
                           "Während das JAHRESGEHALT eingestellt ist, können keine Änderungen "
                           "vorgenommen werden. Bitte stellen Sie ein Monatsgehalt ein.",
                           Symbol::ausruf, Knoepfe::ok});
    return true;
}

void betragbestaetigen(Sitzung& s, int zeile, std::int32_t pfennig) {
    if (jahresgehaltgesperrt(s))
        return;
    s.eingabe[zeile] = pfennig;
    s.wert[zeile] = pfennig;
    neuberechnen(s, zeile);
}

void auswahlbestaetigen(Sitzung& s, int zeile, std::int16_t position) {
    if (jahresgehaltgesperrt(s))
        return;
    s.merkmal[zeile] = position < 0 ? std::int16_t{0} : position;
    neuberechnen(s, zeile);
}

void schalterklick(Sitzung& s, Schalter& schalter, int zeile, bool an) {
    if (jahresgehaltgesperrt(s))
        return;
    schalter[zeile] = an ? 1 : 0;
    neuberechnen(s, zeile);
}

void personumbenennen(Sitzung& s, const std::string& name) {
    textschreiben(s, 5001 + s.merkmal[0], name);
}

void bdabestaetigen(Sitzung& s, const std::string& text) {
    if (jahresgehaltgesperrt(s))
        return;
    // An empty box is told off, and then emptied like any other text that is no date.
    if (text.empty() && s.merkmal[1] <= 1 && s.dialoge)
        s.dialoge->zeigen({"BDA-Beginn",
                           "Ohne Eingabe des Beginns des Besoldungs-/Vergütungsdienstalters kann "
                           "keine Gehaltsberechnung durchgeführt werden. In der Regel ist dies der "
                           "Monat, in dem der 21. Geburtstag liegt.",
                           Symbol::ausruf, Knoepfe::ok});
    const bool gueltig = text.size() == 7 && text[2] == '.' && text[3] == '1' && text[4] == '9' &&
                         std::isdigit(static_cast<unsigned char>(text[0])) &&
                         std::isdigit(static_cast<unsigned char>(text[1])) &&
                         std::isdigit(static_cast<unsigned char>(text[5])) &&
                         std::isdigit(static_cast<unsigned char>(text[6])) &&
                         std::stoi(text.substr(0, 2)) >= 1 && std::stoi(text.substr(0, 2)) <= 12;
    if (!gueltig) {
        s.bdabeginn = std::string(7, ' ');
        return;
    }
    s.bdabeginn = text;
    stufeausbda(s);
    // The list takes the step found; beyond its end the last entry, below its start the first.
    stufeklemmen(s);
    neuberechnen(s, 7);
}

} // namespace lonvir
