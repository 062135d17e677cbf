// lonvir97-cli lohnsteuer: one run of the wage-tax routine from the command line.
#include "testhilfe.h"

#include "cli/clilauf.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <string>
#include <sys/wait.h>

namespace lonvir::test {

namespace {

Clilauf cliAufruf(const std::string& argumente) {
    return clilauf(argumente, true);
}

} // namespace

TEST(CliLohnsteuer, EinLaufMitArbeitswertenAlsJson) {
    // 4000 DM a month, class I, zkf 1, church: wage tax 71025, surcharge 4010, bk 53466
    // (worked in the engine's tests), kztab 1, x of the run with children 35046.
    Tempordner o;
    Clilauf a = cliAufruf("lohnsteuer --ordner " + o.pfad().string() +
                          " --re4 400000 --lzz 2 --stkl 1 --zkf 1 --kirche --json");
    EXPECT_EQ(a.status, 0) << a.aus;
    EXPECT_TRUE(enthaelt(a.aus, "\"lstlzz\":71025.0000")) << a.aus;
    EXPECT_TRUE(enthaelt(a.aus, "\"solzlzz\":4010.0000")) << a.aus;
    EXPECT_TRUE(enthaelt(a.aus, "\"bk\":53466.0000")) << a.aus;
    EXPECT_TRUE(enthaelt(a.aus, "\"stufeunten\":399616.0000")) << a.aus;
    EXPECT_TRUE(enthaelt(a.aus, "\"stufeoben\":400065.0000")) << a.aus;
    EXPECT_TRUE(enthaelt(a.aus, "\"x\":35046.0000")) << a.aus;
    EXPECT_TRUE(enthaelt(a.aus, "\"kztab\":1,")) << a.aus;
    EXPECT_TRUE(enthaelt(a.aus, "\"meldungen\":[]")) << a.aus;
}

TEST(CliLohnsteuer, OhneKircheKeinBkUndHalbeKinderfreibetraegeMitKomma) {
    // zkf "0,5": kfb 3456; without --kirche bk is 0.
    Tempordner o;
    Clilauf a = cliAufruf("lohnsteuer --ordner " + o.pfad().string() +
                          " --re4 400000 --lzz 2 --stkl 1 --zkf 0,5");
    EXPECT_EQ(a.status, 0) << a.aus;
    EXPECT_TRUE(enthaelt(a.aus, "kfb         3456.0000")) << a.aus;
    EXPECT_TRUE(enthaelt(a.aus, "bk          0.0000")) << a.aus;
}

TEST(CliLohnsteuer, FalscheEingabenSindAufruffehler) {
    Tempordner o;
    const std::string ordner = " --ordner " + o.pfad().string();
    Clilauf a = cliAufruf("lohnsteuer" + ordner + " --re4 1 --lzz 2 --stkl 7 --zkf 0");
    EXPECT_EQ(a.status, 2);
    EXPECT_TRUE(enthaelt(a.aus, "--stkl muss zwischen 1 und 6 liegen.")) << a.aus;
    a = cliAufruf("lohnsteuer" + ordner + " --re4 1 --lzz 2 --stkl 1 --zkf 0,3");
    EXPECT_EQ(a.status, 2);
    EXPECT_TRUE(enthaelt(a.aus, "--zkf erwartet eine Zahl von 0 bis 7 in Schritten von 0,5"))
        << a.aus;
    a = cliAufruf("lohnsteuer" + ordner + " --re4 1 --lzz 2 --stkl 1");
    EXPECT_EQ(a.status, 2);
    EXPECT_TRUE(enthaelt(a.aus, "Die Option --zkf fehlt.")) << a.aus;
    a = cliAufruf("lohnsteuer" + ordner + " --re4 1 --lzz 5 --stkl 1 --zkf 0");
    EXPECT_EQ(a.status, 2);
}

} // namespace lonvir::test

namespace lonvir::test {

TEST(CliLohnsteuer, LegtKeinenArbeitsordnerAn) {
    Tempordner o;
    const std::filesystem::path neu = o.pfad() / "nie";
    const Clilauf a =
        clilauf("lohnsteuer --ordner " + neu.string() + " --re4 300000 --lzz 2 --stkl 1 --zkf 0");
    EXPECT_EQ(a.status, 0);
    EXPECT_FALSE(std::filesystem::exists(neu));
}

// 3946.89 DM a month, class I: 1998 wage tax 691,16, surcharge 38,01 (worked out in the
// routine's tests); without --recht the law of 1997, 694,91 and 52,11.
TEST(CliLohnsteuer, RechtVon1998) {
    Tempordner o;
    const std::string lauf =
        "lohnsteuer --ordner " + o.pfad().string() + " --re4 394689 --lzz 2 --stkl 1 --zkf 0";
    const Clilauf a = cliAufruf(lauf + " --recht 1998 --json");
    EXPECT_EQ(a.status, 0) << a.aus;
    EXPECT_TRUE(enthaelt(a.aus, "\"lstlzz\":69116.0000")) << a.aus;
    EXPECT_TRUE(enthaelt(a.aus, "\"solzlzz\":3801.0000")) << a.aus;
    EXPECT_TRUE(enthaelt(a.aus, "\"recht\":1998")) << a.aus;
    const Clilauf b = cliAufruf(lauf);
    EXPECT_TRUE(enthaelt(b.aus, "lstlzz      69491.0000")) << b.aus;
    EXPECT_TRUE(enthaelt(b.aus, "solzlzz     5211.0000")) << b.aus;
    EXPECT_TRUE(enthaelt(b.aus, "recht       1997")) << b.aus;
}

} // namespace lonvir::test
