// What the status line of the main screen tells the clerk: a reset of a full box, a month
// without a tariff amount, F1 on a row and the picture in the head.
#include "bildhilfe.h"
#include "engine/tarifdatei.h"
#include "screen/hauptmenue.h"

#include <gtest/gtest.h>

namespace lonvir {

TEST(Hinweise, AchtZeichenSagenWarumDerBetragVerworfenWird) {
    test::Bild b;
    b.zeile(12).wert = "12345,67"; // 12 345,67 DM: eight characters
    EXPECT_EQ(b.f.t_KeyPress(12, 13), 0);
    EXPECT_EQ(b.u.s.wert[12], 0);
    EXPECT_EQ(b.f.bild.hinweis,
              "Höchstens sieben Zeichen: 12345,67 wurde verworfen, Zeile 12 steht wieder auf "
              "0,00.");
}

TEST(Hinweise, EinMonatOhneTarifbetragSagtEsUndNenntDieTabelle) {
    // The fresh store has no tariff tables: person 1, A 1 West, January computes to 0,00.
    test::Bild b;
    EXPECT_EQ(b.u.s.wert[22], 0);
    EXPECT_EQ(b.f.bild.hinweis,
              "Für diese Gruppe ist kein Tarifbetrag installiert (Lonvir97.1tr, Satz 1)");
    // Once the line holds its amounts the word goes away with the next refresh.
    Tarifsatz t = tarifsatz(b.u.s, 1, datei::tarif1);
    for (int stufe = 0; stufe <= 14; ++stufe)
        t.wert[stufe] = 150000;
    tarifsatzschreiben(b.u.s, 1, datei::tarif1, t);
    b.laden(1, 0);
    EXPECT_GT(b.u.s.wert[22], 0);
    EXPECT_EQ(b.f.bild.hinweis, "");
}

TEST(Hinweise, F1AufEinerZeileZeigtIhreHilfe) {
    test::Bild b;
    b.f.F1(12);
    EXPECT_EQ(b.u.s.aktuellezeile, 12);
    ASSERT_FALSE(b.hilfe.kontexte.empty());
    EXPECT_EQ(b.hilfe.kontexte.back(), *zeilenhilfe(0, 12));
}

TEST(Hinweise, DasBildLonvir97ZeigtUeberLonvir97) {
    test::Bild b;
    b.f.Picture1_Click();
    ASSERT_FALSE(b.hilfe.kontexte.empty());
    EXPECT_EQ(b.hilfe.kontexte.back(), 20940);
}

} // namespace lonvir
