// Typing into the row boxes: the key filter, the confirmation and the limits of the rows.
#include "bildhilfe.h"
#include "start/satzzugriff.h"
#include "start/texte.h"

#include <gtest/gtest.h>

namespace lonvir {

namespace {
// Types `text` into row `zeile` key by key and confirms with `schluss`.
void tippen(test::Bild& b, int zeile, const std::string& text, int schluss = taste::enter) {
    b.f.t_GotFocus(zeile);
    b.zeile(zeile).wert.clear();
    for (char c : text)
        if (b.f.t_KeyPress(zeile, c) != 0)
            b.zeile(zeile).wert += c;
    b.f.t_KeyPress(zeile, schluss);
}

void erwarteMeldung(const test::Bild& b, const std::string& titel, const std::string& text) {
    ASSERT_EQ(b.meldungen().size(), 1u);
    EXPECT_EQ(b.meldungen()[0].titel, titel);
    EXPECT_EQ(b.meldungen()[0].text, text);
    EXPECT_EQ(b.meldungen()[0].symbol, Symbol::ausruf);
}

const std::string tagetext = "Die Anzahl der Tage mußte auf 31 herabgesetzt werden, weil nur dann "
                             "die Lohnsteuer und die Sozialversicherungsbeiträge richtig berechnet "
                             "werden können.";
} // namespace

TEST(Tasten, BetragWirdMitEnterGespeichertUndFolgtDenMonaten) {
    test::Bild b;
    tippen(b, 12, "123,45");
    EXPECT_EQ(b.u.s.eingabe[12], 12345);
    EXPECT_EQ(b.u.s.wert[12], 12345);
    EXPECT_EQ(b.zeile(12).wert, "123,45+");
    EXPECT_EQ(personalsatzlesen(b.u.s, 1, 1).wert[12], 12345);
    EXPECT_EQ(personalsatzlesen(b.u.s, 12, 1).wert[12], 12345);
    EXPECT_TRUE(b.meldungen().empty());
}

TEST(Tasten, MinusMachtDenBetragNegativUndLeertStundenUndTage) {
    test::Bild b;
    tippen(b, 41, "50", '-');
    EXPECT_EQ(b.u.s.wert[41], -5000);
    EXPECT_EQ(b.zeile(41).wert, "50,00-");
    tippen(b, 2, "20", '-');
    EXPECT_EQ(b.u.s.wert[2], 0);
    EXPECT_EQ(b.u.s.eingabe[2], 0);
    EXPECT_EQ(b.zeile(2).wert, "0");
}

TEST(Tasten, NurZiffernKommaVorzeichenEnterUndRuecktasteKommenDurch) {
    test::Bild b;
    for (int key : {int{'0'}, int{'9'}, int{','}, taste::rueck})
        EXPECT_EQ(b.f.t_KeyPress(12, key), key);
    for (int key : {'a', '.', ' ', '*', 'E'})
        EXPECT_EQ(b.f.t_KeyPress(12, key), 0);
    EXPECT_EQ(b.u.s.aktuellezeile, 12);
}

TEST(Tasten, AchtZeichenSetzenDasFeldZurueck) {
    test::Bild b;
    tippen(b, 12, "1234,56");
    ASSERT_EQ(b.u.s.wert[12], 123456);
    b.zeile(12).wert = "1.234,56"; // eight characters
    EXPECT_EQ(b.f.t_KeyPress(12, '7'), 0);
    EXPECT_EQ(b.u.s.wert[12], 0);
    EXPECT_EQ(b.u.s.eingabe[12], 0);
    EXPECT_EQ(b.zeile(12).wert, "0,00±");
    EXPECT_EQ(b.f.bild.fokuswunsch, (Fokus{Fokusziel::liste, 22}));
    // The focus moved on with a click on row 22: the month is stored without the amount.
    EXPECT_EQ(personalsatzlesen(b.u.s, 1, 1).wert[12], 0);
}

TEST(Tasten, AchtzigStundenGehenDurchUndDarueberWirdGekappt) {
    test::Bild b;
    tippen(b, 0, "80,00");
    EXPECT_EQ(b.u.s.wert[0], 8000);
    EXPECT_TRUE(b.meldungen().empty());
    tippen(b, 0, "80,01");
    EXPECT_EQ(b.u.s.wert[0], 8000);
    EXPECT_EQ(b.u.s.eingabe[0], 8000);
    EXPECT_EQ(b.zeile(0).wert, "80");
    erwarteMeldung(b, "Korrektur", "Der Wert mußte auf 80 herabgesetzt werden");
}

TEST(Tasten, TeilzeitHoechstensDoppelteNormalstunden) {
    test::Bild b;
    tippen(b, 0, "20");
    tippen(b, 1, "40,01");
    EXPECT_EQ(b.u.s.wert[1], 4000);
    erwarteMeldung(b, "Begrenzung",
                   "Die vereinbarte Stundenzahl mußte auf das doppelte der Normalstundenzahl "
                   "begrenzt werden.");
    b.u.dialoge.vergessen();
    tippen(b, 1, "40");
    EXPECT_TRUE(b.meldungen().empty());
}

TEST(Tasten, ProzentmodusHatEigeneGrenzenOhneDoppeltenTest) {
    test::Bild b;
    b.f.auswahltreffen(21, 1);
    ASSERT_EQ(b.u.s.merkmal[21], 1);
    tippen(b, 0, "100,01");
    EXPECT_EQ(b.u.s.wert[0], 10000);
    erwarteMeldung(b, "Korrektur", "Der Wert mußte auf 100 herabgesetzt werden");
    b.u.dialoge.vergessen();
    tippen(b, 0, "50");
    tippen(b, 1, "150"); // above twice row 0, and no test of it in this mode
    EXPECT_EQ(b.u.s.wert[1], 15000);
    EXPECT_TRUE(b.meldungen().empty());
    tippen(b, 1, "200,01");
    EXPECT_EQ(b.u.s.wert[1], 20000);
    erwarteMeldung(b, "Korrektur", "Der Wert mußte auf 200 herabgesetzt werden");
}

TEST(Tasten, TageHoechstens31UnterDemTitelKorektur) {
    test::Bild b;
    tippen(b, 2, "31,01");
    EXPECT_EQ(b.u.s.wert[2], 3100);
    erwarteMeldung(b, "Korektur", tagetext);
    b.u.dialoge.vergessen();
    tippen(b, 3, "31"); // equal to row 2: passes
    EXPECT_EQ(b.u.s.wert[3], 3100);
    EXPECT_TRUE(b.meldungen().empty());
    tippen(b, 3, "32");
    EXPECT_EQ(b.u.s.wert[3], 3100);
    erwarteMeldung(b, "Korektur", tagetext);
}

TEST(Tasten, BezahlteTageHoechstensDieGesamtzahl) {
    test::Bild b;
    tippen(b, 2, "28");
    tippen(b, 3, "30");
    EXPECT_EQ(b.u.s.wert[3], 2800);
    EXPECT_EQ(b.zeile(3).wert, "28");
    erwarteMeldung(b, "Begrenzung",
                   "Die zu bezahlenden Tage mußten auf die Gesamtzahl der Tage begrenzt werden.");
}

TEST(Tasten, JahressichtVerweigertJedeAenderung) {
    test::Bild b;
    b.laden(1, 12);
    tippen(b, 12, "5");
    erwarteMeldung(b, "Keine Änderung möglich",
                   "Während das JAHRESGEHALT eingestellt ist, können keine Änderungen vorgenommen "
                   "werden. Bitte stellen Sie ein Monatsgehalt ein.");
    EXPECT_EQ(personalsatzlesen(b.u.s, 12, 1).wert[12], 0);
    EXPECT_EQ(personalsatzlesen(b.u.s, 1, 1).wert[12], 0);
}

TEST(Tasten, GesperrtesFeldNimmtKeineTaste) {
    test::Bild b; // civil servant: row 37 is locked
    EXPECT_EQ(b.f.t_KeyPress(37, '5'), 0);
    b.zeile(37).wert = "5";
    b.f.t_KeyPress(37, taste::enter);
    EXPECT_EQ(b.u.s.eingabe[37], 0);
}

TEST(Tasten, KlickZeigtDenHinweisDerZeile) {
    test::Bild b;
    textschreiben(b.u.s, 3390, "Zulage nach Angabe   ");
    b.f.listenfuellen();
    b.f.t_Click(0);
    EXPECT_EQ(b.f.bild.hinweis, "Wochenstunden normal");
    b.f.t_Click(1);
    EXPECT_EQ(b.f.bild.hinweis, "Teilzeit-Wochenstunden");
    b.f.t_Click(2);
    EXPECT_EQ(b.f.bild.hinweis, "Arbeitstage normal");
    b.f.t_Click(3);
    EXPECT_EQ(b.f.bild.hinweis, "Zu bezahlende Arbeitstage");
    b.f.t_Click(5);
    EXPECT_EQ(b.f.bild.hinweis, "Überstundensatz");
    b.f.t_Click(12);
    EXPECT_EQ(b.f.bild.hinweis, "Zulage nach Angabe");
    b.f.t_Click(4); // no hint of its own: the panel keeps what it had
    EXPECT_EQ(b.f.bild.hinweis, "Zulage nach Angabe");
    EXPECT_EQ(b.u.s.aktuellezeile, 4);
}

TEST(Tasten, FokusNimmtDieBlanksHinterDerZahl) {
    test::Bild b;
    b.zeile(12).wert = "12,00+   ";
    b.f.t_GotFocus(12);
    EXPECT_EQ(b.zeile(12).wert, "12,00+");
}

TEST(Tasten, BetragAusDemTextInPfennig) {
    EXPECT_EQ(betragauslesen("1.234,56+"), 123456);
    EXPECT_EQ(betragauslesen("12,5"), 1250);
    EXPECT_EQ(betragauslesen(" 38 "), 3800);
    EXPECT_EQ(betragauslesen(""), 0);
    EXPECT_EQ(betragauslesen("0,005"), 0);  // 0.5 Pfennig: to the even 0
    EXPECT_EQ(betragauslesen("0,015"), 2);  // 1.5 Pfennig: to the even 2
    EXPECT_EQ(betragauslesen("0,0051"), 1); // above the half
    EXPECT_EQ(betragseingabe(3800), "38");
    EXPECT_EQ(betragseingabe(-1205), "12,05");
}

} // namespace lonvir
