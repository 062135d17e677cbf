// The annual overview form: views, captions, grids, the scroll ring and the jump to a month.
#include "reports/form3.h"

#include "jahreshilfe.h"
#include "start/texte.h"
#include "testhilfe.h"

#include <gtest/gtest.h>

namespace lonvir {
namespace {

using test::monatschreiben;

void beamter(Personalsatz& p) {
    p.merkmal[4] = 0;
    p.nebenwert[7] = 350000;
    p.wert[22] = 350000;
    p.wert[31] = 31500;
    p.wert[33] = -40000;
    p.wert[35] = -3000;
    p.wert[36] = -3600;
}

struct Offen {
    Offen() {
        textschreiben(u.s, 5002, "Schmidt, Anna");
        u.s.anzahlnamen = 20;
        f.jahresperson = 2;
        f.Form_Load();
        f.Form_Activate();
    }
    test::Umgebung u;
    Form3 f{u.s};
};

TEST(Form3, OpensInTheEmployerView) {
    Offen o;
    EXPECT_EQ(o.f.ansichtabzuege, 0);
    EXPECT_EQ(o.f.caption, "Schmidt, Anna    - Monatsgehälter 1997 und Arbeitgeberaufwand");
    EXPECT_EQ(o.f.Command2, "Abzüge aufrufen");
    EXPECT_EQ(o.f.Grid2.hintergrund, 11);
    EXPECT_EQ(o.f.Grid3.hintergrund, 10);
    EXPECT_EQ(o.f.Grid3.zelle(1, 0), "Bruttogeh.");
    EXPECT_EQ(o.f.Grid2.zelle(1, 0), "AG-Anteile");
    EXPECT_EQ(o.f.HScroll1.maximum, 21);
    EXPECT_EQ(o.f.HScroll1.wert, 2);
}

TEST(Form3, TheButtonSwitchesToDeductionsAndNet) {
    Offen o;
    o.f.Command2_Click();
    EXPECT_EQ(o.f.ansichtabzuege, 1);
    EXPECT_EQ(o.f.caption, "Schmidt, Anna    - Monatsgehälter 1997 brutto und netto");
    EXPECT_EQ(o.f.Command2, "AG-Aufwendungen aufrufen");
    EXPECT_EQ(o.f.Grid2.hintergrund, 15);
    EXPECT_EQ(o.f.Grid2.vordergrund, 12);
    EXPECT_EQ(o.f.Grid3.hintergrund, 15);
    EXPECT_EQ(o.f.Grid2.zelle(1, 0), "Lohnsteuer");
    EXPECT_EQ(o.f.Grid2.zelle(2, 0), "  Ki.Steuer");
    EXPECT_EQ(o.f.Grid2.zelle(3, 3), "Arb.losenv.");
    EXPECT_EQ(o.f.Grid3.zelle(1, 0), "N E T T O -");
    EXPECT_EQ(o.f.Grid3.zelle(1, 1), "G E H A L T");
    EXPECT_EQ(o.f.Grid3.zelle(1, 2), "");
}

TEST(Form3, TheLevyRowNamesThePensionFundOfACivilServantInJanuary) {
    test::Umgebung u;
    monatschreiben(u.s, 1, 1, beamter);
    monatschreiben(u.s, 2, 1, [](Personalsatz& p) { p.merkmal[4] = 5; });
    Form3 f(u.s);
    f.jahresperson = 1;
    f.Form_Load();
    f.Form_Activate();
    EXPECT_EQ(f.Grid2.zelle(2, 0), "Umlage");
    EXPECT_EQ(f.Grid2.zelle(2, 3), "versorg.");
    // An employee: the ZVK.
    f.HScroll1_Change(2);
    EXPECT_EQ(f.Grid2.zelle(2, 0), "ZVK-");
    EXPECT_EQ(f.Grid2.zelle(2, 1), "Umlage");
    EXPECT_EQ(f.Grid2.zelle(2, 2), "");
}

TEST(Form3, HeadingsNameTheMonthsAndTheYear) {
    Offen o;
    for (const Gitter* g : {&o.f.Grid1, &o.f.Grid2, &o.f.Grid3}) {
        EXPECT_EQ(g->zelle(0, 4), "Jan");
        EXPECT_EQ(g->zelle(0, 6), "März");
        EXPECT_EQ(g->zelle(0, 12), "Sept");
        EXPECT_EQ(g->zelle(0, 15), "Dez");
        EXPECT_EQ(g->zelle(0, 16), "");
        EXPECT_EQ(g->zelle(0, 17), "1997");
    }
    EXPECT_EQ(o.f.Grid1.hintergrund, 14);
    EXPECT_EQ(o.f.Grid1.zelle(4, 0), "BRUTTO-");
}

TEST(Form3, CellsShowDmWithTheFormatsOfTheirRows) {
    test::Umgebung u;
    monatschreiben(u.s, 1, 3, beamter);
    Form3 f(u.s);
    f.jahresperson = 1;
    f.Form_Load();
    f.Form_Activate();
    // March is column 6; the year column 17; column 16 stays empty.
    EXPECT_EQ(f.Grid1.zelle(1, 6), "3.500,00");
    EXPECT_EQ(f.Grid1.zelle(4, 6), "3.500,00");
    EXPECT_EQ(f.Grid2.zelle(2, 6), "315,00");
    // Employer's taxes borne: none stored here; cost 3.500 + 315.
    EXPECT_EQ(f.Grid3.zelle(1, 6), "3.815,00");
    EXPECT_EQ(f.Grid1.zelle(1, 5), "0,00");
    EXPECT_EQ(f.Grid1.zelle(1, 16), "");
    EXPECT_EQ(f.Grid1.zelle(1, 17), "3.500,00");
    // The deductions keep their sign: 400 + 30 wage tax and surcharge, 36 church tax; net
    // 3.500 - 466 = 3.034,00.
    f.Command2_Click();
    EXPECT_EQ(f.Grid2.zelle(1, 6), "-430,00");
    EXPECT_EQ(f.Grid2.zelle(2, 6), "-36,00");
    EXPECT_EQ(f.Grid3.zelle(1, 6), "3.034,00");
    EXPECT_EQ(f.Grid3.zelle(1, 17), "3.034,00");
}

TEST(Form3, TheScrollBarJoinsTheFirstAndTheLastPersonInARing) {
    Offen o;
    o.f.HScroll1_Change(0);
    EXPECT_EQ(o.f.jahresperson, 20);
    EXPECT_EQ(o.f.HScroll1.wert, 20);
    o.f.HScroll1_Change(21);
    EXPECT_EQ(o.f.jahresperson, 1);
    o.f.HScroll1_Change(7);
    EXPECT_EQ(o.f.jahresperson, 7);
    EXPECT_EQ(o.f.caption.rfind("7. Name    - Monatsgehälter 1997", 0), 0u);
}

TEST(Form3, AClickOnJanuaryDoesNothing) {
    Offen o;
    o.u.s.merkmal[20] = 3;
    o.u.s.aktuelleperson = 5;
    EXPECT_FALSE(o.f.Grid_Click(4));
    EXPECT_FALSE(o.f.Grid_Click(2));
    EXPECT_FALSE(o.f.Grid_Click(17));
    EXPECT_EQ(o.u.s.merkmal[20], 3);
    EXPECT_EQ(o.u.s.aktuelleperson, 5);
    EXPECT_EQ(o.f.monatswechsel, 0);
    EXPECT_TRUE(o.f.sichtbar);
}

TEST(Form3, AClickOnFebruaryGoesToFebruaryOfTheOverviewsPerson) {
    Offen o;
    o.u.s.aktuelleperson = 5;
    EXPECT_TRUE(o.f.Grid_Click(5));
    EXPECT_EQ(o.u.s.merkmal[20], 1);
    EXPECT_EQ(o.u.s.aktuelleperson, 2);
    EXPECT_EQ(o.u.s.merkmal[0], 1);
    EXPECT_EQ(o.f.monatswechsel, 1);
    EXPECT_FALSE(o.f.sichtbar);
}

TEST(Form3, DecemberAndTheEmptyColumnBehindItBothGoToDecember) {
    Offen o;
    EXPECT_TRUE(o.f.Grid_Click(15));
    EXPECT_EQ(o.u.s.merkmal[20], 11);
    o.u.s.merkmal[20] = 0;
    EXPECT_TRUE(o.f.Grid_Click(16));
    EXPECT_EQ(o.u.s.merkmal[20], 11);
}

TEST(Form3, ClosingStoresThePlaceOfTheForm) {
    Offen o;
    o.f.Command1_Click(300, 450);
    EXPECT_FALSE(o.f.sichtbar);
    EXPECT_EQ(o.u.s.dim.form3top, Currency::ganz(300));
    EXPECT_EQ(o.u.s.dim.form3left, Currency::ganz(450));
}

} // namespace
} // namespace lonvir
