// The settings record of a year: every field at its offset, and a byte-exact round trip.
#include "records/voeinsatz.h"

#include "records/satzbild.h"

#include <gtest/gtest.h>

namespace lonvir {

namespace {
std::string gepolstert(std::string t, std::size_t laenge) {
    t.resize(laenge, ' ');
    return t;
}

// Texts and numbers laid by hand: the five texts blank padded, voreinstellung(i) at 260 + 8i,
// vorgabewert(j) at 588 + 4j.
test::Satzbild handbild() {
    test::Satzbild b(Voeinsatz::laenge, 0);
    b.text(0, gepolstert("R0", 20)).text(20, gepolstert("R20", 20)).text(40, gepolstert("R40", 20));
    b.text(60, gepolstert("Stadtverwaltung", 40));
    b.text(100, gepolstert("Personalamt \xC4nderungen", 40)); // Ä in code page 1252
    b.text(140, gepolstert("K\xF6ln", 20));                   // ö
    b.text(160, gepolstert("Bitte pr\xFC"
                           "fen",
                           100)); // ü
    b.waehrung(260, 30000);       // voreinstellung 0: 3
    b.waehrung(268, 50000);       // 1: 5
    b.waehrung(372, 20000);       // 14: layer REAL
    b.waehrung(380, 170000);      // 15: person 17
    b.waehrung(388, 110000);      // 16: December
    b.waehrung(404, 130000);      // 18: 13 thousandths
    b.waehrung(500, 1000000);     // 30: quota 100
    b.waehrung(580, -15000);      // 40: -1.5, kept as read
    b.i32(588, 7);                // vorgabewert 0
    b.i32(596, 4000);             // 2: zvkstufe West, period 1
    b.i32(612, 8000);             // 6: zvkgrenze West
    b.i32(632, 7300);             // 11: zvkgrenze Ost
    b.i32(644, -2);               // 14
    return b;
}
} // namespace

TEST(Voeinsatz, LiestJedesFeldAnSeinemVersatz) {
    const Voeinsatz v = Voeinsatz::lesen(handbild().bytes());
    EXPECT_EQ(v.reserve0, gepolstert("R0", 20));
    EXPECT_EQ(v.reserve20, gepolstert("R20", 20));
    EXPECT_EQ(v.reserve40, gepolstert("R40", 20));
    EXPECT_EQ(v.dienststelle1, gepolstert("Stadtverwaltung", 40));
    EXPECT_EQ(v.dienststelle2, gepolstert("Personalamt \xC4nderungen", 40));
    EXPECT_EQ(v.dienststellenort, gepolstert("K\xF6ln", 20));
    EXPECT_EQ(v.berichtszeile, gepolstert("Bitte pr\xFC"
                                          "fen",
                                          100));
    EXPECT_EQ(v.voreinstellung[0].roh(), 30000);
    EXPECT_EQ(v.voreinstellung[1].roh(), 50000);
    EXPECT_EQ(v.voreinstellung[2].roh(), 0);
    EXPECT_EQ(v.voreinstellung[14].roh(), 20000);
    EXPECT_EQ(v.voreinstellung[15].roh(), 170000);
    EXPECT_EQ(v.voreinstellung[16].roh(), 110000);
    EXPECT_EQ(v.voreinstellung[18].roh(), 130000);
    EXPECT_EQ(v.voreinstellung[30].roh(), 1000000);
    EXPECT_EQ(v.voreinstellung[40].roh(), -15000);
    EXPECT_EQ(v.vorgabewert[0], 7);
    EXPECT_EQ(v.vorgabewert[2], 4000);
    EXPECT_EQ(v.vorgabewert[6], 8000);
    EXPECT_EQ(v.vorgabewert[11], 7300);
    EXPECT_EQ(v.vorgabewert[14], -2);
}

TEST(Voeinsatz, SchreibtJedesFeldAnSeinenVersatz) {
    const Voeinsatz v = Voeinsatz::lesen(handbild().bytes());
    std::vector<std::uint8_t> b(Voeinsatz::laenge, 0xAA);
    v.schreiben(b);
    EXPECT_EQ(b, handbild().bytes());
}

TEST(Voeinsatz, NeuerSatzHatLeereTexteUndNullen) {
    std::vector<std::uint8_t> b(Voeinsatz::laenge, 0xAA);
    Voeinsatz{}.schreiben(b);
    // 260 bytes of text, all blanks; 41 Currency and 15 integers, all zero bytes.
    for (std::size_t i = 0; i < 260; ++i)
        ASSERT_EQ(b[i], ' ') << "Versatz " << i;
    for (std::size_t i = 260; i < 648; ++i)
        ASSERT_EQ(b[i], 0) << "Versatz " << i;
}

TEST(Voeinsatz, NullbytesEinesTextesLesenSichAlsLeerzeichen) {
    // A read past the end of the file gives zero bytes; the texts then are blanks.
    const Voeinsatz v = Voeinsatz::lesen(std::vector<std::uint8_t>(Voeinsatz::laenge, 0));
    EXPECT_EQ(v.dienststelle1, std::string(40, ' '));
    EXPECT_EQ(v.berichtszeile, std::string(100, ' '));
    EXPECT_EQ(v, Voeinsatz{});
}

TEST(Voeinsatz, JedesByteUeberstehtLesenUndSchreiben) {
    test::Satzbild muster(Voeinsatz::laenge);
    // No zero byte in the texts, which would come back as a blank.
    for (std::size_t i = 0; i < muster.bytes().size(); ++i)
        muster.bytes()[i] = static_cast<std::uint8_t>(i < 260 ? 33 + i % 200 : (i * 29 + 5) & 0xFF);
    std::vector<std::uint8_t> b(Voeinsatz::laenge, 0);
    Voeinsatz::lesen(muster.bytes()).schreiben(b);
    EXPECT_EQ(b, muster.bytes());
}

} // namespace lonvir
