// The notes of files found sound: kept per working folder beside it, read back only when they
// are whole, of the same folder and the same rules.
#include "core/pruefvermerk.h"
#include "testhilfe.h"

#include <gtest/gtest.h>

namespace lonvir {

namespace {
namespace fs = std::filesystem;

Dateikennung kennung(std::int64_t laenge) {
    Dateikennung k;
    k.geraet = 3;
    k.knoten = 77;
    k.laenge = laenge;
    k.inhaltSekunden = 1'000'000;
    k.eintragSekunden = 1'000'001;
    k.eintragNanos = 5;
    return k;
}

// January noted in a session of its own on folder `ordner` under `regeln`, kept at its end.
void januarvermerken(const fs::path& ablage, const std::string& ordner, std::uint32_t regeln = 1) {
    Pruefvermerk v;
    v.laden(ordner, regeln, ablage);
    v.eintragen("L1997I.1", kennung(541));
}

// Whether a new session on `ordner` finds January noted.
bool januarvermerkt(const fs::path& ablage, const std::string& ordner, std::uint32_t regeln = 1) {
    Pruefvermerk v;
    v.laden(ordner, regeln, ablage);
    return v.gilt("L1997I.1", kennung(541));
}
} // namespace

TEST(Pruefvermerk, EinEintragHaeltUeberDasEndeDerSitzungHinaus) {
    test::Tempordner ablage;
    {
        Pruefvermerk v;
        v.laden("/daten/lohn", 1, ablage.pfad());
        ASSERT_TRUE(v.aktiv());
        EXPECT_FALSE(v.gilt("L1997I.1", kennung(541)));
        v.eintragen("L1997I.1", kennung(541));
        v.eintragen("Texte.txt", kennung(210000));
    } // kept by the destructor
    Pruefvermerk v;
    v.laden("/daten/lohn", 1, ablage.pfad());
    EXPECT_TRUE(v.gilt("L1997I.1", kennung(541)));
    EXPECT_TRUE(v.gilt("Texte.txt", kennung(210000)));
    // Any other identity does not hold.
    EXPECT_FALSE(v.gilt("L1997I.1", kennung(1082)));
    Dateikennung spaeter = kennung(541);
    spaeter.eintragNanos = 6;
    EXPECT_FALSE(v.gilt("L1997I.1", spaeter));
    EXPECT_FALSE(v.gilt("L1997I.2", kennung(541)));
}

TEST(Pruefvermerk, EinGestrichenerEintragGiltNichtMehr) {
    test::Tempordner ablage;
    {
        Pruefvermerk v;
        v.laden("/daten/lohn", 1, ablage.pfad());
        v.eintragen("L1997I.1", kennung(541));
        v.sichern();
        v.streichen("L1997I.1");
    }
    Pruefvermerk v;
    v.laden("/daten/lohn", 1, ablage.pfad());
    EXPECT_FALSE(v.gilt("L1997I.1", kennung(541)));
}

TEST(Pruefvermerk, JederOrdnerHatSeineEigenenVermerke) {
    test::Tempordner ablage;
    januarvermerken(ablage.pfad(), "/daten/lohn");
    EXPECT_TRUE(januarvermerkt(ablage.pfad(), "/daten/lohn"));
    EXPECT_FALSE(januarvermerkt(ablage.pfad(), "/daten/lohn2"));
    // The same folder spelled with a dot component is the same folder.
    EXPECT_TRUE(januarvermerkt(ablage.pfad(), "/daten/./lohn"));
}

TEST(Pruefvermerk, VermerkeNachAnderenRegelnGeltenNicht) {
    test::Tempordner ablage;
    januarvermerken(ablage.pfad(), "/daten/lohn", 1);
    EXPECT_FALSE(januarvermerkt(ablage.pfad(), "/daten/lohn", 2));
}

TEST(Pruefvermerk, EineBeschaedigteVermerkdateiGiltGarNicht) {
    test::Tempordner ablage;
    fs::path datei;
    {
        Pruefvermerk v;
        v.laden("/daten/lohn", 1, ablage.pfad());
        v.eintragen("L1997I.1", kennung(541));
        v.sichern();
        datei = v.datei();
    }
    const std::string ganz = test::dateiinhalt(datei.parent_path(), datei.filename().string());
    for (std::size_t stelle : {std::size_t{0}, std::size_t{9}, ganz.size() / 2, ganz.size() - 1}) {
        std::string kaputt = ganz;
        kaputt[stelle] = static_cast<char>(kaputt[stelle] ^ 0x40);
        test::dateisetzen(datei.parent_path(), datei.filename().string(), kaputt);
        Pruefvermerk v;
        v.laden("/daten/lohn", 1, ablage.pfad());
        EXPECT_FALSE(v.gilt("L1997I.1", kennung(541))) << "Byte " << stelle;
    }
    // Cut short, as by the end of the process while writing.
    test::dateisetzen(datei.parent_path(), datei.filename().string(), ganz.substr(0, 30));
    Pruefvermerk v;
    v.laden("/daten/lohn", 1, ablage.pfad());
    EXPECT_FALSE(v.gilt("L1997I.1", kennung(541)));
}

TEST(Pruefvermerk, OhneAblageWirdNichtsVermerkt) {
    Pruefvermerk v;
    v.laden("/daten/lohn", 1, fs::path());
    EXPECT_FALSE(v.aktiv());
    v.eintragen("L1997I.1", kennung(541));
    EXPECT_FALSE(v.gilt("L1997I.1", kennung(541)));
}

TEST(Pruefvermerk, EineUnbeschreibbareAblageIstKeinFehler) {
    test::Tempordner t;
    test::dateisetzen(t.pfad(), "datei", "x"); // a file where the folder should be
    Pruefvermerk v;
    v.laden("/daten/lohn", 1, t.pfad() / "datei" / "lonvir97");
    v.eintragen("L1997I.1", kennung(541));
    EXPECT_NO_THROW(v.sichern());
}

TEST(Pruefvermerk, BeiVielenOrdnernGehenDieAeltestenVermerke) {
    test::Tempordner ablage;
    for (int i = 0; i < 100; ++i) {
        Pruefvermerk v;
        v.laden("/daten/ordner" + std::to_string(i), 1, ablage.pfad());
        v.eintragen("L1997I.1", kennung(541));
        v.sichern();
        // The oldest are told by their time of writing.
        fs::last_write_time(v.datei(),
                            fs::file_time_type::clock::now() - std::chrono::hours(200 - i));
    }
    Pruefvermerk neu;
    neu.laden("/daten/neu", 1, ablage.pfad());
    neu.eintragen("L1997I.1", kennung(541));
    neu.sichern();
    std::size_t anzahl = 0;
    for ([[maybe_unused]] const auto& e : fs::directory_iterator(ablage.pfad()))
        ++anzahl;
    EXPECT_EQ(anzahl, 76U);
    Pruefvermerk juengster;
    juengster.laden("/daten/ordner99", 1, ablage.pfad());
    EXPECT_TRUE(juengster.gilt("L1997I.1", kennung(541)));
    Pruefvermerk aeltester;
    aeltester.laden("/daten/ordner0", 1, ablage.pfad());
    EXPECT_FALSE(aeltester.gilt("L1997I.1", kennung(541)));
}

TEST(Pruefvermerk, DieAblageFolgtXdgCacheHome) {
    const char* alt = std::getenv("XDG_CACHE_HOME");
    const std::string gemerkt = alt ? alt : "";
    ::setenv("XDG_CACHE_HOME", "/zwischen/ablage", 1);
    EXPECT_EQ(Pruefvermerk::standardablage(), fs::path("/zwischen/ablage/lonvir97"));
    ::setenv("XDG_CACHE_HOME", "relativ", 1); // not absolute: ignored
    const char* home = std::getenv("HOME");
    if (home != nullptr && *home == '/') {
        EXPECT_EQ(Pruefvermerk::standardablage(), fs::path(home) / ".cache" / "lonvir97");
    }
    if (alt)
        ::setenv("XDG_CACHE_HOME", gemerkt.c_str(), 1);
    else
        ::unsetenv("XDG_CACHE_HOME");
}

} // namespace lonvir
