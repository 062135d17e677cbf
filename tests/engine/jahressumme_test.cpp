// The year view: sums of the stored months, never stored itself.
#include "engine/berechnen.h"
#include "engine/monatladen.h"
#include "screen/eingabe.h"
#include "start/satzzugriff.h"
#include "testhilfe.h"

#include <gtest/gtest.h>

namespace lonvir {

TEST(Jahressumme, LeereMonateAddierenNullen) {
    test::Umgebung u;
    monatladen(u.s, 4, 12);
    // Twelve default records: 12 x 38.50 hours and 12 x 30 days.
    EXPECT_EQ(u.s.wert[0], 46200);
    EXPECT_EQ(u.s.wert[2], 36000);
    EXPECT_EQ(u.s.wert[22], 0);
    EXPECT_EQ(u.s.wert[45], 0);
    EXPECT_EQ(u.s.merkmal[20], 12);
    EXPECT_EQ(u.s.jahressperre, 1);
}

TEST(Jahressumme, SummeDerGespeichertenMonate) {
    test::Umgebung u;
    monatladen(u.s, 4, 9);
    u.s.merkmal[18] = 7;               // Christmas bonus typed, none computed
    betragbestaetigen(u.s, 12, 12345); // October to December
    monatladen(u.s, 4, 12);
    EXPECT_EQ(u.s.wert[12], 3 * 12345);
    EXPECT_EQ(u.s.wert[22], 3 * 12345);
    EXPECT_EQ(u.s.wert[45], 3 * 12345);
}

TEST(Jahressumme, UeberschreibtDenDezemberNie) {
    test::Umgebung u;
    monatladen(u.s, 4, 11);
    betragbestaetigen(u.s, 12, 500);
    const auto dezember = personalsatzlesen(u.s, 12, 4).bytes();
    monatladen(u.s, 4, 12);
    u.s.aenderungscode = 0;
    berechnen(u.s);
    EXPECT_EQ(personalsatzlesen(u.s, 12, 4).bytes(), dezember);
}

TEST(Jahressumme, EingabenSindGesperrt) {
    test::Umgebung u;
    monatladen(u.s, 4, 12);
    betragbestaetigen(u.s, 12, 500);
    ASSERT_EQ(u.dialoge.gezeigt().size(), 1u);
    EXPECT_EQ(u.dialoge.gezeigt()[0].titel, "Keine Änderung möglich");
    EXPECT_EQ(u.dialoge.gezeigt()[0].text.rfind("Während das JAHRESGEHALT eingestellt ist, können "
                                                "keine Änderungen vorgenommen werden.",
                                                0),
              0u);
    for (int m = 1; m <= 12; ++m)
        EXPECT_EQ(personalsatzlesen(u.s, m, 4).wert[12], 0);
}

} // namespace lonvir
