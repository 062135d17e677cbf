// Person, month, layer and year changes of the main form.
#include "formhilfe.h"
#include "screen/navigation.h"
#include "start/dateisatz.h"
#include "start/satzzugriff.h"
#include "testhilfe.h"

#include <gtest/gtest.h>

namespace lonvir {

namespace {

// Types an amount into row 12 of a stored month, as the record holds it.
void zeile12(Sitzung& s, int monat, int person, std::int32_t pfennig) {
    Personalsatz p = personalsatzlesen(s, monat, person);
    p.wert[12] = pfennig;
    personalsatzschreiben(s, monat, person, p);
}

} // namespace

TEST(Navigation, PersonwechselLaedtDenMonatDerNeuenPerson) {
    test::Umgebung u;
    test::Zaehlform form(u.s);
    zeile12(u.s, 3, 4, 12345); // person 4, March
    u.s.merkmal[20] = 2;
    personwechseln(u.s, form, 3); // list position 3 is person 4
    EXPECT_EQ(u.s.aktuelleperson, 4);
    EXPECT_EQ(u.s.merkmal[0], 3);
    EXPECT_EQ(u.s.wert[12], 12345);
    EXPECT_EQ(form.auffrischungen, 1);
}

TEST(Navigation, MonatswechselLiestDenMonatUndZwoelfIstDieJahressicht) {
    test::Umgebung u;
    test::Zaehlform form(u.s);
    zeile12(u.s, 5, 1, 10000); // May
    zeile12(u.s, 9, 1, 2500);  // September
    monatwechseln(u.s, form, 4);
    EXPECT_EQ(u.s.wert[12], 10000);
    // The year view sums the twelve stored months: 100.00 + 25.00 DM.
    monatwechseln(u.s, form, 12);
    EXPECT_EQ(u.s.merkmal[20], 12);
    EXPECT_EQ(u.s.jahressperre, 1);
    EXPECT_EQ(u.s.wert[12], 12500);
    EXPECT_EQ(form.auffrischungen, 2);
}

TEST(Navigation, SchichtwechselOeffnetDenSatzDerSchichtUndZeigtIhreDaten) {
    test::Umgebung u;
    test::Zaehlform form(u.s);
    u.s.schicht = PLAN;
    dateienoeffnen(u.s);
    zeile12(u.s, 1, 1, 777);
    u.s.schicht = INFO;
    dateienoeffnen(u.s);
    monatwechseln(u.s, form, 0);
    EXPECT_EQ(u.s.wert[12], 0);

    schichtklick(u.s, form, PLAN);
    EXPECT_EQ(u.s.schicht, PLAN);
    EXPECT_EQ(form.aktiveSchicht, PLAN);
    EXPECT_EQ(u.s.datei(1).pfad().filename(), "L1997P.1");
    EXPECT_EQ(u.s.wert[12], 777);
    EXPECT_EQ(form.auffrischungen, 2);
}

TEST(Navigation, M1997WennSchon1997GewaehltIstTutNichts) {
    test::Umgebung u;
    test::Zaehlform form(u.s);
    u.s.Tablettseite = 6;
    ASSERT_TRUE(jahrgewaehlt(u.s, 1997));
    jahrklick(u.s, form, 1997);
    EXPECT_EQ(u.s.jahr, 1997);
    EXPECT_EQ(u.s.Tablettseite, 6);
    EXPECT_EQ(form.entladungen + form.ladungen + form.auffrischungen, 0);
    EXPECT_EQ(u.s.datei(1).pfad().filename(), "L1997I.1");
}

TEST(Navigation, JahreswechselPerMenueLaedtDieHauptformNeu) {
    test::Umgebung u;
    test::Zaehlform form(u.s);
    jahrklick(u.s, form, 1998);
    EXPECT_EQ(u.s.jahr, 1998);
    EXPECT_TRUE(jahrgewaehlt(u.s, 1998));
    EXPECT_FALSE(jahrgewaehlt(u.s, 1997));
    EXPECT_EQ(u.s.datei(5).pfad().filename(), "L1998I.5");
    EXPECT_EQ(form.entladungen, 1);
    EXPECT_EQ(form.ladungen, 1);
    // The mark 48 of the year being switched ends with the refresh of the left column.
    EXPECT_EQ(u.s.Tablettseite, 0);
    EXPECT_EQ(form.titel, "LONVIR 1998 im öffentlichen Dienst    (ohne Gewähr)");
    EXPECT_FALSE(form.sanduhrAn);

    jahrklick(u.s, form, 1998); // checked: nothing
    EXPECT_EQ(form.ladungen, 1);
    jahrklick(u.s, form, 1997);
    EXPECT_EQ(u.s.jahr, 1997);
    EXPECT_EQ(form.ladungen, 2);
    EXPECT_EQ(form.titel, "LONVIR 1997 im öffentlichen Dienst    (ohne Gewähr)");
}

TEST(Navigation, JahrNullGiltAls1997) {
    test::Umgebung u;
    test::Zaehlform form(u.s);
    u.s.jahr = 0;
    jahrklick(u.s, form, 1997);
    EXPECT_EQ(u.s.jahr, 0);
    EXPECT_EQ(form.ladungen, 0);
}

} // namespace lonvir
