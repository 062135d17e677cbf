// Both statements of the sample staff in January and December, as text, byte for byte
// against the files under tests/reports/golden. LONVIR_GOLDEN_NEU=1 writes them anew (look
// at the difference before committing it).
#include "reports/beitragsnachweis.h"
#include "reports/lohnsteuernachweis.h"

#include "testhilfe.h"

#include "core/arbeitsordner.h"
#include "core/textdrucker.h"
#include "start/start.h"

#include <cstdlib>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>

namespace lonvir {

namespace {

namespace fs = std::filesystem;

const fs::path golden = fs::path(LONVIR_QUELLEN) / "tests" / "reports" / "golden";

void vergleichen(const std::string& name, const std::string& text) {
    const fs::path datei = golden / name;
    if (std::getenv("LONVIR_GOLDEN_NEU") != nullptr) {
        std::ofstream(datei, std::ios::binary) << text;
    }
    std::ifstream ein(datei, std::ios::binary);
    ASSERT_TRUE(ein) << datei;
    const std::string erwartet{std::istreambuf_iterator<char>(ein), {}};
    EXPECT_EQ(text, erwartet) << name << ": LONVIR_GOLDEN_NEU=1 writes it anew";
}

struct Musterbestand : ::testing::Test {
    test::Tempordner ordner;
    SkriptDialoge dialoge;
    Sitzung s;

    void SetUp() override {
        s.ordner = Arbeitsordner(ordner.pfad());
        s.installation = LONVIR_INSTALLATION;
        s.dialoge = &dialoge;
        starten(s);
    }
};

} // namespace

TEST_F(Musterbestand, BeitragsnachweisJanuarUndDezember) {
    for (auto [monat, name] : {std::pair{0, "beitragsnachweis-januar.txt"},
                               std::pair{11, "beitragsnachweis-dezember.txt"}}) {
        Textdrucker d;
        beitragsnachweisdrucken(s, beitragsnachweisbilden(s, monat), d);
        vergleichen(name, d.inhalt);
    }
}

TEST_F(Musterbestand, LohnsteuernachweisJanuarUndDezember) {
    for (auto [monat, name] : {std::pair{0, "lohnsteuernachweis-januar.txt"},
                               std::pair{11, "lohnsteuernachweis-dezember.txt"}}) {
        Textdrucker d;
        lohnsteuernachweisdrucken(s, lohnsteuernachweisbilden(s, monat), d);
        vergleichen(name, d.inhalt);
    }
}

} // namespace lonvir
