// The print-line helpers: a stored free text line by line at column 10, and the rule.
#include "reports/druckzeilen.h"

#include <gtest/gtest.h>

namespace lonvir {
namespace {

TEST(Zeilendrucken, EinLeererTextDrucktNichts) {
    Merkdrucker d;
    std::string text = "     ";
    zeilendrucken(d, text);
    d.EndDoc();
    EXPECT_TRUE(d.dokumente.at(0).zeilen.empty());
    EXPECT_TRUE(text.empty());
}

TEST(Zeilendrucken, DreiZeilenAnSpalte10OhneFuehrendeBlanks) {
    Merkdrucker d;
    std::string text = "  Erste Zeile\r\n   zweite Zeile\r\n dritte  ";
    zeilendrucken(d, text);
    d.EndDoc();
    const Druckdokument& dok = d.dokumente.at(0);
    ASSERT_EQ(dok.zeilen.size(), 3u);
    EXPECT_EQ(d.zeile(0, 0), "         Erste Zeile");
    EXPECT_EQ(d.zeile(0, 1), "         zweite Zeile");
    EXPECT_EQ(d.zeile(0, 2), "         dritte");
    for (const Druckzeile& z : dok.zeilen) {
        ASSERT_EQ(z.stuecke.size(), 1u);
        EXPECT_EQ(z.stuecke[0].spalte, 10);
    }
    EXPECT_TRUE(text.empty());
}

TEST(Zeilendrucken, EineZeileOhneWagenruecklaufEndetDieZeile) {
    Merkdrucker d;
    std::string text = "Nur eine Zeile";
    zeilendrucken(d, text);
    d.Print({Tab{1}, std::string("danach")});
    d.EndDoc();
    ASSERT_EQ(d.dokumente.at(0).zeilen.size(), 2u);
    EXPECT_EQ(d.zeile(0, 1), "danach");
}

TEST(Strichzeile, DieRegelAnSpalte10) {
    Merkdrucker d;
    strichzeile(d);
    d.EndDoc();
    EXPECT_EQ(d.zeile(0, 0), std::string(9, ' ') + std::string(68, '-'));
}

} // namespace
} // namespace lonvir
