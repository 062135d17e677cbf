// Printing a month: row, list position, list text, value and the screen's text of it.
#include "cli/monatsausgabe.h"

#include "core/cp1252.h"
#include "engine/monatladen.h"
#include "screen/betragstext.h"

#include <iomanip>
#include <ostream>

namespace lonvir::cli {

namespace {

template <typename F> void feld(Json& j, const char* name, const F& f) {
    j.feldAnfang(name);
    for (int i = F::unten; i <= F::oben; ++i) {
        if constexpr (std::is_same_v<std::remove_cvref_t<decltype(f[i])>, Currency>)
            j.roh({}, f[i].text());
        else
            j.zahl(f[i]);
    }
    j.feldEnde();
}

void alsJson(Kontext& k, std::ostream& aus) {
    const Sitzung& s = k.s;
    Json j;
    j.objektAnfang()
        .zahl("person", s.aktuelleperson)
        .zahl("monat", s.merkmal[20] + 1)
        .zahl("jahr", s.jahr)
        .zahl("schicht", s.schicht);
    feld(j, "merkmal", s.merkmal);
    feld(j, "wert", s.wert);
    feld(j, "eingabe", s.eingabe);
    feld(j, "nebenwert", s.nebenwert);
    feld(j, "zahlwert", s.zahlwert);
    feld(j, "teilwert", s.teilwert);
    feld(j, "lstwert", s.lstwert);
    feld(j, "svwert", s.svwert);
    feld(j, "zvkwert", s.zvkwert);
    feld(j, "lst", s.lst);
    feld(j, "soz", s.soz);
    feld(j, "zvk", s.zvk);
    feld(j, "wei", s.wei);
    feld(j, "tei", s.tei);
    feld(j, "bru", s.bru);
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
    const long person = k.optionen.zahl("person", 1, 1000);
    if (person > k.s.anzahlnamen)
        throw Aufruffehler("Person " + std::to_string(person) + " gibt es nicht; angelegt sind " +
                           std::to_string(k.s.anzahlnamen) + ".");
    const long monat = k.optionen.zahl("monat", 1, 13);
    monatladen(k.s, static_cast<std::int16_t>(person), static_cast<std::int16_t>(monat - 1));
}

void monatausgeben(Kontext& k, std::ostream& aus) {
    if (k.json)
        alsJson(k, aus);
    else
        alsText(k, aus);
}

} // namespace lonvir::cli
