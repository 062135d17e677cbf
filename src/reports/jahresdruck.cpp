// The annual overview on paper: the three grids turned on their side, one printed line per
// grid column, the non-cash benefits and side costs, the settings of each month, the remarks.
#include "core/cp1252.h"
#include "core/druckformat.h"
#include "core/pfennig.h"
#include "reports/berichtskopf.h"
#include "reports/druckzeilen.h"
#include "reports/form3.h"
#include "reports/merkmaltexte.h"
#include "screen/betragstext.h"
#include "start/jahressaetze.h"
#include "start/satzzugriff.h"
#include "start/texte.h"

#include <array>

namespace lonvir {

namespace {

const std::string strich133 = unterstriche(133);

// The overview's columns are the grids' rows: their right ends on paper.
constexpr std::array<int, 4> grid1ende = {20, 32, 42, 54};
constexpr std::array<int, 3> grid2ende = {68, 79, 90};
constexpr int grid3ende = 106;
constexpr int sachbezugende = 121;
constexpr int nebenkostenende = 134;

// One printed line: grid column j of the three grids.
void gitterspalte(const Form3& f, Drucker& d, int j) {
    d.FontBold(true);
    d.Print({Tab{2}, f.Grid1.zelle(0, j)}, Zeilenende::bleiben);
    d.FontBold(false);
    if (j > 3)
        d.Print({Tab{8}, "|"}, Zeilenende::bleiben);
    for (int r = 1; r <= 4; ++r)
        betragrechts(d, grid1ende[static_cast<std::size_t>(r - 1)], f.Grid1.zelle(r, j));
    d.Print({Tab{56}, "|"}, Zeilenende::bleiben);
    for (int r = 1; r <= 3; ++r)
        betragrechts(d, grid2ende[static_cast<std::size_t>(r - 1)], f.Grid2.zelle(r, j));
    d.Print({Tab{92}, "|"}, Zeilenende::bleiben);
    betragrechts(d, grid3ende, f.Grid3.zelle(1, j));
}

void sachbezuege(Drucker& d, std::int32_t sachbezug, std::int32_t nebenkosten) {
    betragrechts(d, sachbezugende, betragstext(sachbezug));
    betragrechts(d, nebenkostenende, betragstext(nebenkosten));
}

// 3. and 4.: the grids, column by column, with rows 24 and 26 of each month beside them.
void gitterdrucken(Sitzung& s, const Form3& f, Drucker& d) {
    std::int32_t summe24 = 0;
    std::int32_t summe26 = 0;
    for (int j = 0; j <= 17; ++j) {
        if (j == 4) {
            d.Print({strich133});
            d.Print({});
        }
        if (j == 16)
            d.Print({strich133});
        gitterspalte(f, d, j);
        if (j == 0) {
            d.Print({Tab{111}, "Sachbezüge", Tab{123}, "Nebenkosten"}, Zeilenende::bleiben);
        } else if (j >= 4 && j <= 15) {
            const Personalsatz p = personalsatzlesen(s, j - 3, f.jahresperson);
            summe24 = pf::plus(summe24, p.wert[24]);
            summe26 = pf::plus(summe26, p.wert[26]);
            sachbezuege(d, p.wert[24], p.wert[26]);
        } else if (j == 17) {
            sachbezuege(d, summe24, summe26);
        }
        d.Print({});
    }
}

// A quotient of two hundredths rows, "#0.00000"; a month without a normal value shows 0.
std::string faktor(std::int32_t zaehler, std::int32_t nenner) {
    if (nenner == 0)
        return formatzahl(0.0, "#0.00000");
    return formatzahl(static_cast<double>(zaehler) / static_cast<double>(nenner), "#0.00000");
}

// 5. to 8.: the settings of each month.
void merkmaledrucken(Sitzung& s, const Form3& f, Drucker& d) {
    d.Print({strich133});
    d.Print({});
    d.FontBold(true);
    d.Print({"Eingestellte Merkmale:"});
    d.FontBold(false);
    d.Print({"Monat", Tab{12}, "Gruppe", Tab{22}, "DA-Stufe", Tab{32}, "OZ", Tab{47}, "Eheg.i.ö.D.",
             Tab{62}, "Überstd.", Tab{72}, "Vollzeit", Tab{82}, "Monat", Tab{92}, "Kostenstelle"});
    for (int monat = 1; monat <= 12; ++monat) {
        const Personalsatz p = personalsatzlesen(s, monat, f.jahresperson);
        const int personalart = p.merkmal[4];
        d.Print({monatskuerzel(monat, s.jahr)}, Zeilenende::bleiben);
        // gruppeeinsetzen: a blank first, then the name, if the group has one.
        d.Print({Tab{11}, " "}, Zeilenende::bleiben);
        if (const auto gruppe = gruppenname(personalart, p.merkmal[5]))
            d.Print({*gruppe}, Zeilenende::bleiben);
        d.Print({Tab{21}, Druckzahl{p.merkmal[7]}, Tab{31}, familientext(personalart, p.merkmal[8]),
                 Tab{46}, ehegattentext(p.merkmal[3]), Tab{61},
                 formatzahl(p.wert[4] / 100.0, "##0.0"), Tab{71}, faktor(p.wert[1], p.wert[0]),
                 Tab{81}, faktor(p.wert[3], p.wert[2]), Tab{91},
                 textgetrimmt(s, textnummer::ersteKostenstelle + p.merkmal[27])});
    }
}

} // namespace

void jahresuebersichtdrucken(Sitzung& s, const Form3& f, Drucker& d) {
    d.Orientation(querformat);
    d.FontName("courier new");
    d.FontSize(12);
    d.FontBold(true);
    // 1.
    d.Print({});
    d.Print({});
    briefkopf(s, d, 75);
    d.Print({});
    // 2.
    d.FontSize(14);
    d.FontBold(true);
    d.Print({Tab{8}, f.caption});
    d.FontSize(12);
    d.FontBold(false);
    d.Print({strich133});
    d.Print({});
    // 3. and 4.
    gitterdrucken(s, f, d);
    // 5. to 8.
    merkmaledrucken(s, f, d);
    // 9.
    d.Print({});
    std::string drucktext = cp1252NachUtf8(s.berichtszeile);
    zeilendrucken(d, drucktext);
    drucktext = jahressatzlesen(s, f.jahresperson).text(8);
    zeilendrucken(d, drucktext);
    d.EndDoc();
}

} // namespace lonvir
