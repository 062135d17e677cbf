// The wage-tax table on paper.
#include "reports/tabellendruck.h"

#include "core/druckformat.h"

#include <algorithm>

namespace lonvir {

namespace {

constexpr std::array<const char*, 3> spaltennamen = {"Lohnsteuer", "Soli-Zuschlag",
                                                     "Kirchensteuer"};
// The range: bounds end in columns 11 and 23; class k's group starts at 24 + 26 k with the
// three amounts ending at +9, +17 and +25.
constexpr int vonende = 11;
constexpr int bisende = 23;
int gruppe(int klasse) {
    return 24 + 26 * (klasse - 1);
}

std::array<Currency, 3> betraege(const Tabellenzeile& z) {
    return {z.lohnsteuer, z.solidaritaetszuschlag, z.kirchensteuer};
}

void bereichskopf(const Tabellenbereich& b, Drucker& d) {
    d.Orientation(querformat);
    d.FontName("courier new");
    d.FontSize(12);
    d.FontBold(true);
    d.Print({lstrtabTitelFuer(b.auswahl.recht), std::string(" - "),
             lohnzeitraumliste.at(static_cast<std::size_t>(b.auswahl.lohnzeitraum - 1))});
    d.FontBold(false);
    d.FontSize(8);
    const std::vector<std::string> texte = auswahltexte(b.auswahl);
    std::string zeile;
    for (std::size_t i = 1; i < texte.size(); ++i)
        zeile += (i > 1 ? ", " : "") + texte[i];
    d.Print({zeile});
    d.Print({});
    d.FontSize(7);
    d.FontBold(true);
    std::vector<Druckteil> klassen{Tab{1}, "Lohn"};
    std::vector<Druckteil> spalten;
    rechtsbuendig(spalten, vonende, "von DM");
    rechtsbuendig(spalten, bisende, "bis DM");
    for (int k = 1; k <= 6; ++k) {
        klassen.insert(klassen.end(),
                       {Tab{gruppe(k) + 3}, "Klasse " + std::string(klassenzeilen.at(
                                                            static_cast<std::size_t>(k - 1)))});
        rechtsbuendig(spalten, gruppe(k) + 9, "LSt");
        rechtsbuendig(spalten, gruppe(k) + 17, "SolZ");
        rechtsbuendig(spalten, gruppe(k) + 25, "KiSt");
    }
    d.Print(klassen);
    d.Print(spalten);
    d.FontBold(false);
    d.Print({std::string(static_cast<std::size_t>(gruppe(7) - 2), '_')});
}

Lohnsteuertabelle band(const Tabellenauswahl& a, std::int32_t scrollwert) {
    Lohnsteuertabelle t;
    t.auswahl = a;
    t.auswahl.scrollwert = scrollwert;
    tabellefuellen(t);
    return t;
}

} // namespace

std::int32_t scrollwertfuer(std::int16_t lohnzeitraum, std::int64_t pfennig) {
    // Inverse of the band arithmetic: lower bound v * 5400 - 5200, v * 450 + 16, v * 105 + 3
    // and v * 15.
    std::int64_t v = 0;
    switch (lohnzeitraum) {
    case 1:
        v = (pfennig + 5200) / 5400;
        break;
    case 2:
        v = pfennig < 16 ? 0 : (pfennig - 16) / 450;
        break;
    case 3:
        v = pfennig < 3 ? 0 : (pfennig - 3) / 105;
        break;
    case 4:
        v = pfennig / 15;
        break;
    default:
        break;
    }
    return static_cast<std::int32_t>(std::clamp<std::int64_t>(v, 0, lstrtabScrollMax));
}

std::vector<std::string> auswahltexte(const Tabellenauswahl& a) {
    return {lohnzeitraumliste.at(static_cast<std::size_t>(a.lohnzeitraum - 1)),
            kinderfreibetragseintrag(static_cast<int>(a.kinderfreibetraege.roh() / 5000)),
            tabellenliste.at(static_cast<std::size_t>(a.besonderetabelle)),
            altersliste.at(static_cast<std::size_t>(a.altersentlastung)),
            kirchensteuerliste[a.kirchensteuersatz == Currency::roh(800) ? 0 : 1]};
}

void tabelledrucken(const Lohnsteuertabelle& t, Drucker& d) {
    d.Orientation(hochformat);
    d.FontName("courier new");
    d.FontSize(12);
    d.Print({});
    d.Print({});
    d.FontSize(14);
    d.FontBold(true);
    d.Print({Tab{10}, lstrtabTitelFuer(t.auswahl.recht)});
    d.FontBold(false);
    d.FontSize(12);
    d.Print({});
    for (const std::string& text : auswahltexte(t.auswahl))
        d.Print({Tab{10}, text});
    d.Print({});
    d.Print({Tab{10}, "von DM " + tabellenbetrag(t.band.unten) + "   bis DM " +
                          tabellenbetrag(t.band.oben)});
    d.Print({});
    d.FontBold(true);
    std::vector<Druckteil> kopf{Tab{10}, tabellenkopf[0]};
    for (std::size_t i = 0; i < spaltennamen.size(); ++i)
        rechtsbuendig(kopf, 35 + 15 * static_cast<int>(i), spaltennamen[i]);
    d.Print(kopf);
    d.FontBold(false);
    d.Print({Tab{10}, std::string(55, '_')});
    for (int klasse = 1; klasse <= 6; ++klasse) {
        std::vector<Druckteil> z{Tab{12}, klassenzeilen.at(static_cast<std::size_t>(klasse - 1))};
        const auto b = betraege(t.zeilen[klasse]);
        for (std::size_t i = 0; i < b.size(); ++i)
            rechtsbuendig(z, 35 + 15 * static_cast<int>(i), tabellenbetrag(b[i]));
        d.Print(z);
    }
    d.Print({Tab{10}, std::string(55, '_')});
    d.EndDoc();
}

std::string bereichpruefen(const Tabellenbereich& b) {
    if (b.von < 0 || b.bis > lstrtabScrollMax || b.von > lstrtabScrollMax || b.bis < 0)
        return "Die Tabelle reicht von Stufe 0 bis Stufe " + std::to_string(lstrtabScrollMax) + ".";
    if (b.bis < b.von)
        return "Der Betrag \"bis\" liegt vor dem Betrag \"von\".";
    return {};
}

void tabellenbereichdrucken(const Tabellenbereich& b, Drucker& d) {
    bereichskopf(b, d);
    for (std::int32_t v = b.von; v <= b.bis; ++v) {
        const Lohnsteuertabelle t = band(b.auswahl, v);
        std::vector<Druckteil> z;
        rechtsbuendig(z, vonende, tabellenbetrag(t.band.unten));
        rechtsbuendig(z, bisende, tabellenbetrag(t.band.oben));
        for (int k = 1; k <= 6; ++k) {
            const auto werte = betraege(t.zeilen[k]);
            rechtsbuendig(z, gruppe(k) + 9, tabellenbetrag(werte[0]));
            rechtsbuendig(z, gruppe(k) + 17, tabellenbetrag(werte[1]));
            rechtsbuendig(z, gruppe(k) + 25, tabellenbetrag(werte[2]));
        }
        d.Print(z);
    }
    d.EndDoc();
}

Csvtabelle tabellenbereichcsv(const Tabellenbereich& b) {
    Csvtabelle c;
    c.kopf = {"von DM", "bis DM"};
    for (const char* klasse : klassenzeilen)
        for (const char* name : {"LSt ", "SolZ ", "KiSt "})
            c.kopf.push_back(std::string(name) + klasse);
    for (std::int32_t v = b.von; v <= b.bis; ++v) {
        const Lohnsteuertabelle t = band(b.auswahl, v);
        Csvzeile z{csvbetrag(std::int64_t{t.band.unten.gerundetInt32()}),
                   csvbetrag(std::int64_t{t.band.oben.gerundetInt32()})};
        for (int k = 1; k <= 6; ++k)
            for (Currency betrag : betraege(t.zeilen[k]))
                z.push_back(csvbetrag(std::int64_t{betrag.gerundetInt32()}));
        c.zeilen.push_back(std::move(z));
    }
    return c;
}

} // namespace lonvir
