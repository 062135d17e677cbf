// The pages that explain a month (6, 8, 29, 35) and the remark card (23), built from the
// engine's working steps and the text table, and their refresh by a run.
#include "core/betragstext.h"
#include "engine/berechnen.h"
#include "engine/monatladen.h"
#include "panels/seiten.h"
#include "panels/tablettanzeige.h"
#include "start/jahressaetze.h"
#include "start/satzzugriff.h"
#include "start/texte.h"
#include "testhilfe.h"

#include <gtest/gtest.h>

namespace lonvir {

namespace {

Form1lage hauptform() {
    Form1lage f;
    f.links = 0;
    f.oben = 0;
    f.breite = 12000;
    f.panel3d2breite = 3600;
    f.panel3d2hoehe = 8000;
    return f;
}

// The captions of the pages as the installation words them, one a step.
void textesetzen(Sitzung& s) {
    for (int i = 0; i <= 27; ++i) {
        textschreiben(s, 3743 + i, "LSt-Schritt " + std::to_string(i));
        textschreiben(s, 3773 + i, "SV-Schritt " + std::to_string(i));
    }
    for (int i = 0; i <= 25; ++i)
        textschreiben(s, 3803 + i, "ZVK-Schritt " + std::to_string(i));
    textschreiben(s, 3812, "Umlagesatz");
    textschreiben(s, 3813, "Stufengrenze");
    textschreiben(s, 3390, "Zulage A");
}

// A BAT employee in the West in January with 4000.00 DM typed in row 12 and a supplementary
// pension rate of 4.5 %; the fund's ceiling 10000 DM, the surcharge ceiling 7000 DM.
void angestellter(Sitzung& s, std::int32_t teilzeitstunden = 3850) {
    Personalsatz p = personalsatzlesen(s, 1, 1);
    p.merkmal[4] = 5;
    p.wert[1] = teilzeitstunden;
    p.wert[12] = 400000;
    p.wert[25] = 450;
    personalsatzschreiben(s, 1, 1, p);
    s.vorgabewert[2] = 7000;
    s.vorgabewert[6] = 10000;
    monatladen(s, 1, 0);
}

void oeffnen(Tablett& t, int seite) {
    t.s.Tablettseite = static_cast<std::int16_t>(seite);
    t.tablettoeffnen();
}

} // namespace

TEST(Seiten, LohnsteuerseiteZeigtLstwertMitDenTextenAb3743) {
    test::Umgebung u;
    textesetzen(u.s);
    angestellter(u.s);
    Form1lage f = hauptform();
    Tablett t(u.s, f);
    oeffnen(t, 29); // sets the width
    oeffnen(t, 6);
    EXPECT_EQ(t.zeile[0].text, textlesen(u.s, 3743));
    EXPECT_TRUE(t.zeile[0].fett);
    for (int i = 1; i <= 27; ++i) {
        EXPECT_EQ(t.zeile[i].text, textlesen(u.s, 3743 + i)) << i;
        EXPECT_TRUE(t.zeile[i].sichtbar) << i;
        if (i != 13) {
            EXPECT_EQ(t.kasten[i].text, betragstext(u.s.lstwert[i])) << i;
            EXPECT_TRUE(t.kasten[i].sichtbar) << i;
        }
    }
    // 13 heads the one-off part and bears no amount.
    EXPECT_FALSE(t.kasten[13].sichtbar);
    // Gross 4000.00 DM; taxable: the gross plus the pension contribution taxed individually:
    // the contribution 4.5 % of 4000.00 = 180.00, of which 175.00 are lump-taxed, so 5.00 DM.
    EXPECT_EQ(t.kasten[1].text, "4.000,00+");
    EXPECT_EQ(t.kasten[7].text, "4.005,00+");
    EXPECT_EQ(t.zeile[1].text.substr(0, 13), "LSt-Schritt 1");
    // Rows at a pitch of 240 from 150; the cells at the right edge of the 3600 twips.
    EXPECT_EQ(t.zeile[2].lage.oben, 630);
    EXPECT_EQ(t.kasten[2].lage.links, 3600 - 1100 - 100);
}

TEST(Seiten, SozialversicherungsseiteZeigtSvwertMitDenTextenAb3773) {
    test::Umgebung u;
    textesetzen(u.s);
    angestellter(u.s);
    Form1lage f = hauptform();
    Tablett t(u.s, f);
    oeffnen(t, 29);
    EXPECT_EQ(t.zeile[0].text, "S O Z I A L V E R S I C H E R U N G");
    for (int i = 1; i <= 27; ++i) {
        EXPECT_EQ(t.zeile[i].text, textlesen(u.s, 3773 + i)) << i;
        EXPECT_EQ(t.kasten[i].text, betragstext(u.s.svwert[i])) << i;
    }
    // Insured wage: 4000.00 gross plus the pension part subject to insurance: of the
    // limit 388 889 Pfennig (175.00 / 4.5 %) 2.5 % less the free 26.00 DM is 71.22, and the
    // individually taxed 5.00 DM: 4076.22.
    EXPECT_EQ(t.kasten[4].text, "76,22+");
    EXPECT_EQ(t.kasten[6].text, "4.076,22+");
    EXPECT_TRUE(t.Command3.sichtbar);
    EXPECT_EQ(t.Command3.text, "Hilfe");
}

TEST(Seiten, ZusatzversorgungsseiteZeigtZvkwertMitSatzUndStufengrenze) {
    test::Umgebung u;
    textesetzen(u.s);
    angestellter(u.s);
    Form1lage f = hauptform();
    Tablett t(u.s, f);
    oeffnen(t, 8);
    EXPECT_EQ(t.zeile[0].text, "Z U S A T Z V E R S O R G U N G");
    for (int i = 1; i <= 25; ++i) {
        if (i != 9 && i != 10) {
            EXPECT_EQ(t.zeile[i].text, textlesen(u.s, 3803 + i)) << i;
        }
        EXPECT_EQ(t.kasten[i].text, betragstext(u.s.zvkwert[i])) << i;
    }
    EXPECT_FALSE(t.zeile[26].sichtbar);
    // The caption is the 35-character record as it stands, with the rate or ceiling behind.
    EXPECT_EQ(t.zeile[9].text, textlesen(u.s, 3812) + "  (4,5 %)");
    EXPECT_EQ(t.zeile[10].text, textlesen(u.s, 3813) + "7000 DM,");
    // 4.5 % of 4000.00 DM.
    EXPECT_EQ(t.kasten[8].text, "180,00+");
}

TEST(Seiten, UmlageseiteFuerBeamte) {
    test::Umgebung u;
    textesetzen(u.s);
    Personalsatz p = personalsatzlesen(u.s, 1, 1);
    p.merkmal[4] = 0;
    p.wert[12] = 300000;
    p.wert[25] = 800; // 8 %
    p.zvk[13] = 0;
    p.wert[13] = 5000;
    personalsatzschreiben(u.s, 1, 1, p);
    monatladen(u.s, 1, 0);
    Form1lage f = hauptform();
    Tablett t(u.s, f);
    oeffnen(t, 8);
    EXPECT_EQ(t.zeile[0].text, "U M L A G E   F Ü R   D I E");
    EXPECT_EQ(t.zeile[1].text, "B E A M T E N V E R S O R G U N G");
    // Row 12 stands in caption 7: 8 % of 3000.00 DM is 240.00 DM.
    EXPECT_EQ(t.zeile[7].text, "Zulage A x 0,080");
    EXPECT_EQ(t.kasten[7].text, "240,00+");
    EXPECT_EQ(t.umlagewert[12], 24000);
    // Row 13 (its list at entry 19, which the test's text table leaves blank) without the
    // switch: the levy 0 and "0,000 x ".
    EXPECT_EQ(t.zeile[8].text, "Zulage0,000 x ");
    EXPECT_EQ(t.kasten[8].text, "0,00+");
    // Rows 15 to 20 keep the filler; the total is the engine's row 31.
    EXPECT_EQ(t.zeile[17].text, punktzeile);
    EXPECT_EQ(t.zeile[22].text, "GESAMTUMLAGE");
    EXPECT_EQ(u.s.wert[31], 24000);
    EXPECT_EQ(t.kasten[22].text, "240,00+");
}

TEST(Seiten, TeilzeitseiteMitHalberStelle) {
    test::Umgebung u;
    textesetzen(u.s);
    angestellter(u.s, 1925); // 19.25 of 38.5 hours: factor 0.5
    Form1lage f = hauptform();
    Tablett t(u.s, f);
    oeffnen(t, 35);
    EXPECT_EQ(t.zeile[0].text, "T E I L Z E I T G E H A L T");
    EXPECT_EQ(t.zeile[1].text, "Ortszuschlag x 0,5      ");
    EXPECT_EQ(t.kasten[1].text, "0,00+");
    // Row 7 comes next, then 9, 10, 11, then row 12 in place 6.
    EXPECT_EQ(t.zeile[2].text, "Grundgehalt x 0,5      ");
    EXPECT_EQ(t.zeile[6].text, "Zulage A x 0,5      ");
    EXPECT_EQ(t.kasten[6].text, "2.000,00+");
    // Rows 7, 9 to 19 are twelve rows in places 2 to 13: the filler in 14, the total in 15.
    EXPECT_EQ(t.zeile[13].text.substr(0, 13), "Einmalzahlung");
    EXPECT_EQ(t.zeile[14].text, punktzeile);
    EXPECT_EQ(t.zeile[15].text, "TEILZEITGEHALT BRUTTO");
    EXPECT_EQ(t.kasten[15].text, "2.000,00+");
    EXPECT_EQ(t.kasten[15].text, betragstext(u.s.wert[21]));
}

TEST(Seiten, TeilzeitseiteMitOrtszuschlagDesEhegatten) {
    test::Umgebung u;
    Form1lage f = hauptform();
    Tablett t(u.s, f);
    Sitzung& s = u.s;
    s.merkmal[4] = 5;
    s.teilzeitfaktor = 0.5f;
    s.oz_sonder = 1;
    s.wert[8] = 80000;
    s.tarifwert[15] = 60000;
    s.tei.fuellen(0);
    s.wert[21] = 50000;
    oeffnen(t, 35);
    EXPECT_EQ(t.zeile[1].text, "Berechnung des Ortszuschlags nach § 29 (5) u. (6) BAT:");
    EXPECT_FALSE(t.kasten[1].sichtbar);
    EXPECT_EQ(t.zeile[2].text, "Ortszuschlag bei Vollzeit ");
    EXPECT_EQ(t.kasten[2].text, "800,00+");
    EXPECT_EQ(t.zeile[3].text, "- Grundbetrag Stufe 1");
    EXPECT_EQ(t.kasten[3].text, "600,00-");
    EXPECT_EQ(t.zeile[4].text, "  Grundbetrag Stufe 10,5      ");
    EXPECT_EQ(t.kasten[4].text, "300,00+");
    EXPECT_EQ(t.zeile[5].text, "= Ortszuschlag bei ");
    // 800 - 600 + 300.
    EXPECT_EQ(t.zeile[6].text, "  Teilzeit");
    EXPECT_EQ(t.kasten[6].text, "500,00+");
    EXPECT_EQ(t.zeile[7].text, "Ortszuschlag lt.obiger Berrechnung");
    EXPECT_EQ(t.kasten[7].text, "500,00+");
    // Without tei the rows go at "1,000 x ".
    EXPECT_EQ(t.zeile[8].text, "Grundgehalt1,000 x ");
}

TEST(Seiten, BemerkungskarteZeigtUndSpeichertDieSechzehnFelder) {
    test::Umgebung u;
    Sitzung& s = u.s;
    textschreiben(s, 4093, "Geburtsdatum");
    Jahressatz karte;
    karte.setzen(0, "01.02.1960");
    karte.setzen(12, "Hauptstraße 1");
    jahressatzschreiben(s, 2, karte);
    s.aktuelleperson = 2;
    Form1lage f = hauptform();
    MerkHilfe hilfe;
    Tablett t(s, f, &hilfe);
    oeffnen(t, 23);
    EXPECT_EQ(t.zeile[0].text.substr(0, 12), "Geburtsdatum");
    EXPECT_EQ(t.Text[0].text, karte.text(0));
    EXPECT_EQ(t.Text[12].text.substr(0, 14), "Hauptstraße 1");
    EXPECT_EQ(t.Text[0].schrift, "small fonts");
    EXPECT_TRUE(t.Text[15].sichtbar);
    EXPECT_FALSE(t.Text[16].sichtbar);
    // Row 1 at 150 + 390: its caption 30 lower, its box 170 lower.
    EXPECT_EQ(t.zeile[1].lage.oben, 570);
    EXPECT_EQ(t.Text[1].lage.oben, 710);
    EXPECT_EQ(t.Command1.text, "Speichern");
    EXPECT_TRUE(t.Command1.sichtbar);
    EXPECT_EQ(t.fokus, (Tablettfokus{Tablettfokusart::text, 0}));

    // 41 characters into a 40-character field are stored cut after 40.
    t.Text[3].text = std::string(40, 'x') + "y";
    t.Command1_Click();
    const Jahressatz gespeichert = jahressatzlesen(s, 2);
    EXPECT_EQ(gespeichert.text(3), std::string(40, 'x'));
    EXPECT_EQ(gespeichert.text(12).substr(0, 14), "Hauptstraße 1");
    EXPECT_EQ(jahressatzlesen(s, 1), Jahressatz());
    t.Command3_Click();
    EXPECT_EQ(hilfe.kontexte, (std::vector<int>{90000}));
}

TEST(Seiten, EinLaufFrischtDieSeiten6Und8AufAberNicht29) {
    test::Umgebung u;
    textesetzen(u.s);
    angestellter(u.s);
    Form1lage f = hauptform();
    Tablett t(u.s, f);
    Tablettanzeige anzeige(t, nullptr);
    u.s.anzeige = &anzeige;
    oeffnen(t, 6);
    ASSERT_EQ(t.kasten[1].text, "4.000,00+");
    u.s.eingabe[12] = 500000;
    u.s.aenderungscode = 12;
    berechnen(u.s);
    EXPECT_EQ(t.kasten[1].text, "5.000,00+");

    oeffnen(t, 8);
    u.s.eingabe[12] = 200000;
    berechnen(u.s);
    EXPECT_EQ(t.kasten[8].text, "90,00+"); // 4.5 % of 2000.00 DM

    oeffnen(t, 29);
    ASSERT_EQ(t.kasten[1].text, "2.000,00+");
    u.s.eingabe[12] = 300000;
    berechnen(u.s);
    EXPECT_EQ(u.s.svwert[1], 300000);
    EXPECT_EQ(t.kasten[1].text, "2.000,00+");
    u.s.anzeige = nullptr;
}

// A run refreshes an open page 8 with the builders of the supplementary pension, whatever
// the staff class: a civil servant's levy page then gives way to them until it is opened again.
TEST(Seiten, EinLaufFrischtSeite8MitDenZvkBauernAufAuchBeiBeamten) {
    test::Umgebung u;
    textesetzen(u.s);
    Personalsatz p = personalsatzlesen(u.s, 1, 1);
    p.merkmal[4] = 0;
    p.wert[12] = 300000;
    personalsatzschreiben(u.s, 1, 1, p);
    monatladen(u.s, 1, 0);
    Form1lage f = hauptform();
    Tablett t(u.s, f);
    Tablettanzeige anzeige(t, nullptr);
    u.s.anzeige = &anzeige;
    oeffnen(t, 8);
    ASSERT_EQ(t.zeile[0].text, "U M L A G E   F Ü R   D I E");
    u.s.aenderungscode = 12;
    berechnen(u.s);
    EXPECT_EQ(t.zeile[0].text, "Z U S A T Z V E R S O R G U N G");
    EXPECT_EQ(t.zeile[3].text, textlesen(u.s, 3806));
    oeffnen(t, 8);
    EXPECT_EQ(t.zeile[0].text, "U M L A G E   F Ü R   D I E");
    u.s.anzeige = nullptr;
}

TEST(Seiten, DieSozialversicherungsbauerStehenUnterSeite7) {
    test::Umgebung u;
    textesetzen(u.s);
    angestellter(u.s);
    Form1lage f = hauptform();
    Tablett t(u.s, f);
    Tablettanzeige anzeige(t, nullptr);
    u.s.anzeige = &anzeige;
    oeffnen(t, 7);
    EXPECT_FALSE(t.kasten[1].sichtbar); // page 7 itself builds nothing
    u.s.aenderungscode = 12;
    berechnen(u.s);
    EXPECT_EQ(t.zeile[0].text, "S O Z I A L V E R S I C H E R U N G");
    EXPECT_EQ(t.kasten[6].text, "4.076,22+");
    u.s.anzeige = nullptr;
}

} // namespace lonvir
