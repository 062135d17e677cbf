// The wage-tax table on paper: the visible band, a range of bands, its CSV and the bounds.
#include "reports/tabellendruck.h"

#include "core/textdrucker.h"

#include <gtest/gtest.h>

namespace lonvir {

namespace {
Tabellenauswahl monat() {
    Tabellenauswahl a;
    a.lohnzeitraum = 2;
    return a;
}
} // namespace

TEST(Tabellendruck, ScrollwertDesBandesEinesBetrags) {
    // Month: 4.000,00 DM lies in 3.996,16 .. 4.000,65 (v 888); 3.996,15 in v 887.
    EXPECT_EQ(scrollwertfuer(2, 400000), 888);
    EXPECT_EQ(scrollwertfuer(2, 399616), 888);
    EXPECT_EQ(scrollwertfuer(2, 399615), 887);
    // Year: 2,00 DM is the first line of v 1; below it v 0.
    EXPECT_EQ(scrollwertfuer(1, 200), 1);
    EXPECT_EQ(scrollwertfuer(1, 199), 0);
    EXPECT_EQ(scrollwertfuer(3, 1053), 10);
    EXPECT_EQ(scrollwertfuer(4, 164), 10);
    EXPECT_EQ(scrollwertfuer(2, -5), 0);
    EXPECT_EQ(scrollwertfuer(2, 100'000'000), lstrtabScrollMax);
}

TEST(Tabellendruck, SichtbaresBandMitSechsKlassen) {
    Lohnsteuertabelle t;
    t.auswahl = monat();
    t.auswahl.scrollwert = 888;
    tabellefuellen(t);
    Textdrucker d;
    tabelledrucken(t, d);
    // Class I: 710,25 / 53,26 / 56,82 ending in columns 34, 49, 64 (end columns 35, 50, 65).
    const std::string klasse1 = std::string(11, ' ') + "I" + std::string(16, ' ') + "710,25" +
                                std::string(10, ' ') + "53,26" + std::string(10, ' ') + "56,82";
    const std::string kopf = std::string(9, ' ') + "Klasse" + std::string(9, ' ') + "Lohnsteuer" +
                             "  Soli-Zuschlag  Kirchensteuer";
    EXPECT_NE(d.inhalt.find("         von DM 3.996,16   bis DM 4.000,65\n"), std::string::npos)
        << d.inhalt;
    EXPECT_NE(d.inhalt.find(klasse1 + "\n"), std::string::npos) << d.inhalt;
    EXPECT_NE(d.inhalt.find(kopf + "\n"), std::string::npos) << d.inhalt;
}

TEST(Tabellendruck, BereichEineZeileJeBand) {
    Tabellenbereich b{monat(), 888, 890};
    Merkdrucker d;
    tabellenbereichdrucken(b, d);
    const Druckdokument& dok = d.dokumente.at(0);
    EXPECT_EQ(dok.ausrichtung, querformat);
    // Title, selections, empty line, two heading lines, rule, then three bands.
    ASSERT_EQ(dok.zeilen.size(), 9u);
    EXPECT_EQ(d.zeile(0, 0), "Lohnsteuer-Tabelle 1997 - für Monatsgehälter");
    const std::string erste = d.zeile(0, 6);
    EXPECT_EQ(erste.substr(0, 22), "  3.996,16    4.000,65");
    // Class I's wage tax ends in column 32 (group from 24, end column 33).
    EXPECT_EQ(erste.substr(26, 6), "710,25");
    EXPECT_EQ(d.zeile(0, 8).substr(0, 22), "  4.005,16    4.009,65");
}

TEST(Tabellendruck, BereichAlsCsv) {
    const Csvtabelle c = tabellenbereichcsv({monat(), 888, 889});
    ASSERT_EQ(c.kopf.size(), 20u);
    EXPECT_EQ(c.kopf[2], "LSt I");
    EXPECT_EQ(c.kopf[19], "KiSt VI");
    ASSERT_EQ(c.zeilen.size(), 2u);
    EXPECT_EQ(c.zeilen[0][0], "3996,16");
    EXPECT_EQ(c.zeilen[0][2], "710,25");
    EXPECT_EQ(c.zeilen[0][3], "53,26");
    EXPECT_EQ(c.zeilen[0][4], "56,82");
}

TEST(Tabellendruck, BereichsgrenzenWerdenGeprueft) {
    EXPECT_EQ(bereichpruefen({monat(), 0, lstrtabScrollMax}), "");
    EXPECT_EQ(bereichpruefen({monat(), 5, 4}), "Der Betrag \"bis\" liegt vor dem Betrag \"von\".");
    EXPECT_EQ(bereichpruefen({monat(), 0, lstrtabScrollMax + 1}),
              "Die Tabelle reicht von Stufe 0 bis Stufe 3900.");
}

} // namespace lonvir
