// The two printed lists of the totals: the salaries per person and the months of the staff.
#include "core/druckformat.h"
#include "reports/berichtskopf.h"
#include "reports/form2.h"
#include "start/texte.h"

namespace lonvir {

namespace {

// The rule under the columns, from the first column to the end of the last one.
const std::string strichliste = unterstriche(163);

void kopf(Sitzung& s, Drucker& d) {
    d.Orientation(querformat);
    d.FontName("courier new");
    d.FontSize(12);
    d.FontBold(true);
    d.Print({});
    d.Print({});
    briefkopf(s, d, 90);
    d.Print({});
    d.Print({});
}

// The two heading lines of the nine columns, behind `erste` on the first.
void spaltenkopf(Drucker& d, const char* erste) {
    d.FontSize(8);
    d.FontBold(false);
    std::vector<Druckteil> zeile1{std::string(erste)};
    std::vector<Druckteil> zeile2;
    for (std::size_t k = 0; k < 9; ++k) {
        zeile1.insert(zeile1.end(), {Tab{drucktabs[k]}, std::string(druckkoepfe1[k])});
        zeile2.insert(zeile2.end(), {Tab{drucktabs[k]}, std::string(druckkoepfe2[k])});
    }
    d.Print(zeile1);
    d.Print(zeile2);
    d.Print({});
}

// A line: its first text, then the nine amounts of `betrag(slot)` at the column tabs.
template <typename Betrag> void betragszeile(Drucker& d, const std::string& erste, Betrag betrag) {
    std::vector<Druckteil> zeile{erste};
    for (std::size_t k = 0; k < 9; ++k)
        zeile.insert(zeile.end(),
                     {Tab{drucktabs[k]}, tausenderbild(betrag(static_cast<int>(k) + 2))});
    d.Print(zeile);
}

void gesamtsumme(const Jahressummen& j, Drucker& d) {
    d.Print({strichliste});
    d.Print({});
    d.FontBold(true);
    betragszeile(d, "GESAMTSUMME", [&](int k) { return j.gesamtsummen[k]; });
}

} // namespace

void gehaelterlistedrucken(Sitzung& s, const Jahressummen& j, Drucker& d) {
    // 1.
    kopf(s, d);
    // 2.
    d.FontSize(9.75F);
    d.FontBold(true);
    d.Print({std::string("            A U F S U M M I E R U N G    D E R   J A H R E S G E H Ä "
                         "L T E R   ") +
             (s.ist1997() ? "1 9 9 7" : "1 9 9 8")});
    d.Print({});
    d.Print({"            F Ü R   " + grossbuchstaben(j.kostenstelle)});
    d.Print({});
    d.Print({});
    // 3.
    spaltenkopf(d, "Bedienstete");
    // 4. The name is cut to the room before the first column.
    for (int p = 1; p <= j.bedienstetenzahl; ++p) {
        if (!j.gewaehlt(p))
            continue;
        betragszeile(d, links(textgetrimmt(s, 5000 + p), drucktabs[0] - 2),
                     [&](int k) { return j.wert(p, k, 13); });
    }
    // 5.
    gesamtsumme(j, d);
    d.Print({});
    d.EndDoc();
}

void monatsuebersichtdrucken(Sitzung& s, const Jahressummen& j, Drucker& d) {
    kopf(s, d);
    d.FontSize(9.75F);
    d.FontBold(true);
    // The year before the current one stands in the title of 1997: so it has always printed.
    d.Print({std::string("                 M O N A T S G E H Ä L T E R   ") +
             (s.ist1997() ? "1 9 9 6 " : "1 9 9 8 ")});
    d.Print({});
    d.Print({"                 D E R   B E A M T E N,   A N G E S T E L L T E N   U N D   A R B "
             "E I T E R"});
    d.Print({"                 F Ü R   K O S T E N S T E L L E   " + j.kostenstelle});
    d.Print({});
    d.Print({});
    spaltenkopf(d, "Monat");
    for (int m = 1; m <= 12; ++m) {
        std::string name = monatsnamen[static_cast<std::size_t>(m - 1)];
        name += std::string(14 - zeichenzahl(name), ' ');
        betragszeile(d, name, [&](int k) { return j.monatssummen[m][k]; });
        d.Print({});
    }
    gesamtsumme(j, d);
    d.EndDoc();
}

} // namespace lonvir
