// Both statements of a seeded store with edited months against the sums the test reads
// straight from the bytes of the month files.
#include "reports/beitragsnachweis.h"
#include "reports/lohnsteuernachweis.h"

#include "cli/clilauf.h"
#include "nachweishilfe.h"
#include "testhilfe.h"

#include "core/arbeitsordner.h"
#include "core/druckformat.h"
#include "core/textdrucker.h"
#include "start/start.h"

#include <cmath>
#include <gtest/gtest.h>

namespace lonvir {

namespace {

struct Bestand : ::testing::Test {
    test::Tempordner ordner;
    SkriptDialoge dialoge;
    Sitzung s;

    void SetUp() override {
        const std::string o = " --ordner " + ordner.pfad().string();
        for (const char* eingabe : {"setzen --person 2 --monat 1 --zeile 12 --betrag 50000",
                                    "setzen --person 2 --monat 3 --zeile 28 --auswahl 3",
                                    "setzen --person 1 --monat 3 --zeile 13 --betrag 12345",
                                    "setzen --person 6 --monat 12 --zeile 14 --betrag 77777"})
            ASSERT_EQ(test::clilauf(eingabe + o).status, 0) << eingabe;
        s.ordner = Arbeitsordner(ordner.pfad());
        s.installation = LONVIR_INSTALLATION;
        s.dialoge = &dialoge;
        starten(s);
    }
    [[nodiscard]] test::Rohdatei monatsdatei(int monat) const {
        return test::Rohdatei(Arbeitsordner(ordner.pfad()).pfad("L1997I." + std::to_string(monat)));
    }
};

} // namespace

TEST_F(Bestand, BeitragssummenSindDieFelderDerMonatsdatei) {
    for (int monat : {1, 3, 12}) {
        const test::Rohdatei f = monatsdatei(monat);
        std::array<std::int64_t, 10> erwartet{};
        for (int p = 1; p <= s.anzahlnamen; ++p) {
            const int art = f.merkmal(p, 4);
            if (art < 5 || art > 17)
                continue;
            const int kasse = f.merkmal(p, 37), pflege = f.merkmal(p, 38);
            const bool arbeiter = art >= 8 && art <= 11;
            if (kasse != 28) {
                erwartet[0] -= f.wert(p, 37);
                erwartet[1] += f.nebenwert(p, 0);
            }
            if (pflege == 0 || pflege == 2 || pflege == 3 || pflege == 5) {
                erwartet[2] -= f.wert(p, 38);
                erwartet[3] += f.nebenwert(p, 1);
            }
            erwartet[arbeiter ? 4 : 6] -= f.wert(p, 39);
            erwartet[arbeiter ? 5 : 7] += f.nebenwert(p, 2);
            erwartet[8] -= f.wert(p, 40);
            erwartet[9] += f.nebenwert(p, 3);
        }
        const Beitragsnachweis n = beitragsnachweisbilden(s, monat - 1);
        std::int64_t gesamt = 0;
        for (std::size_t i = 0; i < 10; ++i) {
            EXPECT_EQ(n.summen[i], erwartet[i]) << "Monat " << monat << ", Summe " << i;
            gesamt += erwartet[i];
        }
        EXPECT_GT(gesamt, 0) << "Monat " << monat;

        // "Gesamtsumme:" prints the sum of all ten, to the Pfennig.
        Textdrucker d;
        beitragsnachweisdrucken(s, n, d);
        const std::string text = formatzahl(static_cast<double>(gesamt) / 100.0, "##,##0.00");
        const auto zeile = d.inhalt.find("Gesamtsumme:");
        ASSERT_NE(zeile, std::string::npos);
        EXPECT_EQ(d.inhalt.substr(zeile, d.inhalt.find('\n', zeile) - zeile).ends_with(text), true)
            << text;
    }
}

TEST_F(Bestand, LohnsteuersummenSindDieFelderDerMonatsdatei) {
    for (int monat : {1, 3, 12}) {
        const test::Rohdatei f = monatsdatei(monat);
        std::array<std::int64_t, 11> erwartet{};
        int personen = 0;
        for (int p = 1; p <= s.anzahlnamen; ++p) {
            if (f.wert(p, 45) == 0)
                continue;
            ++personen;
            erwartet[0] -= f.wert(p, 33);
            erwartet[1] -= f.wert(p, 35);
            erwartet[5] += std::lrint(f.wert(p, 32) / 1.075);
            erwartet[6] += std::lrint(f.wert(p, 32) / 1.075 * 0.075);
            erwartet[10] += f.wert(p, 34);
            const int code = f.merkmal(p, 28);
            // Whole and half shares per confession: Protestant, Roman Catholic, Old Catholic.
            static const int anteil[7][3] = {{2, 0, 0}, {0, 2, 0}, {0, 0, 2}, {1, 1, 0},
                                             {1, 0, 1}, {0, 1, 1}, {0, 0, 0}};
            if (code < 0 || code > 6)
                continue;
            for (int k = 0; k < 3; ++k) {
                for (auto [spalte, feld] :
                     {std::pair{2 + k, -f.wert(p, 36)}, std::pair{7 + k, f.wert(p, 6)}}) {
                    auto& summe = erwartet[static_cast<std::size_t>(spalte)];
                    if (anteil[code][k] == 2)
                        summe += feld;
                    else if (anteil[code][k] == 1)
                        summe = std::lrint(static_cast<double>(summe) + feld / 2.0);
                }
            }
        }
        const Lohnsteuernachweis n = lohnsteuernachweisbilden(s, monat - 1);
        EXPECT_EQ(static_cast<int>(n.zeilen.size()), personen);
        for (std::size_t i = 0; i < 11; ++i)
            EXPECT_EQ(n.summen[i], erwartet[i]) << "Monat " << monat << ", Summe " << i;
        EXPECT_NE(erwartet[0], 0); // December refunds: the sum may be negative
    }
}

} // namespace lonvir
