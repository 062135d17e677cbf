// Every cell of the wage-tax table viewer against the command line's wage-tax routine with the
// same inputs, over 300 random bands, classes and options.
#include "reports/lohnsteuertabelle.h"

#include "cli/clilauf.h"
#include "testhilfe.h"

#include <gtest/gtest.h>

#include <random>

namespace lonvir {

namespace {

// The number behind "name": in the JSON of lonvir97-cli lohnsteuer, in Pfennig.
std::int64_t jsonzahl(const std::string& json, const std::string& name) {
    const auto p = json.find("\"" + name + "\":");
    if (p == std::string::npos)
        return -1;
    return std::stoll(json.substr(p + name.size() + 3));
}

std::string kinder(Currency zkf) {
    const std::int64_t halbe = zkf.roh() / 5000;
    return std::to_string(halbe / 2) + (halbe % 2 ? ",5" : ",0");
}

} // namespace

TEST(Tabellenabgleich, JedeZelleIstDieLohnsteuerDerKommandozeile) {
    test::Tempordner o;
    const std::string ordner = " --ordner " + (o.pfad() / "a").string();
    std::mt19937 zufall(1997);
    for (int fall = 0; fall < 300; ++fall) {
        Lohnsteuertabelle t;
        t.auswahl.lohnzeitraum = static_cast<std::int16_t>(1 + zufall() % 4);
        t.auswahl.scrollwert = static_cast<std::int32_t>(zufall() % (lstrtabScrollMax + 1));
        t.auswahl.kinderfreibetraege =
            Currency::roh(5000 * static_cast<std::int64_t>(zufall() % 15));
        t.auswahl.besonderetabelle = static_cast<std::int16_t>(zufall() % 2);
        t.auswahl.altersentlastung = static_cast<std::int16_t>(zufall() % 2);
        t.auswahl.kirchensteuersatz = Currency::roh(zufall() % 2 ? 800 : 900);
        tabellefuellen(t);
        const int klasse = static_cast<int>(1 + zufall() % 6);

        const std::string aufruf =
            "lohnsteuer --json --re4 " + std::to_string(t.tabellenlohn.gerundetInt32()) +
            " --lzz " + std::to_string(t.auswahl.lohnzeitraum) + " --stkl " +
            std::to_string(klasse) + " --zkf " + kinder(t.auswahl.kinderfreibetraege) +
            (t.auswahl.besonderetabelle ? " --besonders" : "") +
            (t.auswahl.altersentlastung ? " --alter64" : "") + " --kirche" + ordner;
        const test::Clilauf l = test::clilauf(aufruf);
        ASSERT_EQ(l.status, 0) << aufruf;
        const std::int64_t lst = jsonzahl(l.aus, "lstlzz");
        const Tabellenzeile& z = t.zeilen[klasse];
        EXPECT_EQ(z.lohnsteuer, Currency::ganz(lst)) << aufruf;
        EXPECT_EQ(z.solidaritaetszuschlag, Currency::ganz(jsonzahl(l.aus, "solzlzz"))) << aufruf;
        // The table's church tax: the wage tax times the rate, the Pfennig fraction cut off.
        const std::int64_t prozent = t.auswahl.kirchensteuersatz == Currency::roh(800) ? 8 : 9;
        EXPECT_EQ(z.kirchensteuer, Currency::ganz(lst * prozent / 100)) << aufruf;
    }
}

} // namespace lonvir
