// A pay-table line: 27 amounts at offsets 0, 4, ..., 104, and a byte-exact round trip.
#include "records/tarifsatz.h"

#include "records/satzbild.h"

#include <gtest/gtest.h>

namespace lonvir {

TEST(Tarifsatz, LiestJedesElementAnSeinemVersatz) {
    test::Satzbild b(Tarifsatz::laenge);
    b.i32(0, 243198);      // "Stufe 1"
    b.i32(4, -1);          // "Stufe 2"
    b.i32(52, 412345);     // "Stufe 14"
    b.i32(56, 500000);     // "Stufe 15 o.a."
    b.i32(60, 98765);      // "OZ-Grundbetr."
    b.i32(64, 16000);      // "Verh.Zuschl."
    b.i32(68, 17100);      // "1 Kind"
    b.i32(88, 2147483647); // "6 Kinder"
    b.i32(92, 3000);       // "in Unterk. II"
    b.i32(96, 3100);       // "in UnterK. Ic"
    b.i32(100, 13211);     // "Allg.St.Zul."
    b.i32(104, 2875);      // "Überst.Verg."
    const Tarifsatz t = Tarifsatz::lesen(b.bytes());
    EXPECT_EQ(t.wert[0], 243198);
    EXPECT_EQ(t.wert[1], -1);
    EXPECT_EQ(t.wert[2], 0);
    EXPECT_EQ(t.wert[13], 412345);
    EXPECT_EQ(t.wert[14], 500000);
    EXPECT_EQ(t.wert[15], 98765);
    EXPECT_EQ(t.wert[16], 16000);
    EXPECT_EQ(t.wert[17], 17100);
    EXPECT_EQ(t.wert[22], 2147483647);
    EXPECT_EQ(t.wert[23], 3000);
    EXPECT_EQ(t.wert[24], 3100);
    EXPECT_EQ(t.wert[25], 13211);
    EXPECT_EQ(t.wert[26], 2875);

    std::vector<std::uint8_t> zurueck(Tarifsatz::laenge, 0xAA);
    t.schreiben(zurueck);
    EXPECT_EQ(zurueck, b.bytes());
}

TEST(Tarifsatz, JedesByteUeberstehtLesenUndSchreiben) {
    test::Satzbild muster(Tarifsatz::laenge);
    for (std::size_t i = 0; i < muster.bytes().size(); ++i)
        muster.bytes()[i] = static_cast<std::uint8_t>((i * 53 + 7) & 0xFF);
    std::vector<std::uint8_t> b(Tarifsatz::laenge, 0);
    Tarifsatz::lesen(muster.bytes()).schreiben(b);
    EXPECT_EQ(b, muster.bytes());
}

} // namespace lonvir
