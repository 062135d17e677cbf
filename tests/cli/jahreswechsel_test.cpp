// lonvir97-cli jahreswechsel: without --ja only the question, with it the whole change.
#include "../transfer/ordnerbild.h"
#include "clilauf.h"
#include "testhilfe.h"

#include <gtest/gtest.h>

namespace lonvir {

using test::clilauf;
using test::enthaelt;

TEST(CliJahreswechsel, OhneJaNurDieFrageUndNichtsGeaendert) {
    test::Tempordner t;
    const std::string o = "--ordner " + t.pfad().string();
    ASSERT_EQ(clilauf("anlegen " + o).status, 0);
    const auto vorher = test::ordnerbild(t.pfad());
    const test::Clilauf l = clilauf("jahreswechsel " + o, true);
    EXPECT_EQ(l.status, 0);
    EXPECT_TRUE(enthaelt(l.aus, "Von 1997 nach 1998: Die Daten des Dezember 1997 werden")) << l.aus;
    EXPECT_TRUE(enthaelt(l.aus, "Jahreswechsel nicht ausgeführt")) << l.aus;
    EXPECT_EQ(test::unterschied(test::ordnerbild(t.pfad()), vorher), "");
}

TEST(CliJahreswechsel, MitJaDieSeiteUndDerJuli1998) {
    test::Tempordner t;
    const std::string o = "--ordner " + t.pfad().string();
    ASSERT_EQ(clilauf("anlegen " + o).status, 0);
    const test::Clilauf l = clilauf("jahreswechsel --ja " + o);
    EXPECT_EQ(l.status, 0);
    EXPECT_TRUE(enthaelt(l.aus, "Jahreswechsel 1997 > 1998\n")) << l.aus;
    EXPECT_TRUE(enthaelt(l.aus, "Es wurden übertragen:\nVon L1997.4tr nach L1998.1tr 600 Sätze\n"))
        << l.aus;
    EXPECT_TRUE(enthaelt(l.aus, "die Funktionen für 1998 zur Verfügung.\n")) << l.aus;
    // July 1998 of person 1 carries its month.
    const std::string juli = test::dateiinhalt(t.pfad(), "L1998I.7");
    ASSERT_GE(juli.size(), 541u);
    EXPECT_EQ(juli[38], 6);
    EXPECT_EQ(juli[39], 0);
    // A second change asks before it overwrites; the JSON says what happened.
    const test::Clilauf zweiter = clilauf("jahreswechsel --ja --json " + o);
    EXPECT_EQ(zweiter.status, 0);
    EXPECT_TRUE(enthaelt(zweiter.aus, "\"ergebnis\":\"ausgeführt\"")) << zweiter.aus;
    EXPECT_TRUE(enthaelt(zweiter.aus, "\"titel\":\"Warnung\"")) << zweiter.aus;
}

} // namespace lonvir
