// The pending writes of a transaction: later writes win, reads see them, a deletion empties.
#include "core/satzdatei.h"
#include "core/schreibvorgang.h"
#include "testhilfe.h"

#include <array>
#include <gtest/gtest.h>

namespace lonvir {

namespace {
std::array<std::uint8_t, 4> satz(std::uint8_t a) {
    return {a, static_cast<std::uint8_t>(a + 1), static_cast<std::uint8_t>(a + 2),
            static_cast<std::uint8_t>(a + 3)};
}
} // namespace

TEST(Schreibvorgang, EinSpaetererSatzAnDerselbenStelleGewinnt) {
    Schreibvorgang v;
    v.beginnen();
    v.schreiben("/o/a", 4, satz(10));
    v.schreiben("/o/a", 4, satz(20));
    const auto schritte = v.schritte();
    ASSERT_EQ(schritte.size(), 1U);
    EXPECT_EQ(schritte[0].bytes[0], 20);
    EXPECT_EQ(schritte[0].versatz, 4);
}

TEST(Schreibvorgang, UeberlagertDenGelesenenBereichUndVerlaengertDieDatei) {
    Schreibvorgang v;
    v.beginnen();
    v.schreiben("/o/a", 8, satz(1));
    std::array<std::uint8_t, 8> gelesen{9, 9, 9, 9, 9, 9, 9, 9};
    v.ueberlagern("/o/a", 6, gelesen); // bytes 6..13: the write covers 8..11
    EXPECT_EQ(gelesen, (std::array<std::uint8_t, 8>{9, 9, 1, 2, 3, 4, 9, 9}));
    EXPECT_EQ(v.laenge("/o/a", 4), 12);
    EXPECT_EQ(v.laenge("/o/a", 100), 100);
    EXPECT_EQ(v.laenge("/o/b", 7), 7);
}

TEST(Schreibvorgang, EineGeloeschteDateiLiestSichLeerBisAufDieNeuenSaetze) {
    Schreibvorgang v;
    v.beginnen();
    v.schreiben("/o/a", 0, satz(1));
    v.loeschen("/o/a");
    v.schreiben("/o/a", 4, satz(5));
    std::array<std::uint8_t, 8> gelesen{9, 9, 9, 9, 9, 9, 9, 9};
    v.ueberlagern("/o/a", 0, gelesen);
    EXPECT_EQ(gelesen, (std::array<std::uint8_t, 8>{0, 0, 0, 0, 5, 6, 7, 8}));
    EXPECT_EQ(v.laenge("/o/a", 400), 8);
    const auto schritte = v.schritte();
    ASSERT_EQ(schritte.size(), 2U);
    EXPECT_EQ(schritte[0].art, Schreibvorgang::Schritt::Art::loeschen);
    EXPECT_EQ(schritte[1].art, Schreibvorgang::Schritt::Art::schreiben);
}

TEST(Schreibvorgang, EineGebundeneSatzdateiSchreibtImVorgangNichtAufDiePlatte) {
    test::Tempordner t;
    Schreibvorgang v;
    Satzdatei d;
    d.binden(&v);
    d.oeffnen(t.pfad() / "x", 4);
    d.schreiben(1, satz(1));
    v.beginnen();
    d.schreiben(2, satz(7));
    std::array<std::uint8_t, 4> b{};
    d.lesen(2, b);
    EXPECT_EQ(b, satz(7));
    EXPECT_EQ(d.laenge(), 8);
    EXPECT_EQ(test::dateiinhalt(t.pfad(), "x").size(), 4U);
    v.verwerfen();
    EXPECT_EQ(d.laenge(), 4);
    d.lesen(2, b);
    EXPECT_EQ(b, (std::array<std::uint8_t, 4>{}));
}

TEST(Schreibvorgang, EineNurLesendGeoeffneteDateiWirdNichtAngelegtUndWeistSchreibenAb) {
    test::Tempordner t;
    Satzdatei d;
    d.lesendoeffnen(t.pfad() / "fehlt", 4);
    EXPECT_FALSE(std::filesystem::exists(t.pfad() / "fehlt"));
    EXPECT_EQ(d.laenge(), 0);
    std::array<std::uint8_t, 4> b{1, 1, 1, 1};
    d.lesen(1, b);
    EXPECT_EQ(b, (std::array<std::uint8_t, 4>{}));
    EXPECT_THROW(d.schreiben(1, satz(1)), Dateifehler);
}

} // namespace lonvir
