// The deduction annex on the recording printer: the sheets side by side, the blanked fillers,
// the civil servant's annex and the uncut heading of the one-off pay.
#include "reports/abzuegedrucken.h"

#include "core/textdrucker.h"
#include "nachweishilfe.h"
#include "panels/arbeitsblaetter.h"
#include "testhilfe.h"

#include <gtest/gtest.h>

namespace lonvir {
namespace {

using test::spalten;

// Sheets whose every cell names its column and row, so that each cut and blank shows.
Druckspalten probeblaetter(bool sozialversicherung) {
    Druckspalten d;
    for (int s = 0; s < (sozialversicherung ? 6 : 2); ++s)
        for (int j = 0; j <= 28; ++j)
            d(s, j) = s % 2 == 0 ? "Spalte " + std::to_string(s) + " Zeile " + std::to_string(j) +
                                       " mit einem langen Text dahinter"
                                 : std::to_string(j) + ",00+";
    return d;
}

struct Anlage : ::testing::Test {
    test::Umgebung u;
    Schirmtexte b;
    std::vector<int> aufrufe; // the argument of each call of the sheets, 1 with insurance
    std::vector<int> druckmodi;

    Anlage() {
        textschreiben(u.s, 5001, "Muster, Max");
        u.s.aktuelleperson = 1;
        b.z[20] = "März 1997";
        b.position[15] = 6;
    }

    Druckdokument drucken() {
        Merkdrucker d;
        abzuegedrucken(
            u.s, b,
            [this](bool sv) {
                aufrufe.push_back(sv ? 1 : 0);
                druckmodi.push_back(druckmodus());
                return probeblaetter(sv);
            },
            d);
        EXPECT_EQ(d.dokumente.size(), 1u);
        return d.dokumente.at(0);
    }
};

std::string zeile(const Druckdokument& d, std::size_t i) {
    return lonvir::textzeile(d.zeilen.at(i));
}

TEST_F(Anlage, KopfQuerformatUndTitel) {
    u.s.merkmal[4] = 5;
    const Druckdokument d = drucken();
    EXPECT_EQ(d.ausrichtung, querformat);
    EXPECT_EQ(druckmodi, std::vector<int>{41});
    EXPECT_EQ(druckmodus(), 0);
    EXPECT_EQ(zeile(d, 0), "");
    EXPECT_EQ(zeile(d, 1), "");
    EXPECT_EQ(zeile(d, 2), "A N L A G E  zu :  MÄRZ 1997 für Muster, Max");
    EXPECT_EQ(d.zeilen[2].stuecke[0].groesse, 14.0F);
    EXPECT_TRUE(d.zeilen[2].stuecke[0].fett);
    EXPECT_EQ(zeile(d, 3), "");
    // 4 + 2 J: row J; 5 + 2 J: the empty line after it. 28 rows: 60 lines.
    EXPECT_EQ(d.zeilen.size(), 60u);
    EXPECT_EQ(d.zeilen[4].stuecke[0].groesse, 8.25F);
    EXPECT_TRUE(d.zeilen[4].stuecke[0].fett);
    EXPECT_FALSE(d.zeilen[6].stuecke[0].fett);
    EXPECT_EQ(zeile(d, 5), "");
}

TEST_F(Anlage, AngestellteAlleDreiBlaetterMitGeleertenFuellern) {
    u.s.merkmal[4] = 5;
    const Druckdokument d = drucken();
    EXPECT_EQ(aufrufe, std::vector<int>{1});
    // Row 0: column 0 cut to 19, its value and that of column 5 blank, the two headings.
    EXPECT_EQ(zeile(d, 4), spalten({{1, "Spalte 0 Zeile 0 mi"},
                                    {54, "S O Z I A L V E R S I C H E R U N G"},
                                    {108, "Z U S A T Z V E R S O R G U N G"}}));
    // Row 1: labels cut to 34, values ending in columns 45, 99 and 153.
    EXPECT_EQ(zeile(d, 6), spalten({{1, "Spalte 0 Zeile 1 mit einem langen "},
                                    {41, "1,00+"},
                                    {54, "Spalte 2 Zeile 1 mit einem langen "},
                                    {95, "1,00+"},
                                    {108, "Spalte 4 Zeile 1 mit einem langen "},
                                    {149, "1,00+"}}));
    // Row 9: the values of columns 3 and 5 are fillers.
    EXPECT_EQ(zeile(d, 4 + 2 * 9), spalten({{1, "Spalte 0 Zeile 9 mit einem langen "},
                                            {41, "9,00+"},
                                            {54, "Spalte 2 Zeile 9 mit einem langen "},
                                            {108, "Spalte 4 Zeile 9 mit einem langen"}}));
    // Row 13: the heading of the one-off pay in full, its value blank; columns 4 and 5 blank.
    EXPECT_EQ(zeile(d, 4 + 2 * 13), spalten({{1, "Lohnsteuerberechnung aus \"Sonst. Bezug\""},
                                             {54, "Spalte 2 Zeile 13 mit einem langen"},
                                             {94, "13,00+"}}));
    // Row 27: column 2 and the values of 3 and 5 blank, the note of column 4 in full.
    EXPECT_EQ(zeile(d, 4 + 2 * 27), spalten({{1, "Spalte 0 Zeile 27 mit einem langen"},
                                             {40, "27,00+"},
                                             {108, "    werden hier nicht berücksichtigt."}}));
}

TEST_F(Anlage, BeamteNurDasLohnsteuerblattUndZweimalEntfaellt) {
    u.s.merkmal[4] = 0;
    const Druckdokument d = drucken();
    EXPECT_EQ(aufrufe, std::vector<int>{0});
    EXPECT_EQ(zeile(d, 4), spalten({{1, "Spalte 0 Zeile 0 mi"},
                                    {54, "S O Z I A L V E R S I C H E R U N G"},
                                    {108, "Z U S A T Z V E R S O R G U N G"}}));
    EXPECT_EQ(zeile(d, 6), spalten({{1, "Spalte 0 Zeile 1 mit einem langen "},
                                    {41, "1,00+"},
                                    {54, "Entfällt bei Beamten."},
                                    {108, "Entfällt bei Beamten."}}));
    for (int j = 2; j <= 27; ++j) {
        const std::string text = zeile(d, 4 + 2 * static_cast<std::size_t>(j));
        EXPECT_LE(text.size(), 53u) << j << ": " << text; // nothing right of the first block
    }
}

TEST_F(Anlage, DieAblehnungFuerDasJahrSiehtAufZeile15) {
    b.position[20] = 12; // the year view: row 15 decides, and it does not refuse
    u.s.merkmal[4] = 5;
    drucken();
    EXPECT_TRUE(u.dialoge.gezeigt().empty());
    b.position[15] = 12; // a position row 15's list of seven never reaches
    Merkdrucker d;
    abzuegedrucken(u.s, b, probeblaetter, d);
    EXPECT_TRUE(d.dokumente.empty());
    ASSERT_EQ(u.dialoge.gezeigt().size(), 1u);
    EXPECT_EQ(u.dialoge.gezeigt()[0].titel, "Jahr");
    EXPECT_EQ(u.dialoge.gezeigt()[0].knoepfe, Knoepfe::okAbbrechen);
}

TEST_F(Anlage, DieBlaetterDesTablettsNebeneinander) {
    // A month of a BAT employee with nothing computed: the captions of the three pages.
    u.s.merkmal[4] = 5;
    const Druckspalten d = arbeitsblaetterkopieren(u.s, true);
    EXPECT_EQ(d(2, 0), "S O Z I A L V E R S I C H E R U N G");
    EXPECT_EQ(d(4, 0), "Z U S A T Z V E R S O R G U N G");
    EXPECT_EQ(d(1, 1), "0,00+");
    // Rows 26 and 27 the pension page leaves to what the insurance page put there.
    EXPECT_EQ(d(4, 26), d(2, 26));
    EXPECT_EQ(d(5, 27), d(3, 27));
    const Druckspalten beamte = arbeitsblaetterkopieren(u.s, false);
    EXPECT_TRUE(beamte(2, 0).empty());
    EXPECT_EQ(beamte(0, 5), d(0, 5));
}

} // namespace
} // namespace lonvir
