// Page 66: the administrative cost example and the way to the totals of the staff.
#include "panels/seiten.h"
#include "start/texte.h"
#include "testhilfe.h"

#include <gtest/gtest.h>

namespace lonvir {
namespace {

struct Seite66 {
    Seite66() {
        t.seiteanmelden(66, vkeseite);
        u.s.Tablettseite = 66;
        t.tablettoeffnen();
    }
    test::Umgebung u;
    Form1lage lage{0, 0, 12000, 8000, 3600, 8000, true, 0, 0, 0};
    Tablett t{u.s, lage};
};

TEST(Vkeseite, TheExampleStandsAsFixedTexts) {
    Seite66 s;
    EXPECT_TRUE(s.t.sichtbar);
    EXPECT_EQ(s.t.zeile[0].text, "1997 Verwaltungskostenerstattung ");
    EXPECT_TRUE(s.t.zeile[0].fett);
    EXPECT_EQ(s.t.zeile[2].text, "Pers.Kostenpauschale");
    EXPECT_EQ(s.t.kasten[2].text, "    75.420 DM");
    EXPECT_EQ(s.t.kasten[3].text, "    10.000 DM");
    EXPECT_EQ(s.t.kasten[4].text, "    12.000 DM");
    // 75 420 + 10 000 + 12 000 = 97 420; a quarter 24 355, the rest 73 065.
    EXPECT_EQ(s.t.kasten[5].text, "    97.420 DM");
    EXPECT_EQ(s.t.kasten[8].text, " 24.355 DM");
    EXPECT_EQ(s.t.kasten[9].text, "        73.065 DM");
    EXPECT_EQ(s.t.Command1.text, "Erläuterung");
    EXPECT_EQ(s.t.Command2.text, "Abbrechen");
    EXPECT_EQ(s.t.Command3.text, "Sortieren nach Kostenstellen");
    EXPECT_EQ(s.t.Command4.text, "Gesamtauswertungen auswählen");
    EXPECT_FALSE(s.t.Combo[0].sichtbar);
}

TEST(Vkeseite, AllStaffLeadsToTheTotalsAtPositionZero) {
    Seite66 s;
    s.t.Command4_Click();
    EXPECT_FALSE(s.t.sichtbar);
    EXPECT_EQ(s.t.Combo[0].position, 0);
    EXPECT_EQ(s.t.formwunsch, std::optional<std::string>("Form2"));
}

TEST(Vkeseite, SortedByCostCentreListsTheCostCentresAndLeadsToTheChosenOne) {
    Seite66 s;
    textschreiben(s.u.s, 4800, "alle Kostenstellen");
    textschreiben(s.u.s, 4801, "Bauamt");
    textschreiben(s.u.s, 4802, "Schulamt");
    s.t.Command3_Click();
    ASSERT_TRUE(s.t.Combo[0].sichtbar);
    EXPECT_EQ(s.t.Combo[0].liste,
              (std::vector<std::string>{"alle Kostenstellen", "Bauamt", "Schulamt"}));
    EXPECT_EQ(s.t.Combo[0].position, 0);
    EXPECT_FALSE(s.t.formwunsch.has_value());
    s.t.Combo[0].position = 2;
    s.t.combo_Click(0);
    EXPECT_FALSE(s.t.sichtbar);
    EXPECT_EQ(s.t.formwunsch, std::optional<std::string>("Form2"));
    EXPECT_EQ(s.t.Combo[0].position, 2);
}

TEST(Vkeseite, TheExplanationComesFromTheTextTable) {
    Seite66 s;
    textschreiben(s.u.s, 4770, "Die Erstattung wird auf die Kosten-");
    textschreiben(s.u.s, 4771, "stellen verteilt.");
    s.t.Command1_Click();
    ASSERT_EQ(s.u.dialoge.gezeigt().size(), 1u);
    EXPECT_EQ(s.u.dialoge.gezeigt()[0].titel, "Erläuterung");
    EXPECT_EQ(s.u.dialoge.gezeigt()[0].text, "Die Erstattung wird auf die Kostenstellen verteilt.");
}

TEST(Vkeseite, AbbrechenClosesThePage) {
    Seite66 s;
    s.t.command2_Click();
    EXPECT_FALSE(s.t.sichtbar);
    EXPECT_FALSE(s.t.formwunsch.has_value());
}

} // namespace
} // namespace lonvir
