// lonvir97-cli end to end: the built program on a temporary folder, checked on disk.
#include "cli/clilauf.h"
#include "testhilfe.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <string>
#include <sys/wait.h>

namespace lonvir {

namespace {

test::Clilauf cli(const std::string& argumente, bool mitFehlern = false) {
    return test::clilauf(argumente, mitFehlern);
}

std::uint32_t le32(const std::string& b, std::size_t ab) {
    return static_cast<std::uint8_t>(b[ab]) | static_cast<std::uint8_t>(b[ab + 1]) << 8 |
           static_cast<std::uint8_t>(b[ab + 2]) << 16 |
           static_cast<std::uint32_t>(static_cast<std::uint8_t>(b[ab + 3])) << 24;
}

} // namespace

TEST(Cli, AnlegenSetzenZeigenSatzUndDieBytesAufDerPlatte) {
    test::Tempordner t;
    const std::string ordner = "--ordner " + t.pfad().string();

    test::Clilauf a = cli("anlegen --leer " + ordner);
    ASSERT_EQ(a.status, 0);
    EXPECT_NE(a.aus.find("20 Personen"), std::string::npos);

    // 123.45 DM typed in row 12 for person 3 in March.
    test::Clilauf s =
        cli("setzen " + ordner + " --person 3 --monat 3 --zeile 12 --betrag 12345 --json");
    ASSERT_EQ(s.status, 0);
    EXPECT_NE(s.aus.find("\"wert\":[3850,3850,3000,3000,0,0,0,0,0,0,0,0,12345,"), std::string::npos)
        << s.aus;
    EXPECT_NE(s.aus.find("\"123,45+\""), std::string::npos);

    test::Clilauf z = cli("zeigen " + ordner + " --person 3 --monat 7 --json");
    ASSERT_EQ(z.status, 0);
    EXPECT_NE(z.aus.find("\"monat\":7"), std::string::npos);
    EXPECT_NE(z.aus.find("\"wert\":[3850,3850,3000,3000,0,0,0,0,0,0,0,0,12345,"),
              std::string::npos);
    EXPECT_NE(z.aus.find("\"lstwert\":["), std::string::npos);
    EXPECT_NE(z.aus.find("\"meldungen\":[]"), std::string::npos);

    test::Clilauf r = cli("satz " + ordner + " --datei L1997I.4 --nummer 3");
    ASSERT_EQ(r.status, 0);
    EXPECT_NE(r.aus.find("\"satzart\":\"Personalsatz\""), std::string::npos);
    EXPECT_NE(r.aus.find("\"merkmal\":[0,0,0,0,0,0,0,0,0,0,0,0,19,6,0,0,0,0,0,3,"),
              std::string::npos)
        << r.aus;

    // Person 3's April record begins at 2 * 541 = 1082; wert(12) lies at 90 + 4 * 12 = 138.
    const std::string april = test::dateiinhalt(t.pfad(), "L1997I.4");
    ASSERT_EQ(april.size(), 20u * 541);
    EXPECT_EQ(le32(april, 1082 + 138), 12345u);
    EXPECT_EQ(le32(april, 1082 + 90 + 4 * 22), 12345u); // row 22, Bruttogehalt
    EXPECT_EQ(april.substr(1082 + 534, 7), "01.1997");
    // February is before the edit and stays as created.
    const std::string februar = test::dateiinhalt(t.pfad(), "L1997I.2");
    EXPECT_EQ(le32(februar, 1082 + 138), 0u);
    // Other layers are not touched by an edit in INFO.
    EXPECT_EQ(le32(test::dateiinhalt(t.pfad(), "L1997P.4"), 1082 + 138), 0u);
}

TEST(Cli, JahressichtVerweigertEingabenMitMeldung) {
    test::Tempordner t;
    const std::string ordner = "--ordner " + t.pfad().string();
    test::Clilauf s =
        cli("setzen " + ordner + " --person 1 --monat 13 --zeile 12 --betrag 5 --json", true);
    EXPECT_EQ(s.status, 0);
    EXPECT_NE(s.aus.find("Keine Änderung möglich: Während das JAHRESGEHALT"), std::string::npos);
    EXPECT_NE(s.aus.find("\"meldungen\":[{\"titel\":\"Keine Änderung möglich\""),
              std::string::npos);
}

TEST(Cli, FalscherAufrufGibtStatus2) {
    test::Tempordner t;
    const std::string ordner = "--ordner " + t.pfad().string();
    EXPECT_EQ(cli("zeigen " + ordner + " --person 1").status, 2);
    EXPECT_EQ(cli("zeigen " + ordner + " --person 21 --monat 1").status, 2);
    EXPECT_EQ(cli("zeigen " + ordner + " --person 1 --monat 14").status, 2);
    EXPECT_EQ(cli("zeigen " + ordner + " --person 1 --monat 1 --schicht XYZ").status, 2);
    EXPECT_EQ(cli("gibtsnicht " + ordner).status, 2);
    test::Clilauf l = cli("setzen " + ordner + " --person 1 --monat 1", true);
    EXPECT_EQ(l.status, 2);
    EXPECT_NE(l.aus.find("setzen braucht genau eine Eingabe"), std::string::npos);
}

TEST(Cli, HilfeZeigtDenAufruf) {
    test::Clilauf l = cli("--help");
    EXPECT_EQ(l.status, 0);
    EXPECT_NE(l.aus.find("Aufruf: lonvir97-cli BEFEHL"), std::string::npos);
}

TEST(Cli, NichtBeschreibbarerOrdnerGibtStatus4) {
    test::Clilauf l = cli("anlegen --ordner /proc/lonvir97", true);
    EXPECT_EQ(l.status, 4);
    EXPECT_NE(l.aus.find("/proc/lonvir97"), std::string::npos);
}

TEST(Cli, SatzEinerFremdenDateiIstEinAufruffehler) {
    test::Tempordner t;
    EXPECT_EQ(cli("satz --ordner " + t.pfad().string() + " --datei passwd --nummer 1").status, 2);
}

} // namespace lonvir
