// The pay step from the start of the service age: two-year rhythm, clamp, ladder from July 1997.
#include "engine/berechnen.h"
#include "engine/schritte.h"
#include "engine/stufenliste.h"
#include "start/satzzugriff.h"
#include "testhilfe.h"

#include <gtest/gtest.h>

namespace lonvir {

namespace {

// A person of staff class `art`, group `gruppe`, in month index `monat` of `jahr`, with the
// step list built as the screen builds it (which already runs the step procedure).
void person(Sitzung& s, int art, int gruppe, int monat, int jahr, const std::string& beginn) {
    s.jahr = static_cast<std::int16_t>(jahr);
    s.merkmal[4] = static_cast<std::int16_t>(art);
    s.merkmal[5] = static_cast<std::int16_t>(gruppe);
    s.merkmal[20] = static_cast<std::int16_t>(monat);
    s.bdabeginn = beginn;
    s.stufen = stufenlistefuer(art, gruppe, !s.ist1997() || monat >= 6, s.stufen);
}

} // namespace

TEST(Stufeausbda, BeginnImJanuar1997GibtStufe0ImJanuar1997UndImJanuar1998) {
    Sitzung s;
    // (97 - 97) * 12 - 1 + 1 = 0 months -> 0 / 24 = step 0.
    person(s, 0, 7, 0, 1997, "01.1997");
    s.merkmal[7] = 5;
    stufeausbda(s);
    EXPECT_EQ(s.merkmal[7], 0);
    // 1998: month number 1 + 12 = 13; 0 - 1 + 13 = 12 months -> 0; ladder on 13 -> 0.
    person(s, 0, 7, 0, 1998, "01.1997");
    s.merkmal[7] = 5;
    stufeausbda(s);
    EXPECT_EQ(s.merkmal[7], 0);
}

TEST(Stufeausbda, Beginn071990GibtStufe3ImJuniUndMitDerLeiterImJuli) {
    Sitzung s;
    // June 1997, group 5 (list of 9 steps): (97 - 90) * 12 - 7 + 6 = 83 months -> 83 / 24 = 3.
    person(s, 0, 5, 5, 1997, "07.1990");
    stufeausbda(s);
    EXPECT_EQ(s.merkmal[7], 3);
    // July 1997: 84 months; the ladder takes 84 + 1 = 85, in 73..96 -> 3.
    person(s, 0, 5, 6, 1997, "07.1990");
    s.merkmal[7] = 0;
    stufeausbda(s);
    EXPECT_EQ(s.merkmal[7], 3);
}

TEST(Stufeausbda, Beginn011971WirdAufDieListeGekapptUndFaelltImJuliAufStufe9) {
    Sitzung s;
    // January 1997, group 8 (13 steps, last position 12): (97 - 71) * 12 - 1 + 1 = 312
    // months -> 312 / 24 = 13, cut to 12.
    person(s, 0, 8, 0, 1997, "01.1971");
    stufeausbda(s);
    EXPECT_EQ(s.merkmal[7], 12);
    // July 1997: 318 months; the ladder takes 319, in 289..336 -> 9: lower than before.
    person(s, 0, 8, 6, 1997, "01.1971");
    stufeausbda(s);
    EXPECT_EQ(s.merkmal[7], 9);
}

TEST(Stufeausbda, LeiterWirdNichtAufDieListeGekappt) {
    Sitzung s;
    // July 1997 with the list of group 0 from before July still standing (8 steps, last 7):
    // 318 months -> 13, cut to 7; then the ladder on 319 gives 9, beyond the list.
    person(s, 0, 0, 5, 1997, "01.1971");
    s.merkmal[20] = 6;
    stufeausbda(s);
    EXPECT_EQ(s.merkmal[7], 9);
}

TEST(Stufeausbda, AngestellteBleibenImJuliBeimZweijahresrhythmus) {
    Sitzung s;
    // BAT Bund/Länder group 0 (14 steps, last 13), July 1997, start 01.1971:
    // 318 months -> 318 / 24 = 13.25, truncated 13; no ladder for staff class 5.
    person(s, 5, 0, 6, 1997, "01.1971");
    stufeausbda(s);
    EXPECT_EQ(s.merkmal[7], 13);
}

TEST(Stufeausbda, Im1998ZaehlenDieMonateVon1997Mit) {
    Sitzung s;
    // Staff class 5, start 12.1996, December 1998: 1 * 12 - 12 + (12 + 12) = 24 -> 1.
    person(s, 5, 0, 11, 1998, "12.1996");
    stufeausbda(s);
    EXPECT_EQ(s.merkmal[7], 1);
    // November 1998: 23 months -> 0.
    person(s, 5, 0, 10, 1998, "12.1996");
    stufeausbda(s);
    EXPECT_EQ(s.merkmal[7], 0);
}

TEST(Stufeausbda, BeginnInDerZukunftWirdGegenNullAbgeschnittenUndDieLeiterUebersprungen) {
    Sitzung s;
    // July 1997, start 01.1999: (97 - 99) * 12 - 1 + 7 = -18 months -> -18 / 24 = -0.75,
    // truncated 0; the ladder value -17 is negative and leaves the 0.
    person(s, 0, 5, 6, 1997, "01.1999");
    s.merkmal[7] = 4;
    stufeausbda(s);
    EXPECT_EQ(s.merkmal[7], 0);
}

TEST(Stufeausbda, LeeresFeldGibtStufe0InJederPersonalartMitDienstalter) {
    for (int art : {0, 1, 2, 3, 5, 6, 7, 13, 14, 15, 18}) {
        Sitzung s;
        person(s, art, 0, 3, 1997, "       ");
        s.merkmal[7] = 3;
        stufeausbda(s);
        EXPECT_EQ(s.merkmal[7], 0) << "Personalart " << art;
    }
}

TEST(Stufeausbda, PersonalartenOhneDienstalterBehaltenIhreStufe) {
    for (int art : {4, 8, 9, 10, 11, 12, 16, 17}) {
        Sitzung s;
        person(s, art, 0, 3, 1997, "01.1971");
        s.merkmal[7] = 2;
        stufeausbda(s);
        EXPECT_EQ(s.merkmal[7], 2) << "Personalart " << art;
        EXPECT_EQ(s.bdabeginn, "01.1971");
    }
}

TEST(Stufeausbda, StufeNachAngabeOeffnetDieListeUndLeertDasFeld) {
    Sitzung s;
    person(s, 0, 5, 3, 1997, "01.1971");
    s.stufen.aktiv = false;
    s.merkmal[1] = 2; // "Dienstalterstufe n.Angabe"
    s.merkmal[7] = 4;
    stufeausbda(s);
    EXPECT_EQ(s.merkmal[7], 4);
    EXPECT_TRUE(s.stufen.aktiv);
    EXPECT_EQ(s.bdabeginn, "       ");
}

TEST(Stufeausbda, FolgemonateRueckenDieStufeImJuliVonSelbstWeiter) {
    test::Umgebung u;
    Sitzung& s = u.s;
    // Person 1, Besoldungsordnung A group 8, start 01.1971, edited in June 1997.
    s.aktuelleperson = 1;
    s.merkmal[20] = 5;
    satzlesen(s);
    s.merkmal[4] = 0;
    s.merkmal[5] = 8;
    s.bdabeginn = "01.1971";
    // The June list has 13 steps (last 12): 317 months -> 13, cut to 12.
    stufenliste(s);
    ASSERT_EQ(s.merkmal[7], 12);
    s.Neuberechnung = -1;
    s.aenderungscode = 7;
    nachrechnen(s);
    // June keeps 12; July: 318 months, ladder on 319 -> 9; August to December carry the 9.
    EXPECT_EQ(personalsatzlesen(s, 6, 1).merkmal[7], 12);
    EXPECT_EQ(personalsatzlesen(s, 7, 1).merkmal[7], 9);
    EXPECT_EQ(personalsatzlesen(s, 8, 1).merkmal[7], 9);
    EXPECT_EQ(personalsatzlesen(s, 12, 1).merkmal[7], 9);
    // Back in June the step is worked out again for June.
    EXPECT_EQ(s.merkmal[20], 5);
    EXPECT_EQ(s.merkmal[7], 12);
}

} // namespace lonvir

namespace lonvir {

TEST(Stufeausbda, OhneGebauteListeSchneidetDieTabelleDerPerson) {
    Sitzung s;
    // No list built yet: BAT group 0 has 14 steps; 01.1971 in July 1997, 318 months -> 13.
    s.merkmal[4] = 5;
    s.merkmal[20] = 6;
    s.bdabeginn = "01.1971";
    stufeausbda(s);
    EXPECT_EQ(s.merkmal[7], 13);
    // Group 20 has 9 steps: cut to 8.
    s.merkmal[5] = 20;
    stufeausbda(s);
    EXPECT_EQ(s.merkmal[7], 8);
    // "ohne" has no list of its own: nothing to cut against.
    s.merkmal[4] = 18;
    stufeausbda(s);
    EXPECT_EQ(s.merkmal[7], 13);
}

} // namespace lonvir
