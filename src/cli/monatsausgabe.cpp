// Printing a month: row, list position, list text, value and the screen's text of it.
#include "cli/monatsausgabe.h"

#include "core/betragstext.h"
#include "core/cp1252.h"
#include "engine/berechnen.h"
#include "start/satzzugriff.h"
#include "start/vorgang.h"

#include <iomanip>
#include <ostream>

namespace lonvir::cli {

namespace {

void alsJson(Kontext& k, std::ostream& aus) {
    const Sitzung& s = k.s;
    Json j;
    j.objektAnfang()
        .zahl("person", s.aktuelleperson)
        .zahl("monat", s.merkmal[20] + 1)
        .zahl("jahr", s.jahr)
        .zahl("schicht", s.schicht);
    feldJson(j, "merkmal", s.merkmal);
    feldJson(j, "wert", s.wert);
    feldJson(j, "eingabe", s.eingabe);
    feldJson(j, "nebenwert", s.nebenwert);
    feldJson(j, "zahlwert", s.zahlwert);
    feldJson(j, "teilwert", s.teilwert);
    feldJson(j, "lstwert", s.lstwert);
    feldJson(j, "svwert", s.svwert);
    feldJson(j, "zvkwert", s.zvkwert);
    schalterJson(j, s);
    j.text("bdabeginn", cp1252NachUtf8(s.bdabeginn));
    j.feldAnfang("zeilen");
    for (int zeile = 0; zeile <= 45; ++zeile)
        j.text(zeilentext(zeile, s.wert[zeile]));
    j.feldEnde();
    k.meldungenAnhaengen(j);
    aus << j.objektEnde().ergebnis() << "\n";
}

void alsText(Kontext& k, std::ostream& aus) {
    const Sitzung& s = k.s;
    aus << "Person " << s.aktuelleperson << ", Monat " << s.merkmal[20] + 1 << ", Jahr " << s.jahr
        << "\n";
    for (int zeile = 0; zeile <= 45; ++zeile) {
        aus << std::setw(2) << zeile << "  " << std::setw(3) << s.merkmal[zeile] << "  "
            << std::setw(11) << s.wert[zeile] << "  " << zeilentext(zeile, s.wert[zeile]) << "\n";
    }
}

} // namespace

void monatwaehlen(Kontext& k) {
    const std::unique_ptr<Form1> form = hauptformoeffnen(k);
}

namespace {
long personoption(Kontext& k) {
    const long person = k.optionen.zahl("person", 1, 1000);
    if (person > k.s.anzahlnamen)
        throw Aufruffehler("Person " + std::to_string(person) + " gibt es nicht; angelegt sind " +
                           std::to_string(k.s.anzahlnamen) + ".");
    return person;
}
} // namespace

void gespeichertenmonatladen(Kontext& k) {
    const long person = personoption(k);
    const long monat = k.optionen.zahl("monat", 1, 13);
    k.s.aktuelleperson = static_cast<std::int16_t>(person);
    k.s.merkmal[0] = static_cast<std::int16_t>(person - 1);
    k.s.merkmal[20] = static_cast<std::int16_t>(monat - 1);
    if (monat == 13) {
        jahressumme(k.s);
    } else {
        satzlesen(k.s);
        eingabewerte(k.s);
    }
}

std::unique_ptr<Form1> hauptformoeffnen(Kontext& k) {
    const long person = personoption(k);
    const long monat = k.optionen.zahl("monat", 1, 13);
    // The lists and the month take their texts and records from one reading of each.
    Lesezeitraum zeitraum(k.s);
    auto form = std::make_unique<Form1>(k.s);
    form->listenfuellen();
    form->namensliste();
    k.s.aktuelleperson = static_cast<std::int16_t>(person);
    k.s.merkmal[0] = static_cast<std::int16_t>(person - 1);
    k.s.merkmal[20] = static_cast<std::int16_t>(monat - 1);
    form->bildauffrischen();
    return form;
}

void monatausgeben(Kontext& k, std::ostream& aus) {
    if (k.json)
        alsJson(k, aus);
    else
        alsText(k, aus);
}

} // namespace lonvir::cli
