// Person creation: names, default records in every layer, the count of stored records.
#include "records/bytes.h"
#include "start/dateisatz.h"
#include "start/personenanlegen.h"
#include "start/satzzugriff.h"
#include "start/texte.h"
#include "testhilfe.h"

#include <gtest/gtest.h>

#include <fstream>

namespace lonvir {

namespace fs = std::filesystem;

TEST(Personenanlegen, NeuerBestandHat20NamenUndSaetze) {
    test::Umgebung u;
    EXPECT_EQ(u.s.anzahlnamen, 20);
    EXPECT_EQ(textgetrimmt(u.s, 5001), "1. Name");
    EXPECT_EQ(textgetrimmt(u.s, 5020), "20. Name");
    EXPECT_EQ(textgetrimmt(u.s, 5021), "");
    for (char x : {'I', 'P', 'R'}) {
        EXPECT_EQ(fs::file_size(u.ordner.pfad() / (std::string("L1997") + x + ".12")), 20u * 541);
        EXPECT_EQ(fs::file_size(u.ordner.pfad() / (std::string("L1997") + x + ".13")), 20u * 1280);
    }
    EXPECT_EQ(u.s.dim.anzahlpersonen, 20);
}

TEST(Personenanlegen, MonatsfeldStimmtInAllenZwoelfDateienAllerSchichten) {
    test::Umgebung u;
    for (std::int16_t schicht : {INFO, PLAN, REAL}) {
        u.s.schicht = schicht;
        dateienoeffnen(u.s);
        for (int monat = 1; monat <= 12; ++monat)
            for (int person : {1, 7, 20})
                EXPECT_EQ(personalsatzlesen(u.s, monat, person).merkmal[20], monat - 1)
                    << schicht << " " << monat << " " << person;
    }
}

TEST(Personenanlegen, LeererJahressatzIstAusLeerzeichen) {
    test::Umgebung u;
    const std::string inhalt = test::dateiinhalt(u.ordner.pfad(), "L1997P.13");
    EXPECT_EQ(inhalt, std::string(20 * 1280, ' '));
}

TEST(Personenanlegen, WenigerAlsSechsNamenWerdenAuf20Ergaenzt) {
    test::LeereUmgebung u;
    Sitzung& s = u.s;
    textschreiben(s, 5001, "Anna Abel");
    textschreiben(s, 5003, "Carl Cordes"); // a blank name in between counts as used
    personenanlegen(s);
    EXPECT_EQ(s.anzahlnamen, 20);
    EXPECT_EQ(textgetrimmt(s, 5001), "Anna Abel");
    EXPECT_EQ(textgetrimmt(s, 5002), "");
    EXPECT_EQ(textgetrimmt(s, 5003), "Carl Cordes");
    EXPECT_EQ(textgetrimmt(s, 5004), "4. Name");
}

TEST(Personenanlegen, LeereMonatsdateiZaehltAlsEinSatzDerUeberschriebenWird) {
    test::LeereUmgebung u;
    Sitzung& s = u.s;
    EXPECT_EQ(gespeichertesaetze(s), 1); // length 0 counts as one record
    Personalsatz fremd = Personalsatz::neu(0);
    fremd.wert[12] = 4711;
    personalsatzschreiben(s, 1, 1, fremd);
    EXPECT_EQ(gespeichertesaetze(s), 1);
    personenanlegen(s);
    dateienoeffnen(s);
    EXPECT_EQ(personalsatzlesen(s, 1, 1).wert[12], 0);
}

TEST(Personenanlegen, WachsenderBestandSchreibtAbDerGespeichertenNummer) {
    test::Umgebung u;
    Personalsatz p20 = Personalsatz::neu(0);
    p20.wert[12] = 777;
    personalsatzschreiben(u.s, 1, 20, p20);
    Personalsatz p19 = p20;
    personalsatzschreiben(u.s, 1, 19, p19);
    textschreiben(u.s, 5025, "Neue Kraft");
    personenanlegen(u.s);
    EXPECT_EQ(u.s.anzahlnamen, 25);
    u.s.schicht = INFO;
    dateienoeffnen(u.s);
    EXPECT_EQ(gespeichertesaetze(u.s), 25);
    // The records are written from the stored number on: record 20 itself is set back to
    // the defaults, record 19 keeps what it had. So it stays.
    EXPECT_EQ(personalsatzlesen(u.s, 1, 19).wert[12], 777);
    EXPECT_EQ(personalsatzlesen(u.s, 1, 20).wert[12], 0);
    EXPECT_EQ(personalsatzlesen(u.s, 12, 25).merkmal[20], 11);
}

TEST(Personenanlegen, BeruehrtAlleSchichtenUndLaesstDieLetzteOffen) {
    test::LeereUmgebung u(PLAN);
    Sitzung& s = u.s;
    personenanlegen(s);
    EXPECT_EQ(s.datei(1).pfad().filename(), "L1997R.1");
    EXPECT_EQ(fs::file_size(u.ordner.pfad() / "L1997I.5"), 20u * 541);
}

TEST(Personenanlegen, NichtsZuTunWennDerBestandReicht) {
    test::Umgebung u;
    Personalsatz p = Personalsatz::neu(4);
    p.wert[12] = 99;
    personalsatzschreiben(u.s, 5, 20, p);
    personenanlegen(u.s);
    EXPECT_EQ(personalsatzlesen(u.s, 5, 20).wert[12], 99);
}

} // namespace lonvir
