// A class of the table viewer explained in the tax panel's working rows.
#include "reports/tabellenerklaerung.h"

#include <gtest/gtest.h>

namespace lonvir {
namespace {

TEST(Tabellenerklaerung, DieKlasseEinsDesMonatsbandsInDenArbeitszeilen) {
    Lohnsteuertabelle t;
    t.auswahl.lohnzeitraum = 2;
    t.auswahl.scrollwert = 888; // 888 x 450 + 16 = 3 996,16 DM to 4 000,65 DM
    ASSERT_TRUE(tabellefuellen(t));
    Sitzung s;
    s.lstwert[20] = 12345; // a row of the person's month: cleared
    tabellenzeileerklaeren(s, t, 1);
    EXPECT_EQ(s.lstwert[1], 399616);
    EXPECT_EQ(s.lstwert[7], 399616);
    EXPECT_EQ(s.lstwert[8], 399616);
    EXPECT_EQ(s.lstwert[9], 400065);
    // The viewer's cells of class I: 710,25 / 53,26 / 8 % of 710,25 = 56,82.
    EXPECT_EQ(s.lstwert[10], 71025);
    EXPECT_EQ(s.lstwert[11], 5326);
    EXPECT_EQ(s.lstwert[12], 5682);
    EXPECT_EQ(s.lstwert[20], 0);
}

TEST(Tabellenerklaerung, DieKlasseDesDoppelklicksZaehlt) {
    Lohnsteuertabelle t;
    t.auswahl.lohnzeitraum = 2;
    t.auswahl.scrollwert = 888;
    ASSERT_TRUE(tabellefuellen(t));
    Sitzung s;
    tabellenzeileerklaeren(s, t, 3);
    EXPECT_EQ(s.lstwert[10], t.zeilen[3].lohnsteuer.gerundetInt32());
    EXPECT_EQ(s.lstwert[10], 26633); // 266,33 DM in class III
    EXPECT_EQ(s.lstwert[12], t.zeilen[3].kirchensteuer.gerundetInt32());
}

} // namespace
} // namespace lonvir
