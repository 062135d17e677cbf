// Form2: the caption, the sums and the grid of the totals over the staff.
#include "reports/form2.h"

#include "core/druckformat.h"
#include "start/texte.h"

namespace lonvir {

Form2::Form2(Sitzung& sitzung, Kostenstellenwahl w) : s(sitzung), wahl(std::move(w)) {}

void Form2::Form_Load() {
    // 1.
    caption = "ARBEITGEBERAUFWENDUNGEN für KOSTENSTELLE " + wahl.kostenstelle;
    // 2.
    summen = jahressummen(s, wahl);
    // 3.
    int personen = 0;
    for (int p = 1; p <= summen.bedienstetenzahl; ++p)
        personen += summen.gewaehlt(p) ? 1 : 0;
    Grid1.festzeilen = 1;
    Grid1.festspalten = 2;
    Grid1.hintergrund = 15;
    Grid1.vordergrund = 0;
    Grid1.groesse(1 + personen + 1 + 12, 11);
    Grid1.zelle(0, 0) = "Nr.";
    Grid1.zelle(0, 1) = "Name";
    for (int k = 0; k < 9; ++k)
        Grid1.zelle(0, 2 + k) = spaltenkoepfe[static_cast<std::size_t>(k)];
    int zeile = 1;
    for (int p = 1; p <= summen.bedienstetenzahl; ++p) {
        if (!summen.gewaehlt(p))
            continue;
        Grid1.zelle(zeile, 0) = std::to_string(p);
        Grid1.zelle(zeile, 1) = textgetrimmt(s, 5000 + p);
        for (int k = slot::beamtenbezuege; k <= slot::gesamt; ++k)
            Grid1.zelle(zeile, k) = tausenderbild(summen.wert(p, k, 13));
        ++zeile;
    }
    summenzeile_ = zeile;
    Grid1.zelle(zeile, 0) = "GESAMTSUMME " + std::to_string(s.jahr);
    for (int k = slot::beamtenbezuege; k <= slot::gesamt; ++k)
        Grid1.zelle(zeile, k) = tausenderbild(summen.gesamtsummen[k]);
    for (int m = 1; m <= 12; ++m) {
        ++zeile;
        if (m == 1)
            Grid1.zelle(zeile, 0) = "davon";
        Grid1.zelle(zeile, 1) = monatsnamen[static_cast<std::size_t>(m - 1)];
        for (int k = slot::beamtenbezuege; k <= slot::gesamt; ++k)
            Grid1.zelle(zeile, k) = tausenderbild(summen.monatssummen[m][k]);
    }
    sichtbar = true;
}

std::optional<std::int16_t> Form2::Grid1_Click(int zeile) {
    if (zeile < 1 || zeile >= summenzeile_)
        return std::nullopt;
    sichtbar = false;
    return static_cast<std::int16_t>(std::stoi(Grid1.zelle(zeile, 0)));
}

void Form2::Command1_Click(Drucker& d) const {
    gehaelterlistedrucken(s, summen, d);
}

void Form2::Command2_Click(Drucker& d) const {
    monatsuebersichtdrucken(s, summen, d);
}

} // namespace lonvir
