// The row colours of the main screen: a click gives the next colour, the store, the return
// of the stored colours and the recommendation.
#include "panels/form14.h"
#include "start/einstellungen.h"
#include "testhilfe.h"

#include <gtest/gtest.h>

namespace lonvir {

namespace {

std::int16_t farbeimsatz(const test::Umgebung& u, int zeile) {
    const std::string b = test::dateiinhalt(u.ordner.pfad(), "Lonvir97.dim");
    const auto i = static_cast<std::size_t>(2 * zeile);
    return static_cast<std::int16_t>(static_cast<std::uint8_t>(b[i]) |
                                     static_cast<std::uint8_t>(b[i + 1]) << 8);
}

} // namespace

TEST(Form14, KlickGibtDieNaechsteFarbeUndNach15Die0) {
    test::Umgebung u;
    int angewendet = 0;
    Form14 f(u.s, [&] { ++angewendet; });
    f.Form_Load();
    EXPECT_EQ(f.colo[4], "12");
    f.colo_Click(4);
    EXPECT_EQ(u.s.dim.zeilenfarbe[4], 13);
    EXPECT_EQ(f.colo[4], "13");
    f.colo_Click(4);
    f.colo_Click(4);
    EXPECT_EQ(f.colo[4], "15");
    f.colo_Click(4);
    EXPECT_EQ(u.s.dim.zeilenfarbe[4], 0);
    EXPECT_EQ(f.colo[4], "0");
    EXPECT_EQ(angewendet, 4);
}

TEST(Form14, TextfarbeNachDerHelligkeit) {
    for (int farbe : {0, 1, 2, 3, 4, 5, 6, 8, 9, 12, 13})
        EXPECT_EQ(textfarbe(farbe), 15) << farbe;
    for (int farbe : {7, 10, 11, 14, 15})
        EXPECT_EQ(textfarbe(farbe), 0) << farbe;
}

TEST(Form14, SpeichernSchreibtDieFarben) {
    test::Umgebung u;
    Form14 f(u.s, {});
    f.Form_Load();
    f.colo_Click(45); // 14 -> 15
    f.Farbenwahl_Click();
    EXPECT_EQ(farbeimsatz(u, 45), 15);
    EXPECT_FALSE(f.geladen);
}

TEST(Form14, AbbrechenBringtDieGespeichertenFarbenZurueck) {
    test::Umgebung u;
    dimschreiben(u.s);
    Form14 f(u.s, {});
    f.Form_Load();
    f.colo_Click(0);
    f.colo_Click(0);
    EXPECT_EQ(u.s.dim.zeilenfarbe[0], 0);
    f.Command1_Click();
    EXPECT_EQ(u.s.dim.zeilenfarbe[0], 14);
    EXPECT_EQ(farbeimsatz(u, 0), 14);
}

TEST(Form14, EmpfehlungSetztDieVorgabefarbenUndLaesstDieSperre) {
    test::Umgebung u;
    u.s.dim.passwortart = Currency::ganz(1);
    Form14 f(u.s, {});
    f.Form_Load();
    f.colo_Click(20);
    f.colo_Click(37);
    f.Empfehlung_Click();
    EXPECT_EQ(u.s.dim.zeilenfarbe[20], 14);
    EXPECT_EQ(u.s.dim.zeilenfarbe[37], 11);
    EXPECT_EQ(f.colo[37], "11");
    EXPECT_TRUE(f.geladen);
    EXPECT_EQ(u.s.dim.passwortart, Currency::ganz(1));
}

} // namespace lonvir
