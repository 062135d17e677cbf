// Scripted message boxes.
#include "core/dialoge.h"

#include <gtest/gtest.h>

namespace lonvir {

TEST(SkriptDialoge, AntwortetNachSkriptDannMitStandard) {
    SkriptDialoge d(false);
    d.antworten(Knopf::ja);
    EXPECT_EQ(d.zeigen({"BDA", "Frage?", Symbol::frage, Knoepfe::jaNein}), Knopf::ja);
    EXPECT_EQ(d.zeigen({"BDA", "Frage?", Symbol::frage, Knoepfe::jaNein}), Knopf::nein);
    EXPECT_EQ(d.zeigen({"Passwort", "x", Symbol::stop, Knoepfe::wiederholenAbbrechen}),
              Knopf::abbrechen);
    ASSERT_EQ(d.gezeigt().size(), 3u);
    EXPECT_EQ(d.gezeigt()[2].titel, "Passwort");
}

TEST(SkriptDialoge, JaAufFragen) {
    SkriptDialoge d(true);
    EXPECT_EQ(d.zeigen({"t", "x", Symbol::frage, Knoepfe::jaNein}), Knopf::ja);
}

} // namespace lonvir
