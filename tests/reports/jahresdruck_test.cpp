// The annual overview on paper: fonts, the turned grids, the columns and the year's sums.
#include "reports/form3.h"

#include "jahreshilfe.h"
#include "start/jahressaetze.h"

#include <gtest/gtest.h>

namespace lonvir {
namespace {

using test::monatschreiben;

struct Gedruckt {
    Gedruckt() {
        for (int m : {1, 2})
            monatschreiben(u.s, 3, m, [](Personalsatz& p) {
                p.merkmal[4] = 5;
                p.merkmal[5] = 11;
                p.merkmal[8] = 3;
                p.nebenwert[7] = 250000;
                p.wert[22] = 250000;
                p.wert[24] = 12345; // non-cash benefit
                p.wert[26] = 2000;
                p.wert[1] = 1925; // half of 38,5 hours
                p.wert[4] = 250;  // 2,5 overtime hours
            });
        Jahressatz j;
        j.setzen(8, "Bemerkung zum Jahr");
        jahressatzschreiben(u.s, 3, j);
        f.jahresperson = 3;
        f.Form_Load();
        f.Form_Activate();
        f.Command3_Click(d);
    }
    [[nodiscard]] const Druckzeile& zeile(std::size_t i) const {
        return d.dokumente[0].zeilen.at(i);
    }
    // The first line that begins with `anfang` after the blanks.
    [[nodiscard]] std::size_t suchen(const std::string& anfang) const {
        for (std::size_t i = 0; i < d.dokumente[0].zeilen.size(); ++i) {
            const std::string t = d.zeile(0, i);
            if (t.find_first_not_of(' ') != std::string::npos &&
                t.substr(t.find_first_not_of(' ')).rfind(anfang, 0) == 0)
                return i;
        }
        return std::string::npos;
    }
    test::Umgebung u;
    Form3 f{u.s};
    Merkdrucker d;
};

TEST(Jahresdruck, LandscapeCourierWithTheCaptionAtFourteenPoints) {
    Gedruckt g;
    ASSERT_EQ(g.d.dokumente.size(), 1u);
    EXPECT_EQ(g.d.dokumente[0].ausrichtung, querformat);
    const Druckzeile& titel = g.zeile(5);
    ASSERT_EQ(titel.stuecke.size(), 1u);
    EXPECT_EQ(titel.stuecke[0].text, g.f.caption);
    EXPECT_EQ(titel.stuecke[0].spalte, 8);
    EXPECT_EQ(titel.stuecke[0].groesse, 14.0F);
    EXPECT_TRUE(titel.stuecke[0].fett);
    EXPECT_EQ(g.d.zeile(0, 6), std::string(133, '_'));
}

TEST(Jahresdruck, AMonthLineEndsItsAmountsInTheirColumns) {
    Gedruckt g;
    const std::size_t jan = g.suchen("Jan ");
    ASSERT_NE(jan, std::string::npos);
    const std::string t = g.d.zeile(0, jan);
    // "2.500,00" ends in column 19 (end column 20), the "|" stand in 8, 56 and 92.
    EXPECT_EQ(t.substr(11, 8), "2.500,00");
    EXPECT_EQ(t[7], '|');
    EXPECT_EQ(t[55], '|');
    EXPECT_EQ(t[91], '|');
    EXPECT_EQ(t.substr(120 - 7, 7), "123,45+");
    EXPECT_EQ(t.substr(133 - 6, 6), "20,00+");
    EXPECT_TRUE(g.zeile(jan).stuecke[0].fett);
    EXPECT_FALSE(g.zeile(jan).stuecke[1].fett);
}

TEST(Jahresdruck, TheYearLineSumsTheNonCashBenefitsOfTheMonths) {
    Gedruckt g;
    const std::size_t jahr = g.suchen("1997 ");
    ASSERT_NE(jahr, std::string::npos);
    const std::string t = g.d.zeile(0, jahr);
    EXPECT_EQ(t.substr(11, 8), "5.000,00");
    EXPECT_EQ(t.substr(120 - 7, 7), "246,90+");
    EXPECT_EQ(t.substr(133 - 6, 6), "40,00+");
}

TEST(Jahresdruck, TheSettingsOfEachMonthAndTheRemark) {
    Gedruckt g;
    const std::size_t kopf = g.suchen("Eingestellte Merkmale:");
    ASSERT_NE(kopf, std::string::npos);
    EXPECT_TRUE(g.zeile(kopf).stuecke[0].fett);
    const std::string jan = g.d.zeile(0, kopf + 2);
    EXPECT_EQ(jan.substr(0, 3), "Jan");
    EXPECT_EQ(jan.substr(10, 7), " BAT Vc");
    EXPECT_EQ(jan.substr(30, 8), "vh, 2 Ki");
    EXPECT_EQ(jan.substr(45, 4), "nein");
    EXPECT_EQ(jan.substr(60, 3), "2,5");
    EXPECT_EQ(jan.substr(70, 7), "0,50000");
    EXPECT_EQ(jan.substr(80, 7), "1,00000");
    const std::string feb = g.d.zeile(0, kopf + 3);
    EXPECT_EQ(feb.substr(0, 3), "Feb");
    // March holds a new record: no group name, but "A 1" of staff class 0, group 0.
    EXPECT_EQ(g.d.zeile(0, kopf + 4).substr(10, 4), " A 1");
    EXPECT_NE(g.suchen("Bemerkung zum Jahr"), std::string::npos);
}

} // namespace
} // namespace lonvir
