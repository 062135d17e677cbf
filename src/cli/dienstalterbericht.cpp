// drucken bda: the printed service-age sheet of one person, worked out on page 42 as the window
// works it out: the birth date and the months without pay typed key by key into the page.
#include "cli/druckberichte.h"

#include "core/zeichen.h"
#include "panels/dienstalterseite.h"
#include "reports/bdadrucken.h"
#include "screen/form1.h"
#include "start/jahressaetze.h"

namespace lonvir::cli {

namespace {

// The keys of `text` into Text(feld) as the box takes them, then Enter.
void tippen(Tablett& t, int feld, const std::string& text) {
    for (char c : text) {
        const int weiter = t.text_KeyPress(feld, static_cast<unsigned char>(c));
        if (weiter == static_cast<unsigned char>(c))
            t.Text[feld].text += c;
    }
    t.text_KeyPress(feld, 13);
}

// --geburtstag, else the first field of the remark card ("Geburtsdatum").
std::string geburtstag(Kontext& k, int person) {
    if (const auto wert = k.optionen.wert("geburtstag"))
        return *wert;
    const std::string karte = getrimmt(jahressatzlesen(k.s, person).text(0));
    if (karte.empty())
        throw Aufruffehler("Für Person " + std::to_string(person) +
                           " ist kein Geburtsdatum auf der Bemerkungskarte eingetragen; bitte "
                           "--geburtstag TT.MM.JJJJ angeben.");
    return karte;
}

void bdabericht(Kontext& k, Drucker& d) {
    const long person = k.optionen.zahl("person", 1, 1000);
    if (person > k.s.anzahlnamen)
        throw Aufruffehler("Person " + std::to_string(person) + " gibt es nicht; angelegt sind " +
                           std::to_string(k.s.anzahlnamen) + ".");
    const int monat = static_cast<int>(k.optionen.zahl("monat", 1, 12, 1));
    Form1 form(k.s);
    form.listenfuellen();
    form.namensliste();
    k.s.aktuelleperson = static_cast<std::int16_t>(person);
    k.s.merkmal[0] = static_cast<std::int16_t>(person - 1);
    k.s.merkmal[20] = static_cast<std::int16_t>(monat - 1);
    form.bildauffrischen();
    Form1lage lage;
    Tablett t(k.s, lage);
    t.zeilenname = [&form](int zeile) {
        const Bildzeile& z = form.bild.zeilen[static_cast<std::size_t>(zeile)];
        if (z.position >= 0 && static_cast<std::size_t>(z.position) < z.liste.size())
            return z.liste[static_cast<std::size_t>(z.position)];
        return std::string();
    };
    k.s.Tablettseite = 42;
    t.tablettoeffnen();
    t.text_GotFocus(0);
    tippen(t, 0, geburtstag(k, static_cast<int>(person)));
    if (t.Text[2].sichtbar) {
        t.Text[1].text.clear();
        tippen(t, 1, std::to_string(k.optionen.zahl("monate1", 0, 9999, 0)));
        t.Text[2].text.clear();
        tippen(t, 2, std::to_string(k.optionen.zahl("monate2", 0, 9999, 0)));
    }
    t.command2_Click();
    if (!t.druckwunsch)
        throw Aufruffehler("Für diese Person wird kein Berechnungsbogen gedruckt.");
    if (!t.dienstalter.berechnet)
        throw Aufruffehler("Das Besoldungsdienstalter ist nicht berechnet: bitte den Geburtstag "
                           "als TT.MM.JJJJ angeben.");
    bdadrucken(k.s, dienstalterblatt(t), d);
}

Druckbericht bericht() {
    Druckbericht b;
    b.name = "bda";
    b.titel = "Berechnung des Besoldungsdienstalters (BDA)";
    b.optionen = {"person", "monat", "geburtstag", "monate1", "monate2"};
    b.drucken = bdabericht;
    return b;
}

const Druckberichtanmeldung anmeldung(bericht());

} // namespace

} // namespace lonvir::cli
