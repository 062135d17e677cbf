// Run-time errors gather the place where they arose on their way up.
#include "core/laufzeitfehler.h"

#include <gtest/gtest.h>

namespace lonvir {

TEST(Laufzeitfehler, OhneOrtNurNummerUndText) {
    const Laufzeitfehler f = Laufzeitfehler::indexfehler();
    EXPECT_STREQ(f.what(), "Laufzeitfehler 9: Index außerhalb des gültigen Bereichs");
    EXPECT_EQ(f.ort().person, 0);
    EXPECT_EQ(f.ort().monat, -1);
}

TEST(Laufzeitfehler, DerInnersteSchrittBleibt) {
    Laufzeitfehler f = Laufzeitfehler::ueberlauf();
    f.schrittsetzen("Schritt 21 (Lohnsteuer des Monats)");
    f.schrittsetzen("Schritt 29 (Versorgung und Sozialversicherung)");
    EXPECT_STREQ(f.what(), "Laufzeitfehler 6: Überlauf\nin Schritt 21 (Lohnsteuer des "
                           "Monats)");
}

TEST(Laufzeitfehler, DerErsteOrtBleibt) {
    Laufzeitfehler f = Laufzeitfehler::ueberlauf();
    f.ortsetzen(7, 11, 1998, "REAL");
    f.ortsetzen(1, 0, 1997, "INFO");
    f.schrittsetzen("Schritt 26 (Auszahlung)");
    EXPECT_STREQ(f.what(), "Laufzeitfehler 6: Überlauf\n"
                           "bei Person 7, Dezember 1998, Schicht REAL, in Schritt 26 (Auszahlung)");
}

TEST(Laufzeitfehler, DieJahresansichtHeisstSo) {
    Laufzeitfehler f = Laufzeitfehler::satznummerfehler();
    f.ortsetzen(3, 12, 1997, "INFO");
    EXPECT_STREQ(f.what(),
                 "Laufzeitfehler 63: Falsche Datensatznummer\nbei Person 3, Jahresansicht 1997, "
                 "Schicht INFO");
}

} // namespace lonvir
