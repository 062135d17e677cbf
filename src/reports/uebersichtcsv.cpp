// CSV of the annual overview and of the totals over the staff.
#include "reports/uebersichtcsv.h"

#include "core/druckformat.h"
#include "start/texte.h"

#include <functional>

namespace lonvir {

namespace {

std::string feld(const std::string& text) {
    if (text.find_first_of(";\"\r\n") == std::string::npos)
        return text;
    std::string aus = "\"";
    for (char c : text)
        aus += c == '"' ? std::string("\"\"") : std::string(1, c);
    return aus + "\"";
}

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

std::string dm(std::int32_t pfennig) {
    return formatpfennig(pfennig, "##,##0.00");
}

std::vector<std::string> kopfzeile(const char* erste, bool mitName) {
    std::vector<std::string> kopf{erste};
    if (mitName)
        kopf.emplace_back("Name");
    for (const char* k : spaltenkoepfe)
        kopf.push_back(getrimmt(k));
    return kopf;
}

std::vector<std::string> betraege(std::vector<std::string> zeile,
                                  const std::function<std::int32_t(int)>& betrag) {
    for (int k = slot::beamtenbezuege; k <= slot::gesamt; ++k)
        zeile.push_back(dm(betrag(k)));
    return zeile;
}

std::string gesamttext(const Sitzung& s) {
    return "GESAMTSUMME " + std::to_string(s.jahr);
}

} // namespace

std::string csvtext(const std::vector<std::vector<std::string>>& zeilen) {
    std::string aus = "\xEF\xBB\xBF";
    for (const auto& zeile : zeilen) {
        for (std::size_t i = 0; i < zeile.size(); ++i)
            aus += (i ? ";" : "") + feld(zeile[i]);
        aus += "\r\n";
    }
    return aus;
}

std::string jahresuebersichtcsv(const Form3& f) {
    std::vector<std::vector<std::string>> zeilen;
    std::vector<std::string> kopf{"Position"};
    for (int spalte = 4; spalte <= 15; ++spalte)
        kopf.push_back(f.Grid1.zelle(0, spalte));
    kopf.push_back(f.Grid1.zelle(0, 17));
    zeilen.push_back(std::move(kopf));
    for (const Gitter* g : {&f.Grid1, &f.Grid2, &f.Grid3}) {
        for (int r = 1; r < g->zeilen(); ++r) {
            std::vector<std::string> zeile{beschriftung(*g, r)};
            for (int spalte = 4; spalte <= 15; ++spalte)
                zeile.push_back(g->zelle(r, spalte));
            zeile.push_back(g->zelle(r, 17));
            zeilen.push_back(std::move(zeile));
        }
    }
    return csvtext(zeilen);
}

std::string gehaelterlistecsv(Sitzung& s, const Jahressummen& j) {
    std::vector<std::vector<std::string>> zeilen{kopfzeile("Nr.", true)};
    for (int p = 1; p <= j.bedienstetenzahl; ++p)
        if (j.gewaehlt(p))
            zeilen.push_back(betraege({std::to_string(p), textgetrimmt(s, 5000 + p)},
                                      [&](int k) { return j.wert(p, k, 13); }));
    zeilen.push_back(betraege({gesamttext(s), ""}, [&](int k) { return j.gesamtsummen[k]; }));
    return csvtext(zeilen);
}

std::string monatsuebersichtcsv(Sitzung& s, const Jahressummen& j) {
    std::vector<std::vector<std::string>> zeilen{kopfzeile("Monat", false)};
    for (int m = 1; m <= 12; ++m)
        zeilen.push_back(betraege({monatsnamen[static_cast<std::size_t>(m - 1)]},
                                  [&](int k) { return j.monatssummen[m][k]; }));
    zeilen.push_back(betraege({gesamttext(s)}, [&](int k) { return j.gesamtsummen[k]; }));
    return csvtext(zeilen);
}

std::string gesamtsummencsv(Sitzung& s, const Form2& f) {
    const Jahressummen& j = f.summen;
    std::vector<std::vector<std::string>> zeilen{kopfzeile("Nr.", true)};
    for (int p = 1; p <= j.bedienstetenzahl; ++p)
        if (j.gewaehlt(p))
            zeilen.push_back(betraege({std::to_string(p), textgetrimmt(s, 5000 + p)},
                                      [&](int k) { return j.wert(p, k, 13); }));
    zeilen.push_back(betraege({gesamttext(s), ""}, [&](int k) { return j.gesamtsummen[k]; }));
    for (int m = 1; m <= 12; ++m)
        zeilen.push_back(betraege({m == 1 ? "davon" : "", monatsnamen[static_cast<std::size_t>(m - 1)]},
                                  [&](int k) { return j.monatssummen[m][k]; }));
    return csvtext(zeilen);
}

} // namespace lonvir
