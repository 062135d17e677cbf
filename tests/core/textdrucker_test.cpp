// The plain-text face: the column grid as text, a form feed per document.
#include "core/textdrucker.h"

#include <gtest/gtest.h>

namespace lonvir {

TEST(Textdrucker, ZeilenUndSeitenvorschub) {
    Textdrucker d;
    d.Print({Tab{3}, "a", Tab{6}, "b"});
    d.Print({});
    d.EndDoc();
    d.Print({"zwei"});
    d.EndDoc();
    EXPECT_EQ(d.inhalt, "  a  b\n\n\f\nzwei\n\f\n");
}

TEST(Textdrucker, UmlauteZaehlenAlsEineSpalte) {
    Textdrucker d;
    d.Print({"Überstunden", Tab{14}, "x"});
    d.EndDoc();
    EXPECT_EQ(d.inhalt, "Überstunden  x\n\f\n");
}

} // namespace lonvir
