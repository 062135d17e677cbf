// drucken bda: the service-age sheet of one person as text and PDF, worked out on page 42 key
// by key; the first sheet of the golden file, and the refusals.
#include "cli/clilauf.h"
#include "testhilfe.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>

namespace lonvir::test {
namespace {

namespace fs = std::filesystem;

std::string lesen(const fs::path& datei) {
    std::ifstream ein(datei, std::ios::binary);
    return {std::istreambuf_iterator<char>(ein), {}};
}

TEST(CliBdabogen, DerBogenVonFrankLehmannAlsTextUndPdf) {
    Tempordner t;
    const std::string ordner = (t.pfad() / "a").string();
    const std::string aufruf = "drucken bda --ordner " + ordner +
                               " --person 1 --geburtstag 12.04.1963 --monate1 30 --monate2 9";
    const Clilauf text = clilauf(aufruf + " --format text --aus " + (t.pfad() / "b.txt").string());
    ASSERT_EQ(text.status, 0) << text.aus;
    const std::string golden =
        lesen(fs::path(LONVIR_QUELLEN) / "tests" / "reports" / "golden" / "bda.txt");
    const std::size_t ende = golden.find('\f');
    ASSERT_NE(ende, std::string::npos);
    EXPECT_EQ(lesen(t.pfad() / "b.txt"), golden.substr(0, ende + 2));
    const Clilauf pdf = clilauf(aufruf + " --format pdf --aus " + (t.pfad() / "b.pdf").string());
    ASSERT_EQ(pdf.status, 0) << pdf.aus;
    EXPECT_EQ(lesen(t.pfad() / "b.pdf").substr(0, 5), "%PDF-");
}

TEST(CliBdabogen, AngestellteBekommenKeinenBogen) {
    Tempordner t;
    const Clilauf l = clilauf("drucken bda --ordner " + (t.pfad() / "a").string() +
                                  " --person 2 --geburtstag 20.09.1961",
                              true);
    EXPECT_EQ(l.status, 2);
    EXPECT_TRUE(enthaelt(l.aus, "Drucken: Der Berechnungsbogen gilt")) << l.aus;
}

TEST(CliBdabogen, OhneGeburtstagUndMitUnlesbaremDatum) {
    Tempordner t;
    const std::string ordner = (t.pfad() / "a").string();
    Clilauf l = clilauf("drucken bda --ordner " + ordner + " --person 1", true);
    EXPECT_EQ(l.status, 2);
    EXPECT_TRUE(enthaelt(l.aus, "--geburtstag TT.MM.JJJJ")) << l.aus;
    l = clilauf("drucken bda --ordner " + ordner + " --person 1 --geburtstag 31.02.1963", true);
    EXPECT_EQ(l.status, 2);
    EXPECT_TRUE(enthaelt(l.aus, "Schade: Es ist ein nicht behebbarer Fehler")) << l.aus;
}

} // namespace
} // namespace lonvir::test
