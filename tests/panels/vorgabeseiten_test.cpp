// The settings pages 63, 64, 65, 44, 61 and 2: their lists, their keys, what "Speichern"
// writes into the year's settings record, and the figures that follow at once.
#include "engine/monatladen.h"
#include "panels/vorgabeseiten.h"
#include "start/einstellungen.h"
#include "start/satzzugriff.h"
#include "start/texte.h"
#include "testhilfe.h"

#include <gtest/gtest.h>

namespace lonvir {

namespace {

Form1lage hauptform() {
    Form1lage f;
    f.breite = 12000;
    f.panel3d2breite = 4800;
    f.panel3d2hoehe = 9000;
    return f;
}

void oeffnen(Tablett& t, int seite) {
    t.s.Tablettseite = static_cast<std::int16_t>(seite);
    t.tablettoeffnen();
}

// Types `text` key by key into Text(index) as the box takes it, then Enter.
void tippen(Tablett& t, int index, const std::string& text) {
    t.Text[index].text.clear();
    for (const unsigned char c : text) {
        const int taste = t.text_KeyPress(index, c);
        if (taste != 0)
            t.Text[index].text.push_back(static_cast<char>(taste));
    }
    t.text_KeyPress(index, 13);
}

std::int64_t le64(const std::string& b, std::size_t ab) {
    std::uint64_t v = 0;
    for (int i = 7; i >= 0; --i)
        v = v << 8 | static_cast<std::uint8_t>(b[ab + static_cast<std::size_t>(i)]);
    return static_cast<std::int64_t>(v);
}

std::int32_t le32(const std::string& b, std::size_t ab) {
    std::uint32_t v = 0;
    for (int i = 3; i >= 0; --i)
        v = v << 8 | static_cast<std::uint8_t>(b[ab + static_cast<std::size_t>(i)]);
    return static_cast<std::int32_t>(v);
}

// voreinstellung(i) of record `satz` of Lonvir97.voe, raw 1/10000.
std::int64_t voeroh(const test::Umgebung& u, int i, int satz = 1) {
    const std::string b = test::dateiinhalt(u.ordner.pfad(), "Lonvir97.voe");
    return le64(b, static_cast<std::size_t>((satz - 1) * 648 + 260 + 8 * i));
}

std::int32_t vorgabewertgespeichert(const test::Umgebung& u, int j) {
    const std::string b = test::dateiinhalt(u.ordner.pfad(), "Lonvir97.voe");
    return le32(b, static_cast<std::size_t>(588 + 4 * j));
}

// A BAT employee in the West (staff class 5) with 4000.00 DM typed in row 12 in every
// month, person 1; the insurance rows on their first entries.
void angestellter(Sitzung& s) {
    for (int monat = 1; monat <= 12; ++monat) {
        Personalsatz p = personalsatzlesen(s, monat, 1);
        p.merkmal[4] = 5;
        p.wert[12] = 400000;
        for (int i = 7; i <= 19; ++i) {
            p.lst[i] = 1;
            p.soz[i] = 1;
        }
        personalsatzschreiben(s, monat, 1, p);
    }
    monatladen(s, 1, 0);
}

} // namespace

TEST(Seite63, ListenNachIhrerRegel) {
    const std::vector<std::string> kv = sozvorgabenliste(0);
    ASSERT_EQ(kv.size(), 42u);
    EXPECT_EQ(kv[0], "aus");
    EXPECT_EQ(kv[1], "12,0 % / 2");
    EXPECT_EQ(kv[15], "13,4 % / 2");
    EXPECT_EQ(kv[41], "16,0 % / 2");
    EXPECT_EQ(sozvorgabenliste(1),
              (std::vector<std::string>{"1,5 % / 2", "1,6 % / 2", "1,7 % / 2", "1,8 % / 2",
                                        "1,9 % / 2", "2,0 % / 2"}));
    EXPECT_EQ(sozvorgabenliste(2).front(), "19,5 % / 2");
    EXPECT_EQ(sozvorgabenliste(2).back(), "20,5 % / 2");
    EXPECT_EQ(sozvorgabenliste(3).front(), "6,0 % / 2");
    EXPECT_EQ(sozvorgabenliste(3).size(), 11u);
    EXPECT_EQ(sozvorgabenliste(4).front(), "6000 DM");
    EXPECT_EQ(sozvorgabenliste(4).back(), "6500 DM");
    EXPECT_EQ(sozvorgabenliste(7).back(), "8500 DM");
    EXPECT_EQ(sozvorgabenliste(8).size(), 11u);
    EXPECT_EQ(sozvorgabenliste(9).size(), 13u); // 5300 to 5600 in steps of 25
    EXPECT_EQ(sozvorgabenliste(10)[1], "5325 DM");
    EXPECT_EQ(sozvorgabenliste(12).back(), "7500 DM");
    // The limit of marginal employment in the Ost runs as the one of the West: 11 entries.
    EXPECT_EQ(sozvorgabenliste(13).front(), "500 DM");
    EXPECT_EQ(sozvorgabenliste(13).back(), "600 DM");
}

TEST(Seite63, ZeigtDieGespeichertenPositionen) {
    test::Umgebung u;
    u.s.voreinstellung[2] = Currency::ganz(8);
    u.s.voreinstellung[9] = Currency::ganz(-2); // below its list: no entry shown
    Form1lage f = hauptform();
    Tablett t(u.s, f);
    oeffnen(t, 63);
    EXPECT_EQ(t.zeile[0].text, "Vorgaben für die Soz.Vers.");
    EXPECT_EQ(t.zeile[1].text, "im Jahr 1997");
    EXPECT_EQ(t.zeile[2].text, "       Beitragssätze     BMG-West        BMG-Ost");
    EXPECT_EQ(t.zeile[7].text, "Geringfüg.Grenze");
    EXPECT_EQ(t.Combo[2].position, 8);
    EXPECT_EQ(t.Combo[2].liste[8], "20,3 % / 2");
    EXPECT_EQ(t.Combo[9].position, -1);
    for (int i = 0; i <= 13; ++i)
        EXPECT_TRUE(t.Combo[i].sichtbar) << i;
    EXPECT_EQ(t.Command1.text, "Speichern");
    EXPECT_EQ(t.Command2.text, "Abbrechen");
}

TEST(Seite63, PositionNullIstAusOhneKvSatz) {
    test::Umgebung u;
    u.s.voreinstellung[0] = Currency::ganz(15);
    voeschreiben(u.s);
    Form1lage f = hauptform();
    Tablett t(u.s, f);
    oeffnen(t, 63);
    t.Combo[0].position = 0;
    t.Command1_Click();
    // "aus" is stored as position 0: eight zero bytes at offset 260; nothing is derived from it.
    EXPECT_EQ(voeroh(u, 0), 0);
    EXPECT_EQ(t.Combo[0].liste[0], "aus");
    EXPECT_FALSE(t.sichtbar);
    EXPECT_TRUE(f.panel3d2sichtbar);
}

TEST(Seite63, EinAndererRvSatzAendertDieGespeichertenMonate) {
    test::Umgebung u;
    angestellter(u.s);
    // Empty settings: RV (0/10 + 19.5) / 2 = 9.75 %; 4000.00 DM x 9.75 % = 390.00 DM.
    EXPECT_EQ(personalsatzlesen(u.s, 1, 1).wert[39], -39000);
    const std::int32_t auszahlung = personalsatzlesen(u.s, 1, 1).wert[45];
    Form1lage f = hauptform();
    Tablett t(u.s, f);
    oeffnen(t, 63);
    t.Combo[2].position = 1; // "19,6 % / 2": 9.8 %
    t.Command1_Click();
    EXPECT_EQ(voeroh(u, 2), 10000);
    EXPECT_EQ(u.s.einstellungen.rvsatz, Currency::roh(98000));
    // 4000.00 DM x 9.8 % = 392.00 DM: 2.00 DM more than before, and 2.00 DM less paid out.
    // July adds the Urlaubsgeld of 500.00 DM in row 17: 4500.00 DM x 9.8 % = 441.00 DM.
    for (int monat = 1; monat <= 12; ++monat)
        EXPECT_EQ(personalsatzlesen(u.s, monat, 1).wert[39], monat == 7 ? -44100 : -39200) << monat;
    EXPECT_EQ(personalsatzlesen(u.s, 1, 1).wert[45], auszahlung - 200);
    EXPECT_EQ(personalsatzlesen(u.s, 3, 1).wert[45], auszahlung - 200);
    // The screen stands on the new figure at once.
    EXPECT_EQ(u.s.wert[39], -39200);
}

TEST(Seite63, EineLeereListeBehaeltDenGespeichertenSchritt) {
    test::Umgebung u;
    u.s.voreinstellung[9] = Currency::ganz(-2);
    Form1lage f = hauptform();
    Tablett t(u.s, f);
    oeffnen(t, 63);
    t.Command1_Click();
    EXPECT_EQ(voeroh(u, 9), -20000);
    EXPECT_EQ(u.s.einstellungen.bmgKvOst, 525000);
}

TEST(Seite63, SpeichernIn1998LaesstDen1997erSatzStehen) {
    test::Umgebung u(1998);
    Form1lage f = hauptform();
    Tablett t(u.s, f);
    oeffnen(t, 63);
    t.Combo[4].position = 6;
    t.Command1_Click();
    EXPECT_EQ(voeroh(u, 4, 2), 60000);
    EXPECT_EQ(voeroh(u, 4, 1), 0);
    EXPECT_EQ(u.s.einstellungen.bmgKvWest, 630000);
}

TEST(Seite63, AbbrechenSchreibtNichts) {
    test::Umgebung u;
    voeschreiben(u.s);
    const std::string vorher = test::dateiinhalt(u.ordner.pfad(), "Lonvir97.voe");
    Form1lage f = hauptform();
    Tablett t(u.s, f);
    oeffnen(t, 63);
    t.Combo[2].position = 5;
    t.command2_Click();
    EXPECT_EQ(test::dateiinhalt(u.ordner.pfad(), "Lonvir97.voe"), vorher);
    EXPECT_FALSE(t.sichtbar);
}

TEST(Seite64, TastenUndFokus) {
    test::Umgebung u;
    Form1lage f = hauptform();
    Tablett t(u.s, f);
    oeffnen(t, 64);
    EXPECT_EQ(t.text_KeyPress(0, ','), '.');
    EXPECT_EQ(t.text_KeyPress(0, '.'), '.');
    EXPECT_EQ(t.text_KeyPress(0, '7'), '7');
    EXPECT_EQ(t.text_KeyPress(0, '-'), 0);
    EXPECT_EQ(t.text_KeyPress(0, '/'), 0);
    EXPECT_EQ(t.text_KeyPress(0, ' '), 0);
    EXPECT_EQ(t.text_KeyPress(0, 'a'), 0);
    EXPECT_EQ(t.text_KeyPress(0, 8), 8); // the back key edits
    t.text_KeyPress(0, 13);
    EXPECT_EQ(t.fokus, (Tablettfokus{Tablettfokusart::text, 1}));
    t.text_KeyPress(3, 13);
    EXPECT_EQ(t.fokus, (Tablettfokus{Tablettfokusart::knopf, 1}));
}

TEST(Seite64, QuotenBis100UndDarueberStill100) {
    test::Umgebung u;
    Form1lage f = hauptform();
    Tablett t(u.s, f);
    oeffnen(t, 64);
    EXPECT_EQ(t.zeile[17].text, "Beamte");
    EXPECT_EQ(t.zeile[18].text, "Angest.");
    tippen(t, 0, "100");
    tippen(t, 1, "100,5");
    tippen(t, 2, "93,78");
    tippen(t, 3, "");
    t.Command1_Click();
    EXPECT_EQ(voeroh(u, 30), 1000000); // exactly 100 stays
    EXPECT_EQ(voeroh(u, 31), 1000000); // 100.5 becomes 100 without a word
    EXPECT_EQ(voeroh(u, 32), 937800);
    EXPECT_EQ(voeroh(u, 33), 0); // nothing typed reads as 0
    EXPECT_TRUE(u.dialoge.gezeigt().empty());
    EXPECT_EQ(u.s.einstellungen.zuwendungsquote[2], Currency::roh(937800));
    EXPECT_FALSE(t.sichtbar);
}

TEST(Seite64, ZeigtDieGespeichertenQuoten) {
    test::Umgebung u;
    u.s.voreinstellung[32] = Currency::roh(937800);
    Form1lage f = hauptform();
    Tablett t(u.s, f);
    oeffnen(t, 64);
    EXPECT_EQ(t.Text[2].text, "93.78");
    EXPECT_EQ(t.Text[0].text, "0");
}

TEST(Seite65, ListenUndKopf) {
    test::Umgebung u;
    textschreiben(u.s, 3555, "Zusatzversorgung VBL");
    textschreiben(u.s, 3556, "Zusatzversorgung kommunal");
    Form1lage f = hauptform();
    Tablett t(u.s, f);
    oeffnen(t, 65);
    EXPECT_EQ(t.zeile[0].text, "Zusatzversorgungskasse");
    EXPECT_EQ(t.zeile[1].text, "im Jahr 1997");
    EXPECT_EQ(t.zeile[10].text, "ab  1 / 1997 West");
    EXPECT_EQ(t.Combo[0].liste,
              (std::vector<std::string>{"Zusatzversorgung VBL", "Zusatzversorgung kommunal"}));
    EXPECT_EQ(t.Combo[1].liste[1], "ZVK-Verst.anfangs voll bis Limit erreicht");
    ASSERT_EQ(t.Combo[2].liste.size(), 11u);
    EXPECT_EQ(t.Combo[2].liste[9], "Ki.Steuer f.ZVK-Pauschbest. 9 %");
}

TEST(Seite65, EnterKopiertDenBetragImBlockNachUnten) {
    test::Umgebung u;
    Form1lage f = hauptform();
    Tablett t(u.s, f);
    oeffnen(t, 65);
    tippen(t, 0, "20000");
    for (int i = 1; i <= 3; ++i)
        EXPECT_EQ(t.Text[i].text, "20000") << i;
    EXPECT_EQ(t.Text[4].text, "0");
    EXPECT_EQ(t.fokus, (Tablettfokus{Tablettfokusart::knopf, 1}));
    tippen(t, 6, "1500");
    EXPECT_EQ(t.Text[5].text, "0");
    EXPECT_EQ(t.Text[7].text, "1500");
    EXPECT_EQ(t.Text[8].text, "1500");
    EXPECT_EQ(t.Text[9].text, "0");
    tippen(t, 3, "300");
    EXPECT_EQ(t.Text[4].text, "0"); // Text(3) copies nothing
    tippen(t, 8, "400");
    EXPECT_EQ(t.Text[9].text, "0");
    t.Command1_Click();
    // Exactly 20000 passes at Enter and at the store.
    EXPECT_EQ(vorgabewertgespeichert(u, 2), 20000);
    EXPECT_EQ(vorgabewertgespeichert(u, 4), 20000);
    EXPECT_EQ(vorgabewertgespeichert(u, 5), 300);
    EXPECT_EQ(vorgabewertgespeichert(u, 8), 1500);
    EXPECT_EQ(vorgabewertgespeichert(u, 10), 400);
    EXPECT_EQ(vorgabewertgespeichert(u, 11), 0);
    EXPECT_TRUE(u.dialoge.gezeigt().empty());
}

TEST(Seite65, UeberZwanzigtausendBeiEnterLeertDasFeldUndSpeichertNichts) {
    test::Umgebung u;
    voeschreiben(u.s);
    const std::string vorher = test::dateiinhalt(u.ordner.pfad(), "Lonvir97.voe");
    Form1lage f = hauptform();
    Tablett t(u.s, f);
    oeffnen(t, 65);
    t.text_GotFocus(0);
    tippen(t, 0, "20000,01");
    ASSERT_EQ(u.dialoge.gezeigt().size(), 1u);
    EXPECT_EQ(u.dialoge.gezeigt()[0].titel, "Fehler");
    EXPECT_EQ(u.dialoge.gezeigt()[0].text, "Ein Betrag über 20.000 ist sicher falsch.");
    EXPECT_EQ(t.Text[0].text, "");
    EXPECT_EQ(t.Text[1].text, "0"); // nothing else happens
    EXPECT_EQ(t.fokus, (Tablettfokus{Tablettfokusart::text, 0}));
    EXPECT_EQ(test::dateiinhalt(u.ordner.pfad(), "Lonvir97.voe"), vorher);
}

TEST(Seite65, UeberZwanzigtausendBeimSpeichernWird20000) {
    test::Umgebung u;
    Form1lage f = hauptform();
    Tablett t(u.s, f);
    oeffnen(t, 65);
    t.Text[4].text = "25000";
    t.Combo[2].position = 9;
    t.Command1_Click();
    ASSERT_EQ(u.dialoge.gezeigt().size(), 1u);
    EXPECT_EQ(u.dialoge.gezeigt()[0].titel, "Eingriff");
    EXPECT_EQ(u.dialoge.gezeigt()[0].text,
              "Ein Betrag war zu groß und wurde auf 20.000 zurückgesetzt.");
    EXPECT_EQ(vorgabewertgespeichert(u, 6), 20000);
    EXPECT_EQ(voeroh(u, 28), 90000);
    EXPECT_EQ(u.s.einstellungen.kirchenpausch, 9);
}

TEST(Seite44, SpeichertDieTarifmonateUndDieMultiplikatoren) {
    test::Umgebung u;
    Form1lage f = hauptform();
    Tablett t(u.s, f);
    oeffnen(t, 44);
    EXPECT_EQ(t.zeile[0].text, "Einsatz der Tariftabellen");
    EXPECT_EQ(t.Combo[1].liste.size(), 52u);
    EXPECT_EQ(t.Combo[1].liste[25], "Beamtengehälter x 1,025");
    EXPECT_EQ(t.Combo[3].liste[51], "Angestelltengehälter x 1,051");
    EXPECT_EQ(t.Combo[2].liste[2], "Multiplikator anwenden ab 3/1997");
    EXPECT_EQ(t.Combo[5].liste[0], ".1er Tarife ab 1/1997");
    ASSERT_EQ(t.Combo[6].liste.size(), 13u);
    EXPECT_EQ(t.Combo[6].liste[0], ".2er Tarife inaktiv 1997");
    EXPECT_EQ(t.Combo[8].liste[9], ".4er Tarife ab 9/1997");
    t.Combo[1].position = 13;
    t.Combo[6].position = 3;
    t.Combo[7].position = 7;
    t.Command1_Click();
    EXPECT_EQ(voeroh(u, 18), 130000);
    EXPECT_EQ(voeroh(u, 23), 30000);
    EXPECT_EQ(voeroh(u, 24), 70000);
    EXPECT_EQ(u.s.einstellungen.multiplikatorBeamte, Currency::roh(10130));
    EXPECT_EQ(u.s.einstellungen.ab_tarif2, 3);
    EXPECT_TRUE(t.gespeichert);
    t.Form_Unload();
    EXPECT_TRUE(u.dialoge.gezeigt().empty());
}

TEST(Seite44, VerlassenOhneSpeichernWarnt) {
    test::Umgebung u;
    Form1lage f = hauptform();
    Tablett t(u.s, f);
    t.Form_Load();
    oeffnen(t, 44);
    t.Form_Unload();
    ASSERT_EQ(u.dialoge.gezeigt().size(), 1u);
    EXPECT_EQ(u.dialoge.gezeigt()[0].titel, "Kein Speichern");
}

TEST(Seite61, ErsteGleichLetzteMarkiertEinenDatensatz) {
    test::Umgebung u;
    Form1lage f = hauptform();
    Tablett t(u.s, f);
    std::pair<int, int> modus{0, 0};
    t.voreinstellmodus = [&](int von, int bis) { modus = {von, bis}; };
    oeffnen(t, 61);
    EXPECT_EQ(t.Command1.text, "Markieren");
    EXPECT_EQ(t.Command1.lage, (Lage{100, 5500, 1500, 400}));
    EXPECT_EQ(t.Command2.lage, (Lage{1800, 5500, 1500, 400}));
    EXPECT_EQ(t.Command1.schriftgroesse, 10);
    EXPECT_EQ(t.zeile[1].lage.oben - t.zeile[0].lage.oben, 240);
    tippen(t, 1, "5");
    EXPECT_EQ(t.fokus, (Tablettfokus{Tablettfokusart::text, 2}));
    tippen(t, 2, "5");
    EXPECT_EQ(t.fokus, (Tablettfokus{Tablettfokusart::knopf, 1}));
    t.Command1_Click();
    EXPECT_EQ(modus, std::make_pair(5, 5));
    EXPECT_EQ(t.markierbereich, std::make_pair(5, 5));
    EXPECT_FALSE(t.sichtbar);
}

TEST(Seite61, NurZiffern) {
    test::Umgebung u;
    Form1lage f = hauptform();
    Tablett t(u.s, f);
    oeffnen(t, 61);
    tippen(t, 1, "1a2,3-");
    EXPECT_EQ(t.Text[1].text, "123");
}

TEST(Seite61, UeberTausendWirdTausendUndDieSeiteBleibt) {
    test::Umgebung u;
    Form1lage f = hauptform();
    Tablett t(u.s, f);
    oeffnen(t, 61);
    t.Text[1].text = "1200";
    t.Text[2].text = "1500";
    t.Command1_Click();
    ASSERT_EQ(u.dialoge.gezeigt().size(), 1u);
    EXPECT_EQ(u.dialoge.gezeigt()[0].titel, "Leistungsbeschränkung");
    EXPECT_EQ(u.dialoge.gezeigt()[0].text, "Es können maximal 1000 Datensätze bearbeitet werden.");
    EXPECT_EQ(t.Text[2].text, "1000");
    EXPECT_EQ(t.Text[1].text, "1000");
    EXPECT_TRUE(t.sichtbar);
    EXPECT_FALSE(t.markierbereich);
}

TEST(Seite61, ErsteUeberLetzterIstUnlogisch) {
    test::Umgebung u;
    Form1lage f = hauptform();
    Tablett t(u.s, f);
    oeffnen(t, 61);
    t.Text[1].text = "9";
    t.Text[2].text = "3";
    t.Command1_Click();
    ASSERT_EQ(u.dialoge.gezeigt().size(), 1u);
    EXPECT_EQ(u.dialoge.gezeigt()[0].titel, "Unlogische Eingabe");
    EXPECT_EQ(u.dialoge.gezeigt()[0].text, "Bitte korrigieren Sie Ihre Eingabe");
    EXPECT_TRUE(t.sichtbar);
    EXPECT_FALSE(t.markierbereich);
}

TEST(Seite2, SperreEinUndAusWirdSofortGeschrieben) {
    test::Umgebung u;
    Form1lage f = hauptform();
    Tablett t(u.s, f);
    oeffnen(t, 2);
    EXPECT_EQ(t.zeile[0].text, "Eine Paßwrteingabe besteht aus");
    EXPECT_EQ(t.Combo[0].liste,
              (std::vector<std::string>{"Passwortprüfung aus", "Passwortprüfung ein"}));
    EXPECT_EQ(t.Combo[0].position, 0);
    EXPECT_EQ(t.Command2.text, "Schließen");
    EXPECT_EQ(t.Command3.text, "Passwort ändern");
    t.Combo[0].position = 1;
    t.combo_Click(0);
    // passwortart at offset 204 of Lonvir97.dim: Currency 1.0000.
    const std::string dim = test::dateiinhalt(u.ordner.pfad(), "Lonvir97.dim");
    EXPECT_EQ(le64(dim, 204), 10000);
    t.Combo[0].position = 0;
    t.combo_Click(0);
    EXPECT_EQ(le64(test::dateiinhalt(u.ordner.pfad(), "Lonvir97.dim"), 204), 0);
}

TEST(Seite2, PasswortAendernFuehrtZuSeite70) {
    test::Umgebung u;
    Form1lage f = hauptform();
    Tablett t(u.s, f);
    oeffnen(t, 2);
    t.Command3_Click();
    EXPECT_EQ(u.s.Tablettseite, 70);
    EXPECT_TRUE(t.passwortverlangt);
}

} // namespace lonvir
