// drucken: a registered report through the printer into a text, PDF or CSV file.
#include "cli/druckberichte.h"

#include "start/start.h"

namespace lonvir::cli {

namespace {

std::string namensliste() {
    std::string liste;
    for (const std::string& n : druckberichtnamen())
        liste += (liste.empty() ? "" : ", ") + n;
    return liste;
}

} // namespace

int drucken(Kontext& k, std::ostream& aus) {
    const std::vector<std::string>& argumente = k.optionen.argumente();
    if (argumente.empty())
        throw Aufruffehler("Welcher Bericht? drucken BERICHT, BERICHT: " + namensliste() + ".");
    const Druckbericht* bericht = druckbericht(argumente.front());
    if (!bericht)
        throw Aufruffehler("Unbekannter Bericht: " + argumente.front() +
                           ". Berichte: " + namensliste() + ".");
    std::vector<std::string> erlaubt = bericht->optionen;
    erlaubt.insert(erlaubt.end(), {"format", "aus"});
    k.optionen.nurErlaubt(erlaubt);
    // Bad usage is found before the working folder is opened (and so perhaps created).
    starten(k.s);
    Druckauftrag auftrag;
    auftrag.bericht = bericht->name;
    auftrag.titel = bericht->titel;
    auftrag.drucken = [&k, bericht](Drucker& d) { bericht->drucken(k, d); };
    if (bericht->csv)
        auftrag.csv = [&k, bericht] { return bericht->csv(k); };
    return druckausgabe(k, auftrag, aus);
}

} // namespace lonvir::cli
