// Row 15 from the VWL list.
#include "engine/schritte.h"

#include <gtest/gtest.h>

namespace lonvir {

TEST(Vwlzeile, ListenstufenGebenDieFestenBetraege) {
    const std::int32_t erwartet[] = {0, 650, 1300, 2600, 3900, 5200, 7800};
    for (std::int16_t stufe = 0; stufe <= 6; ++stufe) {
        Sitzung s;
        s.wert[15] = 999;
        s.eingabe[15] = 999;
        s.merkmal[15] = stufe;
        vwlzeile(s);
        EXPECT_EQ(s.wert[15], erwartet[stufe]) << "Stufe " << stufe;
        EXPECT_EQ(s.eingabe[15], erwartet[stufe]) << "Stufe " << stufe;
    }
}

TEST(Vwlzeile, StufeNullLoeschtZeileUndEingabe) {
    Sitzung s;
    s.wert[15] = 2600;
    s.eingabe[15] = 2600;
    s.merkmal[15] = 0;
    vwlzeile(s);
    EXPECT_EQ(s.wert[15], 0);
    EXPECT_EQ(s.eingabe[15], 0);
}

TEST(Vwlzeile, SpaetereEintraegeBehaltenDieGetippteZeile) {
    Sitzung s;
    s.wert[15] = 4711;
    s.eingabe[15] = 4711;
    s.merkmal[15] = 7;
    vwlzeile(s);
    EXPECT_EQ(s.wert[15], 4711);
    EXPECT_EQ(s.eingabe[15], 4711);
}

} // namespace lonvir
