// The contribution statement: who is on it, the branch columns, the sums and the summary.
#include "reports/beitragsnachweis.h"

#include "nachweishilfe.h"
#include "testhilfe.h"

#include "core/laufzeitfehler.h"

#include <gtest/gtest.h>

namespace lonvir {

namespace {

using test::spalten;

// Lines of the heading before the first person: letterhead (2), two empty lines, title,
// rule, empty line, two heading lines, rule, empty line.
constexpr std::size_t ersteperson = 11;

// An employee of staff class 5 (BAT West) in fund 3: health 260,53, nursing 33,05, pension
// 394,69, unemployment 126,38, the employer the same.
Personalsatz angestellter(std::int16_t personalart = 5) {
    Personalsatz p = Personalsatz::neu(0);
    p.merkmal[4] = personalart;
    p.merkmal[37] = 3;
    p.merkmal[38] = 0;
    p.wert[37] = -26053;
    p.wert[38] = -3305;
    p.wert[39] = -39469;
    p.wert[40] = -12638;
    p.nebenwert[0] = 26053;
    p.nebenwert[1] = 3305;
    p.nebenwert[2] = 39469;
    p.nebenwert[3] = 12638;
    return p;
}

struct Nachweis : ::testing::Test {
    test::LeereUmgebung u;
    Merkdrucker d;

    void SetUp() override { textschreiben(u.s, 3628 + 3, "AOK Bayern"); }
    void drucken(int monat = 0) {
        beitragsnachweisdrucken(u.s, beitragsnachweisbilden(u.s, monat), d);
    }
    [[nodiscard]] std::string zeile(std::size_t n) const { return d.zeile(0, n); }
};

} // namespace

TEST_F(Nachweis, ZeileEinesAngestelltenMitAllenZweigen) {
    test::personsetzen(u.s, 1, "Schneider, Petra", 0, angestellter());
    drucken();
    // "260,53" ends in column 43 (end column 44): from 38; "33,05" to 70: from 66; the
    // workers' pension K prints 0,00 to 97 and 109; the employees' pension L 394,69 to 124
    // and 136; unemployment 126,38 to 151 and 163.
    EXPECT_EQ(zeile(ersteperson), spalten({{1, "Schneider, Petr"},
                                           {17, "AOK Bayern     "},
                                           {38, "260,53"},
                                           {50, "260,53"},
                                           {66, "33,05"},
                                           {78, "33,05"},
                                           {94, "0,00"},
                                           {106, "0,00"},
                                           {119, "394,69"},
                                           {131, "394,69"},
                                           {146, "126,38"},
                                           {158, "126,38"}}));
}

TEST_F(Nachweis, KopfInQuerformatMitMonatswort) {
    drucken(2);
    const Druckdokument& dok = d.dokumente.at(0);
    EXPECT_EQ(dok.ausrichtung, querformat);
    EXPECT_EQ(zeile(4), "B E I T R A G S N A C H W E I S  für den Monat   M Ä R Z");
    EXPECT_FLOAT_EQ(dok.zeilen[4].stuecke[0].groesse, 14);
    EXPECT_TRUE(dok.zeilen[4].stuecke[0].fett);
    EXPECT_EQ(zeile(5), std::string(170, '_'));
    EXPECT_EQ(zeile(7), spalten({{1, "N A M E"},
                                 {35, "G = Krankenversicherung"},
                                 {62, "P = Pflegeversicherung"},
                                 {89, "K = Arbeiter-Rentenvers."},
                                 {116, "L = Angest.-Rentenvers."},
                                 {143, "M = Arbeitsl.-Vers."}}));
    EXPECT_EQ(zeile(8), spalten({{35, "AN-Beitrag"},
                                 {47, "AG-Anteil"},
                                 {62, "AN-Beitrag"},
                                 {74, "AG-Anteil"},
                                 {89, "AN-Beitrag"},
                                 {101, "AG-Anteil"},
                                 {116, "AN-Beitrag"},
                                 {128, "AG-Anteil"},
                                 {143, "AN-Beitrag"},
                                 {155, "AG-Anteil"}}));
}

TEST_F(Nachweis, MonatAusserhalbDesJahresDrucktKeinMonatswort) {
    drucken(12);
    EXPECT_EQ(zeile(4), "B E I T R A G S N A C H W E I S  für den Monat");
}

TEST_F(Nachweis, NurBeamteGibtNullsummenUndZusammenstellung) {
    Personalsatz beamter = Personalsatz::neu(0);
    beamter.merkmal[4] = 0;
    beamter.wert[37] = -10000;
    test::personsetzen(u.s, 1, "Beamter", 0, beamter);
    drucken();
    // No person line: the rule, an empty line and the sums follow the heading.
    EXPECT_EQ(zeile(ersteperson), std::string(170, '_'));
    EXPECT_EQ(zeile(ersteperson + 2), spalten({{1, "Summe"},
                                               {40, "0,00"},
                                               {52, "0,00"},
                                               {67, "0,00"},
                                               {79, "0,00"},
                                               {94, "0,00"},
                                               {106, "0,00"},
                                               {121, "0,00"},
                                               {133, "0,00"},
                                               {148, "0,00"},
                                               {160, "0,00"}}));
    EXPECT_EQ(zeile(ersteperson + 6), spalten({{1, "Zusammenstellung:"},
                                               {31, "Arbeitnehmer-Beiträge"},
                                               {60, "Arbeitgeber-Anteile"},
                                               {90, "Quersumme"}}));
    EXPECT_EQ(zeile(ersteperson + 8),
              spalten({{1, "G = Krankenversicherung"}, {41, "0,00"}, {65, "0,00"}, {95, "0,00"}}));
    EXPECT_EQ(zeile(ersteperson + 14),
              spalten({{1, "Gesamtsumme:"}, {41, "0,00"}, {65, "0,00"}, {95, "0,00"}}));
    EXPECT_EQ(zeile(ersteperson + 17),
              "In dieser Aufstellung sind die AG-Anteile, die an die Arbeitnehmer als Zuschüsse "
              "zur Soz.Vers. ausgezahlt worden sind, nicht enthalten.");
    EXPECT_EQ(d.dokumente[0].zeilen.size(), ersteperson + 18);
}

TEST_F(Nachweis, KasseAchtundzwanzigZeigtNullImKrankenzweig) {
    Personalsatz p = angestellter();
    p.merkmal[37] = 28;
    test::personsetzen(u.s, 1, "Zuschuss", 0, p);
    const Beitragsnachweis n = beitragsnachweisbilden(u.s, 0);
    drucken();
    EXPECT_EQ(zeile(ersteperson).substr(37, 18), "  0,00        0,00");
    EXPECT_EQ(n.summen[0], 0);
    EXPECT_EQ(n.summen[1], 0);
    EXPECT_EQ(n.summen[2], 3305);
    EXPECT_EQ(n.summen[7], 39469);
}

TEST_F(Nachweis, PflegewahlAusserhalbDerListeLaesstDiePSpaltenLeer) {
    Personalsatz p = angestellter();
    p.merkmal[38] = 7;
    test::personsetzen(u.s, 1, "Ohne Pflege", 0, p);
    drucken();
    // The K amounts still end at columns 97 and 109.
    EXPECT_EQ(zeile(ersteperson), spalten({{1, "Ohne Pflege    "},
                                           {17, "AOK Bayern     "},
                                           {38, "260,53"},
                                           {50, "260,53"},
                                           {94, "0,00"},
                                           {106, "0,00"},
                                           {119, "394,69"},
                                           {131, "394,69"},
                                           {146, "126,38"},
                                           {158, "126,38"}}));
}

TEST_F(Nachweis, PflegewahlOhneBeitragZeigtNull) {
    Personalsatz p = angestellter();
    p.merkmal[38] = 4;
    test::personsetzen(u.s, 1, "Privat", 0, p);
    const Beitragsnachweis n = beitragsnachweisbilden(u.s, 0);
    EXPECT_EQ(n.summen[2], 0);
    EXPECT_EQ(n.summen[3], 0);
    drucken();
    EXPECT_EQ(zeile(ersteperson).substr(65, 17), " 0,00        0,00");
}

TEST_F(Nachweis, PersonalartAchtzehnFehltSiebzehnNicht) {
    test::personsetzen(u.s, 1, "Ohne", 0, angestellter(18));
    test::personsetzen(u.s, 2, "Siebzehn", 0, angestellter(17));
    test::personsetzen(u.s, 3, "Vier", 0, angestellter(4));
    const Beitragsnachweis n = beitragsnachweisbilden(u.s, 0);
    ASSERT_EQ(n.zeilen.size(), 1u);
    EXPECT_EQ(n.zeilen[0].person, 2);
}

TEST_F(Nachweis, ArbeiterZahlenInDieArbeiterrentenversicherung) {
    test::personsetzen(u.s, 1, "Arbeiter", 0, angestellter(8));
    const Beitragsnachweis n = beitragsnachweisbilden(u.s, 0);
    EXPECT_EQ(n.summen[4], 39469);
    EXPECT_EQ(n.summen[5], 39469);
    EXPECT_EQ(n.summen[6], 0);
    EXPECT_EQ(n.summen[7], 0);
}

TEST_F(Nachweis, GesamtsummeIstDieSummeDerZeilenAufDenPfennig) {
    Personalsatz a = angestellter();
    Personalsatz b = angestellter(8);
    b.wert[37] = -1;
    b.nebenwert[3] = 7;
    test::personsetzen(u.s, 1, "A", 0, a);
    test::personsetzen(u.s, 2, "B", 0, b);
    drucken();
    // Employees: 26053 + 1 + 3305 * 2 + 39469 * 2 + 12638 * 2 = 136 878 Pf;
    // employers: 26053 * 2 + 3305 * 2 + 39469 * 2 + 12638 + 7 = 150 299 Pf; both 287 177 Pf.
    EXPECT_EQ(zeile(ersteperson + 16),
              spalten({{1, "Gesamtsumme:"}, {37, "1.368,78"}, {61, "1.502,99"}, {91, "2.871,77"}}));
}

TEST_F(Nachweis, SummeUeber32BitIstLaufzeitfehler6) {
    Personalsatz p = angestellter();
    p.nebenwert[3] = 2'000'000'000;
    test::personsetzen(u.s, 1, "A", 0, p);
    test::personsetzen(u.s, 2, "B", 0, p);
    EXPECT_THROW((void)beitragsnachweisbilden(u.s, 0), Laufzeitfehler);
}

TEST_F(Nachweis, CsvMitSummenzeile) {
    test::personsetzen(u.s, 1, "Schneider; Petra", 0, angestellter());
    const Csvtabelle t = beitragsnachweiscsv(beitragsnachweisbilden(u.s, 0));
    ASSERT_EQ(t.zeilen.size(), 2u);
    EXPECT_EQ(t.zeilen[0][1], "Schneider; Petr");
    EXPECT_EQ(t.zeilen[0][3], "260,53");
    EXPECT_EQ(t.zeilen[0][7], "0,00");
    EXPECT_EQ(t.zeilen[1][1], "Summe");
    EXPECT_EQ(t.zeilen[1][11], "126,38");
    EXPECT_NE(t.text().find("\"Schneider; Petr\""), std::string::npos);
}

} // namespace lonvir
