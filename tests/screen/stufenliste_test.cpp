// The step list of row 7 by staff class and pay group.
#include "screen/stufenliste.h"
#include "start/texte.h"
#include "testhilfe.h"

#include <gtest/gtest.h>

namespace lonvir {

namespace {
int eintraege(int art, int gruppe, bool reform, const Stufenliste& vorher = {}) {
    return stufenlistefuer(art, gruppe, reform, vorher).eintraege();
}
} // namespace

TEST(Stufenliste, BesoldungAVorJuli1997NachGruppe) {
    EXPECT_EQ(eintraege(0, 3, false), 8);   // 3344..3351
    EXPECT_EQ(eintraege(0, 5, false), 9);   // 3344..3352
    EXPECT_EQ(eintraege(0, 6, false), 10);  // 3344..3353
    EXPECT_EQ(eintraege(0, 7, false), 12);  // 3344..3355
    EXPECT_EQ(eintraege(0, 12, false), 13); // 3344..3356
    EXPECT_EQ(eintraege(0, 18, false), 14); // 3344..3357
    EXPECT_EQ(eintraege(0, 20, false), 15); // 3344..3358
}

TEST(Stufenliste, BesoldungAAbJuli1997EineListeFuerAlleGruppen) {
    for (int gruppe : {0, 7, 12, 20})
        EXPECT_EQ(eintraege(0, gruppe, true), 12) << "Gruppe " << gruppe; // 3344..3355
}

TEST(Stufenliste, AngestellteUndArbeiterNachGruppe) {
    EXPECT_EQ(eintraege(5, 2, false), 14);   // 3328..3341
    EXPECT_EQ(eintraege(13, 11, false), 11); // 3328..3338
    EXPECT_EQ(eintraege(14, 12, false), 15); // 3328..3342
    EXPECT_EQ(eintraege(5, 25, false), 9);   // 3328..3336
    EXPECT_EQ(eintraege(6, 15, false), 8);   // 3344..3351
    EXPECT_EQ(eintraege(6, 16, false), 9);   // 3344..3352
    EXPECT_EQ(eintraege(6, 12, false), 11);  // others: 3344..3354
    EXPECT_EQ(eintraege(7, 3, false), 9);    // 3344..3352
    EXPECT_EQ(eintraege(8, 3, false), 8);    // 2881..2888
    EXPECT_EQ(eintraege(10, 0, false), 3);   // 2891..2893
    EXPECT_EQ(eintraege(15, 9, false), 11);  // 3344..3354
    EXPECT_EQ(eintraege(15, 22, false), 8);  // 3344..3351
    EXPECT_EQ(eintraege(16, 12, false), 8);  // 2907..2914
    EXPECT_EQ(eintraege(17, 0, false), 16);  // 3328..3343
}

TEST(Stufenliste, GruppeWirdAufDieLetzteDerPersonalartGekappt) {
    Sitzung s;
    s.bdabeginn = "       ";
    const std::pair<int, int> faelle[] = {{2, 3}, {5, 25}, {0, 20}, {6, 15}, {12, 4}, {16, 14}};
    for (auto [art, letzte] : faelle) {
        s.merkmal[4] = static_cast<std::int16_t>(art);
        s.merkmal[5] = 30;
        stufenliste(s);
        EXPECT_EQ(s.merkmal[5], letzte) << "Personalart " << art;
    }
    // Anwärter keep their group up to position 6 and beyond.
    s.merkmal[4] = 4;
    s.merkmal[5] = 6;
    stufenliste(s);
    EXPECT_EQ(s.merkmal[5], 6);
}

TEST(Stufenliste, BesoldungBHatNurDasFesteGrundgehaltUndRechnetKeineStufe) {
    test::Umgebung u;
    Sitzung& s = u.s;
    s.merkmal[4] = 1;
    s.merkmal[7] = 4;
    s.bdabeginn = "01.1971";
    stufenliste(s);
    EXPECT_EQ(s.stufen.eintraege(), 1);
    EXPECT_FALSE(s.stufen.aktiv);
    EXPECT_EQ(s.merkmal[7], 4); // no step from the service age for this list
    EXPECT_EQ(stufentexte(s), std::vector<std::string>{"Festes Grundgehalt"});
}

TEST(Stufenliste, BesoldungRAbGruppe2BehaeltDasEndeDerListeDavor) {
    // Built after a list of Besoldungsordnung A from July (end 3355): the fixed pay, then
    // 3328..3355, 1 + 28 = 29 entries.
    const Stufenliste a = stufenlistefuer(0, 5, true, {});
    const Stufenliste r = stufenlistefuer(3, 2, false, a);
    EXPECT_TRUE(r.festesGrundgehalt);
    EXPECT_EQ(r.eintraege(), 29);
    // Groups 0 and 1 have their own end: 3328..3342.
    EXPECT_EQ(stufenlistefuer(3, 1, false, a).eintraege(), 15);
    // With no list before, the fixed pay stands alone.
    EXPECT_EQ(stufenlistefuer(3, 9, false, {}).eintraege(), 1);
}

TEST(Stufenliste, AnwaerterUndAuszubildendeBehaltenDieListeDavor) {
    const Stufenliste bat = stufenlistefuer(5, 0, false, {});
    for (int art : {4, 12, 18})
        EXPECT_EQ(stufenlistefuer(art, 0, false, bat).eintraege(), 14) << "Personalart " << art;
}

TEST(Stufenliste, NachDemAufbauRechnetDieStufeAusDemDienstalter) {
    Sitzung s;
    // BAT group 0, January 1997, start 01.1987: 120 months -> 5.
    s.merkmal[4] = 5;
    s.bdabeginn = "01.1987";
    stufenliste(s);
    EXPECT_EQ(s.merkmal[7], 5);
}

TEST(Stufenliste, KlemmeSetztDieStufeInDieListe) {
    Sitzung s;
    s.stufen = stufenlistefuer(0, 0, false, {}); // 8 entries
    s.merkmal[7] = 9;
    stufeklemmen(s);
    EXPECT_EQ(s.merkmal[7], 7);
    s.merkmal[7] = -1;
    stufeklemmen(s);
    EXPECT_EQ(s.merkmal[7], 0);
}

TEST(Stufenliste, TexteKommenAusDerTexttabelle) {
    test::Umgebung u;
    Sitzung& s = u.s;
    for (int nummer = 2891; nummer <= 2893; ++nummer)
        textschreiben(s, nummer, "Stufe " + std::to_string(nummer - 2890));
    s.merkmal[4] = 9;
    stufenliste(s);
    EXPECT_EQ(stufentexte(s), (std::vector<std::string>{"Stufe 1", "Stufe 2", "Stufe 3"}));
}

} // namespace lonvir
