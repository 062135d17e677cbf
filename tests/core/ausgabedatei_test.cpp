// Output files appear whole or not at all.
#include "core/ausgabedatei.h"
#include "core/laufzeitfehler.h"
#include "testhilfe.h"

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

namespace lonvir {
namespace {

namespace fs = std::filesystem;

std::string lesen(const fs::path& p) {
    std::ifstream ein(p, std::ios::binary);
    std::stringstream s;
    s << ein.rdbuf();
    return s.str();
}

std::size_t dateienIn(const fs::path& ordner) {
    return static_cast<std::size_t>(
        std::distance(fs::directory_iterator(ordner), fs::directory_iterator()));
}

TEST(Ausgabedatei, SchreibtEineNeueDateiGanz) {
    test::Tempordner t;
    const fs::path ziel = t.pfad() / "bericht.txt";
    dateiersetzen(ziel, std::string("Zeile\f\n\0Ende", 13));
    EXPECT_EQ(lesen(ziel), std::string("Zeile\f\n\0Ende", 13));
    EXPECT_EQ(dateienIn(t.pfad()), 1u); // no temporary file stays behind
}

TEST(Ausgabedatei, ErsetztEineVorhandeneDatei) {
    test::Tempordner t;
    const fs::path ziel = t.pfad() / "bericht.txt";
    dateiersetzen(ziel, "alt und lang");
    dateiersetzen(ziel, "neu");
    EXPECT_EQ(lesen(ziel), "neu");
    EXPECT_EQ(dateienIn(t.pfad()), 1u);
}

TEST(Ausgabedatei, EinFehlenderOrdnerNenntDieDatei) {
    test::Tempordner t;
    const fs::path ziel = t.pfad() / "fehlt" / "bericht.pdf";
    try {
        dateiersetzen(ziel, "x");
        FAIL() << "kein Fehler";
    } catch (const Dateifehler& f) {
        EXPECT_EQ(f.datei(), ziel.string());
        EXPECT_NE(std::string(f.what()).find("der Ordner ist nicht vorhanden"), std::string::npos)
            << f.what();
    }
    EXPECT_FALSE(fs::exists(ziel));
}

TEST(Ausgabedatei, EinOrdnerAlsZielBleibtUnberuehrt) {
    test::Tempordner t;
    const fs::path ziel = t.pfad() / "ordner";
    fs::create_directory(ziel);
    EXPECT_THROW(dateiersetzen(ziel, "x"), Dateifehler);
    EXPECT_TRUE(fs::is_directory(ziel));
    EXPECT_EQ(dateienIn(t.pfad()), 1u); // the temporary file is removed again
}

} // namespace
} // namespace lonvir
