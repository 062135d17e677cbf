// The pay statements in their three forms and the deduction annex of the sample staff in
// January 1997, as text, byte for byte against the files under tests/reports/golden: a civil
// servant (person 1), a BAT employee (person 2) and a part-time BAT employee (person 6), each
// loaded and refreshed as a click on the person does it. LONVIR_GOLDEN_NEU=1 writes them anew
// (look at the difference before committing it).
#include "reports/abzuegedrucken.h"
#include "reports/gehaltdrucken.h"

#include "core/textdrucker.h"
#include "panels/arbeitsblaetter.h"
#include "screen/form1.h"
#include "screen/schirmtexte.h"
#include "start/start.h"
#include "testhilfe.h"

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
    if (std::getenv("LONVIR_GOLDEN_NEU") != nullptr)
        std::ofstream(datei, std::ios::binary) << text;
    std::ifstream ein(datei, std::ios::binary);
    ASSERT_TRUE(ein) << datei;
    const std::string erwartet{std::istreambuf_iterator<char>(ein), {}};
    EXPECT_EQ(text, erwartet) << name << ": LONVIR_GOLDEN_NEU=1 writes it anew";
}

struct Musterstatements : ::testing::Test {
    test::Tempordner ordner;
    SkriptDialoge dialoge;
    Sitzung s;
    std::unique_ptr<Form1> form;

    void SetUp() override {
        s.ordner = Arbeitsordner(ordner.pfad());
        s.installation = LONVIR_INSTALLATION;
        s.dialoge = &dialoge;
        starten(s);
        form = std::make_unique<Form1>(s);
        form->listenfuellen();
        form->namensliste();
    }

    // Each of the three persons in January, printed by `drucken`.
    template <typename F> std::string allemuster(F drucken) {
        Textdrucker d;
        for (int person : {1, 2, 6}) {
            s.aktuelleperson = static_cast<std::int16_t>(person);
            s.merkmal[0] = static_cast<std::int16_t>(person - 1);
            s.merkmal[20] = 0;
            form->bildauffrischen();
            drucken(schirmtexte(form->bild), d);
        }
        return d.inhalt;
    }
};

} // namespace

TEST_F(Musterstatements, DieDreiFormen) {
    for (auto [statementform, name] :
         {std::pair{nurbrutto, "gehalt-brutto.txt"}, std::pair{bruttonetto, "gehalt-netto.txt"},
          std::pair{mitarbeitgeber, "gehalt-ag.txt"}}) {
        vergleichen(name, allemuster([&, f = statementform](const Schirmtexte& b, Drucker& d) {
                        gehaltdrucken(s, b, f, d);
                    }));
    }
}

TEST_F(Musterstatements, DieAnlage) {
    vergleichen("anlage-abzuege.txt", allemuster([&](const Schirmtexte& b, Drucker& d) {
                    abzuegedrucken(
                        s, b, [this](bool sv) { return arbeitsblaetterkopieren(s, sv); }, d);
                }));
}

} // namespace lonvir
