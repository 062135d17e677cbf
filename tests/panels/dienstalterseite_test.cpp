// Page 42, the service-age worksheet: the date rules worked out by hand, the key filter of
// the date and month fields, the age step of the BAT, "Übertrag" and "Drucken".
#include "panels/dienstalterseite.h"

#include "core/hilfe.h"
#include "screen/form1.h"
#include "start/satzzugriff.h"
#include "testhilfe.h"

#include <gtest/gtest.h>

namespace lonvir {

namespace {

struct Seite42 {
    // Staff class, pay group, West (0) or Ost (1); the page opened as a caller storing 42 does.
    explicit Seite42(int art = 0, int gruppe = 11, int ost = 0) {
        u.s.merkmal[4] = static_cast<std::int16_t>(art);
        u.s.merkmal[5] = static_cast<std::int16_t>(gruppe);
        u.s.merkmal[2] = static_cast<std::int16_t>(ost);
        oeffnen();
    }
    void oeffnen() {
        u.s.Tablettseite = 42;
        t.tablettoeffnen();
        u.dialoge.vergessen();
    }
    // The keys of `text` typed into Text(feld) as the box takes them, then Enter.
    void tippen(int feld, const std::string& text, bool enter = true) {
        if (feld == 0)
            t.text_GotFocus(0);
        for (char c : text) {
            const int weiter = t.text_KeyPress(feld, c);
            if (weiter == c)
                t.Text[feld].text += c;
        }
        if (enter)
            t.text_KeyPress(feld, 13);
    }
    test::Umgebung u;
    Form1lage lage{0, 0, 12000, 8000, 4400, 7000, true, 1200, 1450, 4950};
    MerkHilfe hilfe;
    Tablett t{u.s, lage, &hilfe};
};

std::vector<std::string> titel(const Seite42& p) {
    std::vector<std::string> v;
    for (const Meldung& m : p.u.dialoge.gezeigt())
        v.push_back(m.titel);
    return v;
}

} // namespace

TEST(Dienstalter, DatumsrechnungNachGanzenMonatenUndJahren) {
    EXPECT_EQ(datumlesen("15.03.1960"), (Datum{15, 3, 1960}));
    EXPECT_EQ(datumlesen("15/03/1960"), (Datum{15, 3, 1960}));
    EXPECT_THROW((void)datumlesen("31.02.1960"), Datumfehler);
    EXPECT_THROW((void)datumlesen("00.01.1960"), Datumfehler);
    EXPECT_THROW((void)datumlesen("01.13.1960"), Datumfehler);
    // 29 February plus one year is the 28th; plus one month from 31 January the 29th in 1996.
    EXPECT_EQ(jahredazu(Datum{29, 2, 1960}, 1), (Datum{28, 2, 1961}));
    EXPECT_EQ(monatedazu(Datum{31, 1, 1996}, 1), (Datum{29, 2, 1996}));
    EXPECT_EQ(tagedazu(Datum{1, 3, 1996}, -1), (Datum{29, 2, 1996}));
    // Month boundaries only: 31.01. to 01.02. is one month, 01.01. to 31.01. none.
    EXPECT_EQ(monatsabstand(Datum{31, 1, 1996}, Datum{1, 2, 1996}), 1);
    EXPECT_EQ(monatsabstand(Datum{1, 1, 1996}, Datum{31, 1, 1996}), 0);
    EXPECT_EQ(monatsabstand(Datum{1, 6, 1996}, Datum{1, 1, 1996}), -5);
    EXPECT_EQ(tagesabstand(Datum{31, 3, 2001}, Datum{1, 4, 2001}), 1);
    EXPECT_EQ(datumtext(Datum{1, 3, 1981}), "01.03.1981");
}

TEST(Dienstalter, StufeAm1996UndEndstufen) {
    // m of -5: the whole-number part of -5 / 24 is 0, plus 1.
    EXPECT_EQ(stufe1996(-5), 1);
    EXPECT_EQ(stufe1996(-30), 1);
    EXPECT_EQ(stufe1996(0), 1);
    EXPECT_EQ(stufe1996(23), 1);
    EXPECT_EQ(stufe1996(24), 2);
    EXPECT_EQ(stufe1996(178), 8);
    EXPECT_EQ(endstufe(0, 3), 8);
    EXPECT_EQ(endstufe(12, 5), 9);
    EXPECT_EQ(endstufe(0, 6), 10);
    EXPECT_EQ(endstufe(0, 7), 12);
    EXPECT_EQ(endstufe(0, 11), 13);
    EXPECT_EQ(endstufe(0, 16), 14);
    EXPECT_EQ(endstufe(0, 20), 15);
    EXPECT_EQ(endstufe(0, 21), 0);
    EXPECT_EQ(endstufe(2, 0), 14);
    EXPECT_EQ(endstufe(14, 3), 15);
    EXPECT_EQ(endstufe(3, 0), 0);
    EXPECT_EQ(batendstufe(9, 0), 13);
    EXPECT_EQ(batendstufe(3, 0), 12);
    EXPECT_EQ(batendstufe(11, 0), 11);
    EXPECT_EQ(batendstufe(12, 0), 15);
    EXPECT_EQ(batendstufe(16, 0), 10);
    EXPECT_EQ(batendstufe(19, 0), 9);
    EXPECT_EQ(batendstufe(20, 7), 7);
}

TEST(Dienstalter, GeborenAm15Maerz1960) {
    Seite42 p;
    EXPECT_EQ(p.t.zeile[0].text, "Berechnung der Dienstaltersstufe");
    EXPECT_EQ(p.t.Command1.text, "Übertrag");
    EXPECT_EQ(p.t.Command2.text, "Drucken");
    EXPECT_EQ(p.t.Command3.text, "Hilfe");
    EXPECT_EQ(p.t.Text[0].text, "TT.MM.JJJJ");
    p.tippen(0, "15.03.1960");
    EXPECT_TRUE(p.u.dialoge.gezeigt().empty());
    EXPECT_EQ(p.t.dienstalter.geburtstag, "15/03/1960");
    EXPECT_EQ(p.t.kasten[1].text, "01.03.1981");
    EXPECT_EQ(p.t.kasten[2].text, "15.03.1991");
    EXPECT_EQ(p.t.kasten[3].text, "14.03.1995");
    EXPECT_EQ(p.t.kasten[5].text, "15.03.1995");
    EXPECT_EQ(p.t.kasten[6].text, "Ernennung");
    EXPECT_EQ(p.t.Text[0].hintergrund, 14);
    EXPECT_EQ(p.t.Text[1].hintergrund, 15);
    EXPECT_EQ(p.t.fokus, (Tablettfokus{Tablettfokusart::text, 1}));
    // Zero months in both fields: the start is the earliest start.
    p.tippen(1, "0");
    EXPECT_EQ(p.t.kasten[4].text, "+ 0");
    EXPECT_EQ(p.t.fokus, (Tablettfokus{Tablettfokusart::text, 2}));
    p.tippen(2, "0");
    EXPECT_EQ(p.t.kasten[7].text, "+ 0");
    EXPECT_EQ(p.t.kasten[8].text, "01.03.1981");
    // m = 15 * 12 - 2 = 178 months to 1.1.1996: 178 / 24 = 7, step 8; A 9 gD ends at 13.
    EXPECT_EQ(p.t.kasten[9].text, "8");
    EXPECT_EQ(p.t.kasten[10].text, "01.03.1997");
    // Enter in the filled field sends the focus to "Übertrag".
    p.t.text_KeyPress(2, 13);
    EXPECT_EQ(p.t.fokus, (Tablettfokus{Tablettfokusart::knopf, 1}));
}

TEST(Dienstalter, ViertelUndHaelfteAbgeschnitten) {
    Seite42 p;
    p.tippen(0, "15.03.1960");
    p.tippen(1, "63");
    EXPECT_EQ(p.t.kasten[4].text, "+ 15"); // 63 / 4 = 15.75
    p.tippen(2, "5");
    EXPECT_EQ(p.t.kasten[7].text, "+ 2"); // 5 / 2 = 2.5
    // 17 months later than the earliest start: 01.08.1982.
    EXPECT_EQ(p.t.kasten[8].text, "01.08.1982");
    // m = 13 * 12 + 1 - 8 = 149: 149 / 24 = 6, step 7, next rise 14 years on.
    EXPECT_EQ(p.t.kasten[9].text, "7");
    EXPECT_EQ(p.t.kasten[10].text, "01.08.1996");
}

TEST(Dienstalter, MinusFuenfMonateGebenStufeEins) {
    Seite42 p;
    // Born 15.06.1975: earliest start 01.06.1996, five months after 1.1.1996.
    p.tippen(0, "15.06.1975");
    p.tippen(1, "0");
    p.tippen(2, "0");
    EXPECT_EQ(p.t.kasten[8].text, "01.06.1996");
    EXPECT_EQ(p.t.kasten[9].text, "1");
    EXPECT_EQ(p.t.kasten[10].text, "01.06.1998");
}

TEST(Dienstalter, UeberDerEndstufeStehtEndstufe) {
    // A 1 (position 0) ends at step 8; born 1940 the step would be 18.
    Seite42 p(0, 0);
    p.tippen(0, "10.10.1940");
    p.tippen(1, "0");
    p.tippen(2, "0");
    EXPECT_EQ(p.t.kasten[9].text, "8");
    EXPECT_EQ(p.t.kasten[10].text, "Endstufe");
    EXPECT_EQ(p.t.dienstalter.endstufe, 8);
}

TEST(Dienstalter, AbEingangsamtA13ZaehltDerErsteZeitraumNicht) {
    Seite42 p(0, 16);
    p.tippen(0, "15.03.1960");
    EXPECT_EQ(p.t.Text[1].text, "0");
    EXPECT_EQ(p.t.kasten[4].text, "+ 0");
    EXPECT_EQ(p.t.Text[1].hintergrund, 14);
    EXPECT_EQ(p.t.fokus, (Tablettfokus{Tablettfokusart::text, 2}));
}

TEST(Dienstalter, BesoldungsordnungCBisZumVierzigsten) {
    Seite42 p(2, 2);
    EXPECT_EQ(p.t.zeile[1].text, "nach § 36 BBesG für Beamte der");
    EXPECT_EQ(p.t.zeile[2].text, "der Bes.Ordnung C:");
    p.tippen(0, "15.03.1960");
    EXPECT_EQ(p.t.kasten[3].text, "14.03.2000");
    EXPECT_EQ(p.t.kasten[5].text, "15.03.2000");
    // Tested on the staff class: the first period does not count.
    EXPECT_EQ(p.t.Text[1].text, "0");
    EXPECT_EQ(p.t.fokus, (Tablettfokus{Tablettfokusart::text, 2}));
}

TEST(Dienstalter, SeitenOhneRechnung) {
    Seite42 b(1, 0);
    EXPECT_EQ(b.t.zeile[0].text, "Eine Berechnung der Dienstalters-");
    EXPECT_EQ(b.t.zeile[2].text, "Ordn. B nicht erforderlich.");
    EXPECT_FALSE(b.t.Text[0].sichtbar);
    EXPECT_FALSE(b.t.Command1.sichtbar);
    EXPECT_TRUE(b.t.Command3.sichtbar);
    Seite42 r(3, 2);
    EXPECT_EQ(r.t.zeile[1].text, "stufe ist bei Richtern ab R 3 nicht");
    Seite42 r1(3, 1);
    EXPECT_EQ(r1.t.zeile[2].text, "Arbeit und wird voraussichtlich");
    Seite42 a(4, 0);
    EXPECT_EQ(a.t.zeile[0].text, "ist für Beamtenanwärter nicht");
    Seite42 arbeiter(8, 0);
    EXPECT_EQ(arbeiter.t.zeile[3].text, "im nächsten Update enthalten sein.");
    Seite42 ohne(18, 0);
    EXPECT_EQ(ohne.t.zeile[0].text, "ist nicht erforderlich.");
}

TEST(Dienstalter, TastenfilterDerDatumsfelder) {
    Seite42 p;
    p.t.text_GotFocus(0);
    const auto taste = [&](int feld, int k) {
        p.u.dialoge.vergessen();
        return p.t.text_KeyPress(feld, k);
    };
    EXPECT_EQ(taste(0, 'a'), 0);
    EXPECT_EQ(p.u.dialoge.gezeigt()[0].text,
              "Das Datum ist in folgendem Format einzugeben: TT.MM.JJJJ");
    EXPECT_EQ(taste(0, '/'), 0);
    EXPECT_EQ(taste(0, 8), 0); // backspace too
    EXPECT_EQ(taste(0, '4'), 0);
    EXPECT_EQ(p.u.dialoge.gezeigt()[0].titel, "Nummer des Tages im Geburtsmonat");
    EXPECT_EQ(p.u.dialoge.gezeigt()[0].text, "An dieser Stelle ist nur 0, 1,2 oder 3 erlaubt");
    EXPECT_EQ(taste(4, '4'), 0);
    EXPECT_EQ(p.u.dialoge.gezeigt()[0].text, "An dieser Stelle ist nur 0, 1, 2 oder 3 erlaubt");
    p.t.Text[0].text = "1";
    EXPECT_EQ(taste(0, '.'), 0);
    EXPECT_EQ(p.u.dialoge.gezeigt()[0].text,
              "Das Datum ist in folgendem Format einzugeben: TT.MM.JJ");
    p.t.Text[0].text = "15";
    EXPECT_EQ(taste(0, '0'), 0);
    EXPECT_EQ(p.u.dialoge.gezeigt()[0].titel, "");
    EXPECT_EQ(p.u.dialoge.gezeigt()[0].text, "Hier ist ein Punkt erforderlich");
    EXPECT_EQ(taste(0, '.'), '.');
    p.t.Text[0].text = "15.";
    EXPECT_EQ(taste(0, '2'), 0);
    EXPECT_EQ(p.u.dialoge.gezeigt()[0].text, "An dieser Stelle ist nur 0 oder 1 erlaubt");
    p.t.Text[0].text = "15.03";
    EXPECT_EQ(taste(0, '1'), 0);
    EXPECT_EQ(p.u.dialoge.gezeigt()[0].text, "Hier ist ein Punkt erforderlich");
    p.t.Text[3].text = "15.03.";
    EXPECT_EQ(taste(3, '3'), 0);
    EXPECT_EQ(p.u.dialoge.gezeigt()[0].text, "An dieser Stelle ist nur 0, 1 oder 2 erlaubt");
}

TEST(Dienstalter, MonatszaehlerNimmtBeiNeunZeichen) {
    Seite42 p;
    // Length 9 in Text(3) already accepts the date, with the key that completes it.
    p.tippen(3, "01.01.199", false);
    EXPECT_EQ(p.t.fokus, (Tablettfokus{Tablettfokusart::text, 0}));
    EXPECT_EQ(p.t.text_KeyPress(3, '6'), 0);
    EXPECT_EQ(p.t.Text[3].text, "01.01.1996");
    EXPECT_EQ(p.t.fokus, (Tablettfokus{Tablettfokusart::text, 4}));
    // Text(4) needs ten characters and a key beyond them.
    p.tippen(4, "31.12.1997", false);
    EXPECT_EQ(p.t.kasten[11].text, "");
    p.t.text_KeyPress(4, 13);
    EXPECT_EQ(p.t.kasten[11].text, "23");
    // Text(0) with nine characters takes the key as part of the date.
    p.t.text_GotFocus(0);
    p.tippen(0, "15.03.196", false);
    EXPECT_EQ(p.t.text_KeyPress(0, '0'), '0');
    EXPECT_EQ(p.t.kasten[1].text, "");
}

TEST(Dienstalter, MonatsfelderNurZiffernUndVierStellen) {
    Seite42 p;
    p.tippen(0, "15.03.1960");
    p.u.dialoge.vergessen();
    EXPECT_EQ(p.t.text_KeyPress(1, 'x'), 0);
    EXPECT_EQ(p.u.dialoge.gezeigt()[0].titel, "Format");
    EXPECT_EQ(p.u.dialoge.gezeigt()[0].text, "Hier sind nur die Ziffern 0 bis 9 zulässig.");
    p.t.Text[1].text = "1234";
    EXPECT_EQ(p.t.text_KeyPress(1, '5'), 0);
    EXPECT_EQ(p.u.dialoge.gezeigt()[1].titel, "Monate ohne Bezüge");
    EXPECT_EQ(p.u.dialoge.gezeigt()[1].text, "Es sind nur bis zu 4 Stellen zugelassen.");
}

TEST(Dienstalter, DieErsteTasteErsetztDieVorgabe) {
    Seite42 p;
    ASSERT_EQ(p.t.Text[0].text, "TT.MM.JJJJ");
    EXPECT_EQ(p.t.text_KeyPress(0, '1'), 0);
    EXPECT_EQ(p.t.Text[0].text, "1");
    EXPECT_TRUE(p.u.dialoge.gezeigt().empty());
}

TEST(Dienstalter, MonateZaehlenErstNachDemGeburtstag) {
    Seite42 p;
    p.tippen(1, "12");
    p.tippen(2, "12");
    EXPECT_EQ(p.t.kasten[8].text, "");
    EXPECT_FALSE(p.t.dienstalter.berechnet);
}

TEST(Dienstalter, UnlesbaresDatumGibtSchade) {
    Seite42 p;
    p.tippen(0, "31.02.1960");
    ASSERT_EQ(p.u.dialoge.gezeigt().size(), 1u);
    EXPECT_EQ(p.u.dialoge.gezeigt()[0].titel, "Schade");
    EXPECT_EQ(p.u.dialoge.gezeigt()[0].text,
              "Es ist ein nicht behebbarer Fehler aufgetreten, der nur unter Windows 95 auftritt");
    EXPECT_EQ(p.u.dialoge.gezeigt()[0].symbol, Symbol::info);
    EXPECT_EQ(p.t.Text[0].text, "");
    EXPECT_EQ(p.t.kasten[1].text, "");
    EXPECT_TRUE(p.t.sichtbar);
}

TEST(Dienstalter, NeuerGeburtstagBeginntVonVorn) {
    Seite42 p;
    p.tippen(0, "15.03.1960");
    p.tippen(1, "0");
    p.tippen(2, "0");
    p.t.text_GotFocus(0);
    EXPECT_EQ(p.t.Text[0].text, "");
    EXPECT_EQ(p.t.Text[1].text, "");
    for (int i = 0; i <= 12; ++i)
        EXPECT_EQ(p.t.kasten[i].text, "") << i;
    EXPECT_FALSE(p.t.dienstalter.berechnet);
}

TEST(Dienstalter, LebensalterstufeDesBat) {
    // BAT Vc (position 9): from 21, limit 31, final step 13.
    Seite42 p(5, 9);
    EXPECT_EQ(p.t.zeile[0].text, "Berechnung der Lebensaltersstufe");
    EXPECT_EQ(p.t.zeile[1].text, "nach § 27 BAT Abschn. A (staatlich)");
    p.tippen(0, "15.03.1960");
    // 35 years old at the end of 1995, past the limit: the step at once from 01.03.1981.
    EXPECT_FALSE(p.t.Text[1].sichtbar);
    EXPECT_EQ(p.t.dienstalter.stufe, 8);
    EXPECT_EQ(p.t.kasten[10].text, "01.03.1997");
    EXPECT_FALSE(p.t.kasten[0].text.empty());
    EXPECT_EQ(p.t.fokus, (Tablettfokus{Tablettfokusart::knopf, 1}));
}

TEST(Dienstalter, BatMitEintrittVorDerGrenze) {
    Seite42 p(5, 9);
    p.tippen(0, "15.03.1970");
    // 25 at the end of 1995: the limit of 31 not reached, the entry is asked for.
    EXPECT_EQ(p.t.zeile[5].text, "Ununterbrochen im öffentl.");
    EXPECT_EQ(p.t.zeile[6].text, "Dienst seit ..............");
    EXPECT_EQ(p.t.zeile[5].lage, (Lage{100, 1800, 2800, 250}));
    EXPECT_EQ(p.t.Text[1].lage, (Lage{3100, 2000, 1200, 250}));
    EXPECT_TRUE(p.t.Text[1].sichtbar);
    EXPECT_EQ(p.t.fokus, (Tablettfokus{Tablettfokusart::text, 1}));
    // Entered 01.09.1992, before the end of the limit month 31.03.2001: 22 years old, half of
    // 31 - 22 = 4.5 years, rounded to even 4: the step age runs from 01.03.1995.
    p.tippen(1, "01.09.1992");
    EXPECT_EQ(p.t.dienstalter.stufenbeginn, (Datum{1, 3, 1995}));
    // m = 10 months: step 1, next rise 01.03.1997.
    EXPECT_EQ(p.t.dienstalter.stufe, 1);
    EXPECT_EQ(p.t.kasten[10].text, "01.03.1997");
    EXPECT_EQ(p.t.zeile[7].text, "Es ist eine Kontrollrechnung vorzunehmen");
    EXPECT_EQ(p.t.zeile[9].text, "gibt, die nicht unmittelbar vorangehen,");
    EXPECT_EQ(p.t.zeile[9].lage, (Lage{100, 2960, 3200, 230}));
    EXPECT_FALSE(p.t.zeile[10].sichtbar); // pay group 5 and above: three lines
}

TEST(Dienstalter, BatEintrittNachDerGrenze) {
    // BAT IIb (position 4): from 23, limit 35.
    Seite42 p(5, 4);
    p.tippen(0, "15.03.1970");
    // Entered after the limit month 03.2005: the step from 01.03.1993 at once.
    p.tippen(1, "01.04.2005");
    EXPECT_EQ(p.t.dienstalter.stufenbeginn, (Datum{1, 3, 1993}));
    EXPECT_EQ(p.t.dienstalter.stufe, 2); // m = 34
    EXPECT_FALSE(p.t.zeile[7].sichtbar);
}

TEST(Dienstalter, HilfeNachPersonalart) {
    Seite42 p;
    p.t.Command3_Click();
    p.u.s.merkmal[4] = 2;
    p.t.Command3_Click();
    p.u.s.merkmal[4] = 3;
    p.t.Command3_Click();
    p.u.s.merkmal[4] = 5;
    p.t.Command3_Click();
    p.u.s.merkmal[4] = 7; // keeps the last context
    p.t.Command3_Click();
    EXPECT_EQ(p.hilfe.kontexte, (std::vector<int>{11000, 12500, 45000, 96200, 96200}));
}

TEST(Dienstalter, DruckenNurAusserhalbFuenfBisSiebzehn) {
    Seite42 p;
    p.tippen(0, "15.03.1960");
    p.t.command2_Click();
    EXPECT_EQ(p.t.druckwunsch, std::optional<std::string>("bda"));
    EXPECT_TRUE(p.u.dialoge.gezeigt().empty());
    p.t.druckwunsch.reset();
    for (int art : {5, 17}) {
        p.u.s.merkmal[4] = static_cast<std::int16_t>(art);
        p.u.dialoge.vergessen();
        p.t.command2_Click();
        EXPECT_FALSE(p.t.druckwunsch) << art;
        ASSERT_EQ(titel(p), (std::vector<std::string>{"Drucken"})) << art;
    }
    p.u.s.merkmal[4] = 18;
    p.t.command2_Click();
    EXPECT_TRUE(p.t.druckwunsch);
}

namespace {

// Frank Lehmann (person 1, A 9 gD Ost, service age 04.1984) in March 1997 on the main screen,
// page 42 beside it, wired as the window wires it; born 12.04.1963, no months without pay:
// BDA 01.04.1984, m = 12 * 12 - 3 = 141, step 6 on 1.1.1996, the next on 01.04.1996.
struct Lehmann {
    Lehmann() {
        f.listenfuellen();
        f.namensliste();
        t.auswahlsetzen = [this](int zeile, int position) { f.auswahltreffen(zeile, position); };
        t.bdauebernehmen = [this](const std::string& text) { f.bdatippen(text); };
        u.s.aktuelleperson = 1;
        u.s.merkmal[0] = 0;
        u.s.merkmal[20] = 2;
        f.bildauffrischen();
    }
    void rechnen(const std::string& geburtstag = "12.04.1963") {
        u.s.Tablettseite = 42;
        t.tablettoeffnen();
        t.text_GotFocus(0);
        for (char c : geburtstag)
            if (t.text_KeyPress(0, c) == c)
                t.Text[0].text += c;
        t.text_KeyPress(0, 13);
        if (t.Text[2].sichtbar) {
            t.Text[1].text = "0";
            t.text_KeyPress(1, 13);
            t.Text[2].text = "0";
            t.text_KeyPress(2, 13);
        }
        u.dialoge.vergessen();
    }
    test::Musterumgebung u;
    Form1 f{u.s};
    Form1lage lage{0, 0, 12000, 8000, 4400, 7000, true, 1200, 1450, 4950};
    Tablett t{u.s, lage};
};

} // namespace

TEST(Dienstalter, UebertragDerStufeVonHandInDenJanuarUndDenMonatDesAufstiegs) {
    Lehmann l;
    // Petra Schneider (person 2, BAT Vc), her step given by hand from January on: row 1 on
    // "Dienstalterstufe n.Angabe"; the pick alone runs nothing, a confirmed amount stores the
    // month and the later ones.
    l.u.s.aktuelleperson = 2;
    l.u.s.merkmal[0] = 1;
    l.u.s.merkmal[20] = 0;
    l.f.bildauffrischen();
    l.f.auswahltreffen(1, 2);
    l.f.betragtippen(12, 0);
    l.f.auswahltreffen(20, 2);
    ASSERT_EQ(l.u.s.merkmal[1], 2);
    // Born 20.09.1961: the age step from 01.09.1982 (21 years, BAT Vc), 34 years old at the
    // end of 1995, past the limit of 31: m = 13 * 12 + 1 - 9 = 148, 148 / 24 = 6, step 7, the
    // next on 01.09.1996.
    l.rechnen("20.09.1961");
    ASSERT_EQ(l.t.dienstalter.stufe, 7);
    ASSERT_EQ(l.t.kasten[10].text, "01.09.1996");
    l.t.Command1_Click();
    for (const Meldung& m : l.u.dialoge.gezeigt())
        ADD_FAILURE() << m.titel << ": " << m.text;
    // Step 7 (list position 6) from January, step 8 from September, the month March again.
    EXPECT_EQ(personalsatzlesen(l.u.s, 1, 2).merkmal[7], 6);
    EXPECT_EQ(personalsatzlesen(l.u.s, 8, 2).merkmal[7], 6);
    EXPECT_EQ(personalsatzlesen(l.u.s, 9, 2).merkmal[7], 7);
    EXPECT_EQ(personalsatzlesen(l.u.s, 12, 2).merkmal[7], 7);
    EXPECT_EQ(l.u.s.merkmal[20], 2);
    EXPECT_EQ(l.f.bild.zeilen[20].position, 2);
    EXPECT_EQ(l.u.s.merkmal[7], 6);
}

TEST(Dienstalter, UebertragBeiStufeNachDemBdaSetztDenBeginn) {
    Lehmann l;
    l.rechnen();
    l.t.Command1_Click();
    EXPECT_EQ(l.f.bild.bdabeginn, "04.1984");
    EXPECT_EQ(l.u.s.bdabeginn, "04.1984");
    // March 1997: (97 - 84) * 12 - 4 + 3 = 155 months, 155 / 24 = 6, list position 6.
    EXPECT_EQ(l.u.s.merkmal[7], 6);
    EXPECT_EQ(personalsatzlesen(l.u.s, 3, 1).merkmal[7], 6);
}

} // namespace lonvir
