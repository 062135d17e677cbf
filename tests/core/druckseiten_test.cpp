// Page breaks of printed documents: a new page per document, and where a page is full.
#include "core/druckseiten.h"

#include <gtest/gtest.h>

namespace lonvir {
namespace {

Druckdokument dokument(int ausrichtung, int zeilen, float groesse) {
    Merkdrucker d;
    d.Orientation(ausrichtung);
    d.FontSize(groesse);
    for (int i = 0; i < zeilen; ++i)
        d.Print({Tab{10}, "Zeile " + std::to_string(i)});
    d.EndDoc();
    return d.dokumente.front();
}

TEST(Druckseiten, A4MitRaendernInPunkten) {
    // 210 mm less 25 mm, 297 mm less 24 mm.
    EXPECT_NEAR(a4bereich(hochformat).breite, 185.0 * 72 / 25.4, 1e-3);
    EXPECT_NEAR(a4bereich(hochformat).hoehe, 273.0 * 72 / 25.4, 1e-3);
    EXPECT_NEAR(a4bereich(querformat).breite, 272.0 * 72 / 25.4, 1e-3);
    EXPECT_NEAR(a4bereich(querformat).hoehe, 186.0 * 72 / 25.4, 1e-3);
}

TEST(Druckseiten, ZeilenhoeheFolgtDerGroesstenSchrift) {
    Druckzeile z;
    z.hoehe = 12;
    EXPECT_DOUBLE_EQ(zeilenhoehe(z), 12 * 1.1328125); // 13.59375 points
    Druckstueck gross;
    gross.groesse = 14;
    z.stuecke.push_back(gross);
    EXPECT_DOUBLE_EQ(zeilenhoehe(z), 14 * 1.1328125);
}

TEST(Druckseiten, EineLangeListeBrichtWoDieSeiteVollIst) {
    // 12 points give 13.59375 per line; 100 points hold 7 lines (95.15625), not 8.
    const std::vector<Druckdokument> d = {dokument(hochformat, 17, 12)};
    const std::vector<Druckseite> s = seitenumbruch(d, 100, 60);
    ASSERT_EQ(s.size(), 3u);
    EXPECT_EQ(s[0].von, 0u);
    EXPECT_EQ(s[0].bis, 7u);
    EXPECT_EQ(s[1].von, 7u);
    EXPECT_EQ(s[1].bis, 14u);
    EXPECT_EQ(s[2].von, 14u);
    EXPECT_EQ(s[2].bis, 17u);
}

TEST(Druckseiten, JedesDokumentBeginntEineSeiteInSeinerAusrichtung) {
    const std::vector<Druckdokument> d = {dokument(hochformat, 2, 12), dokument(querformat, 5, 12),
                                          Druckdokument{}};
    // Landscape holds 4 lines in 60 points (54.375).
    const std::vector<Druckseite> s = seitenumbruch(d, 100, 60);
    ASSERT_EQ(s.size(), 3u); // the empty document gives no page
    EXPECT_EQ(s[0].dokument, 0u);
    EXPECT_EQ(s[0].ausrichtung, hochformat);
    EXPECT_EQ(s[1].dokument, 1u);
    EXPECT_EQ(s[1].ausrichtung, querformat);
    EXPECT_EQ(s[1].bis, 4u);
    EXPECT_EQ(s[2].von, 4u);
    EXPECT_EQ(s[2].bis, 5u);
}

TEST(Druckseiten, EineZeileHoeherAlsDieSeiteStehtAllein) {
    const std::vector<Druckdokument> d = {dokument(hochformat, 2, 72)};
    const std::vector<Druckseite> s = seitenumbruch(d, 50, 50);
    ASSERT_EQ(s.size(), 2u);
    EXPECT_EQ(s[0].bis, 1u);
    EXPECT_EQ(s[1].von, 1u);
}

} // namespace
} // namespace lonvir
