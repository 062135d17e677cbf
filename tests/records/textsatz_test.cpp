// A text-table record: 35 bytes of code page 1252, blank padded, no terminator.
#include "records/textsatz.h"

#include "records/satzbild.h"

#include <gtest/gtest.h>

namespace lonvir {

TEST(Textsatz, LiestDieFuenfunddreissigBytes) {
    test::Satzbild b(Textsatz::laenge, ' ');
    b.text(0, "Gr\xFCn").text(34, "x"); // ü in code page 1252; the last byte is text too
    EXPECT_EQ(Textsatz::lesen(b.bytes()).text, "Gr\xFC"
                                               "n" +
                                                   std::string(30, ' ') + "x");
}

TEST(Textsatz, NullbytesLesenSichAlsLeerzeichen) {
    const std::vector<std::uint8_t> null(Textsatz::laenge, 0);
    EXPECT_EQ(Textsatz::lesen(null).text, std::string(35, ' '));
}

TEST(Textsatz, SchreibtBlankGepolstertOhneEndezeichen) {
    std::vector<std::uint8_t> b(Textsatz::laenge, 0xAA);
    Textsatz{"Kostenstelle 1"}.schreiben(b);
    test::Satzbild erwartet(Textsatz::laenge, ' ');
    erwartet.text(0, "Kostenstelle 1");
    EXPECT_EQ(b, erwartet.bytes());
}

} // namespace lonvir
