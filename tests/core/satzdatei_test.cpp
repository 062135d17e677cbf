// Fixed-record files: created when absent, zeros past the end, whole-record writes.
#include "core/laufzeitfehler.h"
#include "core/satzdatei.h"
#include "testhilfe.h"

#include <gtest/gtest.h>

#include <array>
#include <filesystem>

namespace lonvir {

TEST(Satzdatei, OeffnenLegtLeereDateiAn) {
    test::Tempordner t;
    Satzdatei d;
    d.oeffnen(t.pfad() / "neu.dat", 10);
    EXPECT_TRUE(std::filesystem::exists(t.pfad() / "neu.dat"));
    EXPECT_EQ(d.laenge(), 0);
}

TEST(Satzdatei, LesenHinterDemEndeGibtNullen) {
    test::Tempordner t;
    Satzdatei d;
    d.oeffnen(t.pfad() / "x.dat", 4);
    std::array<std::uint8_t, 4> satz{1, 2, 3, 4};
    d.schreiben(3, satz); // bytes 8..11; the gap 0..7 reads as zeros
    EXPECT_EQ(d.laenge(), 12);
    std::array<std::uint8_t, 4> gelesen{9, 9, 9, 9};
    d.lesen(1, gelesen);
    EXPECT_EQ(gelesen, (std::array<std::uint8_t, 4>{0, 0, 0, 0}));
    d.lesen(3, gelesen);
    EXPECT_EQ(gelesen, satz);
    d.lesen(7, gelesen);
    EXPECT_EQ(gelesen, (std::array<std::uint8_t, 4>{0, 0, 0, 0}));
}

TEST(Satzdatei, SatznummerNullIstFehler63) {
    test::Tempordner t;
    Satzdatei d;
    d.oeffnen(t.pfad() / "x.dat", 4);
    std::array<std::uint8_t, 4> satz{};
    try {
        d.lesen(0, satz);
        FAIL();
    } catch (const Laufzeitfehler& f) {
        EXPECT_EQ(f.nummer(), 63);
    }
}

TEST(Satzdatei, NichtZuOeffnenNenntDieDatei) {
    Satzdatei d;
    try {
        d.oeffnen("/proc/lonvir/gibtesnicht.dat", 4);
        FAIL();
    } catch (const Dateifehler& f) {
        EXPECT_EQ(f.datei(), "/proc/lonvir/gibtesnicht.dat");
    }
}

} // namespace lonvir
