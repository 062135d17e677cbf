// The preset mode of the main screen: its colours and buttons, the transfer of the yellow
// rows' selections onto a range of persons with their months recalculated, and the cancel.
#include "engine/monatladen.h"
#include "screen/form1.h"
#include "screen/voreinstellmodus.h"
#include "start/satzzugriff.h"
#include "testhilfe.h"

#include <gtest/gtest.h>

namespace lonvir {

namespace {

// Person p a BAT employee in the West with 4000.00 DM typed in row 12 in January, church tax
// on (row 36 at position 0), stored by a run.
void angestellter(Sitzung& s, int p) {
    Personalsatz satz = personalsatzlesen(s, 1, p);
    satz.merkmal[4] = 5;
    satz.merkmal[36] = 0;
    satz.wert[12] = 400000;
    for (int i = 7; i <= 19; ++i) {
        satz.lst[i] = 1;
        satz.soz[i] = 1;
    }
    personalsatzschreiben(s, 1, p, satz);
    monatladen(s, static_cast<std::int16_t>(p), 0);
}

} // namespace

TEST(Voreinstellmodus, ZeilenWeissDieVoreinstellbarenGelbUndZweiKnoepfe) {
    test::Umgebung u;
    Form1 f(u.s);
    f.Form_Load();
    EXPECT_EQ(uebertragknopftext(f, 2), "Info  > Plan");
    voreinstellmodusbeginnen(f, 3, 5);
    for (int zeile = 0; zeile <= 45; ++zeile) {
        const Bildzeile& z = f.bild.zeilen[static_cast<std::size_t>(zeile)];
        EXPECT_EQ(z.farbe, voreinstellbar(zeile) ? 14 : 15) << zeile;
        EXPECT_EQ(z.textfarbe, 0) << zeile;
    }
    for (int zeile :
         {1, 2, 4, 9, 11, 12, 13, 14, 15, 19, 25, 26, 27, 29, 30, 31, 32, 36, 41, 42, 43, 44})
        EXPECT_TRUE(voreinstellbar(zeile)) << zeile;
    EXPECT_FALSE(voreinstellbar(0));
    EXPECT_FALSE(voreinstellbar(33));
    EXPECT_FALSE(voreinstellbar(37));
    EXPECT_EQ(uebertragknopftext(f, 2), "    Ü B E R T R A G E N");
    EXPECT_EQ(uebertragknopftext(f, 3), "  A B B R E C H E N");
    EXPECT_FALSE(uebertragknopfsichtbar(f, 4));
    EXPECT_FALSE(uebertragknopfsichtbar(f, 5));
    // A change of layer paints the rows again: the mode keeps its colours.
    f.farbenanwenden();
    EXPECT_EQ(f.bild.zeilen[0].farbe, 15);
}

TEST(Voreinstellmodus, AbbrechenSchreibtNichtsUndBringtDieFarbenZurueck) {
    test::Umgebung u;
    Form1 f(u.s);
    f.Form_Load();
    const std::string vorher = test::dateiinhalt(u.ordner.pfad(), "L1997I.4");
    voreinstellmodusbeginnen(f, 1, 20);
    u.s.merkmal[25] = 2;
    EXPECT_TRUE(voreinstellknopf(f, 3));
    EXPECT_FALSE(f.voreinstellung.aktiv);
    EXPECT_EQ(test::dateiinhalt(u.ordner.pfad(), "L1997I.4"), vorher);
    EXPECT_EQ(f.bild.zeilen[0].farbe, u.s.dim.zeilenfarbe[0]);
    EXPECT_EQ(uebertragknopftext(f, 4), "Plan > Real");
    // Without the mode the buttons transfer between the layers.
    EXPECT_FALSE(voreinstellknopf(f, 2));
}

TEST(Voreinstellmodus, UebertragenGibtDieGelbenZeilenAnDenBereich) {
    test::Umgebung u;
    Sitzung& s = u.s;
    Form1 f(s);
    f.Form_Load();
    const Personalsatz neu = personalsatzlesen(s, 5, 2);
    const std::string person6 = test::dateiinhalt(u.ordner.pfad(), "L1997I.5").substr(5 * 541, 541);
    s.aktuelleperson = 1;
    voreinstellmodusbeginnen(f, 3, 5);
    s.merkmal[25] = 2;  // yellow
    s.merkmal[27] = 4;  // yellow: the cost centre
    s.merkmal[33] = 21; // not yellow
    std::vector<std::pair<int, int>> schritte;
    EXPECT_TRUE(voreinstellknopf(f, 2, [&](int e, int g) { schritte.emplace_back(e, g); }));
    EXPECT_EQ(schritte, (std::vector<std::pair<int, int>>{{1, 3}, {2, 3}, {3, 3}}));
    for (int person = 3; person <= 5; ++person)
        for (int monat = 1; monat <= 12; ++monat) {
            const Personalsatz p = personalsatzlesen(s, monat, person);
            EXPECT_EQ(p.merkmal[25], 2) << person << "/" << monat;
            EXPECT_EQ(p.merkmal[27], 4) << person << "/" << monat;
            EXPECT_EQ(p.merkmal[33], neu.merkmal[33]) << person << "/" << monat;
            EXPECT_EQ(p.merkmal[20], monat - 1) << person << "/" << monat;
        }
    EXPECT_EQ(personalsatzlesen(s, 5, 2).merkmal[25], neu.merkmal[25]);
    EXPECT_EQ(test::dateiinhalt(u.ordner.pfad(), "L1997I.5").substr(5 * 541, 541), person6);
    EXPECT_FALSE(f.voreinstellung.aktiv);
    EXPECT_EQ(s.aktuelleperson, 1);
    // The place stored for the next start is the person on the screen, not the last preset.
    const std::string voe = test::dateiinhalt(u.ordner.pfad(), "Lonvir97.voe");
    EXPECT_EQ(static_cast<std::uint8_t>(voe[380]), 0x10); // 1.0000 = 10000 = 0x2710
    EXPECT_EQ(static_cast<std::uint8_t>(voe[381]), 0x27);
}

TEST(Voreinstellmodus, DieMonateDerPersonenWerdenNeuBerechnet) {
    test::Umgebung u;
    Sitzung& s = u.s;
    angestellter(s, 4);
    const Personalsatz vorher = personalsatzlesen(s, 1, 4);
    ASSERT_LT(vorher.wert[36], 0);
    // The template: person 1 set up alike, then church tax switched off on its screen.
    angestellter(s, 1);
    s.merkmal[36] = 3; // "keine Kirchensteuer"
    EXPECT_EQ(voreinstellungenuebertragen(s, 4, 4), 1);
    const Personalsatz nachher = personalsatzlesen(s, 1, 4);
    EXPECT_EQ(nachher.merkmal[36], 3);
    EXPECT_EQ(nachher.wert[36], 0);
    // Only the church tax leaves the deductions: the payment grows by exactly that amount.
    EXPECT_EQ(nachher.wert[45], vorher.wert[45] - vorher.wert[36]);
    EXPECT_EQ(nachher.wert[33], vorher.wert[33]);
}

TEST(Voreinstellmodus, BereichAufDieVorhandenenPersonenBeschnitten) {
    test::Umgebung u;
    Sitzung& s = u.s;
    EXPECT_EQ(voreinstellungenuebertragen(s, 0, 1000), s.anzahlnamen);
    EXPECT_EQ(voreinstellungenuebertragen(s, s.anzahlnamen + 1, 1000), 0);
    // No copy of a month file is left behind.
    for (const auto& eintrag : std::filesystem::directory_iterator(u.ordner.pfad()))
        EXPECT_NE(eintrag.path().extension(), ".vor") << eintrag.path();
}

} // namespace lonvir
