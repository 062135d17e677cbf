// The overviews as CSV, read back by Python's csv module and compared with the grids.
#include "reports/uebersichtcsv.h"

#include "jahreshilfe.h"

#include <cstdlib>
#include <fstream>
#include <gtest/gtest.h>

namespace lonvir {
namespace {

namespace fs = std::filesystem;

const fs::path skript =
    fs::path(LONVIR_QUELLEN) / "tests" / "reports" / "skripte" / "csv_vergleich.py";

// The grid as the test's script reads it: a row per line, cells separated by tabs.
void gitterschreiben(const fs::path& datei, const std::vector<std::vector<std::string>>& zeilen) {
    std::ofstream aus(datei, std::ios::binary);
    for (const auto& zeile : zeilen) {
        for (std::size_t i = 0; i < zeile.size(); ++i)
            aus << (i ? "\t" : "") << zeile[i];
        aus << "\n";
    }
}

int vergleichen(const fs::path& ordner, const std::string& csv,
                const std::vector<std::vector<std::string>>& gitter) {
    std::ofstream(ordner / "liste.csv", std::ios::binary) << csv;
    gitterschreiben(ordner / "gitter.tsv", gitter);
    const std::string befehl = "python3 '" + skript.string() + "' '" +
                               (ordner / "liste.csv").string() + "' '" +
                               (ordner / "gitter.tsv").string() + "'";
    return std::system(befehl.c_str());
}

// Form3's rows with their labels joined as a reader of the screen would name them.
std::vector<std::vector<std::string>> jahresgitter(const Form3& f) {
    std::vector<std::vector<std::string>> zeilen;
    std::vector<std::string> kopf{"Position"};
    for (int spalte = 4; spalte <= 15; ++spalte)
        kopf.push_back(f.Grid1.zelle(0, spalte));
    kopf.push_back(f.Grid1.zelle(0, 17));
    zeilen.push_back(kopf);
    for (const Gitter* g : {&f.Grid1, &f.Grid2, &f.Grid3})
        for (int r = 1; r < g->zeilen(); ++r) {
            std::string name;
            for (int s = 0; s < 4; ++s) {
                std::string teil = g->zelle(r, s);
                teil.erase(0, teil.find_first_not_of(' '));
                if (!teil.empty())
                    name += (name.empty() ? "" : " ") + teil;
            }
            std::vector<std::string> zeile{name};
            for (int spalte = 4; spalte <= 15; ++spalte)
                zeile.push_back(g->zelle(r, spalte));
            zeile.push_back(g->zelle(r, 17));
            zeilen.push_back(zeile);
        }
    return zeilen;
}

TEST(Uebersichtcsv, TheAnnualOverviewReadByACsvReaderEqualsItsGridInBothViews) {
    test::Musterbestand m;
    Form3 f(m.s);
    f.jahresperson = 2;
    f.Form_Load();
    f.Form_Activate();
    EXPECT_EQ(vergleichen(m.t.pfad(), jahresuebersichtcsv(f).text(), jahresgitter(f)), 0);
    f.Command2_Click();
    EXPECT_EQ(vergleichen(m.t.pfad(), jahresuebersichtcsv(f).text(), jahresgitter(f)), 0);
}

TEST(Uebersichtcsv, TheTotalsReadByACsvReaderEqualTheirGrid) {
    test::Musterbestand m;
    Form2 f(m.s, {0, ""});
    f.Form_Load();
    std::vector<std::vector<std::string>> gitter;
    for (int r = 0; r < f.Grid1.zeilen(); ++r) {
        std::vector<std::string> zeile;
        for (int s = 0; s < f.Grid1.spalten(); ++s) {
            std::string zelle = f.Grid1.zelle(r, s);
            // The underscores guard the paper; the amount behind them is the cell's value.
            zelle.erase(0, zelle.find_first_not_of("_."));
            zeile.push_back(r == 0 ? std::string(f.Grid1.zelle(r, s)) : zelle);
        }
        gitter.push_back(zeile);
    }
    // The header trims the grid's headings.
    for (auto& k : gitter[0])
        k.erase(0, k.find_first_not_of(' '));
    // Nr. and name are the first two fields: the script compares from the second on.
    for (auto& zeile : gitter) {
        zeile[0] += "|" + zeile[1];
        zeile.erase(zeile.begin() + 1);
    }
    std::string csv = gesamtsummencsv(m.s, f).text();
    // The same join in the CSV, so the script sees one label column.
    std::string zusammen;
    std::size_t a = 0;
    while (a < csv.size()) {
        const std::size_t e = csv.find("\r\n", a);
        std::string zeile = csv.substr(a, e - a);
        const std::size_t erstes = zeile.find(';');
        zeile[erstes] = '|';
        zusammen += zeile + "\r\n";
        a = e + 2;
    }
    EXPECT_EQ(vergleichen(m.t.pfad(), zusammen, gitter), 0);
}

TEST(Uebersichtcsv, ListsHaveOneHeaderRowAndTheirTotals) {
    test::Musterbestand m;
    const Jahressummen j = jahressummen(m.s, {0, ""});
    const std::string liste = gehaelterlistecsv(m.s, j).text();
    EXPECT_EQ(liste.rfind("\xEF\xBB\xBFNr.;Name;Beamtenbezüge;Angestelltenverg.;Arbeiterlöhne;"
                          "Uml.Beamt.Vers.;Angest.Soz.Vers.;Arbeiter-Soz.V.;ZVK-Umlage;"
                          "Steuern d.AG;Gesamtaufwand\r\n",
                          0),
              0u);
    EXPECT_NE(liste.find("\r\n2;Schneider, Petra;0,00;50959,41;"), std::string::npos);
    const std::string monate = monatsuebersichtcsv(m.s, j).text();
    EXPECT_NE(monate.find("\r\nJanuar;"), std::string::npos);
    EXPECT_NE(monate.find("\r\nGESAMTSUMME 1997;"), std::string::npos);
}

} // namespace
} // namespace lonvir
