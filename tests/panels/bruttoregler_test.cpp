// Page 43 "Netto": the bars from the gross, every row following a move in gross mode, nothing
// stored meanwhile, and the normal month back once the page is left.
#include "panels/seiten.h"
#include "panels/tablett.h"
#include "screen/form1.h"
#include "screen/hauptmenue.h"
#include "start/satzzugriff.h"
#include "testhilfe.h"

#include <gtest/gtest.h>

namespace lonvir {

namespace {

// The sample BAT employee Petra Schneider (person 2) in January 1997 on the main screen, the
// panel beside it and the menu: 3,888.56 DM gross, 2,285.41 DM paid out.
struct Schieber {
    Schieber() {
        f.listenfuellen();
        f.namensliste();
        u.s.aktuelleperson = 2;
        u.s.merkmal[0] = 1;
        u.s.merkmal[20] = 0;
        f.bildauffrischen();
        t.linkespalteauffrischen = [this] { f.bildauffrischen(); };
        u.dialoge.vergessen();
    }
    test::Musterumgebung u;
    Form1 f{u.s};
    Form1lage lage{0, 0, 12000, 8000, 3600, 8000, true, 1200, 1450, 4950};
    Tablett t{u.s, lage};
    Menueziel ziel{u.s, f, t};
};

} // namespace

TEST(Bruttoregler, NettoOeffnetDieSeiteImBruttomodus) {
    Schieber b;
    ASSERT_EQ(b.u.s.wert[20], 388856);
    ASSERT_EQ(b.u.s.wert[45], 228541);
    menueklick(b.ziel, "MNetto");
    EXPECT_EQ(b.u.s.Tablettseite, 43);
    EXPECT_EQ(b.u.s.bruttomodus, 1);
    EXPECT_TRUE(b.t.sichtbar);
    // Over the left column; the result column stays in view.
    EXPECT_EQ(b.t.lage, (Lage{0, 2090, 8000, 3750}));
    EXPECT_TRUE(b.lage.panel3d2sichtbar);
    // 388856 Pfennig: 38 hundreds of DM, 88 DM, 56 Pfennig.
    EXPECT_EQ(b.t.HScroll1.wert, 38);
    EXPECT_EQ(b.t.HScroll2.wert, 88);
    EXPECT_EQ(b.t.HScroll3.wert, 56);
    EXPECT_EQ(b.t.HScroll1.maximum, 150);
    EXPECT_EQ(b.t.HScroll2.maximum, 99);
    EXPECT_EQ(b.t.HScroll3.maximum, 99);
    EXPECT_EQ(b.t.zeile[21].text, "Einstellung des Bruttobetrags");
    EXPECT_EQ(b.t.zeile[22].text, "grob");
    EXPECT_EQ(b.t.zeile[23].text, "fein");
    EXPECT_EQ(b.t.zeile[24].text, "Pfg");
    EXPECT_EQ(b.t.kasten[21].text, "3.888,56+");
    // Row 3 is the wage tax, row 11 the payment.
    EXPECT_EQ(b.t.zeile[3].text.substr(0, 10), "Lohnsteuer");
    EXPECT_EQ(b.t.kasten[3].text, "676,83-");
    EXPECT_EQ(b.t.kasten[11].text, "2.285,41+");
}

TEST(Bruttoregler, EinSchrittDesDrittenBalkensIstEinPfennig) {
    Schieber b;
    menueklick(b.ziel, "MNetto");
    b.t.HScroll3_Change(57);
    EXPECT_EQ(b.u.s.wert[21], 388857);
    EXPECT_EQ(b.u.s.wert[20], 388857);
    EXPECT_EQ(b.u.s.wert[22], 388857);
    b.t.HScroll3_Scroll(58);
    EXPECT_EQ(b.u.s.wert[22], 388858);
    EXPECT_EQ(b.t.kasten[21].text, "3.888,58+");
    // The fine bar moves by DM, the coarse one by hundreds.
    b.t.HScroll2_Change(89);
    EXPECT_EQ(b.u.s.wert[22], 388958);
    b.t.hscroll1_scroll(40);
    EXPECT_EQ(b.u.s.wert[22], 408958);
}

TEST(Bruttoregler, ZwanzigtausendMarkOeffnenMitDemGrobenBalkenBei150) {
    Schieber b;
    // 16,111 DM in row 12 and 0.44 DM in row 13 make a gross of 20,000 DM (typed apart: a box
    // of eight characters is reset): the bars show 15,000 DM and the rest of 0 DM, 0 Pfennig.
    b.f.betragtippen(12, 1611100);
    b.f.betragtippen(13, 44);
    ASSERT_EQ(b.u.s.wert[20], 2000000);
    menueklick(b.ziel, "MNetto");
    EXPECT_EQ(b.t.HScroll1.wert, 150);
    EXPECT_EQ(b.t.HScroll2.wert, 0);
    EXPECT_EQ(b.t.HScroll3.wert, 0);
    // The first move replaces the gross by what the bars show.
    b.t.HScroll3_Change(1);
    EXPECT_EQ(b.u.s.wert[20], 1500001);
    EXPECT_EQ(b.u.s.wert[22], 1500001);
}

TEST(Bruttoregler, WaehrendDesAufbausSchweigenDieBalken) {
    Schieber b;
    menueklick(b.ziel, "MNetto");
    b.u.s.bruttomodus = 2;
    b.t.HScroll3_Change(99);
    EXPECT_EQ(b.u.s.wert[22], 388856);
    EXPECT_EQ(b.t.HScroll3.wert, 99);
}

TEST(Bruttoregler, JederZeilenwertFolgtDemBrutto) {
    Schieber b;
    menueklick(b.ziel, "MNetto");
    const std::int32_t steuervorher = b.u.s.wert[33];
    b.t.hscroll1_change(50);
    // 50 * 100 DM + 88 DM + 56 Pfennig.
    EXPECT_EQ(b.u.s.wert[22], 508856);
    EXPECT_LT(b.u.s.wert[33], steuervorher); // more wage tax, a larger negative amount
    std::int32_t summe = b.u.s.wert[22];
    for (int z = 33; z <= 44; ++z)
        summe += b.u.s.wert[z];
    EXPECT_EQ(b.u.s.wert[45], summe);
    // The main screen shows the rows of the gross mode.
    EXPECT_EQ(b.f.bild.zeilen[22].wert.substr(0, 8), "5.088,56");
}

TEST(Bruttoregler, NachDemVerlassenIstDerMonatGespeichertWieImNormalenLauf) {
    Schieber b;
    // The month as a normal run stored it when the person was opened.
    const auto normal = test::ordnerinhalt(b.u.ordner.pfad());
    const Personalsatz vorher = personalsatzlesen(b.u.s, 1, 2);
    menueklick(b.ziel, "MNetto");
    b.t.hscroll1_change(50);
    b.t.HScroll2_Change(3);
    b.t.HScroll3_Change(7);
    EXPECT_EQ(b.u.s.wert[22], 500307);
    // The gross mode stores nothing, in no month.
    EXPECT_EQ(test::ordnerinhalt(b.u.ordner.pfad()), normal);
    // Leaving the page: normal mode, the month run again as the refresh runs it.
    b.t.Form_Deactivate();
    EXPECT_EQ(b.u.s.bruttomodus, 0);
    EXPECT_EQ(b.u.s.Tablettseite, 8);
    EXPECT_FALSE(b.t.sichtbar);
    EXPECT_TRUE(b.lage.panel3d2sichtbar);
    EXPECT_EQ(b.u.s.wert[22], 388856);
    EXPECT_EQ(b.u.s.wert[45], 228541);
    EXPECT_EQ(personalsatzlesen(b.u.s, 1, 2), vorher);
    EXPECT_EQ(test::ordnerinhalt(b.u.ordner.pfad()), normal);
}

TEST(Bruttoregler, EineAndereSeiteBeendetDenBruttomodus) {
    Schieber b;
    menueklick(b.ziel, "MNetto");
    b.t.hscroll1_change(50);
    menueklick(b.ziel, "MLohnsteuer");
    EXPECT_EQ(b.u.s.bruttomodus, 0);
    EXPECT_EQ(b.u.s.Tablettseite, 6);
    EXPECT_EQ(b.u.s.wert[22], 388856);
}

TEST(Bruttoregler, ImJahrGibtEsKeinenBruttoregler) {
    Schieber b;
    b.u.s.merkmal[20] = 12;
    menueklick(b.ziel, "MNetto");
    EXPECT_EQ(b.u.s.bruttomodus, 0);
    EXPECT_FALSE(b.t.sichtbar);
    ASSERT_EQ(b.u.dialoge.gezeigt().size(), 1u);
    EXPECT_EQ(b.u.dialoge.gezeigt()[0].titel, "Keine Änderung möglich");
}

} // namespace lonvir
