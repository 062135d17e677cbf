// The totals over the staff: who is summed, the nine columns, the choice of a cost centre,
// and the underscored amounts of the printed lists.
#include "reports/jahressummen.h"

#include "core/laufzeitfehler.h"
#include "jahreshilfe.h"
#include "start/texte.h"
#include "testhilfe.h"

#include <gtest/gtest.h>

namespace lonvir {
namespace {

using test::jahrschreiben;
using test::monatschreiben;

void angestellter(Personalsatz& p) {
    p.merkmal[4] = 5;
    p.wert[22] = 400000;
    p.nebenwert[0] = 26800; // 13,4 % / 2
    p.nebenwert[1] = 3400;
    p.nebenwert[2] = 40600;
    p.nebenwert[3] = 13000;
    p.wert[31] = 20000;
    p.wert[32] = 2000;
    p.wert[6] = 500;
    p.nebenwert[4] = 0;
}

void beamter(Personalsatz& p) {
    p.merkmal[4] = 0;
    p.wert[22] = 350000;
    p.wert[31] = 31500;
    p.nebenwert[4] = 40000; // taxes the employer bears
    p.nebenwert[5] = 3000;
    p.nebenwert[6] = 3600;
}

void arbeiter(Personalsatz& p) {
    p.merkmal[4] = 8;
    p.wert[22] = 300000;
    p.nebenwert[0] = 20000;
    p.nebenwert[1] = 2500;
    p.nebenwert[2] = 30000;
    p.nebenwert[3] = 10000;
    p.wert[31] = 15000;
    p.nebenwert[5] = 100;
}

TEST(Tausenderbild, FillsTheFreePlacesWithUnderscores) {
    EXPECT_EQ(tausenderbild(0), "___.___.__0,00");
    EXPECT_EQ(tausenderbild(5), "___.___.__0,05");
    EXPECT_EQ(tausenderbild(12), "___.___.__0,12");
    EXPECT_EQ(tausenderbild(123), "___.___.__1,23");
    EXPECT_EQ(tausenderbild(12345), "___.___.123,45");
    EXPECT_EQ(tausenderbild(123456), "___.__1.234,56");
    EXPECT_EQ(tausenderbild(1234567), "___._12.345,67");
    EXPECT_EQ(tausenderbild(12345678), "___.123.456,78");
    EXPECT_EQ(tausenderbild(2147483647), "_21.474.836,47");
    for (std::int32_t b : {0, 7, 99, 100, 99999, 100000, 2147483647})
        EXPECT_EQ(tausenderbild(b).size(), 14u) << b;
}

TEST(Tausenderbild, ANegativeAmountKeepsItsSignInFront) {
    EXPECT_EQ(tausenderbild(-5), "-__.___.__0,05");
    EXPECT_EQ(tausenderbild(-123456), "-__.__1.234,56");
}

TEST(Jahressummen, AllDecemberRecordsAtZeroGrossGiveTenPersons) {
    test::Umgebung u;
    jahrschreiben(u.s, 15, [](Personalsatz& p) {
        angestellter(p);
        p.wert[22] = 0;
    });
    monatschreiben(u.s, 14, 11, angestellter); // November only
    const Jahressummen j = jahressummen(u.s, {});
    EXPECT_EQ(j.bedienstetenzahl, 10);
    EXPECT_EQ(j.monatswerte.size(), 10u);
    // Person 14 lies beyond the ten: its November counts nowhere.
    EXPECT_EQ(j.gesamtsummen[slot::gesamt], 0);
}

TEST(Jahressummen, TheLastPersonWithADecemberGrossSetsTheCount) {
    test::Umgebung u;
    monatschreiben(u.s, 13, 12, angestellter);
    monatschreiben(u.s, 17, 11, angestellter); // no December gross
    EXPECT_EQ(letzterbediensteter(u.s), 13);
}

TEST(Jahressummen, TheNineColumnsOfEachStaffClass) {
    test::Umgebung u;
    monatschreiben(u.s, 1, 1, beamter);
    monatschreiben(u.s, 2, 1, angestellter);
    monatschreiben(u.s, 3, 1, arbeiter);
    monatschreiben(u.s, 12, 12, angestellter); // sets the count to 12
    const Jahressummen j = jahressummen(u.s, {});
    ASSERT_EQ(j.bedienstetenzahl, 12);
    EXPECT_EQ(j.wert(1, slot::beamtenbezuege, 1), 350000);
    EXPECT_EQ(j.wert(1, slot::versorgungBeamte, 1), 31500);
    // A civil servant has no column for the taxes the employer bears.
    EXPECT_EQ(j.wert(1, slot::agSteuern, 1), 0);
    EXPECT_EQ(j.wert(1, slot::gesamt, 1), 381500);
    EXPECT_EQ(j.wert(2, slot::angestelltenverguetung, 1), 400000);
    EXPECT_EQ(j.wert(2, slot::sozialAngestellte, 1), 83800); // 268 + 34 + 406 + 130
    EXPECT_EQ(j.wert(2, slot::zvkUmlage, 1), 20000);
    EXPECT_EQ(j.wert(2, slot::agSteuern, 1), 2500); // 5 + 20
    EXPECT_EQ(j.wert(2, slot::gesamt, 1), 506300);
    EXPECT_EQ(j.wert(3, slot::arbeiterloehne, 1), 300000);
    EXPECT_EQ(j.wert(3, slot::sozialArbeiter, 1), 62500);
    EXPECT_EQ(j.wert(3, slot::zvkUmlage, 1), 15000);
    EXPECT_EQ(j.wert(3, slot::agSteuern, 1), 100);
    EXPECT_EQ(j.wert(3, slot::gesamt, 1), 377600);
    // January of all: 3.815 + 5.063 + 3.776 = 12.654,00; the year adds person 12's December.
    EXPECT_EQ(j.monatssummen[1][slot::gesamt], 1265400);
    EXPECT_EQ(j.monatssummen[12][slot::gesamt], 506300);
    EXPECT_EQ(j.gesamtsummen[slot::gesamt], 1771700);
    EXPECT_EQ(j.wert(2, slot::gesamt, 13), 506300);
}

TEST(Jahressummen, ACivilServantsTaxesBorneByTheEmployerAreNotInTheTotal) {
    test::Umgebung u;
    jahrschreiben(u.s, 1, beamter);
    const Jahressummen j = jahressummen(u.s, {});
    // 12 * (3.500 + 315) = 45.780,00; the 466,00 a month of taxes borne stay out.
    EXPECT_EQ(j.gesamtsummen[slot::gesamt], 4578000);
    EXPECT_EQ(j.gesamtsummen[slot::agSteuern], 0);
}

TEST(Jahressummen, StaffClass18IsListedWithZeroAmounts) {
    test::Umgebung u;
    jahrschreiben(u.s, 2, [](Personalsatz& p) {
        angestellter(p);
        p.merkmal[4] = 18;
    });
    const Jahressummen j = jahressummen(u.s, {});
    EXPECT_TRUE(j.gewaehlt(2));
    for (int k = slot::beamtenbezuege; k <= slot::gesamt; ++k)
        EXPECT_EQ(j.wert(2, k, 13), 0) << k;
}

TEST(Jahressummen, APersonInTheCostCentreOnlyInSomeMonthsContributesThoseMonths) {
    test::Umgebung u;
    textschreiben(u.s, 4801, "Bauamt");
    textschreiben(u.s, 4802, "Schulamt");
    jahrschreiben(u.s, 3, [](Personalsatz& p) {
        angestellter(p);
        p.merkmal[27] = 1; // Schulamt
    });
    // From October in the Bauamt.
    for (int m = 10; m <= 12; ++m)
        monatschreiben(u.s, 3, m, [](Personalsatz& p) {
            angestellter(p);
            p.merkmal[27] = 0;
        });
    const Jahressummen bau = jahressummen(u.s, {3, "Bauamt"});
    EXPECT_EQ(bau.kostenstelle, "Bauamt");
    EXPECT_TRUE(bau.gewaehlt(3));
    EXPECT_EQ(bau.wert(3, slot::gesamt, 9), 0);
    EXPECT_EQ(bau.wert(3, slot::gesamt, 10), 506300);
    // Three months of 5.063,00.
    EXPECT_EQ(bau.gesamtsummen[slot::gesamt], 1518900);
    const Jahressummen schule = jahressummen(u.s, {4, "  Schulamt "});
    EXPECT_EQ(schule.kostenstelle, "Schulamt");
    EXPECT_EQ(schule.gesamtsummen[slot::gesamt], 9 * 506300);
    // Position 0 of the list is all staff, whatever text it carries.
    EXPECT_EQ(jahressummen(u.s, {0, "Bauamt"}).gesamtsummen[slot::gesamt], 12 * 506300);
}

TEST(Jahressummen, TheCostCentreIsASubstringSearchWithCase) {
    test::Umgebung u;
    textschreiben(u.s, 4801, "Bauamt Nord");
    jahrschreiben(u.s, 3, angestellter);
    EXPECT_TRUE(jahressummen(u.s, {1, "Bau"}).gewaehlt(3));
    EXPECT_FALSE(jahressummen(u.s, {1, "bau"}).gewaehlt(3));
    EXPECT_EQ(jahressummen(u.s, {1, "bau"}).gesamtsummen[slot::gesamt], 0);
}

TEST(Jahressummen, APersonAbove200InTheChoiceIsABoundsError) {
    test::Umgebung u;
    for (int n = 21; n <= 201; ++n)
        textschreiben(u.s, 5000 + n, std::to_string(n) + ". Name");
    u.s.anzahlnamen = 201;
    monatschreiben(u.s, 201, 12, angestellter);
    try {
        (void)jahressummen(u.s, {});
        FAIL() << "no error";
    } catch (const Laufzeitfehler& f) {
        EXPECT_EQ(f.nummer(), 9);
    }
}

} // namespace
} // namespace lonvir
