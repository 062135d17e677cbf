// The all-or-nothing copy: a failed copy leaves nothing, an interrupted move is finished, an
// incomplete temporary folder is removed.
#include "core/ganzkopie.h"
#include "core/laufzeitfehler.h"
#include "core/schreibstoerung.h"
#include "testhilfe.h"

#include <fstream>
#include <gtest/gtest.h>

namespace lonvir {

namespace {
namespace fs = std::filesystem;

void dateischreiben(const fs::path& pfad, const std::string& inhalt) {
    fs::create_directories(pfad.parent_path());
    std::ofstream(pfad, std::ios::binary) << inhalt;
}

struct Quelle {
    Quelle() {
        dateischreiben(t.pfad() / "a", "eins");
        dateischreiben(t.pfad() / "b", "zwei");
        dateischreiben(t.pfad() / "hilfe" / "1.html", "<p>");
    }
    test::Tempordner t;
};
} // namespace

TEST(Ganzkopie, KopiertAllesUndLaesstKeinenZwischenordner) {
    Quelle q;
    test::Tempordner ziel;
    ganzkopie::einsetzen(q.t.pfad(), ziel.pfad());
    EXPECT_EQ(test::dateiinhalt(ziel.pfad(), "a"), "eins");
    EXPECT_EQ(test::dateiinhalt(ziel.pfad() / "hilfe", "1.html"), "<p>");
    EXPECT_FALSE(fs::exists(ziel.pfad() / ganzkopie::zwischenname));
}

TEST(Ganzkopie, EineVolleFestplatteLaesstDenZielordnerLeer) {
    Quelle q;
    test::Tempordner ziel;
    schreibstoerung::einstellen(2);
    try {
        ganzkopie::einsetzen(q.t.pfad(), ziel.pfad());
        ADD_FAILURE() << "kein Fehler";
    } catch (const Dateifehler& f) {
        EXPECT_NE(std::string(f.what()).find("Der Arbeitsordner wurde nicht angelegt."),
                  std::string::npos);
    }
    schreibstoerung::einstellen(0);
    EXPECT_TRUE(fs::is_empty(ziel.pfad()));
}

TEST(Ganzkopie, EinVollstaendigerZwischenordnerWirdBeimStartFertigVerschoben) {
    test::Tempordner ziel;
    const fs::path neu = ziel.pfad() / ganzkopie::zwischenname;
    // Killed while moving: "a" is in place, "b" not yet.
    dateischreiben(ziel.pfad() / "a", "eins");
    dateischreiben(neu / "b", "zwei");
    dateischreiben(neu / ".fertig", "");
    EXPECT_TRUE(ganzkopie::aufraeumen(ziel.pfad()));
    EXPECT_EQ(test::dateiinhalt(ziel.pfad(), "b"), "zwei");
    EXPECT_FALSE(fs::exists(neu));
    EXPECT_FALSE(ganzkopie::aufraeumen(ziel.pfad()));
}

TEST(Ganzkopie, EinUnvollstaendigerZwischenordnerWirdBeimStartEntfernt) {
    test::Tempordner ziel;
    const fs::path neu = ziel.pfad() / ganzkopie::zwischenname;
    dateischreiben(neu / "a", "ein");
    EXPECT_TRUE(ganzkopie::aufraeumen(ziel.pfad()));
    EXPECT_FALSE(fs::exists(neu));
    EXPECT_FALSE(fs::exists(ziel.pfad() / "a"));
}

} // namespace lonvir
