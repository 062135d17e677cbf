// The display settings record: every field at its offset, and a byte-exact round trip.
#include "records/dimsatz.h"

#include "records/satzbild.h"

#include <gtest/gtest.h>

namespace lonvir {

namespace {
// One distinct value per field, laid by hand at the offsets of the record layout.
test::Satzbild handbild() {
    test::Satzbild b(Dimsatz::laenge);
    b.i16(0, 14).i16(2, -3).i16(88, 12).i16(90, 7); // zeilenfarbe 0, 1, 44, 45
    b.waehrung(92, 1234567);                        // form1top 123.4567
    b.waehrung(100, -20000);                        // form1left -2
    b.waehrung(108, 112000000);                     // form1height 11200
    b.waehrung(116, 153600000);                     // form1width 15360
    b.waehrung(124, 10000000);                      // form2top 1000
    b.waehrung(132, 1);                             // form2left 0.0001
    b.waehrung(140, 105200000);                     // form2height 10520
    b.waehrung(148, 153610000);                     // form2width 15361
    b.waehrung(156, 30000);                         // form3top 3
    b.waehrung(164, 40000);                         // form3left 4
    b.waehrung(172, 50000);                         // reserved 5
    b.waehrung(180, -60000);                        // reserved -6
    b.waehrung(188, 6500000);                       // lstrtabtop 650
    b.waehrung(196, 70000);                         // lstrtableft 7
    b.waehrung(204, 20000);                         // passwortart 2
    b.i16(212, 165).i16(214, -1).i16(226, 32767);   // passwort 0, 1, 7
    b.i16(228, 20).i16(230, 1);                     // anzahlpersonen 20, reserved 1
    return b;
}

Dimsatz handsatz() {
    Dimsatz d;
    d.zeilenfarbe[0] = 14;
    d.zeilenfarbe[1] = -3;
    d.zeilenfarbe[44] = 12;
    d.zeilenfarbe[45] = 7;
    d.form1top = Currency::roh(1234567);
    d.form1left = Currency::roh(-20000);
    d.form1height = Currency::roh(112000000);
    d.form1width = Currency::roh(153600000);
    d.form2top = Currency::roh(10000000);
    d.form2left = Currency::roh(1);
    d.form2height = Currency::roh(105200000);
    d.form2width = Currency::roh(153610000);
    d.form3top = Currency::roh(30000);
    d.form3left = Currency::roh(40000);
    d.reserve172 = Currency::roh(50000);
    d.reserve180 = Currency::roh(-60000);
    d.lstrtabtop = Currency::roh(6500000);
    d.lstrtableft = Currency::roh(70000);
    d.passwortart = Currency::roh(20000);
    d.passwort[0] = 165;
    d.passwort[1] = -1;
    d.passwort[7] = 32767;
    d.anzahlpersonen = 20;
    d.reserve230 = 1;
    return d;
}
} // namespace

TEST(Dimsatz, LiestJedesFeldAnSeinemVersatz) {
    const Dimsatz d = Dimsatz::lesen(handbild().bytes());
    EXPECT_EQ(d.zeilenfarbe[0], 14);
    EXPECT_EQ(d.zeilenfarbe[1], -3);
    EXPECT_EQ(d.zeilenfarbe[2], 0);
    EXPECT_EQ(d.zeilenfarbe[44], 12);
    EXPECT_EQ(d.zeilenfarbe[45], 7);
    EXPECT_EQ(d.form1top.roh(), 1234567);
    EXPECT_EQ(d.form1left.roh(), -20000);
    EXPECT_EQ(d.form1height.roh(), 112000000);
    EXPECT_EQ(d.form1width.roh(), 153600000);
    EXPECT_EQ(d.form2top.roh(), 10000000);
    EXPECT_EQ(d.form2left.roh(), 1);
    EXPECT_EQ(d.form2height.roh(), 105200000);
    EXPECT_EQ(d.form2width.roh(), 153610000);
    EXPECT_EQ(d.form3top.roh(), 30000);
    EXPECT_EQ(d.form3left.roh(), 40000);
    EXPECT_EQ(d.reserve172.roh(), 50000);
    EXPECT_EQ(d.reserve180.roh(), -60000);
    EXPECT_EQ(d.lstrtabtop.roh(), 6500000);
    EXPECT_EQ(d.lstrtableft.roh(), 70000);
    EXPECT_EQ(d.passwortart.roh(), 20000);
    EXPECT_EQ(d.passwort[0], 165);
    EXPECT_EQ(d.passwort[1], -1);
    EXPECT_EQ(d.passwort[2], 0);
    EXPECT_EQ(d.passwort[7], 32767);
    EXPECT_EQ(d.anzahlpersonen, 20);
    EXPECT_EQ(d.reserve230, 1);
}

TEST(Dimsatz, SchreibtJedesFeldAnSeinenVersatz) {
    std::vector<std::uint8_t> b(Dimsatz::laenge, 0xAA);
    handsatz().schreiben(b);
    // Every one of the 232 bytes belongs to a field, so the image is matched whole.
    EXPECT_EQ(b, handbild().bytes());
}

TEST(Dimsatz, JedesByteUeberstehtLesenUndSchreiben) {
    test::Satzbild muster(Dimsatz::laenge);
    for (std::size_t i = 0; i < muster.bytes().size(); ++i)
        muster.bytes()[i] = static_cast<std::uint8_t>((i * 37 + 11) & 0xFF);
    std::vector<std::uint8_t> b(Dimsatz::laenge, 0);
    Dimsatz::lesen(muster.bytes()).schreiben(b);
    EXPECT_EQ(b, muster.bytes());
}

TEST(Dimsatz, EinZuKurzerPufferIstLaufzeitfehler9) {
    std::vector<std::uint8_t> kurz(Dimsatz::laenge - 1, 0);
    EXPECT_THROW((void)Dimsatz::lesen(kurz), Laufzeitfehler);
}

} // namespace lonvir
