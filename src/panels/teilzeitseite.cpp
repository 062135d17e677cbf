// Page 35: the part-time pay row by row, the Ortszuschlag of a spouse in the public service
// worked out in words.
#include "core/pfennig.h"
#include "panels/seiten.h"

#include <cstdio>

namespace lonvir {

namespace {

// The factor as the old number text gives it: a positive number gets a leading blank and a
// value below 1 no leading zero (" .75"); below 1 the text is rebuilt as "0," plus the text
// from its third character. A fixed string of nine characters.
std::string faktortext(float faktor) {
    char zahl[32];
    std::snprintf(zahl, sizeof zahl, "%.7g", static_cast<double>(faktor));
    std::string text = zahl;
    if (text.rfind("0.", 0) == 0)
        text.erase(0, 1);
    if (faktor >= 0)
        text.insert(0, " ");
    if (faktor < 1)
        text = "0," + (text.size() > 2 ? text.substr(2) : std::string());
    text.resize(9, ' ');
    return text;
}

std::int32_t malfaktor(std::int32_t pfennig, float faktor) {
    return pf::gerundet(static_cast<double>(pfennig) * static_cast<double>(faktor));
}

struct Zeilenfolge {
    Tablett& t;
    int naechste = 1;
    void zeile(const std::string& text, const std::optional<std::int32_t>& betrag) {
        erklaerzeile(t, naechste++, text, betrag);
    }
};

void ortszuschlag(Zeilenfolge& f, const std::string& faktor) {
    Sitzung& s = f.t.s;
    const std::string text = f.t.zeilenname(8);
    if (s.oz_sonder != 1) {
        if (s.tei[8] == 1)
            f.zeile(text + " x " + faktor, malfaktor(s.wert[8], s.teilzeitfaktor));
        else
            f.zeile(text + "1,000 x ", s.wert[8]);
        return;
    }
    f.zeile(s.personalart() < 5 ? "Berechnung des Ortszuschlags nach § 40 (5) u. (6) BBesG.:"
                                : "Berechnung des Ortszuschlags nach § 29 (5) u. (6) BAT:",
            std::nullopt);
    const std::int32_t stufe1 = s.tarifwert[15];
    const std::int32_t anteil = malfaktor(stufe1, s.teilzeitfaktor);
    const std::int32_t summe = pf::plus(pf::minus(s.wert[8], stufe1), anteil);
    f.zeile("Ortszuschlag bei Vollzeit ", s.wert[8]);
    f.zeile("- Grundbetrag Stufe 1", pf::negiert(stufe1));
    f.zeile("  Grundbetrag Stufe 1" + faktor, anteil);
    f.zeile("= Ortszuschlag bei ", std::nullopt);
    f.zeile("  Teilzeit", summe);
    // The misspelling is the program's own and stays.
    f.zeile("Ortszuschlag lt.obiger Berrechnung", summe);
}

bool vwlhalbiert(const Sitzung& s) {
    return s.personalart() <= 4 && s.teilzeitfaktor < 1 && s.merkmal[15] > 0;
}

} // namespace

void teilzeitseite(Tablett& t) {
    Sitzung& s = t.s;
    // 1.
    ueberschrift(t, "T E I L Z E I T G E H A L T");
    // 2.
    const std::string faktor = faktortext(s.teilzeitfaktor);
    Zeilenfolge f{t};
    // 3. and 4.
    ortszuschlag(f, faktor);
    // 5.
    for (int i = 7; i <= 19; ++i) {
        if (i == 8)
            continue;
        const std::string text = t.zeilenname(i);
        if (i == 15 && vwlhalbiert(s))
            f.zeile(text + "0,500 x ", s.teilwert[15].gerundetInt32());
        else if (s.tei[i] == 1)
            f.zeile(text + " x " + faktor, s.teilwert[i].gerundetInt32());
        else
            f.zeile(text + "1,000 x ", s.wert[i]);
    }
    // 6.
    f.zeile(punktzeile, std::nullopt);
    f.zeile("TEILZEITGEHALT BRUTTO", s.wert[21]);
    t.zeile[f.naechste - 1].fett = true;
}

} // namespace lonvir
