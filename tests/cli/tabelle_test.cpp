// lonvir97-cli tabelle: one band of the wage-tax table viewer from the command line.
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

TEST(CliTabelle, MonatsbandMitSechsKlassen) {
    // Scroll value 888 on the month table: 3.996,16 to 4.000,65 DM; class I 710,25 wage tax,
    // 53,26 surcharge, 56,82 church tax (8 % of 710,25, cut); class III 266,33 / 8,86 / 21,30.
    Tempordner o;
    const Clilauf a =
        cliAufruf("tabelle --ordner " + o.pfad().string() + " --zeitraum monat --stufe 888");
    EXPECT_EQ(a.status, 0) << a.aus;
    EXPECT_TRUE(enthaelt(a.aus, "Lohnsteuer-Tabelle 1997")) << a.aus;
    EXPECT_TRUE(enthaelt(a.aus, "von DM 3.996,16   bis DM 4.000,65")) << a.aus;
    EXPECT_TRUE(enthaelt(a.aus, "I                710,25          53,26          56,82")) << a.aus;
    EXPECT_TRUE(enthaelt(a.aus, "III              266,33           8,86          21,30")) << a.aus;
}

TEST(CliTabelle, JahresbandAlsJson) {
    // Scroll value 1 on the year table: 200 to 5599 Pf, no tax in any class.
    Tempordner o;
    Clilauf a = cliAufruf("tabelle --ordner " + o.pfad().string() +
                          " --zeitraum jahr --stufe 1 --kinder 7 --beamte --alter "
                          "--kirche 9 --json");
    EXPECT_EQ(a.status, 0) << a.aus;
    EXPECT_TRUE(enthaelt(a.aus, "\"von\":200,\"bis\":5599")) << a.aus;
    EXPECT_TRUE(enthaelt(a.aus, "\"kinderfreibetraege\":7.0000")) << a.aus;
    EXPECT_TRUE(enthaelt(a.aus, "\"kirchensteuersatz\":0.0900")) << a.aus;
    EXPECT_TRUE(enthaelt(a.aus, "{\"klasse\":\"VI\",\"lohnsteuer\":0,")) << a.aus;
}

TEST(CliTabelle, FalscheEingabenSindAufruffehler) {
    Tempordner o;
    const std::string ordner = " --ordner " + o.pfad().string();
    Clilauf a = cliAufruf("tabelle" + ordner + " --zeitraum quartal --stufe 1");
    EXPECT_EQ(a.status, 2);
    EXPECT_TRUE(enthaelt(a.aus, "--zeitraum muss jahr, monat, woche oder tag sein")) << a.aus;
    a = cliAufruf("tabelle" + ordner + " --zeitraum tag --stufe 3901");
    EXPECT_EQ(a.status, 2);
    EXPECT_TRUE(enthaelt(a.aus, "--stufe muss zwischen 0 und 3900 liegen.")) << a.aus;
    a = cliAufruf("tabelle" + ordner + " --zeitraum tag --stufe 1 --kirche 7");
    EXPECT_EQ(a.status, 2);
    EXPECT_TRUE(enthaelt(a.aus, "--kirche erwartet 8 oder 9")) << a.aus;
}

// The law of 1998 for the same band: x = 41958 DM (step 47954, allowances 2108, Vorsorgepauschale
// 3888); y = 2.9646, 91.19 y = 270.341874 -> 270.3418, 2860.3418 * 2.9646 = 8479.7693 -> 8479 DM;
// the month 847900 / 12 -> 706,58; surcharge 5.5 % = 466.345 (below 20 % of 6643), 46634.5 / 12
// -> 38,86; church tax 8 % of 706,58 = 56,5264 -> 56,52. The caption names the law.
TEST(CliTabelle, RechtVon1998) {
    Tempordner o;
    const Clilauf a = cliAufruf("tabelle --ordner " + o.pfad().string() +
                                " --zeitraum monat --stufe 888 --recht 1998");
    EXPECT_EQ(a.status, 0) << a.aus;
    EXPECT_TRUE(enthaelt(a.aus, "Lohnsteuer-Tabelle 1998")) << a.aus;
    EXPECT_TRUE(enthaelt(a.aus, "I                706,58          38,86          56,52")) << a.aus;
    const Clilauf j = cliAufruf("tabelle --ordner " + o.pfad().string() +
                                " --zeitraum monat --stufe 888 --recht 1998 --json");
    EXPECT_TRUE(enthaelt(j.aus, "\"recht\":1998,\"titel\":\"Lohnsteuer-Tabelle 1998\"")) << j.aus;
    const Clilauf f = cliAufruf("tabelle --ordner " + o.pfad().string() +
                                " --zeitraum monat --stufe 888 --recht 1999");
    EXPECT_EQ(f.status, 2);
    EXPECT_TRUE(enthaelt(f.aus, "--recht muss 1997 oder 1998 sein, nicht \"1999\".")) << f.aus;
}

} // namespace lonvir::test

namespace lonvir::test {

TEST(CliTabelle, BereichVonBisAlsTextEineZeileJeBand) {
    // 2000 DM lies in the band of v 444 (1.998,16 .. 2.002,65), 2010 DM in v 446
    // (2.007,16 .. 2.011,65): three bands.
    Tempordner o;
    const auto ziel = o.pfad() / "tabelle.txt";
    const Clilauf a = clilauf("tabelle --ordner " + (o.pfad() / "a").string() +
                                  " --zeitraum monat --von 2000 --bis 2010 --aus " + ziel.string(),
                              true);
    ASSERT_EQ(a.status, 0) << a.aus;
    const std::string text = dateiinhalt(o.pfad(), "tabelle.txt");
    EXPECT_TRUE(enthaelt(text, "Lohnsteuer-Tabelle 1997 - für Monatsgehälter")) << text;
    EXPECT_TRUE(enthaelt(text, "\n  1.998,16    2.002,65")) << text;
    EXPECT_TRUE(enthaelt(text, "\n  2.007,16    2.011,65")) << text;
    EXPECT_FALSE(enthaelt(text, "2.016,16")) << text;
}

TEST(CliTabelle, BereichAlsCsvUndPdf) {
    Tempordner o;
    const std::string ordner = " --ordner " + (o.pfad() / "a").string();
    const auto csv = o.pfad() / "t.csv";
    ASSERT_EQ(clilauf("tabelle --zeitraum monat --von 3996,16 --bis 4000 --format csv --aus " +
                      csv.string() + ordner)
                  .status,
              0);
    const std::string c = dateiinhalt(o.pfad(), "t.csv");
    EXPECT_TRUE(enthaelt(c, "von DM;bis DM;LSt I;SolZ I;KiSt I;")) << c;
    EXPECT_TRUE(enthaelt(c, "\r\n3996,16;4000,65;710,25;53,26;56,82;")) << c;
    const auto pdf = o.pfad() / "t.pdf";
    ASSERT_EQ(clilauf("tabelle --zeitraum jahr --von 0 --bis 54000 --format pdf --aus " +
                      pdf.string() + ordner)
                  .status,
              0);
    EXPECT_TRUE(dateiinhalt(o.pfad(), "t.pdf").starts_with("%PDF-"));
}

TEST(CliTabelle, BereichMitBisVorVonOderFalschemBetragIstEinAufruffehler) {
    Tempordner o;
    const std::string ordner = " --ordner " + (o.pfad() / "a").string();
    Clilauf a = clilauf("tabelle --zeitraum monat --von 4000 --bis 2000" + ordner, true);
    EXPECT_EQ(a.status, 2);
    EXPECT_TRUE(enthaelt(a.aus, "Der Betrag \"bis\" liegt vor dem Betrag \"von\".")) << a.aus;
    a = clilauf("tabelle --zeitraum monat --von 20x0 --bis 2000" + ordner, true);
    EXPECT_EQ(a.status, 2);
    EXPECT_TRUE(enthaelt(a.aus, "--von erwartet einen Betrag in DM")) << a.aus;
}

} // namespace lonvir::test
