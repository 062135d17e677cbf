// Counting names, the name search of page 22 and the cost-centre choice of page 4.
#include "panels/namen.h"

#include "panels/seiten.h"
#include "panels/textedit.h"
#include "start/dateisatz.h"
#include "start/personenanlegen.h"
#include "start/texte.h"

namespace lonvir {

namespace {

constexpr int ersteSuchzeile = 9;
constexpr int letzteSuchzeile = 17;
constexpr int hoechstetreffer = 7;

bool leer(const std::string& t) {
    return t.find_first_not_of(' ') == std::string::npos;
}

void zeilesetzen(Tablett& t, int i, const std::string& text, int oben) {
    Tablettzeile& z = t.zeile[i];
    z.text = text;
    z.lage = {seitenlage::links, oben, t.Tablettbreite - 2 * seitenlage::links, 250};
    z.sichtbar = true;
}

// Rows 9 on for the result: red on white, 250 apart plus 50 more for each row, from 800.
void ergebniszeilen(Tablett& t) {
    for (int i = ersteSuchzeile; i <= 18; ++i) {
        Tablettzeile& z = t.zeile[i];
        z.sichtbar = false;
        z.rahmen = false;
        z.vordergrund = 12;
        z.hintergrund = 15;
        z.text.clear();
        const int versatz = (i - ersteSuchzeile) * 50;
        z.lage = {seitenlage::links, i * 250 + versatz + 800, 3000, 250};
    }
}

void ergebnis(Tablett& t, int i, const std::string& text) {
    t.zeile[i].text = text;
    t.zeile[i].sichtbar = true;
}

} // namespace

void namenzaehlen(Sitzung& s) {
    s.anzahlnamen = personenzaehlen(s);
    const std::int32_t gespeichert = s.datei(1).laenge() == 0 ? 0 : gespeichertesaetze(s);
    if (s.anzahlnamen <= gespeichert)
        return;
    // The persons above the stored ones: a name where theirs is blank, blank months.
    const std::int32_t ab = gespeichert + 1;
    for (std::int32_t n = ab; n <= s.anzahlnamen; ++n)
        if (leer(textlesen(s, textnummer::ersterName - 1 + n)))
            textschreiben(s, textnummer::ersterName - 1 + n, std::to_string(n) + ". Name");
    const std::int16_t schicht = s.schicht;
    Personalsatz satz = Personalsatz::neu(0);
    for (std::int16_t l : {INFO, PLAN, REAL}) {
        s.schicht = l;
        dateienoeffnen(s);
        schichtfuellen(s, ab, satz);
    }
    s.schicht = schicht;
    dateienoeffnen(s);
}

std::vector<int> namensuche(Sitzung& s, const std::string& suchtext) {
    std::vector<int> treffer;
    // Position anzahlnamen lies past the list: an empty entry, which nothing is found in.
    for (int position = 0; position <= s.anzahlnamen; ++position) {
        const std::string name =
            position < s.anzahlnamen ? textgetrimmt(s, textnummer::ersterName + position) : "";
        if (!name.empty() && textenthaelt(name, suchtext))
            treffer.push_back(position);
    }
    return treffer;
}

void namenseite(Tablett& t) {
    // The heading: nine records from 4055 on, 250 apart.
    for (int i = 0; i <= 8; ++i)
        zeilesetzen(t, i, textgetrimmt(t.s, 4055 + i), seitenlage::anfang + i * 250);
    t.zeile[0].fett = true;
    Tablettfeld& suche = t.Text[1];
    suche.lage = {seitenlage::links, seitenlage::anfang + 7 * 250, 3000, 285};
    suche.text = t.suchtext;
    suche.vordergrund = 12;
    suche.hintergrund = 15;
    suche.sichtbar = true;
    Tablettfeld& zahl = t.Text[0];
    zahl.lage = {1300, seitenlage::anfang + 8 * 250, 600, 250};
    zahl.text = t.trefferzahl > 0 ? std::to_string(t.trefferzahl) : "";
    zahl.aktiv = false;
    zahl.sichtbar = true;
    t.zeile[7].sichtbar = false; // the search box stands on this row
    t.Command2.text = "Abbrechen";
    t.Command2.lage = {seitenlage::links, 6000, 1500, 400};
    t.Command2.schriftgroesse = 10;
    t.Command2.sichtbar = true;
    ergebniszeilen(t);
    t.fokus = {Tablettfokusart::text, 1};
}

void namensuchen(Tablett& t) {
    // 1.
    t.suchtext = t.Text[1].text;
    t.trefferzahl = 0;
    t.trefferliste.fuellen(0);
    // 2. Seven hits fill the store; more are not counted.
    for (const int position : namensuche(t.s, t.suchtext)) {
        if (t.trefferzahl >= hoechstetreffer)
            break;
        ++t.trefferzahl;
        t.trefferliste[t.trefferzahl] = static_cast<std::int16_t>(position);
    }
    t.Text[0].text = std::to_string(t.trefferzahl);
    // 3.
    ergebniszeilen(t);
    if (t.trefferzahl == 0) {
        // 4.
        ergebnis(t, 9, "Die gesuchte Zeichenfolge konnte ");
        ergebnis(t, 10, "nicht gefunden werden.");
        t.zeile[9].vordergrund = 8;
        t.zeile[10].vordergrund = 8;
        t.zeile[letzteSuchzeile].sichtbar = false;
        return;
    }
    if (t.trefferzahl == 1) {
        // 5. The only one becomes current at once.
        trefferwaehlen(t, 11);
        return;
    }
    // 6. and 7.
    if (t.trefferzahl < hoechstetreffer) {
        ergebnis(t, 9, "Ihre Eingabe trifft auf " + std::to_string(t.trefferzahl) + " Namen zu.");
        ergebnis(t, 10, "(Gewünschtes bitte anklicken)");
    } else {
        ergebnis(t, 9, "Es konnten nicht alle gefundenen");
        ergebnis(t, 10, "Namen angezeigt werden.");
    }
    for (int k = 1; k <= t.trefferzahl; ++k) {
        ergebnis(t, 10 + k, textgetrimmt(t.s, textnummer::ersterName + t.trefferliste[k]));
        t.zeile[10 + k].rahmen = true;
    }
}

void trefferwaehlen(Tablett& t, int zeile) {
    // Only a row that shows a hit is one to click.
    const int k = zeile - 10;
    if (k < 1 || k > t.trefferzahl)
        return;
    const int position = t.trefferliste[k];
    t.s.merkmal[0] = static_cast<std::int16_t>(position);
    t.s.aktuelleperson = static_cast<std::int16_t>(position + 1);
    if (t.linkespalteauffrischen)
        t.linkespalteauffrischen();
}

namespace {

// The last cost centre whose text is not blank, from record 5000 downward; 4800 when none.
int letztekostenstelle(Sitzung& s) {
    for (int nummer = 5000; nummer >= textnummer::ersteKostenstelle; --nummer)
        if (!leer(textlesen(s, nummer)))
            return nummer;
    return textnummer::ersteKostenstelle - 1;
}

} // namespace

void amtseite(Tablett& t) {
    zeilesetzen(t, 0, textgetrimmt(t.s, 4800), seitenlage::anfang);
    t.zeile[0].fett = true;
    Tablettliste& liste = t.Combo[0];
    liste.liste.clear();
    for (int nummer = textnummer::ersteKostenstelle - 1; nummer <= letztekostenstelle(t.s);
         ++nummer)
        liste.liste.push_back(textgetrimmt(t.s, nummer));
    liste.lage = {seitenlage::links, 3300, 3500, 315};
    liste.vordergrund = 15;
    liste.hintergrund = 12;
    liste.schriftgroesse = 9.75;
    liste.position = 0;
    liste.sichtbar = true;
    t.Comboaktiv = 0;
    t.fokus = {Tablettfokusart::combo, 0};
    t.sichtbar = true;
}

void kostenstellewaehlen(Tablett& t) {
    const int position = t.Combo[0].position;
    if (position < 0)
        return;
    t.kostenstellenauswahl = textlesen(t.s, textnummer::ersteKostenstelle - 1 + position);
    t.schliessen();
    t.formwunsch = "Form2";
}

} // namespace lonvir
