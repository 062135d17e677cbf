// tarif, text, suchen: the tables kept through the handlers of the tariff editor, the text
// editor and the name search.
#include "cli/befehle.h"

#include "panels/namen.h"
#include "panels/tarife.h"
#include "panels/textedit.h"
#include "start/texte.h"

#include <ostream>

namespace lonvir::cli {

namespace {

// The page of the tariff editor for table 1 to 4 of the year.
int tarifseitevon(int jahr, int tabelle) {
    if (jahr == 1997)
        return 53 + tabelle;
    return tabelle == 4 ? 62 : 57 + tabelle;
}

bool nurziffern(const std::string& t) {
    return !t.empty() && t.find_first_not_of("0123456789") == std::string::npos;
}

void tarifausgeben(Kontext& k, const Tarife& t, std::ostream& aus) {
    if (k.json) {
        Json j;
        j.objektAnfang()
            .zahl("jahr", t.jahr)
            .zahl("datei", t.tariffilenummer)
            .zahl("nummer", t.satznummer)
            .text("kopf", t.Panel3D2);
        j.feldAnfang("felder");
        for (int i = 0; i <= 26; ++i)
            j.objektAnfang()
                .zahl("feld", i)
                .text("spalte", tarifspalte(i))
                .zahl("betrag", t.satzbild[i])
                .objektEnde();
        j.feldEnde();
        k.meldungenAnhaengen(j);
        j.objektEnde();
        aus << j.ergebnis() << "\n";
        return;
    }
    aus << t.ueberschrift << "\n" << t.Panel3D2 << "\n";
    for (int i = 0; i <= 26; ++i) {
        const std::string spalte = tarifspalte(i);
        const std::size_t breite = zeichenzahl(spalte);
        aus << (i < 10 ? " " : "") << i << "  " << spalte
            << std::string(breite < 16 ? 16 - breite : 1, ' ') << t.satzbild[i] << "\n";
    }
}

} // namespace

int tarif(Kontext& k, std::ostream& aus) {
    const Optionen& o = k.optionen;
    o.nurErlaubt({"datei", "nummer", "feld", "betrag"});
    const int tabelle = static_cast<int>(o.zahl("datei", 1, 4));
    const int nummer = static_cast<int>(o.zahl("nummer", 1, 590));
    if (nummer > 290 && nummer <= 300)
        throw Aufruffehler("Die Sätze 291 bis 300 gehören zu keiner Gruppe des Tarifeditors.");
    if (o.wert("feld").has_value() != o.wert("betrag").has_value())
        throw Aufruffehler("--feld und --betrag gehören zusammen.");
    // No recalculation here: the next calculation of a month reads the new table.
    Tarife t(k.s, tarifseitevon(k.s.jahr, tabelle), Hauptbildauftrag{});
    if (nummer > 300)
        t.Option2_Click();
    t.schalter_Click(18); // the whole table, 1 to 290
    t.hscroll1_change(nummer);
    int status = 0;
    if (o.wert("feld")) {
        const int feld = static_cast<int>(o.zahl("feld", 0, 26));
        const std::string betrag = *o.wert("betrag");
        if (!nurziffern(betrag))
            throw Aufruffehler(
                "--betrag nimmt nur Ziffern: den Betrag in Pfennig ohne Vorzeichen.");
        t.FieldBoxes_GotFocus(feld);
        t.fieldboxes[feld] = betrag;
        t.fieldboxes_KeyPress(feld, 13);
        if (!t.gespeichert) {
            k.dialoge.zeigen(
                {"Tarif", "Der Betrag wurde nicht gespeichert.", Symbol::ausruf, Knoepfe::ok});
            status = 2;
        }
    }
    t.Form_Unload();
    tarifausgeben(k, t, aus);
    return status;
}

int text(Kontext& k, std::ostream& aus) {
    const Optionen& o = k.optionen;
    o.nurErlaubt({"nummer", "setzen"});
    const int nummer = static_cast<int>(o.zahl("nummer", 1, 6000));
    Textedit t(k.s, 1, 6000, Hauptbildauftrag{});
    t.hscroll1_change(nummer);
    int status = 0;
    if (o.wert("setzen")) {
        t.Text1 = *o.wert("setzen");
        t.text1_KeyUp();
        t.text1_KeyDown(13);
        if (!t.gespeichert)
            status = 2;
        t.hscroll1_change(nummer);
    }
    const std::string gespeichert = textgetrimmt(k.s, nummer);
    if (k.json) {
        Json j;
        j.objektAnfang().zahl("nummer", nummer).text("text", gespeichert).text("gruppe", t.Label3);
        k.meldungenAnhaengen(j);
        j.objektEnde();
        aus << j.ergebnis() << "\n";
    } else {
        aus << nummer << "  " << gespeichert << "\n";
    }
    return status;
}

int suchen(Kontext& k, std::ostream& aus) {
    const Optionen& o = k.optionen;
    o.nurErlaubt({"name"});
    const std::string suchtext = o.wert("name").value_or("");
    const std::vector<int> treffer = namensuche(k.s, suchtext);
    if (k.json) {
        Json j;
        j.objektAnfang()
            .text("suchtext", suchtext)
            .zahl("anzahl", static_cast<long>(treffer.size()));
        j.feldAnfang("treffer");
        for (const int position : treffer)
            j.objektAnfang()
                .zahl("person", position + 1)
                .text("name", textgetrimmt(k.s, textnummer::ersterName + position))
                .objektEnde();
        j.feldEnde();
        k.meldungenAnhaengen(j);
        j.objektEnde();
        aus << j.ergebnis() << "\n";
        return 0;
    }
    for (const int position : treffer)
        aus << position + 1 << "  " << textgetrimmt(k.s, textnummer::ersterName + position) << "\n";
    if (treffer.empty())
        aus << "Die gesuchte Zeichenfolge konnte nicht gefunden werden.\n";
    return 0;
}

} // namespace lonvir::cli
