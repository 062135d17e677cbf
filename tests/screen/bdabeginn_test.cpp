// Enter in the service-age box: the date sets the step, anything else empties the box.
#include "engine/monatladen.h"
#include "screen/eingabe.h"
#include "screen/stufenliste.h"
#include "start/satzzugriff.h"
#include "testhilfe.h"

#include <gtest/gtest.h>

namespace lonvir {

namespace {
// Person 1 in January 1997 as Besoldungsordnung A group 8 (list of 13 steps, last 12).
void januarA8(Sitzung& s) {
    monatladen(s, 1, 0);
    s.merkmal[5] = 8;
    stufenliste(s);
}
} // namespace

TEST(Bdabeginn, DatumSetztDieStufeUndSpeichertDenMonat) {
    test::Umgebung u;
    Sitzung& s = u.s;
    januarA8(s);
    bdabestaetigen(s, "01.1971");
    // 312 months -> 13, cut to the list's last position 12.
    EXPECT_EQ(s.merkmal[7], 12);
    const Personalsatz januar = personalsatzlesen(s, 1, 1);
    EXPECT_EQ(januar.bdabeginn, "01.1971");
    EXPECT_EQ(januar.merkmal[7], 12);
    // The later months follow; July takes the ladder: 319 -> 9.
    EXPECT_EQ(personalsatzlesen(s, 6, 1).merkmal[7], 12);
    EXPECT_EQ(personalsatzlesen(s, 7, 1).merkmal[7], 9);
    EXPECT_TRUE(u.dialoge.gezeigt().empty());
}

TEST(Bdabeginn, LeeresFeldMeldetUndLeertDasFeld) {
    test::Umgebung u;
    Sitzung& s = u.s;
    januarA8(s);
    bdabestaetigen(s, "");
    ASSERT_EQ(u.dialoge.gezeigt().size(), 1u);
    EXPECT_EQ(u.dialoge.gezeigt()[0].titel, "BDA-Beginn");
    EXPECT_EQ(s.bdabeginn, "       ");
    // Nothing is stored by the box alone.
    EXPECT_EQ(personalsatzlesen(s, 1, 1).bdabeginn, "01.1997");
}

TEST(Bdabeginn, KeinDatumLeertDasFeldOhneMeldung) {
    test::Umgebung u;
    Sitzung& s = u.s;
    januarA8(s);
    const std::int16_t stufe = s.merkmal[7];
    for (const char* text : {"13.1990", "01.2001", "1.1990", "01-1990"}) {
        s.bdabeginn = "01.1997";
        bdabestaetigen(s, text);
        EXPECT_EQ(s.bdabeginn, "       ") << text;
        EXPECT_EQ(s.merkmal[7], stufe) << text;
    }
    EXPECT_TRUE(u.dialoge.gezeigt().empty());
}

TEST(Bdabeginn, StufeNachAngabeMeldetKeinLeeresFeld) {
    test::Umgebung u;
    Sitzung& s = u.s;
    januarA8(s);
    s.merkmal[1] = 2;
    bdabestaetigen(s, "");
    EXPECT_TRUE(u.dialoge.gezeigt().empty());
}

} // namespace lonvir
