// The caption of the main window names the tax law of 1998 when the months are computed by it.
#include "screen/hauptform.h"

#include "start/einstellungen.h"

#include <gtest/gtest.h>

namespace lonvir {

TEST(Fenstertitel, NenntDasSteuerrecht1998NurWennEsGilt) {
    Sitzung s;
    s.jahr = 1998;
    EXPECT_EQ(fenstertitel(s), "LONVIR 1998 im öffentlichen Dienst    (ohne Gewähr)");
    s.einstellungen.steuerrecht1998 = true;
    EXPECT_EQ(fenstertitel(s), "LONVIR 1998 im öffentlichen Dienst    (ohne Gewähr)    "
                               "Lohnsteuer nach dem Steuerrecht 1998");
    // The year 1997 is always computed by its own law.
    s.jahr = 1997;
    EXPECT_EQ(fenstertitel(s), "LONVIR 1997 im öffentlichen Dienst    (ohne Gewähr)");
}

} // namespace lonvir
