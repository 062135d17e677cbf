// The remark card: sixteen fixed fields at their offsets, and the cut on assignment.
#include "records/jahressatz.h"

#include "records/satzbild.h"

#include <gtest/gtest.h>

namespace lonvir {

namespace {
// Field i holds the letter 'A' + i at its first and its last byte, blanks between.
test::Satzbild handbild() {
    test::Satzbild b(Jahressatz::laenge, ' ');
    // 0..7 at 40 * i, 40 long; 8..15 at 320 + 120 * (i - 8), 120 long.
    const std::size_t anfang[16] = {0,   40,  80,  120, 160, 200, 240,  280,
                                    320, 440, 560, 680, 800, 920, 1040, 1160};
    for (int i = 0; i < 16; ++i) {
        const std::size_t laenge = i < 8 ? 40 : 120;
        const std::string buchstabe(1, static_cast<char>('A' + i));
        b.text(anfang[i], buchstabe).text(anfang[i] + laenge - 1, buchstabe);
    }
    return b;
}
} // namespace

TEST(Jahressatz, JedesFeldAnSeinemVersatz) {
    const Jahressatz j = Jahressatz::lesen(handbild().bytes());
    EXPECT_EQ(j.bemerkung[0], "A" + std::string(38, ' ') + "A");
    EXPECT_EQ(j.bemerkung[7], "H" + std::string(38, ' ') + "H");
    EXPECT_EQ(j.bemerkung[8], "I" + std::string(118, ' ') + "I");
    EXPECT_EQ(j.bemerkung[15], "P" + std::string(118, ' ') + "P");
    std::vector<std::uint8_t> zurueck(Jahressatz::laenge, 0);
    j.schreiben(zurueck);
    EXPECT_EQ(zurueck, handbild().bytes());
}

TEST(Jahressatz, NeuerSatzIstGanzLeer) {
    std::vector<std::uint8_t> b(Jahressatz::laenge, 0);
    Jahressatz{}.schreiben(b);
    EXPECT_EQ(b, std::vector<std::uint8_t>(1280, ' '));
    // Zero bytes of a read past the end come back as the same blank card.
    EXPECT_EQ(Jahressatz::lesen(std::vector<std::uint8_t>(1280, 0)), Jahressatz{});
}

TEST(Jahressatz, EinundvierzigZeichenWerdenAufVierzigGekuerzt) {
    Jahressatz j;
    const std::string text41 = "Teilzeit ab 1.4., Antrag vom 12.2.97 liegt"; // 42
    j.setzen(0, text41.substr(0, 41));
    EXPECT_EQ(j.bemerkung[0], text41.substr(0, 40));
    // A long field takes 120 characters and no more.
    j.setzen(9, std::string(121, 'x'));
    EXPECT_EQ(j.bemerkung[9], std::string(120, 'x'));
    j.setzen(10, "kurz");
    EXPECT_EQ(j.bemerkung[10], "kurz" + std::string(116, ' '));
}

TEST(Jahressatz, UmlauteZaehlenAlsEinZeichen) {
    Jahressatz j;
    std::string zeile;
    for (int i = 0; i < 41; ++i)
        zeile += "ü";
    j.setzen(1, zeile);
    EXPECT_EQ(j.bemerkung[1], std::string(40, '\xFC'));
    j.setzen(2, "Überstunden");
    EXPECT_EQ(j.text(2), "Überstunden" + std::string(29, ' '));
}

TEST(Jahressatz, StempeltexteWerdenAufVierzigGekuerzt) {
    // 36 characters fit; the 42 of the second text are cut after "werde".
    Jahressatz j;
    j.setzen(0, "bleibt");
    j.setzen(5, "bleibt auch");
    bemerkungenstempeln(j);
    EXPECT_EQ(j.bemerkung[1], "Bemerkungen, die ausgedruckt werden.    ");
    EXPECT_EQ(j.bemerkung[2], "Bemerkungen, die ausgedruckt werden.    ");
    EXPECT_EQ(j.bemerkung[3], "Bemerkungen, die nicht ausgedruckt werde");
    EXPECT_EQ(j.bemerkung[4], "Bemerkungen, die nicht ausgedruckt werde");
    EXPECT_EQ(j.text(0), "bleibt" + std::string(34, ' '));
    EXPECT_EQ(j.text(5), "bleibt auch" + std::string(29, ' '));
}

} // namespace lonvir
