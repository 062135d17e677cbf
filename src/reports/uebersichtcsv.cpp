// CSV of the annual overview and of the totals over the staff.
#include "reports/uebersichtcsv.h"

#include "core/csv.h"
#include "core/druckformat.h"
#include "start/texte.h"

#include <functional>

namespace lonvir {

namespace {

// The grid row's labels in the fixed columns, joined by a blank.
std::string beschriftung(const Gitter& g, int zeile) {
    std::string name;
    for (int spalte = 0; spalte < g.festspalten; ++spalte) {
        const std::string teil = getrimmt(g.zelle(zeile, spalte));
        if (!teil.empty())
            name += (name.empty() ? "" : " ") + teil;
    }
    return name;
}

// The categories behind the rows of the three grids in the view shown.
std::vector<std::pair<const Gitter*, std::vector<int>>> gitterkategorien(const Form3& f) {
    const bool ag = f.ansichtabzuege == 0;
    return {
        {&f.Grid1,
         {kategorie::grundbezuege, kategorie::zulagen, kategorie::einmalzahlung,
          kategorie::brutto}},
        {&f.Grid2,
         ag ? std::vector<int>{kategorie::agAnteile, kategorie::umlage, kategorie::agSteuern}
            : std::vector<int>{kategorie::steuern, kategorie::kirchensteuer, kategorie::sozial}},
        {&f.Grid3, {ag ? kategorie::aufwand : kategorie::netto}},
    };
}

Csvzeile kopfzeile(const char* erste, bool mitName) {
    Csvzeile kopf{erste};
    if (mitName)
        kopf.emplace_back("Name");
    for (const char* k : spaltenkoepfe)
        kopf.push_back(getrimmt(k));
    return kopf;
}

Csvzeile betraege(Csvzeile zeile, const std::function<std::int32_t(int)>& betrag) {
    for (int k = slot::beamtenbezuege; k <= slot::gesamt; ++k)
        zeile.push_back(csvbetrag(static_cast<std::int64_t>(betrag(k))));
    return zeile;
}

std::string gesamttext(const Sitzung& s) {
    return "GESAMTSUMME " + std::to_string(s.jahr);
}

void personenzeilen(Sitzung& s, const Jahressummen& j, Csvtabelle& t) {
    for (int p = 1; p <= j.bedienstetenzahl; ++p)
        if (j.gewaehlt(p))
            t.zeilen.push_back(betraege({std::to_string(p), textgetrimmt(s, 5000 + p)},
                                        [&](int k) { return j.wert(p, k, 13); }));
}

} // namespace

Csvtabelle jahresuebersichtcsv(const Form3& f) {
    Csvtabelle t;
    t.kopf = {"Position"};
    for (int spalte = 4; spalte <= 15; ++spalte)
        t.kopf.push_back(f.Grid1.zelle(0, spalte));
    t.kopf.push_back(f.Grid1.zelle(0, 17));
    for (const auto& [gitter, kategorien] : gitterkategorien(f)) {
        for (std::size_t r = 0; r < kategorien.size(); ++r) {
            Csvzeile zeile{beschriftung(*gitter, static_cast<int>(r) + 1)};
            for (int monat = 1; monat <= 13; ++monat) {
                const Currency wert = f.jahresmatrix.wert(monat, kategorien[r]);
                zeile.push_back(csvbetrag(wert.roh() / Currency::skala));
            }
            t.zeilen.push_back(std::move(zeile));
        }
    }
    return t;
}

Csvtabelle gehaelterlistecsv(Sitzung& s, const Jahressummen& j) {
    Csvtabelle t{kopfzeile("Nr.", true), {}};
    personenzeilen(s, j, t);
    t.zeilen.push_back(betraege({gesamttext(s), ""}, [&](int k) { return j.gesamtsummen[k]; }));
    return t;
}

Csvtabelle monatsuebersichtcsv(Sitzung& s, const Jahressummen& j) {
    Csvtabelle t{kopfzeile("Monat", false), {}};
    for (int m = 1; m <= 12; ++m)
        t.zeilen.push_back(betraege({monatsnamen[static_cast<std::size_t>(m - 1)]},
                                    [&](int k) { return j.monatssummen[m][k]; }));
    t.zeilen.push_back(betraege({gesamttext(s)}, [&](int k) { return j.gesamtsummen[k]; }));
    return t;
}

Csvtabelle gesamtsummencsv(Sitzung& s, const Form2& f) {
    const Jahressummen& j = f.summen;
    Csvtabelle t{kopfzeile("Nr.", true), {}};
    personenzeilen(s, j, t);
    t.zeilen.push_back(betraege({gesamttext(s), ""}, [&](int k) { return j.gesamtsummen[k]; }));
    for (int m = 1; m <= 12; ++m)
        t.zeilen.push_back(
            betraege({m == 1 ? "davon" : "", monatsnamen[static_cast<std::size_t>(m - 1)]},
                     [&](int k) { return j.monatssummen[m][k]; }));
    return t;
}

} // namespace lonvir
