// The transfer buttons between neighbouring layers.
#include "formhilfe.h"
#include "screen/navigation.h"
#include "screen/personalloeschen.h"
#include "screen/uebertragung.h"
#include "start/dateisatz.h"
#include "start/jahressaetze.h"
#include "start/satzzugriff.h"
#include "start/start.h"
#include "testhilfe.h"

#include <gtest/gtest.h>

namespace lonvir {

namespace {

void schicht(Sitzung& s, std::int16_t x) {
    s.schicht = x;
    dateienoeffnen(s);
}

// Row 12 of every month of person `person` in the open layer: 100 times the month, plus `basis`.
void monatefuellen(Sitzung& s, int person, std::int32_t basis) {
    for (int monat = 1; monat <= 12; ++monat) {
        Personalsatz p = personalsatzlesen(s, monat, person);
        p.wert[12] = basis + 100 * monat;
        personalsatzschreiben(s, monat, person, p);
    }
}

} // namespace

TEST(Uebertragung, KopiertZwoelfMonateUndBemerkungenOhneRechnen) {
    test::Umgebung u;
    Sitzung& s = u.s;
    test::Zaehlform form(s);
    s.aktuelleperson = 3;
    monatefuellen(s, 3, 50000);
    Jahressatz karte;
    karte.setzen(0, "Info-Karte");
    jahressatzschreiben(s, 3, karte);
    schicht(s, PLAN);
    monatefuellen(s, 3, 90000);
    monatefuellen(s, 4, 70000);
    schicht(s, INFO);
    // The screen holds some other month of person 3.
    s.wert[12] = 4242;
    s.merkmal[20] = 6;

    uebertragungsknopf(s, 2); // "Info  > Plan"

    // The layer and the screen are as they were, and nothing was refreshed.
    EXPECT_EQ(s.schicht, INFO);
    EXPECT_EQ(s.datei(1).pfad().filename(), "L1997I.1");
    EXPECT_EQ(s.wert[12], 4242);
    EXPECT_EQ(s.merkmal[20], 6);
    EXPECT_EQ(form.auffrischungen, 0);
    schicht(s, PLAN);
    for (int monat = 1; monat <= 12; ++monat) {
        EXPECT_EQ(personalsatzlesen(s, monat, 3).wert[12], 50000 + 100 * monat);
        EXPECT_EQ(personalsatzlesen(s, monat, 3).merkmal[20], monat - 1);
        EXPECT_EQ(personalsatzlesen(s, monat, 4).wert[12], 70000 + 100 * monat);
    }
    EXPECT_EQ(jahressatzlesen(s, 3).text(0).substr(0, 10), "Info-Karte");
    // REAL is no neighbour of INFO and stays.
    schicht(s, REAL);
    EXPECT_EQ(personalsatzlesen(s, 1, 3).wert[12], 0);
}

TEST(Uebertragung, ZurueckVonPlanNachInfoUeberschreibtOhneFrage) {
    test::Umgebung u;
    Sitzung& s = u.s;
    s.aktuelleperson = 2;
    monatefuellen(s, 2, 10000);
    schicht(s, PLAN);
    monatefuellen(s, 2, 20000);
    uebertragungsknopf(s, 3); // "Plan >  Info"
    EXPECT_EQ(s.schicht, PLAN);
    EXPECT_TRUE(u.dialoge.gezeigt().empty());
    schicht(s, INFO);
    EXPECT_EQ(personalsatzlesen(s, 7, 2).wert[12], 20700);
}

TEST(Uebertragung, PersonOhneSatzInDerQuelleGibtNullsaetzeImZiel) {
    test::Umgebung u;
    Sitzung& s = u.s;
    s.aktuelleperson = 25;    // 20 persons are stored
    uebertragungsknopf(s, 4); // "Plan > Real"
    EXPECT_EQ(s.ordner.laenge("L1997R.1"), 25u * 541);
    EXPECT_EQ(s.ordner.laenge("L1997R.13"), 25u * 1280);
    schicht(s, REAL);
    const std::string juni = test::dateiinhalt(u.ordner.pfad(), "L1997R.6");
    EXPECT_EQ(juni.substr(24 * 541), std::string(541, '\0'));
    // The card of a missing person reads as zeros and is written so.
    const std::string karten = test::dateiinhalt(u.ordner.pfad(), "L1997R.13");
    EXPECT_EQ(karten.substr(24 * 1280), std::string(1280, '\0'));
}

TEST(Uebertragung, DieDateienDerAnderenSchichtBleibenBisZumNaechstenOeffnenDesSatzesOffen) {
    test::Umgebung u;
    Sitzung& s = u.s;
    s.aktuelleperson = 3;
    monatefuellen(s, 3, 10000);
    uebertragungsknopf(s, 2); // "Info  > Plan"
    const int fd = s.nebenschichten[PLAN].dateien[5].deskriptor();
    ASSERT_GE(fd, 0);
    EXPECT_EQ(s.nebenschichten[PLAN].dateien[5].pfad().filename(), "L1997P.5");
    monatefuellen(s, 3, 20000);
    uebertragungsknopf(s, 2);
    EXPECT_EQ(personendatei(s, PLAN, 5).deskriptor(), fd);
    // The layer on the screen is the set's own.
    EXPECT_EQ(&personendatei(s, INFO, 5), &s.datei(5));
    EXPECT_THROW((void)personendatei(s, PLAN, 14), Laufzeitfehler);
    EXPECT_THROW((void)personendatei(s, 3, 1), Laufzeitfehler);
    // Opening the set again closes them.
    dateienoeffnen(s);
    for (int nummer = 1; nummer <= 13; ++nummer)
        EXPECT_FALSE(s.nebenschichten[PLAN].dateien[static_cast<std::size_t>(nummer)].offen());
    schicht(s, PLAN);
    for (int monat = 1; monat <= 12; ++monat)
        EXPECT_EQ(personalsatzlesen(s, monat, 3).wert[12], 20000 + 100 * monat);
}

TEST(Uebertragung, EineGeloeschteDateiDerZielschichtEntstehtNeuUndBekommtDenSatz) {
    test::Umgebung u;
    Sitzung& s = u.s;
    s.aktuelleperson = 3;
    monatefuellen(s, 3, 10000);
    uebertragungsknopf(s, 2); // "Info  > Plan": the files of PLAN stand open
    dateiloeschen(s, "L1997P.5");
    ASSERT_FALSE(s.ordner.vorhanden("L1997P.5"));
    monatefuellen(s, 3, 30000);
    uebertragungsknopf(s, 2);
    // Written into the new file, not through the descriptor of the one deleted.
    const std::string mai = test::dateiinhalt(u.ordner.pfad(), "L1997P.5");
    ASSERT_EQ(mai.size(), 3u * 541);
    EXPECT_EQ(mai.substr(0, 2 * 541), std::string(2 * 541, '\0'));
    schicht(s, PLAN);
    EXPECT_EQ(personalsatzlesen(s, 5, 3).wert[12], 30500);
    EXPECT_EQ(personalsatzlesen(s, 6, 3).wert[12], 30600);
}

TEST(Uebertragung, NachDemLoeschenDerPersonenDerZielschichtStehenSieInDenNeuenDateien) {
    test::Umgebung u;
    Sitzung& s = u.s;
    test::Zaehlform form(s);
    s.aktuelleperson = 2;
    monatefuellen(s, 2, 10000);
    uebertragungsknopf(s, 2); // "Info  > Plan"
    schicht(s, PLAN);
    ASSERT_TRUE(personalloeschen(s, form));
    schicht(s, INFO);
    s.aktuelleperson = 2;
    monatefuellen(s, 2, 40000);
    uebertragungsknopf(s, 2);
    schicht(s, PLAN);
    for (int monat = 1; monat <= 12; ++monat)
        EXPECT_EQ(personalsatzlesen(s, monat, 2).wert[12], 40000 + 100 * monat);
    const std::string karten = test::dateiinhalt(u.ordner.pfad(), "L1997P.13");
    EXPECT_GE(karten.size(), 2u * 1280);
}

TEST(Uebertragung, InEinerNurLesendGeoeffnetenSitzungWirdNichtsGeschrieben) {
    test::Umgebung u;
    u.s.aktuelleperson = 3;
    monatefuellen(u.s, 3, 10000);
    const auto vorher = test::ordnerinhalt(u.ordner.pfad());
    SkriptDialoge d;
    Sitzung s;
    s.ordner = u.s.ordner;
    s.dialoge = &d;
    s.nurLesen = true;
    starten(s);
    s.aktuelleperson = 3;
    uebertragungsknopf(s, 2); // "Info  > Plan"
    uebertragungsknopf(s, 2);
    EXPECT_EQ(test::ordnerinhalt(u.ordner.pfad()), vorher);
    // The files of PLAN are open for reading only.
    for (int nummer = 1; nummer <= 13; ++nummer) {
        const Satzdatei& plan = s.nebenschichten[PLAN].dateien[static_cast<std::size_t>(nummer)];
        EXPECT_TRUE(plan.nurLesen()) << nummer;
        EXPECT_EQ(plan.deskriptor(), -1) << nummer;
    }
}

TEST(Uebertragung, DieVierKnoepfeUndIhreRichtungen) {
    using R = std::pair<std::int16_t, std::int16_t>;
    EXPECT_EQ(uebertragungsrichtung(2), (R{INFO, PLAN}));
    EXPECT_EQ(uebertragungsrichtung(3), (R{PLAN, INFO}));
    EXPECT_EQ(uebertragungsrichtung(4), (R{PLAN, REAL}));
    EXPECT_EQ(uebertragungsrichtung(5), (R{REAL, PLAN}));
    EXPECT_FALSE(uebertragungsrichtung(1));
    EXPECT_FALSE(uebertragungsrichtung(6));
    EXPECT_TRUE(benachbart(INFO, PLAN));
    EXPECT_TRUE(benachbart(REAL, PLAN));
    EXPECT_FALSE(benachbart(INFO, REAL));
    EXPECT_FALSE(benachbart(PLAN, PLAN));
    EXPECT_FALSE(benachbart(3, 2));
}

} // namespace lonvir
