// The tariff editor: groups, West and Ost, the fields' keys, limits and ring, and an entry's
// way through the later tables of the year.
#include "engine/monatladen.h"
#include "engine/tarifdatei.h"
#include "panels/tarife.h"
#include "start/dateisatz.h"
#include "start/start.h"
#include "testhilfe.h"

#include <gtest/gtest.h>

namespace lonvir {

namespace {

// The tariff editor needs no screen here: nothing recalculates unless a test asks.
Hauptbildauftrag ohneschirm() {
    return {};
}

void eintippen(Tarife& t, int feld, const std::string& text) {
    t.FieldBoxes_GotFocus(feld);
    t.fieldboxes[feld] = text;
    t.fieldboxes_KeyPress(feld, 13);
}

} // namespace

TEST(Tarife, LaedtMitGruppeAUndUeberschriftDerSeite) {
    test::Umgebung u;
    Tarife t(u.s, 54, ohneschirm());
    EXPECT_EQ(t.ueberschrift, "LONVIR    1 9 9 7 _ 1  (Grundgeh., OZ, Allg.St.Z.)");
    EXPECT_EQ(t.tariffilenummer, 1);
    EXPECT_EQ(t.HScroll1.minimum, 1);
    EXPECT_EQ(t.HScroll1.maximum, 21);
    EXPECT_EQ(t.HScroll1.wert, 1);
    EXPECT_EQ(t.Schalter[0].farbe, 14);
    EXPECT_EQ(t.Schalter[1].farbe, 7);
    Tarife zwei(u.s, 55, ohneschirm());
    EXPECT_EQ(zwei.ueberschrift, "LONVIR    1 9 9 7 _ 2   (Grundgeh., OZ, Allg.St.Z.)");
    Tarife vier98(u.s, 62, ohneschirm());
    EXPECT_EQ(vier98.ueberschrift, "LONVIR    1 9 9 8 _ 4   (Grundgeh., OZ, Allg.St.Z.)");
    EXPECT_EQ(vier98.tariffilenummer, 4);
    EXPECT_EQ(std::string(tarifspalte(14)), "Stufe 15 o.a.");
    EXPECT_EQ(std::string(tarifspalte(24)), "in UnterK. Ic");
}

TEST(Tarife, KraftfahrerBeginnenEinenSatzVorIhrerBeschriftung) {
    test::Umgebung u;
    Tarife t(u.s, 54, ohneschirm());
    EXPECT_EQ(t.Schalter[10].text, "Kraftfahrer Land  (148/447)");
    t.schalter_Click(9);
    EXPECT_EQ(t.HScroll1.minimum, 129);
    EXPECT_EQ(t.HScroll1.maximum, 146);
    t.schalter_Click(10);
    EXPECT_EQ(t.HScroll1.minimum, 147);
    EXPECT_EQ(t.Schalter[10].farbe, 14);
    EXPECT_EQ(t.Schalter[9].farbe, 7);
}

TEST(Tarife, OstAufBesOrdnCBehaeltDieGruppeUndZeigtSatz335Bis338) {
    test::Umgebung u;
    Tarifsatz c1;
    c1.wert[0] = 777700;
    tarifsatzschreiben(u.s, 335, datei::tarif1, c1);
    Tarife t(u.s, 54, ohneschirm());
    t.schalter_Click(2);
    EXPECT_EQ(t.HScroll1.minimum, 35);
    t.Option2_Click();
    EXPECT_EQ(t.schalter, 2);
    EXPECT_EQ(t.HScroll1.minimum, 335);
    EXPECT_EQ(t.HScroll1.maximum, 338);
    EXPECT_EQ(t.HScroll1.wert, 335);
    EXPECT_EQ(t.satznummer, 335);
    EXPECT_EQ(t.fieldboxes[0], "777700");
    // The heading names the group from the text of the West line: 3000 + 335 - 300.
    EXPECT_EQ(t.Panel3D2.rfind("335  ", 0), 0u);
    // Back to the West the scroll bar keeps its value inside the range: the last line.
    t.Option1_Click();
    EXPECT_EQ(t.HScroll1.minimum, 35);
    EXPECT_EQ(t.HScroll1.wert, 38);
}

TEST(Tarife, NurZiffernUndSteuertastenErreichenDasFeld) {
    test::Umgebung u;
    Tarife t(u.s, 54, ohneschirm());
    EXPECT_EQ(t.fieldboxes_KeyPress(0, '5'), '5');
    EXPECT_EQ(t.fieldboxes_KeyPress(0, 8), 8);
    EXPECT_EQ(t.fieldboxes_KeyPress(0, ','), 0);
    EXPECT_EQ(t.fieldboxes_KeyPress(0, '.'), 0);
    EXPECT_EQ(t.fieldboxes_KeyPress(0, ' '), 0);
    EXPECT_EQ(t.fieldboxes_KeyPress(0, 'a'), 0);
    EXPECT_EQ(t.fieldboxes_KeyPress(0, 127), 0);
}

TEST(Tarife, LeeresFeldSpeichertNull) {
    test::Umgebung u;
    Tarifsatz a1;
    a1.wert[5] = 123456;
    tarifsatzschreiben(u.s, 1, datei::tarif1, a1);
    Tarife t(u.s, 54, ohneschirm());
    ASSERT_EQ(t.fieldboxes[5], "123456");
    eintippen(t, 5, "");
    EXPECT_TRUE(t.gespeichert);
    EXPECT_EQ(t.fieldboxes[5], "0");
    EXPECT_EQ(tarifsatz(u.s, 1, datei::tarif1).wert[5], 0);
}

TEST(Tarife, NeunmalNeunWirdAbgelehntDarunterAngenommen) {
    test::Umgebung u;
    Tarife t(u.s, 54, ohneschirm());
    eintippen(t, 3, "9999998");
    EXPECT_TRUE(t.gespeichert);
    EXPECT_EQ(tarifsatz(u.s, 1, datei::tarif1).wert[3], 9999998);
    EXPECT_TRUE(u.dialoge.gezeigt().empty());
    eintippen(t, 4, "9999999");
    EXPECT_FALSE(t.gespeichert);
    EXPECT_EQ(tarifsatz(u.s, 1, datei::tarif1).wert[4], 0);
    ASSERT_EQ(u.dialoge.gezeigt().size(), 1u);
    // The message stands as it was written, in English and with a wrong limit.
    EXPECT_EQ(u.dialoge.gezeigt()[0].text, "Enter a number less than 32.768");
    EXPECT_EQ(u.dialoge.gezeigt()[0].titel, "");
    EXPECT_EQ(t.fokus, 4);
}

TEST(Tarife, AchtZeichenWerdenMitWarntonGeloescht) {
    test::Umgebung u;
    Tarife t(u.s, 54, ohneschirm());
    eintippen(t, 2, "00000012");
    EXPECT_FALSE(t.gespeichert);
    EXPECT_EQ(t.fieldboxes[2], "");
    EXPECT_EQ(t.pieptoene, 100);
    EXPECT_EQ(tarifsatz(u.s, 1, datei::tarif1).wert[2], 0);
}

TEST(Tarife, EnterGehtZumNaechstenFeldUndVon26Nach23) {
    test::Umgebung u;
    Tarife t(u.s, 54, ohneschirm());
    eintippen(t, 0, "100");
    EXPECT_EQ(t.fokus, 1);
    EXPECT_TRUE(t.alleszeichen);
    eintippen(t, 22, "100");
    EXPECT_EQ(t.fokus, 23);
    eintippen(t, 25, "100");
    EXPECT_EQ(t.fokus, 26);
    eintippen(t, 26, "100");
    EXPECT_EQ(t.fokus, 23);
}

TEST(Tarife, EintragInDatei2ErreichtDatei3Und4UndLaesstDatei1Unberuehrt) {
    test::Umgebung u;
    Tarifsatz vorher;
    for (int i = 0; i <= 26; ++i)
        vorher.wert[i] = 1000 + i;
    for (int d = datei::tarif1; d <= datei::tarif4; ++d)
        tarifsatzschreiben(u.s, 81, d, vorher);
    const std::string datei1 = test::dateiinhalt(u.ordner.pfad(), "Lonvir97.1tr");
    Tarife t(u.s, 55, ohneschirm());
    t.schalter_Click(6); // BAT VKA, 79 to 95
    t.hscroll1_change(81);
    ASSERT_EQ(t.fieldboxes[7], "1007");
    eintippen(t, 7, "412345");
    t.Command1_Click();
    EXPECT_EQ(test::dateiinhalt(u.ordner.pfad(), "Lonvir97.1tr"), datei1);
    for (int d = datei::tarif2; d <= datei::tarif4; ++d) {
        Tarifsatz erwartet = vorher;
        erwartet.wert[7] = 412345;
        EXPECT_EQ(tarifsatz(u.s, 81, d), erwartet) << d;
    }
    // An entry in the fourth table stays there.
    Tarife vier(u.s, 57, ohneschirm());
    vier.schalter_Click(6);
    vier.hscroll1_change(81);
    eintippen(vier, 0, "5");
    EXPECT_EQ(tarifsatz(u.s, 81, datei::tarif4).wert[0], 5);
    EXPECT_EQ(tarifsatz(u.s, 81, datei::tarif3).wert[0], 1000);
}

TEST(Tarife, Tabelle1998WirdBeiOffenem1997InIhrenDateienGeschrieben) {
    test::Umgebung u;
    Tarife t(u.s, 59, ohneschirm());
    eintippen(t, 0, "4711");
    t.Form_Unload();
    EXPECT_EQ(tarifsatz(u.s, 1, datei::tarif2).wert[0], 0); // Lonvir97.2tr
    Satzdatei d;
    d.oeffnen(u.s.ordner.pfad("Lonvir98.3tr"), Tarifsatz::laenge);
    std::array<std::uint8_t, Tarifsatz::laenge> b{};
    d.lesen(1, b);
    EXPECT_EQ(Tarifsatz::lesen(b).wert[0], 4711);
    d.lesen(1, b);
    Satzdatei zwei;
    zwei.oeffnen(u.s.ordner.pfad("Lonvir98.2tr"), Tarifsatz::laenge);
    zwei.lesen(1, b);
    EXPECT_EQ(Tarifsatz::lesen(b).wert[0], 4711);
}

TEST(Tarife, DieNaechsteRechnungDerPersonNimmtDenNeuenBetrag) {
    test::Tempordner ordner;
    SkriptDialoge dialoge;
    Sitzung s;
    s.ordner = Arbeitsordner(ordner.pfad());
    s.installation = LONVIR_INSTALLATION;
    s.dialoge = &dialoge;
    starten(s);
    // Petra Schneider, BAT VKA Vc West, January 1997: basic pay 2.889,59 DM.
    monatladen(s, 2, 0);
    ASSERT_EQ(s.wert[7], 288959);
    const int nummer = tarifsatznummer(s);
    const int tabelle = tarifdatei(s) - datei::tarif1 + 1;
    const int stufe = s.merkmal[7];
    int aufrufe = 0;
    Hauptbildauftrag a = kernauftrag(s);
    const auto auffrischen = a.bildauffrischen;
    a.bildauffrischen = [&] {
        ++aufrufe;
        auffrischen();
    };
    Tarife t(s, 53 + tabelle, a);
    t.schalter_Click(6);
    t.hscroll1_change(nummer);
    eintippen(t, stufe, "300000");
    EXPECT_EQ(aufrufe, 1);
    EXPECT_EQ(s.wert[7], 300000);
    // A field of another line does not touch the person's month.
    t.hscroll1_change(nummer + 1);
    eintippen(t, stufe, "1");
    EXPECT_EQ(aufrufe, 1);
    t.Command1_Click();
    monatladen(s, 2, 0);
    EXPECT_EQ(s.wert[7], 300000);
}

TEST(Tarife, EingefuegterTextWirdAufgeraeumt) {
    EXPECT_EQ(tarifaufraeumen("2889,59"), "2889.59");
    EXPECT_EQ(tarifaufraeumen("2889,5912"), "2889.59");
    EXPECT_EQ(tarifaufraeumen("2889 59"), "288959");
    EXPECT_EQ(tarifaufraeumen("12345"), "12345");
}

} // namespace lonvir
