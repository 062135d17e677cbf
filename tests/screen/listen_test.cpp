// The lists of the rows as the main screen builds them from the text table.
#include "bildhilfe.h"
#include "start/texte.h"

#include <gtest/gtest.h>

namespace lonvir {

TEST(Listen, FesteListenMitIhrenEintraegen) {
    test::Bild b;
    EXPECT_EQ(
        b.zeile(1).liste,
        (std::vector<std::string>{"Bes.dienstalter  (MM.19JJ)", "Verg.dienstalter (MM.19JJ)",
                                  "Dienstalterstufe n.Angabe", "Dienstalter nicht erforderlich"}));
    EXPECT_EQ(b.zeile(4).liste.size(), 19u); // 3301..3319
    EXPECT_EQ(b.zeile(10).liste,
              (std::vector<std::string>{"Überleitungszulage", "Überleitungszulage nach Angabe"}));
    for (int zeile : {12, 13, 14})
        EXPECT_EQ(b.zeile(zeile).liste.size(), 60u); // 3390..3449
    EXPECT_EQ(b.zeile(16).liste, (std::vector<std::string>{"Überstunden", "Stunden"}));
    EXPECT_EQ(b.zeile(21).liste,
              (std::vector<std::string>{"Wochenstd. von normal", "Prozent von normal"}));
    EXPECT_EQ(b.zeile(22).liste, (std::vector<std::string>{"Tage von normal"}));
    EXPECT_EQ(b.zeile(23).liste, (std::vector<std::string>{"Steuerfreibetrag"}));
    EXPECT_EQ(b.zeile(30).liste, (std::vector<std::string>{"Mit LSt.jahresausgl. des AG im Dez.",
                                                           "Ohne LSt.jahresausgl. d. AG im Dez."}));
    EXPECT_EQ(b.zeile(35).liste.size(), 1u);
    for (int zeile : {41, 42, 43, 44})
        EXPECT_EQ(b.zeile(zeile).liste.size(), 30u); // 3713..3742
    EXPECT_EQ(b.zeile(45).liste, (std::vector<std::string>{"A U S Z A H L U N G"}));
    EXPECT_FALSE(b.zeile(27).hatListe);
    for (int zeile : {6, 27, 28, 29, 32})
        EXPECT_FALSE(b.zeile(zeile).hatWertfeld) << zeile;
}

TEST(Listen, LohnsteuerzeileHatFuenfzigEintraegeBisKeineLohnsteuer) {
    test::Bild b;
    textschreiben(b.u.s, 3613, "keine Lohnsteuer");
    b.f.listenfuellen();
    ASSERT_EQ(b.zeile(33).liste.size(), 50u); // 3564..3613
    EXPECT_EQ(b.zeile(33).liste[49], "keine Lohnsteuer");
}

TEST(Listen, TexteKommenGetrimmtAusDerTexttabelle) {
    test::Bild b;
    textschreiben(b.u.s, 3302, "Besoldungsordnung B");
    const std::uint32_t stand = b.zeile(4).listenstand;
    b.f.listenfuellen();
    EXPECT_EQ(b.zeile(4).liste[1], "Besoldungsordnung B");
    EXPECT_GT(b.zeile(4).listenstand, stand);
}

TEST(Listen, NamenslisteNachDerZahlDerPersonen) {
    test::Bild b;
    ASSERT_EQ(b.zeile(0).liste.size(), 20u);
    EXPECT_EQ(b.zeile(0).liste[0], "1. Name");
    EXPECT_EQ(b.zeile(0).liste[19], "20. Name");
}

TEST(Listen, AnwaerterBehaltenGruppeSechsUndGruppeVierHatKeineAemter) {
    test::Bild b;
    Sitzung& s = b.u.s;
    s.merkmal[4] = 4;
    s.merkmal[5] = 6;
    b.f.amtsliste();
    EXPECT_EQ(s.merkmal[5], 6);
    EXPECT_EQ(b.zeile(6).liste.size(), 5u); // 1096..1100
    s.merkmal[5] = 4;
    b.f.amtsliste();
    EXPECT_EQ(s.merkmal[5], 4);
    EXPECT_TRUE(b.zeile(6).liste.empty());
    s.merkmal[5] = 9; // beyond the seventh block: cut to it
    b.f.amtsliste();
    EXPECT_EQ(s.merkmal[5], 6);
}

TEST(Listen, BesoldungCGruppeVierWirdAufDreiGekappt) {
    test::Bild b;
    Sitzung& s = b.u.s;
    s.merkmal[4] = 2;
    s.merkmal[5] = 4;
    b.f.amtsliste();
    EXPECT_EQ(s.merkmal[5], 3);
    EXPECT_EQ(b.zeile(6).liste.size(), 10u); // 881..890
    s.merkmal[5] = 7;
    b.f.stufenliste();
    EXPECT_EQ(s.merkmal[5], 3);
    EXPECT_EQ(b.zeile(7).liste.size(), 15u); // 3344..3358
}

TEST(Listen, AngestellteGruppeDreissigWirdAufFuenfundzwanzigGekappt) {
    test::Bild b;
    Sitzung& s = b.u.s;
    s.merkmal[4] = 5;
    s.merkmal[5] = 30;
    b.f.stufenliste();
    EXPECT_EQ(s.merkmal[5], 25);
    EXPECT_EQ(b.zeile(7).liste.size(), 9u); // 3328..3336
    EXPECT_TRUE(b.zeile(7).aktiv);
}

TEST(Listen, BesoldungBHatEineGesperrteStufenliste) {
    test::Bild b;
    b.u.s.merkmal[4] = 1;
    b.f.stufenliste();
    EXPECT_EQ(b.zeile(7).liste, (std::vector<std::string>{"Festes Grundgehalt"}));
    EXPECT_FALSE(b.zeile(7).aktiv);
}

TEST(Listen, MonatslisteTraegtDasJahrDesDatensatzes) {
    test::Bild b;
    textschreiben(b.u.s, 3487, "Januar");
    textschreiben(b.u.s, 3499, "Jahresgehalt 1997");
    b.f.monatsliste();
    ASSERT_EQ(b.zeile(20).liste.size(), 13u);
    EXPECT_EQ(b.zeile(20).liste[0], "Januar 1997");
    EXPECT_EQ(b.zeile(20).liste[12], "Jahresgehalt 1997");
    b.u.s.jahr = 1998;
    b.f.monatsliste();
    EXPECT_EQ(b.zeile(20).liste[0], "Januar 1998");
    EXPECT_EQ(b.zeile(20).liste[12], "Jahresgehalt 1998");
}

TEST(Listen, FamilienstandDerBeamtenWechseltImJuli1997) {
    test::Bild b;
    textschreiben(b.u.s, 3359, "alt");
    textschreiben(b.u.s, 4141, "neu");
    b.f.familienliste(); // January 1997, staff class 0
    EXPECT_EQ(b.zeile(8).liste.size(), 12u);
    EXPECT_EQ(b.zeile(8).liste[0], "alt");
    b.u.s.merkmal[20] = 6;
    b.f.familienliste();
    EXPECT_EQ(b.zeile(8).liste[0], "neu");
}

TEST(Listen, KrankenkassenMitDemSatzDesMonatsDannZuschussUndKeine) {
    test::Bild b;
    Sitzung& s = b.u.s;
    textschreiben(s, 3628, "AOK");
    textschreiben(s, 3629, "BEK");
    textschreiben(s, 3656, "Zuschuss");
    s.kvsatz[0][0] = Currency::ganz(1350); // 13.5 % in January
    s.kvsatz[1][0] = Currency::ganz(1405); // 14.05 % in February
    b.f.kvliste();
    ASSERT_EQ(b.zeile(37).liste.size(), 30u); // 28 funds, 3656, 3657
    EXPECT_EQ(b.zeile(37).liste[0], "AOK 13,50 %");
    EXPECT_EQ(b.zeile(37).liste[1], "BEK"); // no rate stored
    EXPECT_EQ(b.zeile(37).liste[28], "Zuschuss");
    s.merkmal[20] = 1;
    b.f.kvliste();
    EXPECT_EQ(b.zeile(37).liste[0], "AOK 14,05 %");
}

TEST(Listen, BeitragslistenTragenDieSaetzeDerEinstellungen) {
    test::Bild b;
    Sitzung& s = b.u.s;
    textschreiben(s, 3696, "PV");
    textschreiben(s, 3697, "PV-Zuschuss");
    textschreiben(s, 3699, "PV AN 1 %");
    textschreiben(s, 3700, "keine PV");
    textschreiben(s, 3703, "RV");
    textschreiben(s, 3704, "keine RV");
    textschreiben(s, 3708, "AV");
    b.f.beitragslisten();
    // An empty settings file: PV (0/10 + 1.5) / 2 = 0.75 % each side, 1.5 % in all; RV
    // (0/10 + 19.5) / 2 = 9.75, 19.5 in all; AV (0/10 + 6.0) / 2 = 3, 6.0 in all. Entry 3 of PV:
    // 2 * 0.75 - 1 = 0.5 % of the whole 1.5 %.
    const std::vector<std::string>& pv = b.zeile(38).liste;
    ASSERT_EQ(pv.size(), 7u);
    EXPECT_EQ(pv[0], "PV 1,5 % / 2");
    EXPECT_EQ(pv[1], "PV-Zuschuss 1 % von 1,5");
    EXPECT_EQ(pv[3], "PV AN 1 % 0,5 % von 1,5");
    EXPECT_EQ(pv[4], "keine PV");
    EXPECT_EQ(b.zeile(39).liste, (std::vector<std::string>{"RV 19,5 % / 2", "keine RV"}));
    EXPECT_EQ(b.zeile(40).liste[0], "AV 6,0 % / 2");
    EXPECT_EQ(b.zeile(40).liste.size(), 2u);
}

} // namespace lonvir
