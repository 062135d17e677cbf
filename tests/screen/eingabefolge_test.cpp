// A fixed sequence of 100 inputs over persons, months and layers on the sample staff: the
// files it leaves behind are pinned by one checksum, so that work on how the program reads and
// writes cannot change a single stored byte unnoticed. A deliberate change of the installation
// data or of a computed figure changes the checksum; the test prints the new one.
#include "engine/monatladen.h"
#include "screen/eingabe.h"
#include "screen/uebertragung.h"
#include "start/dateisatz.h"
#include "testhilfe.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <string>

namespace lonvir {

namespace {

std::uint64_t fnv1a(std::uint64_t h, const std::string& text) {
    for (unsigned char c : text) {
        h ^= c;
        h *= 1099511628211ULL;
    }
    return h;
}

// Every file of the folder with its name, its length and its bytes, in the order of the names.
std::string pruefsumme(const std::filesystem::path& ordner) {
    std::uint64_t h = 1469598103934665603ULL;
    for (const auto& [name, inhalt] : test::ordnerinhalt(ordner)) {
        h = fnv1a(h, name);
        h = fnv1a(h, std::to_string(inhalt.size()));
        h = fnv1a(h, inhalt);
    }
    char text[17];
    std::snprintf(text, sizeof text, "%016llx", static_cast<unsigned long long>(h));
    return text;
}

std::int16_t nachbar(std::int16_t schicht, int i) {
    if (schicht == PLAN)
        return i % 40 == 9 ? REAL : INFO;
    return PLAN;
}

// 90 confirmed amounts in ten rows, among them overtime, a one-off payment and a tax
// allowance, every month from January to December; after every ninth a change of layer or a
// transfer of the person on the screen to the neighbouring layer.
void eingabefolge(Sitzung& s) {
    const int zeilen[] = {12, 13, 14, 19, 23, 41, 42, 4, 24, 44};
    const int personen = s.anzahlnamen;
    for (int i = 0; i < 100; ++i) {
        if (i % 10 == 9) {
            if (i % 20 == 9)
                uebertragen(s, s.schicht, nachbar(s.schicht, i));
            else
                schichtwechsel(s, static_cast<std::int16_t>((s.schicht + 1) % 3));
            continue;
        }
        const auto person = static_cast<std::int16_t>(1 + (i * 7) % personen);
        const auto monat = static_cast<std::int16_t>((i * 5) % 12);
        monatladen(s, person, monat);
        const int zeile = zeilen[i % 10];
        const std::int32_t betrag = zeile == 4 ? 150 + 25 * i : 1000 + 5311 * i;
        betragbestaetigen(s, zeile, betrag);
    }
}

} // namespace

TEST(Eingabefolge, HundertEingabenHinterlassenDieseBytes) {
    test::Musterumgebung u;
    ASSERT_GE(u.s.anzahlnamen, 2);
    const std::string vorher = pruefsumme(u.ordner.pfad());
    eingabefolge(u.s);
    EXPECT_NE(pruefsumme(u.ordner.pfad()), vorher);
    EXPECT_EQ(pruefsumme(u.ordner.pfad()), "dfe3ad9e8e33cd61");
}

} // namespace lonvir
