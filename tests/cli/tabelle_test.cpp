// lonvir97-cli tabelle: one band of the wage-tax table viewer from the command line.
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

TEST(CliTabelle, MonatsbandMitSechsKlassen) {
    // Scroll value 888 on the month table: 3.996,16 to 4.000,65 DM; class I 710,25 wage tax,
    // 53,26 surcharge, 56,82 church tax (8 % of 710,25, cut); class III 266,33 / 8,86 / 21,30.
    Tempordner o;
    const Ausgabe a =
        cliAufruf("tabelle --ordner " + o.pfad().string() + " --zeitraum monat --stufe 888");
    EXPECT_EQ(a.status, 0) << a.text;
    EXPECT_TRUE(enthaelt(a.text, "Lohnsteuer-Tabelle 1997")) << a.text;
    EXPECT_TRUE(enthaelt(a.text, "von DM 3.996,16   bis DM 4.000,65")) << a.text;
    EXPECT_TRUE(enthaelt(a.text, "I                710,25          53,26          56,82"))
        << a.text;
    EXPECT_TRUE(enthaelt(a.text, "III              266,33           8,86          21,30"))
        << a.text;
}

TEST(CliTabelle, JahresbandAlsJson) {
    // Scroll value 1 on the year table: 200 to 5599 Pf, no tax in any class.
    Tempordner o;
    const Ausgabe a = cliAufruf("tabelle --ordner " + o.pfad().string() +
                                " --zeitraum jahr --stufe 1 --kinder 7 --beamte --alter "
                                "--kirche 9 --json");
    EXPECT_EQ(a.status, 0) << a.text;
    EXPECT_TRUE(enthaelt(a.text, "\"von\":200,\"bis\":5599")) << a.text;
    EXPECT_TRUE(enthaelt(a.text, "\"kinderfreibetraege\":7.0000")) << a.text;
    EXPECT_TRUE(enthaelt(a.text, "\"kirchensteuersatz\":0.0900")) << a.text;
    EXPECT_TRUE(enthaelt(a.text, "{\"klasse\":\"VI\",\"lohnsteuer\":0,")) << a.text;
}

TEST(CliTabelle, FalscheEingabenSindAufruffehler) {
    Tempordner o;
    const std::string ordner = " --ordner " + o.pfad().string();
    Ausgabe a = cliAufruf("tabelle" + ordner + " --zeitraum quartal --stufe 1");
    EXPECT_EQ(a.status, 2);
    EXPECT_TRUE(enthaelt(a.text, "--zeitraum muss jahr, monat, woche oder tag sein")) << a.text;
    a = cliAufruf("tabelle" + ordner + " --zeitraum tag --stufe 3901");
    EXPECT_EQ(a.status, 2);
    EXPECT_TRUE(enthaelt(a.text, "--stufe muss zwischen 0 und 3900 liegen.")) << a.text;
    a = cliAufruf("tabelle" + ordner + " --zeitraum tag --stufe 1 --kirche 7");
    EXPECT_EQ(a.status, 2);
    EXPECT_TRUE(enthaelt(a.text, "--kirche erwartet 8 oder 9")) << a.text;
}

} // namespace lonvir::test
