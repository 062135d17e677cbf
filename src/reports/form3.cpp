// Form3: filling the grids of the annual overview and its events.
#include "reports/form3.h"

#include "core/druckformat.h"
#include "start/einstellungen.h"
#include "start/satzzugriff.h"
#include "start/texte.h"

#include <algorithm>
#include <array>

namespace lonvir {

namespace {

constexpr int jahresspalte = 17;

void zeilebeschriften(Gitter& g, int zeile, std::array<const char*, 4> texte) {
    for (int spalte = 0; spalte < 4; ++spalte)
        g.zelle(zeile, spalte) = texte[static_cast<std::size_t>(spalte)];
}

} // namespace

Form3::Form3(Sitzung& sitzung) : s(sitzung) {
    Grid1.groesse(5, 18);
    Grid2.groesse(4, 18);
    Grid3.groesse(2, 18);
    for (Gitter* g : {&Grid1, &Grid2, &Grid3}) {
        g->festzeilen = 1;
        g->festspalten = 4;
    }
}

void Form3::Form_Load() {
    HScroll1.maximum = s.anzahlnamen + 1;
    ansichtabzuege = 1;
}

void Form3::Form_Activate() {
    sichtbar = true;
    HScroll1.maximum = s.anzahlnamen + 1;
    ansichtabzuege = 1;
    HScroll1.wert = jahresperson;
    Command2_Click();
}

void Form3::Command2_Click() {
    ansichtabzuege = ansichtabzuege == 0 ? 1 : 0;
    jahresansicht();
}

void Form3::HScroll1_Change(int wert) {
    // The first and last persons meet in a ring.
    if (wert == 0)
        wert = HScroll1.maximum - 1;
    else if (wert == HScroll1.maximum)
        wert = 1;
    HScroll1.wert = wert;
    jahresperson = static_cast<std::int16_t>(wert);
    jahresansicht();
}

bool Form3::Grid_Click(int spalte) {
    // January, column 4, does not react; column 16 gives December like column 15.
    if (spalte < 5 || spalte > 16 || klickLaeuft_)
        return false;
    klickLaeuft_ = true;
    monatswechsel = 1;
    s.merkmal[20] = static_cast<std::int16_t>(std::min(spalte - 4, 11));
    s.aktuelleperson = jahresperson;
    s.merkmal[0] = static_cast<std::int16_t>(jahresperson - 1);
    sichtbar = false;
    klickLaeuft_ = false;
    return true;
}

void Form3::Command1_Click(int oben, int links) {
    sichtbar = false;
    s.dim.form3top = Currency::ganz(oben);
    s.dim.form3left = Currency::ganz(links);
    dimschreiben(s);
}

void Form3::Command3_Click(Drucker& d) {
    jahresuebersichtdrucken(s, *this, d);
}

void Form3::jahresansicht() {
    // 1. and 2.
    const std::string name = textgetrimmt(s, 5000 + jahresperson);
    const std::string jahr = std::to_string(s.jahr);
    if (ansichtabzuege == 0) {
        caption = name + "    - Monatsgehälter " + jahr + " und Arbeitgeberaufwand";
        Command2 = "Abzüge aufrufen";
    } else {
        caption = name + "    - Monatsgehälter " + jahr + " brutto und netto";
        Command2 = "AG-Aufwendungen aufrufen";
    }
    // 3. to 7.
    beschriften();
    // 8.
    jahresmatrix = jahresmatrixbilden(s, jahresperson);
    // 9.
    zahleneintragen();
}

void Form3::beschriften() {
    const bool ag = ansichtabzuege == 0;
    // 3. The levy row names the civil servants' pension fund or the ZVK, by January's class.
    if (ag) {
        const int personalart = personalsatzlesen(s, 1, jahresperson).merkmal[4];
        if (personalart < 5)
            zeilebeschriften(Grid2, 2, {"Umlage", "für", "Beamten-", "versorg."});
        else
            zeilebeschriften(Grid2, 2, {"ZVK-", "Umlage", "", ""});
    } else {
        zeilebeschriften(Grid2, 2, {"  Ki.Steuer", "", "", ""});
    }
    // 4.
    Grid1.hintergrund = 14;
    Grid1.vordergrund = 0;
    zeilebeschriften(Grid1, 1, {"Grundgeh.", "Ortszuschl.", "Allg.St.Zul", "Überleit.Z."});
    zeilebeschriften(Grid1, 2, {"Zulagen", "VWL", "", ""});
    zeilebeschriften(Grid1, 3, {"Url.Geld", "Einm.Zuw.", "Einmalz.", ""});
    zeilebeschriften(Grid1, 4, {"BRUTTO-", "GEHALT", "", ""});
    // 5.
    Grid2.hintergrund = ag ? 11 : 15;
    Grid2.vordergrund = 12;
    if (ag) {
        zeilebeschriften(Grid2, 1, {"AG-Anteile", "KV, Pfl.V.", "RV und AV", ""});
        zeilebeschriften(Grid2, 3, {"Vom AG", "übernom.", "Steuern", "(ZVK u.a.)"});
    } else {
        zeilebeschriften(Grid2, 1, {"Lohnsteuer", "Solidar.-", "zuschlag", ""});
        zeilebeschriften(Grid2, 3, {"KV-Vers.", "Pflegevers.", "Rentenvers.", "Arb.losenv."});
    }
    // 6.
    Grid3.hintergrund = ag ? 10 : 15;
    Grid3.vordergrund = 0;
    if (ag)
        zeilebeschriften(Grid3, 1, {"Bruttogeh.", "+  AG-Ant.", "+ ZV-Aufw.", "+ AG-Strn."});
    else
        zeilebeschriften(Grid3, 1, {"N E T T O -", "G E H A L T", "", ""});
    // 7.
    for (Gitter* g : {&Grid1, &Grid2, &Grid3}) {
        for (int m = 0; m < 12; ++m)
            g->zelle(0, 4 + m) = monatskoepfe[m];
        g->zelle(0, 16) = "";
        g->zelle(0, jahresspalte) = std::to_string(s.jahr);
    }
}

void Form3::zahleneintragen() {
    const bool ag = ansichtabzuege == 0;
    const auto zelle = [&](int monat, int k, const char* format) {
        // The matrix holds Pfennig; the grid shows DM.
        return formatzahl(jahresmatrix.wert(monat, k).alsDouble() / 100.0, format);
    };
    for (int k = 1; k <= 13; ++k) {
        const int spalte = k == 13 ? jahresspalte : k + 3;
        Grid1.zelle(1, spalte) = zelle(k, kategorie::grundbezuege, "##,##0.00");
        Grid1.zelle(2, spalte) = zelle(k, kategorie::zulagen, "##,##0.00");
        Grid1.zelle(3, spalte) = zelle(k, kategorie::einmalzahlung, "##,##0.00");
        Grid1.zelle(4, spalte) = zelle(k, kategorie::brutto, "###,##0.00");
        Grid2.zelle(1, spalte) =
            zelle(k, ag ? kategorie::agAnteile : kategorie::steuern, "##,##0.00");
        Grid2.zelle(2, spalte) =
            zelle(k, ag ? kategorie::umlage : kategorie::kirchensteuer, "##,##0.00");
        Grid2.zelle(3, spalte) =
            zelle(k, ag ? kategorie::agSteuern : kategorie::sozial, "##,##0.00");
        Grid3.zelle(1, spalte) = zelle(k, ag ? kategorie::aufwand : kategorie::netto, "###,##0.00");
    }
}

} // namespace lonvir
