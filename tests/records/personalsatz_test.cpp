// The person-month record: 541 bytes, packed, little-endian, field by field.
#include "records/bytes.h"
#include "records/personalsatz.h"

#include <gtest/gtest.h>

namespace lonvir {

namespace {
Personalsatz beispiel() {
    Personalsatz p;
    for (int i = 1; i <= 45; ++i)
        p.merkmal[i] = static_cast<std::int16_t>(100 + i);
    for (int i = 0; i <= 45; ++i)
        p.wert[i] = -1000 * i - 7;
    for (int i = 0; i <= 25; ++i)
        p.nebenwert[i] = 70000 + i;
    for (int i = 7; i <= 19; ++i) {
        p.lst[i] = static_cast<std::int16_t>(i);
        p.soz[i] = static_cast<std::int16_t>(20 + i);
        p.zvk[i] = static_cast<std::int16_t>(40 + i);
        p.wei[i] = static_cast<std::int16_t>(60 + i);
        p.tei[i] = static_cast<std::int16_t>(80 + i);
        p.bru[i] = static_cast<std::int16_t>(-i);
    }
    p.bdabeginn = "07.1990";
    return p;
}
} // namespace

TEST(Personalsatz, IstGenau541BytesOhneLuecke) {
    const auto b = beispiel().bytes();
    EXPECT_EQ(b.size(), 541u);
    // merkmal(1) at 0, merkmal(45) at 88; the in-memory gap is not in the file, so
    // wert(0) follows at 90 and wert(1) at 94.
    EXPECT_EQ(bytes::i16(b, 0), 101);
    EXPECT_EQ(bytes::i16(b, 88), 145);
    EXPECT_EQ(bytes::i32(b, 90), -7);
    EXPECT_EQ(bytes::i32(b, 94), -1007);
    EXPECT_EQ(bytes::i32(b, 90 + 4 * 45), -45007); // wert(45) at 270
    EXPECT_EQ(bytes::i32(b, 274), 70000);          // nebenwert(0)
    EXPECT_EQ(bytes::i32(b, 374), 70025);          // nebenwert(25)
    EXPECT_EQ(bytes::i16(b, 378), 7);              // lst(7)
    EXPECT_EQ(bytes::i16(b, 402), 19);             // lst(19)
    EXPECT_EQ(bytes::i16(b, 404), 27);             // soz(7)
    EXPECT_EQ(bytes::i16(b, 430), 47);             // zvk(7)
    EXPECT_EQ(bytes::i16(b, 456), 67);             // wei(7)
    EXPECT_EQ(bytes::i16(b, 482), 87);             // tei(7)
    EXPECT_EQ(bytes::i16(b, 508), -7);             // bru(7)
    EXPECT_EQ(bytes::i16(b, 532), -19);            // bru(19)
    EXPECT_EQ(bytes::text(b, 534, 7), "07.1990");
}

TEST(Personalsatz, KleinerEndeZuerst) {
    Personalsatz p;
    p.wert[1] = 0x01020304;
    const auto b = p.bytes();
    EXPECT_EQ(b[94], 0x04);
    EXPECT_EQ(b[95], 0x03);
    EXPECT_EQ(b[96], 0x02);
    EXPECT_EQ(b[97], 0x01);
}

TEST(Personalsatz, LesenUndSchreibenSindUmkehrbar) {
    const Personalsatz p = beispiel();
    EXPECT_EQ(Personalsatz::lesen(p.bytes()), p);
}

TEST(Personalsatz, NullbytesLesenSichAlsLeererSatz) {
    std::array<std::uint8_t, 541> b{};
    const Personalsatz p = Personalsatz::lesen(b);
    EXPECT_EQ(p.wert[0], 0);
    EXPECT_EQ(p.bdabeginn, "       ");
}

TEST(Personalsatz, VorgabenEinesNeuenSatzes) {
    const Personalsatz p = Personalsatz::neu(4);
    EXPECT_EQ(p.merkmal[13], 19);
    EXPECT_EQ(p.merkmal[14], 6);
    EXPECT_EQ(p.merkmal[20], 4);
    EXPECT_EQ(p.merkmal[41], 5);
    EXPECT_EQ(p.merkmal[42], 14);
    EXPECT_EQ(p.merkmal[43], 16);
    EXPECT_EQ(p.merkmal[1], 0);
    EXPECT_EQ(p.wert[0], 3850);
    EXPECT_EQ(p.wert[1], 3850);
    EXPECT_EQ(p.wert[2], 3000);
    EXPECT_EQ(p.wert[3], 3000);
    EXPECT_EQ(p.wert[4], 0);
    for (int i = 7; i <= 19; ++i) {
        EXPECT_EQ(p.lst[i], 1);
        EXPECT_EQ(p.soz[i], 1);
        EXPECT_EQ(p.tei[i], 1);
        EXPECT_EQ(p.zvk[i], (i == 15 || i == 17) ? 0 : 1) << i;
        EXPECT_EQ(p.wei[i], i >= 17 ? 0 : 1) << i;
        EXPECT_EQ(p.bru[i], i == 16 ? 0 : 1) << i;
    }
    EXPECT_EQ(p.bdabeginn, "01.1997");
}

} // namespace lonvir
