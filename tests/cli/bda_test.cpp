// lonvir97-cli end to end: the service-age start sets the step, and the gross rows follow
// the tariff file of the folder.
#include "testhilfe.h"

#include "cli/clilauf.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <fstream>
#include <string>
#include <sys/wait.h>

namespace lonvir {

namespace {

std::string cli(const std::string& argumente) {
    const test::Clilauf l = test::clilauf(argumente, true);
    EXPECT_EQ(l.status, 0) << argumente << "\n" << l.aus;
    return l.aus;
}

// Record 1 of Lonvir97.1tr (Besoldungsordnung A, group 0, West): steps 150000 plus 10000 per
// step, Ortszuschlag stage 1 80000, Stellenzulage 12000, overtime 3001; all else 0.
void tariflinie(const std::filesystem::path& ordner) {
    std::array<std::int32_t, 27> w{};
    for (int i = 0; i <= 13; ++i)
        w[static_cast<std::size_t>(i)] = 150000 + 10000 * i;
    w[15] = 80000;
    w[25] = 12000;
    w[26] = 3001;
    std::string b;
    for (std::int32_t v : w)
        for (int k = 0; k < 4; ++k)
            b.push_back(static_cast<char>((static_cast<std::uint32_t>(v) >> (8 * k)) & 0xFF));
    std::fstream f(ordner / "Lonvir97.1tr", std::ios::binary | std::ios::in | std::ios::out);
    f.write(b.data(), static_cast<std::streamsize>(b.size()));
}

} // namespace

TEST(CliBda, DienstalterSetztDieStufeUndDieBruttozeilenKommenAusDemTarif) {
    test::Tempordner t;
    const std::string ordner = "--ordner " + t.pfad().string();
    cli("anlegen --leer " + ordner);
    tariflinie(t.pfad());

    // January 1997, start 01.1985: 144 months -> step 6; row 7 = 150000 + 60000.
    const std::string januar = cli("setzen " + ordner + " --person 1 --monat 1 --bda 01.1985");
    EXPECT_NE(januar.find(" 7    6       210000"), std::string::npos) << januar;
    EXPECT_NE(januar.find(" 8    0        80000"), std::string::npos) << januar;
    EXPECT_NE(januar.find(" 9    0        12000"), std::string::npos) << januar;
    EXPECT_NE(januar.find(" 5    0         3001"), std::string::npos) << januar;
    // 210000 + 80000 + 12000 at full time.
    EXPECT_NE(januar.find("22    0       302000"), std::string::npos) << januar;

    // July 1997: 150 months, the ladder on 151 gives step 5; row 7 = 200000.
    const std::string juli = cli("zeigen " + ordner + " --person 1 --monat 7");
    EXPECT_NE(juli.find(" 7    5       200000"), std::string::npos) << juli;
}

TEST(CliBda, KeinDatumLeertDasFeldUndSpeichertNichts) {
    test::Tempordner t;
    const std::string ordner = "--ordner " + t.pfad().string();
    cli("anlegen --leer " + ordner);
    const std::string aus = cli("setzen " + ordner + " --person 1 --monat 1 --bda 13.1985 --json");
    EXPECT_NE(aus.find("\"bdabeginn\":\"       \""), std::string::npos) << aus;
    const std::string danach = cli("zeigen " + ordner + " --person 1 --monat 1 --json");
    EXPECT_NE(danach.find("\"bdabeginn\":\"01.1997\""), std::string::npos) << danach;
}

} // namespace lonvir
