// The pocket calculator: typing, the operators in 32-bit floats, the three-decimal note and
// the two-decimal display, every refusal, and the carry into the row clicked last.
#include "screen/rechner.h"

#include "bildhilfe.h"
#include "start/satzzugriff.h"

#include <gtest/gtest.h>

namespace lonvir {

namespace {

struct Rechnerbild : test::Bild {
    Rechnerbild() : r(f) {}
    // Keys as the form passes them when no row has the focus.
    void tippen(const std::string& tasten) {
        for (char c : tasten)
            EXPECT_EQ(f.Form_KeyPress(c, false), 0) << c;
    }
    Rechner r;
};

constexpr const char* mitleer =
    " . Es wurde auf 2 Dezimalstellen abgerundet. Wenn Aufrundung vorgeschrieben ist, dann "
    "addieren Sie bitte den Wert 0,01.";
constexpr const char* ohneleer =
    " . Es wurde auf 2 Dezimalstellen abgerundet.Wenn Aufrundung vorgeschrieben ist, dann "
    "addieren Sie bitte den Wert 0,01.";

} // namespace

TEST(Rechner, GrundstellungUndZiffern) {
    Rechnerbild b;
    EXPECT_EQ(b.r.readout, "0.");
    EXPECT_EQ(b.r.letzteeingabe, "NONE");
    EXPECT_EQ(b.r.operator_, " ");
    b.tippen("12");
    EXPECT_EQ(b.r.readout, "12.");
    b.tippen(",5");
    EXPECT_EQ(b.r.readout, "12.5");
    EXPECT_TRUE(b.r.dezimalpunkt);
    // Index 10 and above: the digit 19 minus the index.
    b.r.number_Click(12);
    EXPECT_EQ(b.r.readout, "12.57");
    b.r.cancelentry_Click();
    EXPECT_EQ(b.r.readout, "0.");
    EXPECT_EQ(b.r.letzteeingabe, "CE");
    b.r.cancel_Click();
    b.r.decimalp_Click();
    EXPECT_EQ(b.r.readout, "0.");
    b.tippen("25");
    EXPECT_EQ(b.r.readout, "0.25");
    EXPECT_TRUE(b.meldungen().empty());
}

TEST(Rechner, EinfacheRechnungen) {
    Rechnerbild b;
    b.tippen("12+30=");
    EXPECT_EQ(b.r.readout, "42.");
    EXPECT_FLOAT_EQ(b.r.operand1, 42.0f);
    // The result is the first operand of the next calculation.
    b.tippen("*2=");
    EXPECT_EQ(b.r.readout, "84.");
    // Operator button 6 is 6 - 5 = 1, "-".
    b.r.operator_Click(6);
    b.tippen("4=");
    EXPECT_EQ(b.r.readout, "80.");
    b.tippen("/8=");
    EXPECT_EQ(b.r.readout, "10.");
    b.r.operator_Click(1);
    b.tippen("12,5=");
    EXPECT_EQ(b.r.readout, "-2.5");
    EXPECT_TRUE(b.meldungen().empty());
}

TEST(Rechner, ZweimalGleichWiederholtNichts) {
    Rechnerbild b;
    b.tippen("7+5=");
    EXPECT_EQ(b.r.readout, "12.");
    EXPECT_EQ(b.r.letzteeingabe, "OPS");
    EXPECT_EQ(b.r.operatoren, 1);
    b.tippen("=");
    EXPECT_EQ(b.r.readout, "12.");
    EXPECT_EQ(b.r.letzteeingabe, "OPS");
    EXPECT_EQ(b.r.operatoren, 1);
    EXPECT_FLOAT_EQ(b.r.operand1, 12.0f);
}

TEST(Rechner, EinDrittelMitHinweisAufDieDritteStelle) {
    Rechnerbild b;
    b.tippen("1/3=");
    // 1 / 3 = 0.33333334f; times 1000 cut is 333, so 0.333; the display cut to 0.33.
    EXPECT_EQ(b.r.readout, "0.33");
    ASSERT_EQ(b.meldungen().size(), 1u);
    EXPECT_EQ(b.meldungen()[0].titel, "Rechner");
    EXPECT_EQ(b.meldungen()[0].text,
              std::string("Das Ergebnis lautet mit 3 Dezimalstellen: 0,333") + mitleer);
    EXPECT_FLOAT_EQ(b.r.operand1, 0.333f);
}

TEST(Rechner, AbEinsKommenBeideAbgerundetTexte) {
    Rechnerbild b;
    // 10 / 3 = 3.3333333f, held as 3.333: at least 1 and below 100000, so both notes, the
    // second without the blank after "abgerundet.".
    b.tippen("10/3=");
    EXPECT_EQ(b.r.readout, "3.33");
    ASSERT_EQ(b.meldungen().size(), 2u);
    EXPECT_EQ(b.meldungen()[0].text,
              std::string("Das Ergebnis lautet mit 3 Dezimalstellen: 3,333") + mitleer);
    EXPECT_EQ(b.meldungen()[1].text,
              std::string("Das Ergebnis lautet mit 3 Dezimalstellen: 3,333") + ohneleer);
    EXPECT_NE(b.meldungen()[0].text, b.meldungen()[1].text);
    // Two decimals need no note: 7 / 4 = 1.75.
    b.u.dialoge.vergessen();
    b.r.cancel_Click();
    b.tippen("7/4=");
    EXPECT_EQ(b.r.readout, "1.75");
    EXPECT_TRUE(b.meldungen().empty());
}

TEST(Rechner, ZeileEinunddreissigOhneDreiStellenUndOhneHinweis) {
    Rechnerbild b;
    b.u.s.aktuellezeile = 31;
    b.tippen("1/3=");
    // The float as it is, seven significant digits: 0.3333333.
    EXPECT_EQ(b.r.readout, "0.3333333");
    EXPECT_TRUE(b.meldungen().empty());
    EXPECT_FLOAT_EQ(b.r.operand1, 1.0f / 3.0f);
}

TEST(Rechner, NachGleichBleibenDieOperanden) {
    Rechnerbild b;
    // With "=" pending the operands stay: a number typed after the result and followed by an
    // operator leaves the result as the first operand; "C" starts afresh.
    b.tippen("6*7=");
    b.tippen("5+1=");
    EXPECT_EQ(b.r.readout, "43.");
    b.r.cancel_Click();
    b.tippen("5+1=");
    EXPECT_EQ(b.r.readout, "6.");
}

TEST(Rechner, SiebenStellenVorDemKommaWerdenAbgewiesen) {
    Rechnerbild b;
    b.tippen("123456");
    EXPECT_EQ(b.r.readout, "123456.");
    EXPECT_TRUE(b.meldungen().empty());
    b.tippen("7");
    ASSERT_EQ(b.meldungen().size(), 1u);
    EXPECT_EQ(b.meldungen()[0].titel, "Rechner");
    EXPECT_EQ(b.meldungen()[0].text, "Mehr als 6 Stellen vor dem Komma sind nicht zugelassen.");
    EXPECT_EQ(b.r.readout, "0.");
    EXPECT_EQ(b.r.letzteeingabe, "NONE");
    // Behind the point there is no such limit.
    b.u.dialoge.vergessen();
    b.tippen("123456,7891");
    EXPECT_EQ(b.r.readout, "123456.7891");
    EXPECT_TRUE(b.meldungen().empty());
}

TEST(Rechner, ErgebnisMitSiebenStellenWirdAbgewiesen) {
    Rechnerbild b;
    // 999999 * 2 = 1999998: seven digits before the point.
    b.tippen("999999*2=");
    ASSERT_EQ(b.meldungen().size(), 1u);
    EXPECT_EQ(b.meldungen()[0].text, "Mehr als 6 Stellen vor dem Komma sind nicht zugelassen.");
    EXPECT_EQ(b.r.readout, "0.");
    EXPECT_EQ(b.r.operatoren, 0);
}

TEST(Rechner, ZweiNullenUndDivisionDurchNull) {
    Rechnerbild b;
    b.tippen("00");
    ASSERT_EQ(b.meldungen().size(), 1u);
    EXPECT_EQ(b.meldungen()[0].text, "Zwei Nullen vor dem Dezimalpunkt sind nicht zugelassen.");
    EXPECT_EQ(b.r.readout, "0.");
    b.u.dialoge.vergessen();
    b.tippen("5/0=");
    ASSERT_EQ(b.meldungen().size(), 1u);
    EXPECT_EQ(b.meldungen()[0].titel, "Rechner");
    EXPECT_EQ(b.meldungen()[0].text, "Division durch Null ist nicht zugelassen.");
    EXPECT_EQ(b.r.readout, "0.");
    EXPECT_EQ(b.r.operatoren, 0);
    EXPECT_EQ(b.r.operator_, " ");
}

TEST(Rechner, MinusAmAnfangWeichtDemNeuenOperator) {
    Rechnerbild b;
    // The "-" shows and marks a negative number, and the new operator, stored behind it,
    // takes its place at once: the digits that follow make a positive number.
    b.r.operator_Click(1);
    EXPECT_EQ(b.r.readout, "-");
    EXPECT_EQ(b.r.letzteeingabe, "OPS");
    EXPECT_EQ(b.r.operator_, "-");
    b.tippen("5");
    EXPECT_EQ(b.r.readout, "5.");
}

TEST(Rechner, SchwanzeinerNeunInDerViertenStelle) {
    EXPECT_TRUE(viertestelleneun("0.1239"));
    EXPECT_TRUE(viertestelleneun("-2.0009"));
    EXPECT_FALSE(viertestelleneun("0.123"));
    EXPECT_FALSE(viertestelleneun("0.1238"));
    EXPECT_FALSE(viertestelleneun("12"));
    EXPECT_EQ(rechnertext(0.333f), "0.333");
    EXPECT_EQ(rechnertext(42.0f), "42");
    EXPECT_EQ(rechnertext(-2.5f), "-2.5");
    EXPECT_EQ(rechnertext(1234567.0f), "1234567");
    EXPECT_EQ(rechnertext(0.0f), "0");
    EXPECT_DOUBLE_EQ(rechnerwert("-"), 0);
    EXPECT_DOUBLE_EQ(rechnerwert("."), 0);
    EXPECT_DOUBLE_EQ(rechnerwert("12."), 12);
    EXPECT_DOUBLE_EQ(rechnerwert("-0.25"), -0.25);
}

TEST(Rechner, UebertragInDieZuletztGeklickteZeile) {
    Rechnerbild b;
    // Row 12, a free allowance: 1 / 3 = 0.33 DM, 33 Pfennig.
    b.f.t_Click(12);
    b.tippen("1/3=");
    b.u.dialoge.vergessen();
    b.tippen("-"); // the key "-" is the button "Übertrag"
    EXPECT_EQ(b.u.s.eingabe[12], 33);
    EXPECT_EQ(b.u.s.wert[12], 33);
    EXPECT_TRUE(b.f.wiedereintritt);
    EXPECT_EQ(b.r.readout, "0.");
    // Stored with the run, as the typed amount would be.
    EXPECT_EQ(personalsatzlesen(b.u.s, 1, 1).wert[12], 33);
    // A larger amount with the rounding of the display: 1234.5 * 2 = 2469.
    b.tippen("1234,5*2=");
    b.r.Eintrag_Click();
    EXPECT_EQ(b.u.s.eingabe[12], 246900);
    EXPECT_TRUE(b.meldungen().empty());
}

TEST(Rechner, UebertragGleichWieGetipptGespeichert) {
    Rechnerbild getippt;
    getippt.f.betragtippen(13, 4250);
    Rechnerbild gerechnet;
    gerechnet.f.t_Click(13);
    gerechnet.tippen("85/2=");
    gerechnet.r.Eintrag_Click();
    EXPECT_EQ(test::dateiinhalt(getippt.u.ordner.pfad(), "L1997I.1"),
              test::dateiinhalt(gerechnet.u.ordner.pfad(), "L1997I.1"));
}

TEST(Rechner, KeinUebertragImJahr) {
    Rechnerbild b;
    b.f.t_Click(12);
    b.tippen("5");
    b.u.s.merkmal[20] = 12;
    b.r.Eintrag_Click();
    ASSERT_EQ(b.meldungen().size(), 1u);
    EXPECT_EQ(b.meldungen()[0].titel, "Keine Änderung möglich");
    EXPECT_EQ(b.meldungen()[0].text,
              "Während das JAHRESGEHALT eingestellt ist, können keine Änderungen vorgenommen "
              "werden. Bitte stellen Sie ein Monatsgehalt ein.");
    EXPECT_EQ(b.u.s.eingabe[12], 0);
    EXPECT_EQ(b.r.readout, "5."); // nothing changed, the calculator neither
}

TEST(Rechner, KeinUebertragInEineZeileOhneBetrag) {
    Rechnerbild b;
    b.f.t_Click(27);
    b.u.s.aktuellezeile = 27;
    b.tippen("5");
    const auto vorher = test::dateiinhalt(b.u.ordner.pfad(), "L1997I.1");
    b.r.Eintrag_Click();
    ASSERT_EQ(b.meldungen().size(), 1u);
    EXPECT_EQ(b.meldungen()[0].titel, "Rechner");
    EXPECT_EQ(b.r.readout, "5.");
    EXPECT_EQ(test::dateiinhalt(b.u.ordner.pfad(), "L1997I.1"), vorher);
}

} // namespace lonvir
