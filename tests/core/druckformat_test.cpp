// Number formats, cuts and trims of the printed reports.
#include "core/druckformat.h"

#include <gtest/gtest.h>

namespace lonvir {

TEST(Druckformat, GeldMitTausenderpunkt) {
    EXPECT_EQ(formatzahl(1234.5, "##,##0.00"), "1.234,50");
    EXPECT_EQ(formatzahl(0, "##,##0.00"), "0,00");
    EXPECT_EQ(formatzahl(-0.07, "##,##0.00"), "-0,07");
    EXPECT_EQ(formatzahl(1234567.89, "###,##0.00"), "1.234.567,89");
    EXPECT_EQ(formatzahl(999.99, "###,##0.00"), "999,99");
}

TEST(Druckformat, OhnePflichtzifferVorDemKomma) {
    EXPECT_EQ(formatzahl(0.5, "###,###.00"), ",50");
    EXPECT_EQ(formatzahl(2889.59, "###,###.00"), "2.889,59");
}

TEST(Druckformat, FaktorenUndProzent) {
    EXPECT_EQ(formatzahl(50, "##0.0"), "50,0");
    EXPECT_EQ(formatzahl(0.5, "#0.00000"), "0,50000");
    EXPECT_EQ(formatzahl(1.0 / 3.0, "#0.00000"), "0,33333");
}

TEST(Druckformat, PfennigAlsDm) {
    EXPECT_EQ(formatpfennig(388856, "##,##0.00"), "3.888,56");
    EXPECT_EQ(formatpfennig(-67683, "##,##0.00"), "-676,83");
}

TEST(Druckformat, ZeichenStattBytes) {
    EXPECT_EQ(zeichenzahl("März"), 4u);
    EXPECT_EQ(links("Überstunden", 4), "Über");
    EXPECT_EQ(links("ab", 5), "ab");
    EXPECT_EQ(links("abc", 0), "");
}

TEST(Druckformat, TrimmtNurLeerzeichen) {
    EXPECT_EQ(getrimmt("  a b  "), "a b");
    EXPECT_EQ(linksgetrimmt("  a "), "a ");
    EXPECT_EQ(rechtsgetrimmt("  a "), "  a");
    EXPECT_EQ(getrimmt("   "), "");
}

TEST(Druckformat, GrossbuchstabenDerCodeseite) {
    EXPECT_EQ(grossbuchstaben("März 1997"), "MÄRZ 1997");
    EXPECT_EQ(grossbuchstaben("öüé straße"), "ÖÜÉ STRAßE");
    EXPECT_EQ(grossbuchstaben("÷"), "÷");
}

TEST(Druckformat, BetragRechtsEndetVorDerEndspalte) {
    Merkdrucker d;
    d.Print({Tab{10}, "Brutto", Tab{45}, "DM"}, Zeilenende::bleiben);
    betragrechts(d, 60, "3.888,56+", Zeilenende::neu);
    d.EndDoc();
    const std::string z = d.zeile(0, 0);
    EXPECT_EQ(z.size(), 59u);
    EXPECT_EQ(z.substr(50), "3.888,56+");
}

} // namespace lonvir
