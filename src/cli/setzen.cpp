// setzen: one confirmed input exactly as the screen takes it, then print the month.
#include "cli/befehle.h"
#include "cli/monatsausgabe.h"

namespace lonvir::cli {

namespace {

Schalterart schalterVon(const std::string& name) {
    const std::pair<const char*, Schalterart> namen[] = {{"lst", L}, {"soz", S}, {"zvk", Z},
                                                         {"wei", W}, {"tei", T}, {"bru", P}};
    for (const auto& [n, art] : namen)
        if (name == n)
            return art;
    throw Aufruffehler("--schalter muss lst, soz, zvk, wei, tei oder bru sein.");
}

int eingaben(const Optionen& o) {
    int n = 0;
    for (const char* name : {"betrag", "auswahl", "schalter", "bda", "name"})
        n += o.wert(name) ? 1 : 0;
    return n;
}

// What the window would not let the user do is a usage error here, with nothing stored.
void betragpruefen(const Form1& f, int zeile) {
    const Bildzeile& z = f.bild.zeilen[static_cast<std::size_t>(zeile)];
    if (!z.hatWertfeld)
        throw Aufruffehler("Zeile " + std::to_string(zeile) + " hat kein Betragsfeld.");
    if (z.gesperrt)
        throw Aufruffehler("Das Betragsfeld der Zeile " + std::to_string(zeile) +
                           " ist für diese Personalart gesperrt.");
}

void auswahlpruefen(const Form1& f, int zeile, long position) {
    const Bildzeile& z = f.bild.zeilen[static_cast<std::size_t>(zeile)];
    if (!z.hatListe)
        throw Aufruffehler("Zeile " + std::to_string(zeile) + " hat keine Liste.");
    if (!z.aktiv)
        throw Aufruffehler("Die Liste der Zeile " + std::to_string(zeile) +
                           " ist für diese Personalart gesperrt.");
    if (position >= static_cast<long>(z.liste.size()))
        throw Aufruffehler("Die Liste der Zeile " + std::to_string(zeile) + " hat " +
                           std::to_string(z.liste.size()) + " Einträge, Positionen 0 bis " +
                           std::to_string(static_cast<long>(z.liste.size()) - 1) + ".");
}

void eingabeausfuehren(Kontext& k, Form1& f) {
    const Optionen& o = k.optionen;
    if (o.wert("name")) {
        f.umbenennen(*o.wert("name"));
    } else if (o.wert("bda")) {
        f.bdatippen(*o.wert("bda"));
    } else if (o.wert("schalter")) {
        const Schalterart art = schalterVon(*o.wert("schalter"));
        const int zeile = static_cast<int>(o.zahl("zeile", 7, 19));
        if (!f.bild.schalterblock || !f.bild.schalter[static_cast<std::size_t>(art)].sichtbar)
            throw Aufruffehler("Der Schalter " + *o.wert("schalter") +
                               " ist in diesem Monat nicht sichtbar.");
        f.schalterklicken(art, zeile, o.zahl("an", 0, 1) == 1);
    } else if (o.wert("betrag")) {
        const int zeile = static_cast<int>(o.zahl("zeile", 0, 45));
        betragpruefen(f, zeile);
        const auto betrag = static_cast<std::int32_t>(o.zahl("betrag", -2147483647L, 2147483647L));
        // The box resets itself at its eighth character: such an amount cannot be typed.
        if (betragseingabe(betrag).size() >= 8)
            throw Aufruffehler("Der Betrag " + betragseingabe(betrag) +
                               " hat mehr als sieben Zeichen; das Betragsfeld nimmt ihn nicht an.");
        f.betragtippen(zeile, betrag);
    } else {
        const int zeile = static_cast<int>(o.zahl("zeile", 1, 45));
        if (zeile == 20)
            throw Aufruffehler("Den Monat wählt --monat, nicht --zeile 20.");
        const long position = o.zahl("auswahl", -1, 32767);
        auswahlpruefen(f, zeile, position);
        f.auswahltreffen(zeile, static_cast<int>(position));
    }
}

} // namespace

int setzen(Kontext& k, std::ostream& aus) {
    k.optionen.nurErlaubt(
        {"person", "monat", "zeile", "betrag", "auswahl", "schalter", "an", "bda", "name"});
    if (eingaben(k.optionen) != 1)
        throw Aufruffehler("setzen braucht genau eine Eingabe: --betrag, --auswahl, --schalter, "
                           "--bda oder --name.");
    const std::unique_ptr<Form1> form = hauptformoeffnen(k);
    eingabeausfuehren(k, *form);
    monatausgeben(k, aus);
    return 0;
}

} // namespace lonvir::cli
