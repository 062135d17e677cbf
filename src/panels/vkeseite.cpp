// Page 66: a worked example of the administrative cost refund, and the way to the totals of
// the staff, for all or sorted by cost centre.
#include "panels/seiten.h"
#include "start/texte.h"

namespace lonvir {

namespace {

constexpr int erlaeuterungAnfang = 4770; // the text of "Erläuterung", nine records
constexpr int erlaeuterungEnde = 4778;

// A row of the example: the caption left, the amount right-justified in its cell. The
// amounts are fixed texts of the example, not computed.
void beispielzeile(Tablett& t, int i, const std::string& text, const std::string& betrag) {
    erklaerzeile(t, i, text, std::nullopt);
    if (betrag.empty())
        return;
    Tablettkasten& k = t.kasten[i];
    k.text = betrag;
    k.sichtbar = true;
    k.lage.links -= 500;
    k.lage.breite += 500;
}

void knopf(Tablettknopf& k, int links, const std::string& text) {
    k.text = text;
    k.lage = {links, 4200, 1900, 400};
    k.sichtbar = true;
}

} // namespace

void vkeseite(Tablett& t) {
    // 1.
    ueberschrift(t, std::to_string(t.s.jahr) + " Verwaltungskostenerstattung ");
    // 2. 75 420 + 10 000 + 12 000 = 97 420
    beispielzeile(t, 2, "Pers.Kostenpauschale", "    75.420 DM");
    beispielzeile(t, 3, "+ Sachkostenzuschlag", "    10.000 DM");
    beispielzeile(t, 4, "+ IuK-Zuschlag", "    12.000 DM");
    beispielzeile(t, 5, "= Verrechnungsbetrag", "    97.420 DM");
    // 3. 25 % of it is 24 355, the other 75 % 73 065.
    beispielzeile(t, 7, "K.St.   Prod.      %", "");
    beispielzeile(t, 8, "  2300   11.05     25", " 24.355 DM");
    beispielzeile(t, 9, "Rest    75 %", "        73.065 DM");
    // 4.
    knopf(t.Command1, 100, "Erläuterung");
    knopf(t.Command2, 2100, "Abbrechen");
    knopf(t.Command3, 100, "Sortieren nach Kostenstellen");
    t.Command3.lage.oben = 3700;
    knopf(t.Command4, 2100, "Gesamtauswertungen auswählen");
    t.Command4.lage.oben = 3700;
    t.fokus = {Tablettfokusart::knopf, 4};
}

void vkeerlaeuterung(Tablett& t) {
    std::string text;
    for (int n = erlaeuterungAnfang; n <= erlaeuterungEnde; ++n) {
        const std::string teil = textgetrimmt(t.s, n);
        if (teil.empty())
            continue;
        // A word broken at the end of a record goes on without a blank.
        if (!text.empty() && text.back() != '-')
            text += ' ';
        if (!text.empty() && text.back() == '-')
            text.pop_back();
        text += teil;
    }
    if (t.s.dialoge && !text.empty())
        t.s.dialoge->zeigen({"Erläuterung", text, Symbol::info, Knoepfe::ok});
}

void kostenstellenliste(Tablett& t) {
    Tablettliste& c = t.Combo[0];
    c.liste.clear();
    const int letzte = textnummer::ersteKostenstelle + kostenstellenzaehlen(t.s) - 1;
    for (int n = textnummer::ersteKostenstelle - 1; n <= letzte; ++n)
        c.liste.push_back(textgetrimmt(t.s, n));
    c.position = 0;
    c.lage = {100, 3300, 3500, 300};
    c.vordergrund = 15;
    c.sichtbar = true;
    t.fokus = {Tablettfokusart::combo, 0};
}

void gesamtauswertung(Tablett& t) {
    if (t.Combo[0].liste.empty())
        kostenstellenliste(t);
    t.Combo[0].position = 0;
    t.schliessen();
    t.formwunsch = "Form2";
}

} // namespace lonvir
