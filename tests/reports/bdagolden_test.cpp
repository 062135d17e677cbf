// The printed service-age sheet of two sample civil servants, worked out on page 42 key by
// key, as text byte for byte against tests/reports/golden/bda.txt: Frank Lehmann (A 9 gD Ost,
// born 12.04.1963, 30 and 9 months without pay) and Thomas Becker (A 13 hD West, born
// 20.04.1962, whose first period does not count). LONVIR_GOLDEN_NEU=1 writes it anew.
#include "reports/bdadrucken.h"

#include "core/textdrucker.h"
#include "panels/dienstalterseite.h"
#include "screen/form1.h"
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

void tippen(Tablett& t, int feld, const std::string& text) {
    for (char c : text)
        if (t.text_KeyPress(feld, c) == c)
            t.Text[feld].text += c;
    t.text_KeyPress(feld, 13);
}

struct Muster {
    test::Musterumgebung u;
    Form1 f{u.s};
    Form1lage lage;
    Tablett t{u.s, lage};
    Muster() {
        f.listenfuellen();
        f.namensliste();
        t.zeilenname = [this](int zeile) {
            const Bildzeile& z = f.bild.zeilen[static_cast<std::size_t>(zeile)];
            return z.liste.at(static_cast<std::size_t>(z.position));
        };
    }
    Dienstalterblatt rechnen(int person, const std::string& geburtstag, int monate1, int monate2) {
        u.s.aktuelleperson = static_cast<std::int16_t>(person);
        u.s.merkmal[0] = static_cast<std::int16_t>(person - 1);
        u.s.merkmal[20] = 0;
        f.bildauffrischen();
        u.s.Tablettseite = 42;
        t.tablettoeffnen();
        t.text_GotFocus(0);
        tippen(t, 0, geburtstag);
        if (t.Text[1].hintergrund == 15) {
            t.Text[1].text.clear();
            tippen(t, 1, std::to_string(monate1));
        }
        t.Text[2].text.clear();
        tippen(t, 2, std::to_string(monate2));
        return dienstalterblatt(t);
    }
};

} // namespace

TEST(Bdablatt, ZweiBeamteDerMusterbelegschaft) {
    Muster m;
    Textdrucker d;
    const Dienstalterblatt lehmann = m.rechnen(1, "12.04.1963", 30, 9);
    // A quarter of 30 is 7, half of 9 is 4: 11 months after 01.04.1984.
    EXPECT_EQ(lehmann.bdabeginn, "01.03.1985");
    EXPECT_EQ(lehmann.gruppe, 12);
    EXPECT_EQ(lehmann.endstufe, 13);
    bdadrucken(m.u.s, lehmann, d);
    const Dienstalterblatt becker = m.rechnen(7, "20.04.1962", 30, 9);
    EXPECT_EQ(becker.viertel, 0);
    EXPECT_EQ(becker.bdabeginn, "01.08.1983");
    EXPECT_EQ(becker.endstufe, 14);
    bdadrucken(m.u.s, becker, d);
    const fs::path datei = golden / "bda.txt";
    if (std::getenv("LONVIR_GOLDEN_NEU") != nullptr)
        std::ofstream(datei, std::ios::binary) << d.inhalt;
    std::ifstream ein(datei, std::ios::binary);
    ASSERT_TRUE(ein) << datei;
    const std::string erwartet{std::istreambuf_iterator<char>(ein), {}};
    EXPECT_EQ(d.inhalt, erwartet) << "LONVIR_GOLDEN_NEU=1 writes it anew";
}

} // namespace lonvir
