// lonvir97-cli lohnsteuer: one run of the wage-tax routine from the command line.
#include "testhilfe.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <string>
#include <sys/wait.h>

namespace lonvir::test {

namespace {

struct Ausgabe {
    int status = -1;
    std::string text;
};

Ausgabe cliAufruf(const std::string& argumente) {
    Ausgabe a;
    const std::string befehl = std::string(LONVIR_CLI) + " " + argumente + " 2>&1";
    FILE* rohr = ::popen(befehl.c_str(), "r");
    if (!rohr)
        return a;
    char puffer[4096];
    std::size_t n = 0;
    while ((n = std::fread(puffer, 1, sizeof puffer, rohr)) > 0)
        a.text.append(puffer, n);
    const int w = ::pclose(rohr);
    a.status = WIFEXITED(w) ? WEXITSTATUS(w) : -1;
    return a;
}

bool enthaelt(const std::string& text, const std::string& teil) {
    return text.find(teil) != std::string::npos;
}

} // namespace

TEST(CliLohnsteuer, EinLaufMitArbeitswertenAlsJson) {
    // 4000 DM a month, class I, zkf 1, church: wage tax 71025, surcharge 4010, bk 53466
    // (worked in the engine's tests), kztab 1, x of the run with children 35046.
    Tempordner o;
    const Ausgabe a = cliAufruf("lohnsteuer --ordner " + o.pfad().string() +
                                " --re4 400000 --lzz 2 --stkl 1 --zkf 1 --kirche --json");
    EXPECT_EQ(a.status, 0) << a.text;
    EXPECT_TRUE(enthaelt(a.text, "\"lstlzz\":71025.0000")) << a.text;
    EXPECT_TRUE(enthaelt(a.text, "\"solzlzz\":4010.0000")) << a.text;
    EXPECT_TRUE(enthaelt(a.text, "\"bk\":53466.0000")) << a.text;
    EXPECT_TRUE(enthaelt(a.text, "\"stufeunten\":399616.0000")) << a.text;
    EXPECT_TRUE(enthaelt(a.text, "\"stufeoben\":400065.0000")) << a.text;
    EXPECT_TRUE(enthaelt(a.text, "\"x\":35046.0000")) << a.text;
    EXPECT_TRUE(enthaelt(a.text, "\"kztab\":1,")) << a.text;
    EXPECT_TRUE(enthaelt(a.text, "\"meldungen\":[]")) << a.text;
}

TEST(CliLohnsteuer, OhneKircheKeinBkUndHalbeKinderfreibetraegeMitKomma) {
    // zkf "0,5": kfb 3456; without --kirche bk is 0.
    Tempordner o;
    const Ausgabe a = cliAufruf("lohnsteuer --ordner " + o.pfad().string() +
                                " --re4 400000 --lzz 2 --stkl 1 --zkf 0,5");
    EXPECT_EQ(a.status, 0) << a.text;
    EXPECT_TRUE(enthaelt(a.text, "kfb         3456.0000")) << a.text;
    EXPECT_TRUE(enthaelt(a.text, "bk          0.0000")) << a.text;
}

TEST(CliLohnsteuer, FalscheEingabenSindAufruffehler) {
    Tempordner o;
    const std::string ordner = " --ordner " + o.pfad().string();
    Ausgabe a = cliAufruf("lohnsteuer" + ordner + " --re4 1 --lzz 2 --stkl 7 --zkf 0");
    EXPECT_EQ(a.status, 2);
    EXPECT_TRUE(enthaelt(a.text, "--stkl muss zwischen 1 und 6 liegen.")) << a.text;
    a = cliAufruf("lohnsteuer" + ordner + " --re4 1 --lzz 2 --stkl 1 --zkf 0,3");
    EXPECT_EQ(a.status, 2);
    EXPECT_TRUE(enthaelt(a.text, "--zkf erwartet eine Zahl von 0 bis 7 in Schritten von 0,5"))
        << a.text;
    a = cliAufruf("lohnsteuer" + ordner + " --re4 1 --lzz 2 --stkl 1");
    EXPECT_EQ(a.status, 2);
    EXPECT_TRUE(enthaelt(a.text, "Die Option --zkf fehlt.")) << a.text;
    a = cliAufruf("lohnsteuer" + ordner + " --re4 1 --lzz 5 --stkl 1 --zkf 0");
    EXPECT_EQ(a.status, 2);
}

} // namespace lonvir::test
