// Loading and storing the working set.
#include "start/satzzugriff.h"
#include "testhilfe.h"

#include <gtest/gtest.h>

#include <array>

namespace lonvir {

TEST(Satzzugriff, SatzlesenNimmtPersonUndMonatUndLaesstElementNull) {
    test::Umgebung u;
    Personalsatz p = Personalsatz::neu(2);
    p.wert[12] = 1234;
    p.bdabeginn = "03.1980";
    personalsatzschreiben(u.s, 3, 5, p);
    u.s.aktuelleperson = 5;
    u.s.merkmal[0] = 77;
    u.s.merkmal[20] = 2;
    satzlesen(u.s);
    EXPECT_EQ(u.s.aktuellerdatei, 3);
    EXPECT_EQ(u.s.wert[12], 1234);
    EXPECT_EQ(u.s.bdabeginn, "03.1980");
    EXPECT_EQ(u.s.merkmal[0], 77);
}

TEST(Satzzugriff, SatzschreibenSchreibtMonatUndDanachDieEinstellungen) {
    test::Umgebung u;
    u.s.aktuelleperson = 4;
    u.s.merkmal[20] = 10;
    u.s.wert[7] = 555;
    u.s.schicht = INFO;
    satzschreiben(u.s);
    EXPECT_EQ(u.s.aktuellerdatei, 11);
    EXPECT_EQ(personalsatzlesen(u.s, 11, 4).wert[7], 555);
    // The place of the user: layer, person and month in elements 14, 15, 16 of record 1.
    std::array<std::uint8_t, Voeinsatz::laenge> b{};
    u.s.datei(19).lesen(1, b);
    const Voeinsatz v = Voeinsatz::lesen(b);
    EXPECT_EQ(v.voreinstellung[14], Currency::ganz(INFO));
    EXPECT_EQ(v.voreinstellung[15], Currency::ganz(4));
    EXPECT_EQ(v.voreinstellung[16], Currency::ganz(10));
}

TEST(Satzzugriff, EingabewerteLassenSechsZeilenAus) {
    test::Umgebung u;
    for (int i = 0; i <= 45; ++i) {
        u.s.wert[i] = 100 + i;
        u.s.eingabe[i] = -1;
    }
    eingabewerte(u.s);
    for (int i = 0; i <= 45; ++i) {
        const bool aus = i == 4 || i == 5 || (i >= 15 && i <= 18);
        EXPECT_EQ(u.s.eingabe[i], aus ? -1 : 100 + i) << i;
    }
}

} // namespace lonvir
