// The picture of the main window: landscape, one page with the picture, then the advice.
#include "reports/grafikdrucken.h"

#include "core/druckseiten.h"
#include "testhilfe.h"

#include <gtest/gtest.h>

namespace lonvir {
namespace {

TEST(Grafikdrucken, QuerformatMitDemBildDesHauptfensters) {
    Merkdrucker d;
    d.Orientation(hochformat);
    grafikdrucken(d);
    ASSERT_EQ(d.dokumente.size(), 1u);
    EXPECT_EQ(d.dokumente[0].ausrichtung, querformat);
    EXPECT_TRUE(d.dokumente[0].formbild);
    EXPECT_TRUE(d.dokumente[0].zeilen.empty());
    // The picture stands on a page of its own although no line is printed.
    const auto seiten = seitenumbruch(d.dokumente, 700, 500);
    ASSERT_EQ(seiten.size(), 1u);
    EXPECT_EQ(seiten[0].ausrichtung, querformat);
    // The next document starts without the picture.
    d.Print({std::string("x")});
    d.EndDoc();
    EXPECT_FALSE(d.dokumente[1].formbild);
}

TEST(Grafikdrucken, DerHinweisMitOk) {
    test::Umgebung u;
    grafikhinweis(u.s);
    ASSERT_EQ(u.dialoge.gezeigt().size(), 1u);
    const Meldung& m = u.dialoge.gezeigt()[0];
    EXPECT_EQ(m.knoepfe, Knoepfe::ok);
    EXPECT_TRUE(m.text.starts_with("Nicht alle Druckertreiber verstehen den Querformat-Befehl "
                                   "gleich. Wenn Ihr Drucker im Hochformat gedruckt hat"));
    EXPECT_TRUE(m.text.ends_with("Wenn er sich zu einem Doppelpfeil verwandelt hat, ziehen sie "
                                 "ihn nach links."));
}

} // namespace
} // namespace lonvir
