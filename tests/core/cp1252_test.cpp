// Code page 1252 and UTF-8.
#include "core/cp1252.h"

#include <gtest/gtest.h>

namespace lonvir {

TEST(Cp1252, UmlauteUndEuroHinUndZurueck) {
    const std::string utf8 = "Zuwendung für Ü-Stunden, Straße € 5";
    const std::string roh = utf8NachCp1252(utf8);
    // ü = FC, Ü = DC, ß = DF (two UTF-8 bytes each), € = 80 (three): one byte each.
    EXPECT_EQ(roh.size(), utf8.size() - 5);
    EXPECT_EQ(static_cast<unsigned char>(roh[11]), 0xFC); // "Zuwendung f" is 11 bytes
    EXPECT_EQ(static_cast<unsigned char>(roh[roh.size() - 3]), 0x80);
    EXPECT_EQ(cp1252NachUtf8(roh), utf8);
}

TEST(Cp1252, NichtDarstellbaresWirdFragezeichen) {
    EXPECT_EQ(utf8NachCp1252("\xE2\x88\x9E"), "?"); // the infinity sign
}

} // namespace lonvir
