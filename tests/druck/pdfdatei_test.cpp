// The PDF face of the printer: the text where the columns put it, the fixed-pitch font
// embedded, a new page per document and where a page is full.
#include "core/drucker.h"
#include "druck/druckmaler.h"
#include "druck/pdfdatei.h"
#include "testhilfe.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <filesystem>
#include <string>

namespace lonvir {
namespace {

namespace fs = std::filesystem;

std::string ausgabe(const std::string& befehl) {
    FILE* rohr = ::popen(befehl.c_str(), "r");
    std::string aus;
    std::array<char, 4096> puffer{};
    while (std::size_t n = std::fread(puffer.data(), 1, puffer.size(), rohr))
        aus.append(puffer.data(), n);
    ::pclose(rohr);
    return aus;
}

// The left edge of a word in the bounding boxes of pdftotext -bbox, in points.
double xvon(const std::string& bbox, const std::string& wort) {
    const auto ende = bbox.find(">" + wort + "</word>");
    if (ende == std::string::npos)
        return -1;
    const auto anfang = bbox.rfind("xMin=\"", ende);
    return std::stod(bbox.substr(anfang + 6));
}

std::vector<Druckdokument> zweiDokumente(int zeilenImZweiten) {
    Merkdrucker d;
    d.Orientation(hochformat);
    d.FontName("courier new");
    d.FontSize(12);
    d.Print({Tab{10}, "Gehaltsberechnung", Tab{45}, "DM"});
    d.FontBold(true);
    d.Print({Tab{10}, "Müller, Jürgen"});
    d.EndDoc();
    d.Orientation(querformat);
    d.FontBold(false);
    d.FontSize(8.25F);
    for (int i = 1; i <= zeilenImZweiten; ++i)
        d.Print({Tab{1}, "Zeile " + std::to_string(i)});
    d.EndDoc();
    return d.dokumente;
}

TEST(Pdfdatei, TextUndSchriftEingebettet) {
    test::Tempordner t;
    const fs::path pdf = t.pfad() / "bericht.pdf";
    druck::pdfschreiben(pdf, zweiDokumente(3), QStringLiteral("Prüfung"));
    ASSERT_TRUE(fs::exists(pdf));
    const std::string text = ausgabe("pdftotext -layout " + pdf.string() + " -");
    EXPECT_NE(text.find("Gehaltsberechnung"), std::string::npos) << text;
    EXPECT_NE(text.find("Müller, Jürgen"), std::string::npos) << text;
    // Column 10 at 12 points lies 9 * 7.2 points right of the left margin of 15 mm, column
    // 45 lies 44 * 7.2: 252 points further.
    const std::string woerter = ausgabe("pdftotext -bbox " + pdf.string() + " -");
    EXPECT_NEAR(xvon(woerter, "Gehaltsberechnung"), 15 * 72 / 25.4 + 64.8, 1.0) << woerter;
    EXPECT_NEAR(xvon(woerter, "DM") - xvon(woerter, "Gehaltsberechnung"), 252.0, 0.5);
    // Every font is embedded: regular and bold.
    const std::string schriften = ausgabe("pdffonts " + pdf.string());
    EXPECT_NE(schriften.find(
                  "LiberationMono                       CID TrueType      Identity-H       yes"),
              std::string::npos)
        << schriften;
    EXPECT_NE(schriften.find(
                  "LiberationMono-Bold                  CID TrueType      Identity-H       yes"),
              std::string::npos)
        << schriften;
}

TEST(Pdfdatei, JedesDokumentAufEinerNeuenSeiteUndUmbruchWennVoll) {
    test::Tempordner t;
    const fs::path pdf = t.pfad() / "bericht.pdf";
    // Landscape A4 holds 186 mm: 527.2 points, 56 lines of 8.25 points (9.3457 each).
    druck::pdfschreiben(pdf, zweiDokumente(60), QStringLiteral("Prüfung"));
    const std::string info = ausgabe("pdfinfo " + pdf.string());
    EXPECT_NE(info.find("Pages:           3\n"), std::string::npos) << info;
    const std::string seite3 = ausgabe("pdftotext -f 3 -l 3 " + pdf.string() + " -");
    EXPECT_NE(seite3.find("Zeile 57"), std::string::npos) << seite3;
    EXPECT_EQ(seite3.find("Zeile 56\n"), std::string::npos) << seite3;
    const std::string groesse = ausgabe("pdfinfo -f 2 -l 2 " + pdf.string());
    EXPECT_NE(groesse.find("size:  842 x 595 pts (A4)"), std::string::npos) << groesse;
}

TEST(Pdfdatei, CourierNewStehtFuerLiberationMono) {
    EXPECT_EQ(druck::schriftfamilie("courier new"), QStringLiteral("Liberation Mono"));
    EXPECT_EQ(druck::schriftfamilie("Courier New"), QStringLiteral("Liberation Mono"));
    EXPECT_EQ(druck::schriftfamilie("arial"), QStringLiteral("arial"));
}

} // namespace
} // namespace lonvir
