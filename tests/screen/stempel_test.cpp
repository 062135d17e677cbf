// The stamp of SSPanel1 onto the persons behind the known count.
#include "records/jahressatz.h"
#include "screen/stempel.h"
#include "start/jahressaetze.h"
#include "start/satzzugriff.h"
#include "testhilfe.h"

#include <gtest/gtest.h>

namespace lonvir {

namespace {

void arbeitssatzsetzen(Sitzung& s) {
    s.merkmal[4] = 5;   // BAT
    s.merkmal[20] = 8;  // not stamped: each month keeps its own
    s.merkmal[33] = 21; // not stamped
    s.merkmal[37] = 12;
    s.wert[0] = 3850;
    s.wert[1] = 1925;
    s.wert[25] = 450;
    s.wert[12] = 99999; // not stamped
    s.lst[12] = 0;      // new records have every lst set
    s.wei[17] = 1;
    s.wei[18] = 1; // not stamped: rows 18 and 19 of wei keep the buffer's
    s.tei[7] = 0;  // not stamped
}

} // namespace

TEST(Stempel, NurAufSeite61) {
    test::Umgebung u;
    Sitzung& s = u.s;
    s.dim.anzahlpersonen = 18;
    arbeitssatzsetzen(s);
    const std::string vorher = test::dateiinhalt(u.ordner.pfad(), "L1997I.3");
    s.Tablettseite = 6;
    SSPanel1_Click(s);
    EXPECT_EQ(test::dateiinhalt(u.ordner.pfad(), "L1997I.3"), vorher);
    EXPECT_EQ(s.dim.anzahlpersonen, 18);
}

TEST(Stempel, GibtDieZeileneinstellungenAnDiePersonenHinterDerZahl) {
    test::Umgebung u;
    Sitzung& s = u.s;
    s.aktuelleperson = 1;
    s.dim.anzahlpersonen = 18;
    arbeitssatzsetzen(s);
    s.Tablettseite = 61;
    SSPanel1_Click(s);

    const Personalsatz neu = Personalsatz::neu(2);
    for (int person : {19, 20}) {
        const Personalsatz p = personalsatzlesen(s, 3, person);
        EXPECT_EQ(p.merkmal[4], 5);
        EXPECT_EQ(p.merkmal[37], 12);
        EXPECT_EQ(p.merkmal[20], 2); // March, from the buffer of the month
        EXPECT_EQ(p.merkmal[33], neu.merkmal[33]);
        EXPECT_EQ(p.wert[0], 3850);
        EXPECT_EQ(p.wert[1], 3850); // takes the value of element 0
        EXPECT_EQ(p.wert[25], 450);
        EXPECT_EQ(p.wert[12], neu.wert[12]);
        EXPECT_EQ(p.lst[12], 0);
        EXPECT_EQ(neu.lst[12], 1);
        EXPECT_EQ(p.wei[17], 1);
        EXPECT_EQ(p.wei[18], neu.wei[18]);
        EXPECT_EQ(p.tei[7], neu.tei[7]);
        const Jahressatz karte = jahressatzlesen(s, person);
        EXPECT_EQ(karte.text(1).substr(0, 36), "Bemerkungen, die ausgedruckt werden.");
        EXPECT_EQ(karte.text(3), "Bemerkungen, die nicht ausgedruckt werde");
        EXPECT_EQ(karte.text(0), std::string(40, ' '));
    }
    EXPECT_EQ(personalsatzlesen(s, 3, 18), neu);
    EXPECT_EQ(jahressatzlesen(s, 18), Jahressatz());
    EXPECT_EQ(s.dim.anzahlpersonen, 20);
    EXPECT_EQ(personalsatzlesen(s, 12, 20).merkmal[20], 11);
}

} // namespace lonvir
