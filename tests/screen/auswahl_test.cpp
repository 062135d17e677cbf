// Picking list entries, the switches, the service-age box and the name of the person.
#include "bildhilfe.h"
#include "start/satzzugriff.h"
#include "start/texte.h"

#include <gtest/gtest.h>

namespace lonvir {

namespace {
const std::string bdafrage =
    "Das Programm hat die Dienstaltersstufe aufgrund des oben eingegebenen BDA s berechnet. Bei "
    "manueller Änderung der Dienstaltersstufen wird das BDA gelöscht und die automatische "
    "Berechnung wird abgeschaltet. Später kann durch Eingabe des BDAs die automatische "
    "Berechnung wieder aktiviert werden. Wollen Sie (was nicht empfehlenswert ist) manuell "
    "ändern?";
} // namespace

TEST(Auswahl, ListeneintragWirdGespeichertUndFolgtDenMonaten) {
    test::Bild b;
    b.f.auswahltreffen(26, 2);
    EXPECT_EQ(b.u.s.merkmal[26], 2);
    EXPECT_EQ(personalsatzlesen(b.u.s, 1, 1).merkmal[26], 2);
    EXPECT_EQ(personalsatzlesen(b.u.s, 12, 1).merkmal[26], 2);
}

TEST(Auswahl, StufeVonHandFragtNachDemBdaUndNeinLaesstAllesStehen) {
    test::Bild b; // Besoldungsordnung A, service age from 01.1997: step position 0
    b.f.auswahltreffen(7, 3);
    ASSERT_EQ(b.meldungen().size(), 1u);
    EXPECT_EQ(b.meldungen()[0].titel, "BDA");
    EXPECT_EQ(b.meldungen()[0].text, bdafrage);
    EXPECT_EQ(b.meldungen()[0].knoepfe, Knoepfe::jaNein);
    EXPECT_EQ(b.zeile(7).position, 0);
    EXPECT_EQ(b.u.s.merkmal[7], 0);
    EXPECT_EQ(b.u.s.bdabeginn, "01.1997");
    EXPECT_EQ(b.f.bild.bdabeginn, "01.1997");
}

TEST(Auswahl, StufeVonHandMitJaLoeschtDasBda) {
    test::Bild b;
    b.laden(1, 11); // December: no later month follows
    b.u.dialoge.antworten(Knopf::ja);
    b.f.auswahltreffen(7, 3);
    ASSERT_EQ(b.meldungen().size(), 1u);
    EXPECT_EQ(b.u.s.bdabeginn, "       ");
    EXPECT_EQ(b.f.bild.bdabeginn, "");
    const Personalsatz dezember = personalsatzlesen(b.u.s, 12, 1);
    EXPECT_EQ(dezember.merkmal[7], 3);
    EXPECT_EQ(dezember.bdabeginn, "       ");
}

TEST(Auswahl, OhneBdaOderMitStufeNachAngabeKeineFrage) {
    test::Bild b;
    b.f.auswahltreffen(1, 2); // "Dienstalterstufe n.Angabe": the box is emptied
    ASSERT_EQ(b.u.s.merkmal[1], 2);
    EXPECT_EQ(b.f.bild.bdabeginn, "");
    b.f.auswahltreffen(7, 4);
    EXPECT_TRUE(b.meldungen().empty());
    EXPECT_EQ(b.u.s.merkmal[7], 4);
    EXPECT_EQ(personalsatzlesen(b.u.s, 1, 1).merkmal[7], 4);
}

TEST(Auswahl, GleicheStufeTutNichts) {
    test::Bild b;
    b.f.z_GotFocus(7);
    b.f.z_Click(7);
    EXPECT_TRUE(b.meldungen().empty());
}

TEST(Auswahl, DienstalterartSetztDasBdaZurueck) {
    test::Bild b;
    b.f.bdatippen("07.1990");
    b.f.auswahltreffen(1, 1); // a civil servant is set back to 0
    EXPECT_EQ(b.u.s.merkmal[1], 0);
    EXPECT_EQ(b.zeile(1).position, 0);
    EXPECT_EQ(b.u.s.bdabeginn, "01.1997");
    EXPECT_EQ(personalsatzlesen(b.u.s, 1, 1).bdabeginn, "01.1997");
    b.f.auswahltreffen(4, 5);
    b.f.auswahltreffen(1, 0); // an employee to 1
    EXPECT_EQ(b.u.s.merkmal[1], 1);
    b.f.auswahltreffen(1, 3); // "Dienstalter nicht erforderlich" is not 2: to 1 as well
    EXPECT_EQ(b.u.s.merkmal[1], 1);
}

TEST(Auswahl, BdaSetztDieStufeOhneFrage) {
    test::Bild b;
    b.laden(1, 5);
    b.f.bdatippen("07.1990");
    // June 1997: (97 - 90) * 12 - 7 + 6 = 83 months; 83 / 24 = 3.
    EXPECT_TRUE(b.meldungen().empty());
    EXPECT_EQ(b.u.s.merkmal[7], 3);
    EXPECT_EQ(b.zeile(7).position, 3);
    EXPECT_EQ(personalsatzlesen(b.u.s, 6, 1).merkmal[7], 3);
    EXPECT_EQ(personalsatzlesen(b.u.s, 6, 1).bdabeginn, "07.1990");
}

TEST(Auswahl, BdaJenseitsDerListeNimmtDieLetzteStufe) {
    test::Bild b; // January 1997, group 0: eight steps 3344..3351, last position 7
    b.f.bdatippen("01.1971");
    // (97 - 71) * 12 - 1 + 1 = 312 months; 312 / 24 = 13, cut to 7.
    EXPECT_EQ(b.u.s.merkmal[7], 7);
    EXPECT_EQ(b.zeile(7).position, 7);
}

TEST(Auswahl, BdaOhneGueltigesDatumLeertDasFeld) {
    test::Bild b;
    b.f.bdatippen("13.1990");
    EXPECT_EQ(b.f.bild.bdabeginn, "");
    EXPECT_EQ(b.u.s.bdabeginn, "       ");
    EXPECT_TRUE(b.meldungen().empty());
    // A key in the empty box reminds of the start of the service age.
    EXPECT_EQ(b.f.BDABeginn_KeyPress('0'), '0');
    ASSERT_EQ(b.meldungen().size(), 1u);
    EXPECT_EQ(b.meldungen()[0].titel, "BDA-Beginn");
    EXPECT_EQ(b.meldungen()[0].text,
              "Ohne Eingabe des Beginns des Besoldungs-/Vergütungsdienstalters kann keine "
              "Gehaltsberechnung durchgeführt werden. In der Regel ist dies der Monat, in dem der "
              "21. Geburtstag liegt.");
}

TEST(Auswahl, EnterInZeileNullBenenntDiePersonUm) {
    test::Bild b;
    b.laden(3, 0);
    b.f.umbenennen("Meier, Hans");
    EXPECT_EQ(textgetrimmt(b.u.s, 5003), "Meier, Hans");
    EXPECT_EQ(b.zeile(0).liste[2], "Meier, Hans");
    EXPECT_EQ(b.zeile(0).liste[1], "2. Name");
    // Other keys in the list do nothing of their own.
    b.zeile(0).editiertext = "Schulze";
    EXPECT_EQ(b.f.z_KeyPress(0, 'x'), 'x');
    EXPECT_EQ(b.f.z_KeyPress(5, taste::enter), taste::enter);
    EXPECT_EQ(textgetrimmt(b.u.s, 5003), "Meier, Hans");
}

TEST(Auswahl, ZeileNullWechseltDiePerson) {
    test::Bild b;
    b.f.auswahltreffen(0, 4);
    EXPECT_EQ(b.u.s.aktuelleperson, 5);
    EXPECT_EQ(b.u.s.merkmal[0], 4);
}

TEST(Auswahl, Zeile20WechseltDenMonat) {
    test::Bild b;
    Personalsatz mai = personalsatzlesen(b.u.s, 5, 1);
    mai.wert[13] = 777;
    personalsatzschreiben(b.u.s, 5, 1, mai);
    b.f.auswahltreffen(20, 4);
    EXPECT_EQ(b.u.s.merkmal[20], 4);
    EXPECT_EQ(b.u.s.wert[13], 777);
    EXPECT_EQ(b.zeile(13).wert, "7,77+");
}

TEST(Auswahl, GesperrteListeUndAenderungssperreIgnorierenDenKlick) {
    test::Bild b;
    b.zeile(38).position = 0;
    b.f.z_Click(38); // a civil servant's insurance row is locked
    EXPECT_EQ(b.u.s.merkmal[38], 4);
    b.u.s.aenderungssperre = -1;
    b.zeile(26).position = 3;
    b.f.z_Click(26);
    EXPECT_EQ(b.u.s.merkmal[26], 0);
}

TEST(Auswahl, SchalterRechnetDenMonatSofort) {
    test::Bild b;
    b.f.auswahltreffen(4, 5);
    b.f.soz_Click(12, false);
    EXPECT_EQ(b.u.s.soz[12], 0);
    EXPECT_EQ(personalsatzlesen(b.u.s, 1, 1).soz[12], 0);
    EXPECT_EQ(personalsatzlesen(b.u.s, 7, 1).soz[12], 0);
    EXPECT_EQ(b.u.s.aktuellezeile, 12);
    b.f.tei_Click(19, false);
    EXPECT_FALSE(b.f.bild.schalter[T].gesetzt[19]);
    EXPECT_EQ(personalsatzlesen(b.u.s, 1, 1).tei[19], 0);
}

TEST(Auswahl, JahressichtVerweigertSchalter) {
    test::Bild b;
    b.f.auswahltreffen(4, 5);
    b.f.auswahltreffen(20, 12);
    b.u.dialoge.vergessen();
    b.f.lst_Click(12, false);
    ASSERT_EQ(b.meldungen().size(), 1u);
    EXPECT_EQ(b.meldungen()[0].titel, "Keine Änderung möglich");
    EXPECT_EQ(personalsatzlesen(b.u.s, 12, 1).lst[12], 1);
}

TEST(Auswahl, JahresgehaltPrueftZeile15UndMeldetDarumNie) {
    test::Bild b;
    b.laden(1, 12);
    for (int zeile : {3, 12, 33})
        b.f.z_GotFocus(zeile);
    EXPECT_TRUE(b.meldungen().empty());
    // Only a row 15 at position 12 would make it speak; rows 15 and 42 are left out.
    b.u.s.merkmal[15] = 12;
    b.f.z_GotFocus(15);
    b.f.z_GotFocus(42);
    EXPECT_TRUE(b.meldungen().empty());
    b.f.z_GotFocus(3);
    ASSERT_EQ(b.meldungen().size(), 1u);
    EXPECT_EQ(b.meldungen()[0].titel, "Jahresgehalt ändern");
}

TEST(Auswahl, DoppelklickOeffnetDieHilfeDerZeile) {
    test::Bild b;
    b.f.z_DblClick(12);
    EXPECT_EQ(b.hilfe.kontexte, std::vector<int>{11012});
    b.f.auswahltreffen(4, 1);
    b.f.z_DblClick(12);
    ASSERT_EQ(b.meldungen().size(), 1u);
    EXPECT_EQ(b.meldungen()[0].titel, "HILFE");
    EXPECT_EQ(b.meldungen()[0].text,
              "Für die in Zeile 2 eingestellten Bediensteten sind noch keine Hilfetexte "
              "verfügbar.");
    EXPECT_EQ(b.hilfe.kontexte.size(), 1u);
}

} // namespace lonvir
