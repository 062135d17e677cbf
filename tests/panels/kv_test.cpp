// The form KV: rates by fund and month, the keys, the cut at 20 and the year's records.
#include "panels/kv.h"
#include "start/kvsaetze.h"
#include "testhilfe.h"

#include <gtest/gtest.h>

namespace lonvir {

namespace {

void eintippen(KV& kv, int monat, const std::string& text) {
    kv.kvzahl_GotFocus(monat);
    for (const char c : text) {
        const int taste = kv.kvzahl_KeyPress(monat, static_cast<unsigned char>(c));
        if (taste != 0)
            kv.kvzahl[monat] += static_cast<char>(taste);
    }
    kv.kvzahl_KeyPress(monat, 13);
}

std::int16_t gespeichert(Sitzung& s, int satz, int kasse) {
    return kvsatzlesen(s, satz).satz[kasse];
}

} // namespace

TEST(KV, LaedtKassenMonateUndDieSaetzeDerErstenKasse) {
    test::Umgebung u;
    Kvsatz k = kvsatzlesen(u.s, 3);
    k.satz[0] = 1340;
    kvsatzschreiben(u.s, 3, k);
    KV kv(u.s, {});
    EXPECT_EQ(kv.Label1, "Krankenversicherungs-Beitragssätze 1997");
    EXPECT_EQ(kv.Combo1.size(), 28u);
    EXPECT_EQ(kv.Combo1position, 0);
    EXPECT_EQ(kv.kvzahl[0], "13,4");
    EXPECT_EQ(kv.kvzahl[1], "0");
    EXPECT_EQ(kvtext(1350), "13,5");
    EXPECT_EQ(kvtext(1345), "13,45");
    EXPECT_EQ(kvtext(2000), "20");
    EXPECT_EQ(kvtext(20), "0,2");
}

TEST(KV, EinSatzGiltVomMonatBisZumJahresende) {
    test::Umgebung u;
    int laeufe = 0;
    KV kv(u.s, {{}, {}, [&] { ++laeufe; }});
    kv.combo1_Click(5);
    eintippen(kv, 3, "13,6");
    EXPECT_EQ(laeufe, 1);
    for (int monat = 0; monat <= 11; ++monat) {
        const std::int16_t erwartet = monat >= 3 ? 1360 : 0;
        EXPECT_EQ(gespeichert(u.s, 3 + monat, 5), erwartet) << monat;
        EXPECT_EQ(kv.kvzahl[monat], monat >= 3 ? "13.6" : "0") << monat;
        // The engine's table follows at once.
        EXPECT_EQ(u.s.kvsatz[monat][5], Currency::ganz(erwartet)) << monat;
    }
    EXPECT_EQ(gespeichert(u.s, 6, 4), 0);
}

TEST(KV, Genau20GehtDurch2001WirdHerabgesetzt) {
    test::Umgebung u;
    KV kv(u.s, {});
    eintippen(kv, 0, "20");
    EXPECT_EQ(gespeichert(u.s, 3, 0), 2000);
    EXPECT_TRUE(u.dialoge.gezeigt().empty());
    eintippen(kv, 0, "20,01");
    ASSERT_EQ(u.dialoge.gezeigt().size(), 1u);
    EXPECT_EQ(u.dialoge.gezeigt()[0].titel, "Korrektor");
    EXPECT_EQ(u.dialoge.gezeigt()[0].text, "Ihre Eingabe mußte auf 20 herabgesetzt werden.");
    EXPECT_EQ(kv.kvzahl[0], "20");
    // The number 20 is stored in the table's hundredths, not 2000, as it stands.
    EXPECT_EQ(gespeichert(u.s, 3, 0), 20);
    EXPECT_EQ(gespeichert(u.s, 14, 0), 20);
}

TEST(KV, Jahr1998SchreibtDieSaetze15Bis26) {
    test::Umgebung u(1998);
    const Kvsatz vor1997 = kvsatzlesen(u.s, 14);
    KV kv(u.s, {});
    EXPECT_EQ(kv.Label1, "Krankenversicherungs-Beitragssätze 1998");
    kv.combo1_Click(2);
    eintippen(kv, 0, "14");
    for (int satz = 15; satz <= 26; ++satz)
        EXPECT_EQ(gespeichert(u.s, satz, 2), 1400) << satz;
    for (int satz = 3; satz <= 14; ++satz)
        EXPECT_EQ(gespeichert(u.s, satz, 2), 0) << satz;
    EXPECT_EQ(kvsatzlesen(u.s, 14), vor1997);
}

TEST(KV, FalscheTastenWerdenMitFormatAbgewiesenKommaWirdPunkt) {
    test::Umgebung u;
    KV kv(u.s, {});
    EXPECT_EQ(kv.kvzahl_KeyPress(0, 'a'), 0);
    EXPECT_EQ(kv.kvzahl_KeyPress(0, '-'), 0);
    EXPECT_EQ(kv.kvzahl_KeyPress(0, 8), 0);
    ASSERT_EQ(u.dialoge.gezeigt().size(), 3u);
    EXPECT_EQ(u.dialoge.gezeigt()[0].titel, "Format");
    EXPECT_EQ(kv.kvzahl_KeyPress(0, ','), '.');
    EXPECT_EQ(kv.kvzahl_KeyPress(0, '.'), '.');
    EXPECT_EQ(kv.kvzahl_KeyPress(0, '7'), '7');
}

TEST(KV, LeeresFeldWirdNullUndSpeichertNichts) {
    test::Umgebung u;
    Kvsatz k = kvsatzlesen(u.s, 3);
    k.satz[0] = 1340;
    kvsatzschreiben(u.s, 3, k);
    int laeufe = 0;
    KV kv(u.s, {{}, {}, [&] { ++laeufe; }});
    eintippen(kv, 0, "");
    EXPECT_EQ(kv.kvzahl[0], "0");
    EXPECT_EQ(gespeichert(u.s, 3, 0), 1340);
    EXPECT_EQ(laeufe, 0);
}

} // namespace lonvir
