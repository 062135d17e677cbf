// The status line after a transfer names person, source and target.
#include "screen/uebertragungsmeldung.h"

#include <gtest/gtest.h>

namespace lonvir {

TEST(Uebertragungsmeldung, NenntPersonQuelleUndZiel) {
    EXPECT_EQ(uebertragungsmeldung(2, 0, 1),
              "Person 2 von INFO nach PLAN übertragen, 12 Monate und Bemerkungen");
    EXPECT_EQ(uebertragungsmeldung(1000, 2, 1),
              "Person 1000 von REAL nach PLAN übertragen, 12 Monate und Bemerkungen");
}

} // namespace lonvir
