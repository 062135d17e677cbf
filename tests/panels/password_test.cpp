// The start lock: the entry of the eight boxes, the check against Lonvir97.dim and the store
// of a new password.
#include "panels/password.h"
#include "start/einstellungen.h"
#include "testhilfe.h"

#include <gtest/gtest.h>

namespace lonvir {

namespace {

std::int16_t le16(const std::string& b, std::size_t ab) {
    return static_cast<std::int16_t>(static_cast<std::uint8_t>(b[ab]) |
                                     static_cast<std::uint8_t>(b[ab + 1]) << 8);
}

// The stored code of position i of the start lock: offset 212 of record 1.
std::int16_t gespeichert(const test::Umgebung& u, int i) {
    return le16(test::dateiinhalt(u.ordner.pfad(), "Lonvir97.dim"),
                212 + 2 * static_cast<std::size_t>(i));
}

// Keys a new password in change mode (page 70) and answers the question with `antwort`.
Password::Stand neuespasswort(test::Umgebung& u, const std::vector<int>& tasten, Knopf antwort) {
    u.s.Tablettseite = 70;
    u.dialoge.antworten(antwort);
    Password p(u.s);
    Password::Stand stand = Password::Stand::offen;
    for (std::size_t i = 0; i < tasten.size(); ++i)
        stand = p.pawo_keydown(static_cast<int>(i), tasten[i]);
    return stand;
}

Password::Stand pruefen(test::Umgebung& u, const std::vector<int>& tasten) {
    u.s.Tablettseite = 2;
    Password p(u.s);
    Password::Stand stand = Password::Stand::offen;
    for (std::size_t i = 0; i < tasten.size() && stand == Password::Stand::offen; ++i)
        stand = p.pawo_keydown(static_cast<int>(i), tasten[i]);
    return stand;
}

} // namespace

TEST(Password, TastencodesWieDieBoxenSieBekommen) {
    EXPECT_EQ(passworttaste(U'a'), 65);
    EXPECT_EQ(passworttaste(U'A'), 65);
    EXPECT_EQ(passworttaste(U'z'), 90);
    EXPECT_EQ(passworttaste(U'7'), 55);
    EXPECT_EQ(passworttaste(U'7', true), 103);
    EXPECT_EQ(passworttaste(U'\r'), 13);
    EXPECT_EQ(passworttaste(U'ä'), 0);
}

TEST(Password, AchtTastenOhneEnterSpeichernMitVersatz) {
    test::Umgebung u;
    // "LONVIR97": L 76, O 79, N 78, V 86, I 73, R 82, 9 57, 7 55.
    const std::vector<int> wort{76, 79, 78, 86, 73, 82, 57, 55};
    EXPECT_EQ(neuespasswort(u, wort, Knopf::ja), Password::Stand::gespeichert);
    const std::vector<int> codes{76, 79, 78, 86, 73, 82, 57, 55};
    for (int i = 0; i <= 7; ++i)
        EXPECT_EQ(gespeichert(u, i), codes[static_cast<std::size_t>(i)] + passwortversatz(i)) << i;
    // The eighth key checks at once, without Enter.
    EXPECT_EQ(pruefen(u, wort), Password::Stand::richtig);
}

TEST(Password, DieFrageStelltDasPasswortZurWahl) {
    test::Umgebung u;
    dimschreiben(u.s);
    const std::string vorher = test::dateiinhalt(u.ordner.pfad(), "Lonvir97.dim");
    EXPECT_EQ(neuespasswort(u, {65, 13}, Knopf::nein), Password::Stand::verworfen);
    EXPECT_EQ(test::dateiinhalt(u.ordner.pfad(), "Lonvir97.dim"), vorher);
    ASSERT_EQ(u.dialoge.gezeigt().size(), 1u);
    EXPECT_EQ(u.dialoge.gezeigt()[0].titel, "Passwort");
    EXPECT_EQ(u.dialoge.gezeigt()[0].knoepfe, Knoepfe::jaNein);
}

TEST(Password, EnterZuerstSpeichertAchtEnterCodes) {
    test::Umgebung u;
    EXPECT_EQ(neuespasswort(u, {13}, Knopf::ja), Password::Stand::gespeichert);
    for (int i = 0; i <= 7; ++i)
        EXPECT_EQ(gespeichert(u, i), 13 + passwortversatz(i)) << i;
    // The lock then opens with Enter alone.
    EXPECT_EQ(pruefen(u, {13}), Password::Stand::richtig);
}

TEST(Password, KurzesWortMitEnterAufgefuellt) {
    test::Umgebung u;
    neuespasswort(u, {65, 66, 13}, Knopf::ja);
    EXPECT_EQ(gespeichert(u, 1), 66 + passwortversatz(1));
    EXPECT_EQ(gespeichert(u, 2), 13 + passwortversatz(2));
    EXPECT_EQ(gespeichert(u, 7), 13 + passwortversatz(7));
    EXPECT_EQ(pruefen(u, {65, 66, 13}), Password::Stand::richtig);
}

TEST(Password, IgnorierteTastenBelegenKeinePosition) {
    test::Umgebung u;
    neuespasswort(u, {65, 13}, Knopf::ja);
    u.s.Tablettseite = 2;
    Password p(u.s);
    // Shift (16), a digit of the numeric block (97) and a key code above 90 are no keys.
    EXPECT_EQ(p.pawo_keydown(0, 16), Password::Stand::offen);
    EXPECT_EQ(p.pawo_keydown(0, 97), Password::Stand::offen);
    EXPECT_EQ(p.pawo_keydown(0, 186), Password::Stand::offen);
    EXPECT_EQ(p.pawo[0], "");
    EXPECT_EQ(p.fokus, 0);
    EXPECT_EQ(p.pawo_keydown(0, passworttaste(U'a')), Password::Stand::offen);
    EXPECT_EQ(p.pawo[0], "*");
    EXPECT_EQ(p.fokus, 1);
    EXPECT_EQ(p.pawo_keydown(1, 13), Password::Stand::richtig);
    EXPECT_TRUE(p.entladen);
}

TEST(Password, FalschWiederholenLeertDieBoxen) {
    test::Umgebung u;
    neuespasswort(u, {65, 13}, Knopf::ja);
    u.dialoge.vergessen();
    u.s.Tablettseite = 2;
    u.dialoge.antworten(Knopf::wiederholen);
    Password p(u.s);
    p.pawo_keydown(0, 66);
    EXPECT_EQ(p.pawo_keydown(1, 13), Password::Stand::falsch);
    ASSERT_EQ(u.dialoge.gezeigt().size(), 1u);
    EXPECT_EQ(u.dialoge.gezeigt()[0].titel, "Passwort");
    EXPECT_EQ(u.dialoge.gezeigt()[0].text,
              "Leider keine Übereinstimmung mit dem erforderlichen Passwort.");
    EXPECT_EQ(u.dialoge.gezeigt()[0].knoepfe, Knoepfe::wiederholenAbbrechen);
    for (int i = 0; i <= 7; ++i)
        EXPECT_EQ(p.pawo[i], "") << i;
    EXPECT_EQ(p.fokus, 0);
    // A second try with the right word opens the lock: the tries are not counted.
    p.pawo_keydown(0, 65);
    EXPECT_EQ(p.pawo_keydown(1, 13), Password::Stand::richtig);
}

TEST(Password, FalschAbbrechenBeendetDasProgramm) {
    test::Umgebung u;
    neuespasswort(u, {65, 13}, Knopf::ja);
    u.s.Tablettseite = 2;
    u.dialoge.antworten(Knopf::abbrechen);
    EXPECT_EQ(pruefen(u, {90, 13}), Password::Stand::beenden);
}

TEST(Password, GeprueftWirdDieDateiNichtDieArbeitskopie) {
    test::Umgebung u;
    neuespasswort(u, {65, 13}, Knopf::ja);
    // The working copy changed without a store: the file still holds "A".
    u.s.dim.passwort[0] = static_cast<std::int16_t>(66 + passwortversatz(0));
    EXPECT_EQ(pruefen(u, {65, 13}), Password::Stand::richtig);
}

} // namespace lonvir
