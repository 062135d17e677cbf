// Arrays with declared bounds.
#include "core/feld.h"

#include <gtest/gtest.h>

namespace lonvir {

TEST(Feld, HaeltSeineGrenzen) {
    Feld<int, 7, 19> lst;
    lst[7] = 1;
    lst[19] = 2;
    EXPECT_EQ(lst[7], 1);
    EXPECT_EQ(lst[19], 2);
    EXPECT_EQ(lst[8], 0); // starts at zero
}

TEST(Feld, IndexAusserhalbIstFehler9) {
    Feld<int, 7, 19> lst;
    try {
        lst[6] = 1;
        FAIL();
    } catch (const Laufzeitfehler& f) {
        EXPECT_EQ(f.nummer(), 9);
        EXPECT_STREQ(f.what(), "Laufzeitfehler 9: Index außerhalb des gültigen Bereichs");
    }
    EXPECT_THROW((void)lst[20], Laufzeitfehler);
}

} // namespace lonvir
