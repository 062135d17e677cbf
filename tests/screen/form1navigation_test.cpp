// The navigation on the main-screen model: layer, year, transfer and delete through Form1.
#include "bildhilfe.h"
#include "screen/navigation.h"
#include "screen/personalloeschen.h"
#include "screen/uebertragung.h"
#include "start/dateisatz.h"
#include "start/satzzugriff.h"
#include "start/start.h"
#include "start/texte.h"

#include <gtest/gtest.h>

namespace lonvir {

TEST(Form1Navigation, SchichtwechselZeigtDieSchichtAlsAktivUndDieZeilenIhrerDaten) {
    test::Bild b;
    Hauptform& form = b.f;
    b.u.s.schicht = PLAN;
    dateienoeffnen(b.u.s);
    Personalsatz p = personalsatzlesen(b.u.s, 1, 1);
    p.wert[12] = 12345;
    personalsatzschreiben(b.u.s, 1, 1, p);
    b.u.s.schicht = INFO;
    dateienoeffnen(b.u.s);

    schichtklick(b.u.s, form, PLAN);
    EXPECT_EQ(b.f.bild.aktiveSchicht, PLAN);
    EXPECT_EQ(b.u.s.wert[12], 12345);
    EXPECT_EQ(b.zeile(12).wert, "123,45+");
}

TEST(Form1Navigation, UebertragungLaesstDasBildStehen) {
    test::Bild b;
    b.u.s.schicht = PLAN;
    dateienoeffnen(b.u.s);
    Personalsatz p = personalsatzlesen(b.u.s, 1, 1);
    p.wert[12] = 50000;
    personalsatzschreiben(b.u.s, 1, 1, p);
    b.u.s.schicht = INFO;
    dateienoeffnen(b.u.s);
    const std::string vorher = b.zeile(12).wert;
    uebertragungsknopf(b.u.s, 3); // "Plan >  Info"
    EXPECT_EQ(b.zeile(12).wert, vorher);
    EXPECT_EQ(b.u.s.wert[12], 0);
    EXPECT_EQ(personalsatzlesen(b.u.s, 1, 1).wert[12], 50000);
    // The user's refresh shows it.
    b.f.bildauffrischen();
    EXPECT_EQ(b.zeile(12).wert, "500,00+");
}

TEST(Form1Navigation, JahreswechselLaedtDasHauptbildNeu) {
    test::Bild b;
    Hauptform& form = b.f;
    Sitzung s98;
    s98.ordner = b.u.s.ordner;
    s98.jahr = 1998;
    starten(s98);
    jahrklick(b.u.s, form, 1998);
    EXPECT_EQ(b.u.s.jahr, 1998);
    EXPECT_EQ(b.f.bild.titel, "LONVIR 1998 im öffentlichen Dienst    (ohne Gewähr)");
    EXPECT_EQ(b.u.s.Tablettseite, 0);
    EXPECT_FALSE(b.f.bild.sanduhr);
}

TEST(Form1Navigation, PersonalloeschenLaedtDieNamenslisteNeu) {
    test::Bild b;
    Hauptform& form = b.f;
    textschreiben(b.u.s, 5003, "Clara Cordes");
    b.f.namensliste();
    ASSERT_EQ(b.zeile(0).liste[2], "Clara Cordes");
    b.u.dialoge.antworten(Knopf::ok);
    ASSERT_TRUE(personalloeschen(b.u.s, form));
    EXPECT_EQ(b.zeile(0).liste.size(), 20u);
    EXPECT_EQ(b.zeile(0).liste[2], "3. Name");
    EXPECT_EQ(b.u.s.jahr, 1997);
}

} // namespace lonvir
