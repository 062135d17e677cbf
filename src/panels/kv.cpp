// The health-insurance rates by fund and month: reading, the keys, and a rate that holds from
// the keyed month to the end of the year.
#include "panels/kv.h"

#include "core/pfennig.h"
#include "start/kvsaetze.h"
#include "start/texte.h"

namespace lonvir {

namespace {

constexpr int ersteKasse = 3628;
constexpr int letzteKasse = 27;
constexpr int ersterMonatstext = 3835;
constexpr std::int32_t hoechstsatz = 2000; // 20 %

void meldung(Sitzung& s, const char* titel, const char* text) {
    if (s.dialoge)
        s.dialoge->zeigen({titel, text, Symbol::ausruf, Knoepfe::ok});
}

bool erlaubt(int taste) {
    return taste == 13 || taste == 44 || taste == 46 || (taste >= 48 && taste <= 57);
}

} // namespace

std::string kvtext(std::int32_t hundertstel) {
    const bool negativ = hundertstel < 0;
    const std::int32_t betrag = negativ ? -hundertstel : hundertstel;
    std::string t = (negativ ? "-" : "") + std::to_string(betrag / 100);
    const std::int32_t rest = betrag % 100;
    if (rest != 0) {
        t += ",";
        t += static_cast<char>('0' + rest / 10);
        if (rest % 10 != 0)
            t += static_cast<char>('0' + rest % 10);
    }
    return t;
}

KV::KV(Sitzung& sitzung, Hauptbildauftrag a) : s(sitzung), auftrag(std::move(a)) {
    Label1 = std::string("Krankenversicherungs-Beitragssätze ") + (s.ist1997() ? "1997" : "1998");
    for (int kasse = 0; kasse <= letzteKasse; ++kasse)
        Combo1.push_back(textgetrimmt(s, ersteKasse + kasse));
    for (int monat = 0; monat <= 11; ++monat)
        SSPanel[monat] = textgetrimmt(s, ersterMonatstext + monat);
    combo1_Click(0);
}

std::int16_t KV::kv_lesen(const Kvsatz& k) const {
    return k.satz[Combo1position];
}

void KV::kv_zuordnen(Kvsatz& k, std::int16_t wert) const {
    k.satz[Combo1position] = wert;
}

void KV::combo1_Click(int position) {
    if (position < 0 || position > letzteKasse)
        throw Laufzeitfehler::indexfehler();
    Combo1position = position;
    for (int monat = 0; monat <= 11; ++monat)
        kvzahl[monat] = kvtext(kv_lesen(kvsatzlesen(s, kvsatznummer(s, monat))));
}

void KV::kvzahl_GotFocus(int monat) {
    // A new value replaces the old one.
    kvzahl[monat].clear();
}

int KV::kvzahl_KeyPress(int monat, int taste) {
    std::string& text = kvzahl[monat];
    // 1.
    if (!erlaubt(taste)) {
        meldung(s, "Format", "Bitte geben Sie den Beitragssatz nur mit Ziffern und Komma ein.");
        return 0;
    }
    if (taste == 44)
        return 46;
    if (taste != 13)
        return taste;
    // 2.
    if (text.find_first_not_of(' ') == std::string::npos) {
        text = "0";
        return 0;
    }
    for (char& c : text)
        if (c == ',')
            c = '.';
    // 3. The value stored after the cut is 20 hundredths, not 2000, as it stands.
    std::int32_t wert = pf::gerundet(textzahl(text) * 100);
    if (wert > hoechstsatz) {
        meldung(s, "Korrektor", "Ihre Eingabe mußte auf 20 herabgesetzt werden.");
        wert = 20;
        text = "20";
    }
    // 4. A rate holds from the keyed month to the end of the year.
    for (int i = monat; i <= 11; ++i) {
        kvzahl[i] = text;
        const int nummer = kvsatznummer(s, i);
        Kvsatz k = kvsatzlesen(s, nummer);
        kv_zuordnen(k, pf::int16(wert));
        kvsatzschreiben(s, nummer, k);
    }
    // 5.
    kvsaetzelesen(s);
    if (auftrag.nachrechnen)
        auftrag.nachrechnen();
    return 0;
}

} // namespace lonvir
