// The one end of the program on a run-time error: the box, the standard error, status 3.
#include "core/laufzeitfehler.h"
#include "core/programmende.h"

#include <gtest/gtest.h>

namespace lonvir {

namespace {
Laufzeitfehler ueberlaufImMaerz() {
    Laufzeitfehler f = Laufzeitfehler::ueberlauf();
    f.schrittsetzen("Schritt 10 (Überstunden und Teilzeit)");
    f.ortsetzen(2, 2, 1997, "PLAN");
    return f;
}
} // namespace

TEST(Programmende, DieMeldungTraegtDenGanzenTextMitDemOrt) {
    const Meldung m = abbruchmeldung(ueberlaufImMaerz());
    EXPECT_EQ(m.titel, "Lonvir 97");
    EXPECT_EQ(m.text, "Laufzeitfehler 6: Überlauf\nbei Person 2, März 1997, Schicht PLAN, in "
                      "Schritt 10 (Überstunden und Teilzeit)");
    EXPECT_EQ(m.symbol, Symbol::stop);
    EXPECT_EQ(m.knoepfe, Knoepfe::ok);
}

TEST(ProgrammendeDeathTest, ZeigtDieMeldungSchreibtSieAufStderrUndEndetMitStatus3) {
    EXPECT_EXIT(
        {
            // The box is recorded in the child; its text reaches stderr before the end.
            SkriptDialoge dialoge;
            programmende(&dialoge, ueberlaufImMaerz());
        },
        ::testing::ExitedWithCode(3), "Laufzeitfehler 6: Überlauf\nbei Person 2, März 1997");
}

TEST(ProgrammendeDeathTest, OhneDialogeNurStderr) {
    EXPECT_EXIT(programmende(nullptr, Laufzeitfehler::indexfehler()), ::testing::ExitedWithCode(3),
                "Laufzeitfehler 9");
}

} // namespace lonvir
