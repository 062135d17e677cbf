// setzen: one confirmed input exactly as the screen takes it, then print the month.
#include "cli/befehle.h"
#include "cli/monatsausgabe.h"
#include "screen/eingabe.h"

namespace lonvir::cli {

namespace {

Schalter& schalterVon(Sitzung& s, const std::string& name) {
    if (name == "lst")
        return s.lst;
    if (name == "soz")
        return s.soz;
    if (name == "zvk")
        return s.zvk;
    if (name == "wei")
        return s.wei;
    if (name == "tei")
        return s.tei;
    if (name == "bru")
        return s.bru;
    throw Aufruffehler("--schalter muss lst, soz, zvk, wei, tei oder bru sein.");
}

int eingaben(const Optionen& o) {
    int n = 0;
    for (const char* name : {"betrag", "auswahl", "schalter", "bda", "name"})
        n += o.wert(name) ? 1 : 0;
    return n;
}

void eingabeausfuehren(Kontext& k) {
    const Optionen& o = k.optionen;
    Sitzung& s = k.s;
    if (o.wert("name")) {
        personumbenennen(s, *o.wert("name"));
    } else if (o.wert("bda")) {
        bdabestaetigen(s, *o.wert("bda"));
    } else if (o.wert("schalter")) {
        Schalter& schalter = schalterVon(s, *o.wert("schalter"));
        const long zeile = o.zahl("zeile", 7, 19);
        schalterklick(s, schalter, static_cast<int>(zeile), o.zahl("an", 0, 1) == 1);
    } else if (o.wert("betrag")) {
        const long zeile = o.zahl("zeile", 0, 45);
        betragbestaetigen(s, static_cast<int>(zeile),
                          static_cast<std::int32_t>(o.zahl("betrag", -2147483647L, 2147483647L)));
    } else {
        const long zeile = o.zahl("zeile", 1, 45);
        if (zeile == 20)
            throw Aufruffehler("Den Monat wählt --monat, nicht --zeile 20.");
        auswahlbestaetigen(s, static_cast<int>(zeile),
                           static_cast<std::int16_t>(o.zahl("auswahl", -1, 32767)));
    }
}

} // namespace

int setzen(Kontext& k, std::ostream& aus) {
    k.optionen.nurErlaubt(
        {"person", "monat", "zeile", "betrag", "auswahl", "schalter", "an", "bda", "name"});
    if (eingaben(k.optionen) != 1)
        throw Aufruffehler("setzen braucht genau eine Eingabe: --betrag, --auswahl, --schalter, "
                           "--bda oder --name.");
    monatwaehlen(k);
    eingabeausfuehren(k);
    monatausgeben(k, aus);
    return 0;
}

} // namespace lonvir::cli
