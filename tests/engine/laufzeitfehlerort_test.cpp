// A run-time error in the middle of a calculation names the person, month, year, layer and
// the step in which it arose, and the month's record stays as it was.
#include "core/laufzeitfehler.h"
#include "engine/berechnen.h"
#include "engine/monatladen.h"
#include "start/satzzugriff.h"
#include "testhilfe.h"

#include <gtest/gtest.h>

namespace lonvir {

namespace {

// Person 2 of layer PLAN in March 1997, a civil servant with 100 000 hours of overtime at
// 1000 DM each: 10^10 Pfennig do not fit in 32 bits.
struct UeberlaufImMaerz : ::testing::Test {
    test::Umgebung u{1997, PLAN};
    Sitzung& s = u.s;
    UeberlaufImMaerz() {
        monatladen(s, 2, 2);
        s.merkmal[33] = 49; // no wage tax
        s.eingabe[12] = 10000;
        s.aenderungscode = 0;
        berechnen(s);
        s.eingabe[4] = 100000;
        test::ueberstundensatzsetzen(s, 100000);
    }
    Laufzeitfehler fehler() {
        try {
            berechnen(s);
        } catch (const Laufzeitfehler& f) {
            return f;
        }
        ADD_FAILURE() << "kein Laufzeitfehler";
        return Laufzeitfehler::ueberlauf();
    }
};

} // namespace

TEST_F(UeberlaufImMaerz, NenntPersonMonatJahrSchichtUndSchritt) {
    const Laufzeitfehler f = fehler();
    EXPECT_EQ(f.nummer(), 6);
    EXPECT_EQ(f.ort().person, 2);
    EXPECT_EQ(f.ort().monat, 2);
    EXPECT_EQ(f.ort().jahr, 1997);
    EXPECT_EQ(f.ort().schicht, "PLAN");
    EXPECT_EQ(f.ort().schritt, "Schritt 10 (Überstunden und Teilzeit)");
    EXPECT_STREQ(f.what(), "Laufzeitfehler 6: Überlauf\n"
                           "bei Person 2, März 1997, Schicht PLAN, in Schritt 10 (Überstunden "
                           "und Teilzeit)");
}

TEST_F(UeberlaufImMaerz, DerMonatBleibtWieErGespeichertWar) {
    (void)fehler();
    const Personalsatz p = personalsatzlesen(s, 3, 2);
    EXPECT_EQ(p.wert[4], 0);
    EXPECT_EQ(p.wert[12], 10000);
}

TEST_F(UeberlaufImMaerz, ImFolgemonatNenntErDenFolgemonat) {
    // The overtime rate of the tariff line holds for April too; typed overtime of March is
    // not carried forward, so April is run with its own 100 000 hours typed as March's.
    s.eingabe[4] = 0;
    berechnen(s);
    s.merkmal[20] = 3;
    s.eingabe[4] = 100000;
    const Laufzeitfehler f = fehler();
    EXPECT_EQ(f.ort().monat, 3);
    EXPECT_NE(std::string(f.what()).find("April 1997"), std::string::npos) << f.what();
}

} // namespace lonvir
