// A month of health-insurance rates: 28 signed 16-bit rates at 2k, the rest kept as read.
#include "records/kvsatz.h"

#include "core/laufzeitfehler.h"

#include "records/satzbild.h"

#include <gtest/gtest.h>
#include <vector>

namespace lonvir {

TEST(Kvsatz, LiestJedeKasseAnIhremVersatz) {
    test::Satzbild b(Kvsatz::laenge);
    b.i16(0, 1350).i16(2, 1420).i16(26, -1).i16(54, 32767).i16(56, 999);
    const Kvsatz k = Kvsatz::lesen(b.bytes());
    EXPECT_EQ(k.satz[0], 1350); // 13.5 %
    EXPECT_EQ(k.satz[1], 1420);
    EXPECT_EQ(k.satz[2], 0);
    EXPECT_EQ(k.satz[13], -1);
    EXPECT_EQ(k.satz[27], 32767);
    // Offset 56 is behind the 28 rates: not a rate, but kept.
    EXPECT_EQ(k.rest[0], 0xE7); // 999 = 0x03E7
    EXPECT_EQ(k.rest[1], 0x03);
}

TEST(Kvsatz, JedesByteUeberstehtLesenUndSchreiben) {
    test::Satzbild muster(Kvsatz::laenge);
    for (std::size_t i = 0; i < muster.bytes().size(); ++i)
        muster.bytes()[i] = static_cast<std::uint8_t>((i * 91 + 17) & 0xFF);
    std::vector<std::uint8_t> b(Kvsatz::laenge, 0);
    Kvsatz::lesen(muster.bytes()).schreiben(b);
    EXPECT_EQ(b, muster.bytes());
}

TEST(Kvsatz, EinZuKurzerBereichIstEinIndexfehlerWieBeiJedemSatz) {
    const std::vector<std::uint8_t> kurz(Kvsatz::laenge - 1, 0);
    EXPECT_THROW((void)Kvsatz::lesen(kurz), Laufzeitfehler);
    std::vector<std::uint8_t> ziel(Kvsatz::laenge - 1, 0);
    EXPECT_THROW(Kvsatz{}.schreiben(ziel), Laufzeitfehler);
}

} // namespace lonvir
