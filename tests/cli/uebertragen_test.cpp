// lonvir97-cli uebertragen, and the layer and year options of every command.
#include "clilauf.h"
#include "testhilfe.h"

#include <gtest/gtest.h>

namespace lonvir {

namespace {

using test::clilauf;

std::int32_t le32(const std::string& b, std::size_t ab) {
    return static_cast<std::int32_t>(
        static_cast<std::uint8_t>(b[ab]) | static_cast<std::uint8_t>(b[ab + 1]) << 8 |
        static_cast<std::uint8_t>(b[ab + 2]) << 16 |
        static_cast<std::uint32_t>(static_cast<std::uint8_t>(b[ab + 3])) << 24);
}

// Row 12 of person 3 in a month file: record 3 begins at 2 * 541, wert(12) 138 further on.
// -1 when the file does not reach that far.
std::int32_t zeile12(const test::Tempordner& t, const std::string& name) {
    const std::string inhalt = test::dateiinhalt(t.pfad(), name);
    if (inhalt.size() < 3 * 541)
        return -1;
    return le32(inhalt, 2 * 541 + 138);
}

} // namespace

TEST(CliUebertragen, KopiertEinePersonInDieNachbarschicht) {
    test::Tempordner t;
    const std::string o = "--leer --ordner " + t.pfad().string();
    ASSERT_EQ(clilauf("setzen " + o + " --person 3 --monat 5 --zeile 12 --betrag 4711").status, 0);
    // May and the later months carry 47.11 DM in INFO; PLAN has nothing yet.
    EXPECT_EQ(zeile12(t, "L1997I.5"), 4711);
    EXPECT_EQ(zeile12(t, "L1997P.5"), 0);

    const test::Clilauf u =
        clilauf("uebertragen " + o + " --von INFO --nach PLAN --person 3 --json");
    ASSERT_EQ(u.status, 0) << u.aus;
    EXPECT_EQ(u.aus,
              "{\"jahr\":1997,\"person\":3,\"von\":\"INFO\",\"nach\":\"PLAN\",\"meldungen\":[]}\n");
    EXPECT_EQ(test::dateiinhalt(t.pfad(), "L1997P.5"), test::dateiinhalt(t.pfad(), "L1997I.5"));
    EXPECT_EQ(zeile12(t, "L1997P.12"), 4711);
    EXPECT_EQ(zeile12(t, "L1997P.4"), 0);
    EXPECT_EQ(zeile12(t, "L1997R.5"), 0);

    const test::Clilauf r = clilauf("uebertragen " + o + " --von PLAN --nach REAL --person 3");
    ASSERT_EQ(r.status, 0);
    EXPECT_EQ(r.aus, "Person 3, Jahr 1997: PLAN > REAL übertragen (12 Monate und Bemerkungen)\n");
    EXPECT_EQ(zeile12(t, "L1997R.9"), 4711);
}

TEST(CliUebertragen, NichtBenachbarteSchichtenUndFremdePersonenSindAufruffehler) {
    test::Tempordner t;
    const std::string o = "--leer --ordner " + t.pfad().string();
    ASSERT_EQ(clilauf("anlegen " + o).status, 0);
    const std::string vorher = test::dateiinhalt(t.pfad(), "L1997R.1");

    const test::Clilauf a =
        clilauf("uebertragen " + o + " --von INFO --nach REAL --person 1", true);
    EXPECT_EQ(a.status, 2);
    EXPECT_NE(a.aus.find("nur zwischen benachbarten Schichten"), std::string::npos);
    EXPECT_EQ(clilauf("uebertragen " + o + " --von PLAN --nach PLAN --person 1").status, 2);
    EXPECT_EQ(clilauf("uebertragen " + o + " --von INFO --nach PLANUNG --person 1").status, 2);
    EXPECT_EQ(clilauf("uebertragen " + o + " --von INFO --person 1").status, 2);
    const test::Clilauf p =
        clilauf("uebertragen " + o + " --von INFO --nach PLAN --person 21", true);
    EXPECT_EQ(p.status, 2);
    EXPECT_NE(p.aus.find("Person 21 gibt es nicht; angelegt sind 20."), std::string::npos);
    EXPECT_EQ(test::dateiinhalt(t.pfad(), "L1997R.1"), vorher);
}

TEST(CliUebertragen, ImJahr1998BleibtDas1997erSatzUnberuehrt) {
    test::Tempordner t;
    const std::string o = "--leer --ordner " + t.pfad().string();
    ASSERT_EQ(clilauf("setzen " + o +
                      " --jahr 1998 --schicht REAL --person 3 --monat 2 --zeile 12 --betrag 500")
                  .status,
              0);
    ASSERT_EQ(clilauf("uebertragen " + o + " --jahr 1998 --von REAL --nach PLAN --person 3").status,
              0);
    EXPECT_EQ(zeile12(t, "L1998P.2"), 500);
    // The 1998 set alone was created; of 1997 only the July files exist, empty.
    EXPECT_EQ(zeile12(t, "L1997P.2"), -1);
    EXPECT_EQ(zeile12(t, "L1997R.7"), -1);
}

// Every command takes --jahr and --schicht: the data commands work on that set, the others
// accept them; a layer that does not exist is a usage error for each of them.
TEST(CliSchichtUndJahr, JederBefehlNimmtSchichtUndJahr) {
    test::Tempordner t;
    const std::string o = "--leer --ordner " + t.pfad().string() + " --jahr 1998 --schicht PLAN ";
    const test::Clilauf a = clilauf("anlegen " + o + "--json");
    ASSERT_EQ(a.status, 0);
    EXPECT_NE(a.aus.find("\"jahr\":1998,\"schicht\":1,"), std::string::npos) << a.aus;

    const test::Clilauf s = clilauf("setzen " + o + "--person 3 --monat 4 --zeile 12 --betrag 321");
    ASSERT_EQ(s.status, 0);
    EXPECT_EQ(zeile12(t, "L1998P.4"), 321);
    EXPECT_EQ(zeile12(t, "L1998I.4"), 0);
    EXPECT_EQ(zeile12(t, "L1997P.4"), -1);

    const test::Clilauf z = clilauf("zeigen " + o + "--person 3 --monat 4 --json");
    ASSERT_EQ(z.status, 0);
    EXPECT_NE(z.aus.find("\"wert\":[3850,3850,3000,3000,0,0,0,0,0,0,0,0,321,"), std::string::npos)
        << z.aus;
    const test::Clilauf zi = clilauf("zeigen --ordner " + t.pfad().string() +
                                     " --jahr 1998 --schicht INFO --person 3 --monat 4 --json");
    EXPECT_NE(zi.aus.find("\"wert\":[3850,3850,3000,3000,0,0,0,0,0,0,0,0,0,"), std::string::npos);

    const test::Clilauf r = clilauf("satz " + o + "--datei L1998P.4 --nummer 3");
    ASSERT_EQ(r.status, 0);
    EXPECT_NE(r.aus.find("\"satzart\":\"Personalsatz\""), std::string::npos);

    EXPECT_EQ(clilauf("lohnsteuer " + o + "--re4 500000 --lzz 2 --stkl 1 --zkf 0").status, 0);
    EXPECT_EQ(clilauf("tabelle " + o + "--zeitraum monat --stufe 3000").status, 0);
    EXPECT_EQ(clilauf("uebertragen " + o + "--von PLAN --nach INFO --person 3").status, 0);
    EXPECT_EQ(zeile12(t, "L1998I.4"), 321);

    const std::string falsch = "--ordner " + t.pfad().string() + " --schicht GESTERN ";
    for (const std::string befehl :
         {"anlegen", "zeigen --person 1 --monat 1",
          "setzen --person 1 --monat 1 --zeile 12 --betrag 1", "satz --datei L1997I.1 --nummer 1",
          "lohnsteuer --re4 1 --lzz 2 --stkl 1 --zkf 0", "tabelle --zeitraum monat --stufe 3000",
          "uebertragen --von INFO --nach PLAN --person 1"}) {
        EXPECT_EQ(clilauf(befehl + " " + falsch).status, 2) << befehl;
        EXPECT_EQ(clilauf(befehl + " --ordner " + t.pfad().string() + " --jahr 1999").status, 2)
            << befehl;
    }
}

} // namespace lonvir
