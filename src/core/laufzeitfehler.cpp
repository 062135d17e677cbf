// Run-time errors with the system's German texts.
#include "core/laufzeitfehler.h"

#include <vector>

namespace lonvir {

namespace {
const char* const monatsnamen[] = {"Januar",    "Februar", "März",     "April",
                                   "Mai",       "Juni",    "Juli",     "August",
                                   "September", "Oktober", "November", "Dezember"};

std::string monatstext(int monat, int jahr) {
    std::string text = monat == 12 ? "Jahresansicht" : monatsnamen[monat];
    if (jahr != 0)
        text += " " + std::to_string(jahr);
    return text;
}

// "bei Person 2, März 1997, Schicht INFO, in Schritt 10 (Überstunden und Teilzeit)"
std::string orttext(const Fehlerort& o) {
    std::vector<std::string> teile;
    if (o.person != 0)
        teile.push_back("Person " + std::to_string(o.person));
    if (o.monat >= 0 && o.monat <= 12)
        teile.push_back(monatstext(o.monat, o.jahr));
    else if (o.jahr != 0)
        teile.push_back(std::to_string(o.jahr));
    if (!o.schicht.empty())
        teile.push_back("Schicht " + o.schicht);
    std::string text;
    for (const std::string& teil : teile)
        text += (text.empty() ? "bei " : ", ") + teil;
    if (!o.schritt.empty())
        text += (text.empty() ? "in " : ", in ") + o.schritt;
    return text;
}
} // namespace

Laufzeitfehler::Laufzeitfehler(int nummer, const std::string& text)
    : std::runtime_error("Laufzeitfehler " + std::to_string(nummer) + ": " + text), nummer_(nummer),
      text_(text) {
    meldungbilden();
}

void Laufzeitfehler::schrittsetzen(const std::string& schritt) {
    if (!ort_.schritt.empty())
        return;
    ort_.schritt = schritt;
    meldungbilden();
}

void Laufzeitfehler::ortsetzen(int person, int monat, int jahr, const std::string& schicht) {
    if (ort_.person != 0 || ort_.jahr != 0)
        return;
    ort_.person = person;
    ort_.monat = monat;
    ort_.jahr = jahr;
    ort_.schicht = schicht;
    meldungbilden();
}

void Laufzeitfehler::meldungbilden() {
    meldung_ = "Laufzeitfehler " + std::to_string(nummer_) + ": " + text_;
    const std::string ort = orttext(ort_);
    if (!ort.empty())
        meldung_ += "\n" + ort;
}

Laufzeitfehler Laufzeitfehler::ueberlauf() {
    return {6, "Überlauf"};
}

Laufzeitfehler Laufzeitfehler::indexfehler() {
    return {9, "Index außerhalb des gültigen Bereichs"};
}

Laufzeitfehler Laufzeitfehler::satznummerfehler() {
    return {63, "Falsche Datensatznummer"};
}

Dateifehler::Dateifehler(const std::string& datei, const std::string& grund)
    : std::runtime_error("Datei " + datei + ": " + grund), datei_(datei) {}

} // namespace lonvir
