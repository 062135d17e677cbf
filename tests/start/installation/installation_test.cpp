// The installation data: compiling the sources, seeding a new working folder, and what the
// compiled files hold.
#include "testhilfe.h"

#include "core/cp1252.h"
#include "core/laufzeitfehler.h"
#include "core/satzdatei.h"
#include "engine/monatladen.h"
#include "records/personalsatz.h"
#include "records/tarifsatz.h"
#include "start/einstellungen.h"
#include "start/installation/installieren.h"
#include "start/installation/quelltext.h"
#include "start/installation/tariftabellen.h"
#include "start/start.h"
#include "start/texte.h"

#include <gtest/gtest.h>

#include <array>
#include <fstream>
#include <map>

namespace lonvir {

namespace {

namespace fs = std::filesystem;

const fs::path quellen = fs::path(LONVIR_QUELLEN) / "data";
const fs::path installiert = LONVIR_INSTALLATION;

// Every file below `ordner`, by its path relative to it, with its bytes.
std::map<std::string, std::string> alledateien(const fs::path& ordner) {
    std::map<std::string, std::string> dateien;
    for (const auto& e : fs::recursive_directory_iterator(ordner))
        if (e.is_regular_file()) {
            std::ifstream ein(e.path(), std::ios::binary);
            dateien[fs::relative(e.path(), ordner).string()] = {std::istreambuf_iterator<char>(ein),
                                                                std::istreambuf_iterator<char>()};
        }
    return dateien;
}

Tarifsatz tarifsatz(const fs::path& ordner, const std::string& datei, int nummer) {
    Satzdatei d;
    d.oeffnen(ordner / datei, Tarifsatz::laenge);
    std::array<std::uint8_t, Tarifsatz::laenge> b{};
    d.lesen(nummer, b);
    return Tarifsatz::lesen(b);
}

// A session on a copy of the installation, started as the program starts.
struct Installiert {
    explicit Installiert(std::int16_t jahr = 1997) {
        s.ordner = Arbeitsordner(ordner.pfad());
        s.installation = installiert;
        s.dialoge = &dialoge;
        s.jahr = jahr;
        starten(s);
    }
    test::Tempordner ordner;
    SkriptDialoge dialoge;
    Sitzung s;
};

// Person `person`'s record of month `monat` (1 to 12) in layer INFO 1997.
Personalsatz mustersatz(const Installiert& i, int monat, int person) {
    Satzdatei d;
    d.oeffnen(i.ordner.pfad() / ("L1997I." + std::to_string(monat)), Personalsatz::laenge);
    std::array<std::uint8_t, Personalsatz::laenge> b{};
    d.lesen(person, b);
    return Personalsatz::lesen(b);
}

bool hatbetrag(const Tarifsatz& t) {
    for (int e = 0; e <= 14; ++e)
        if (t.wert[e] != 0)
            return true;
    return false;
}

} // namespace

TEST(Installation, UebersetzteQuellenGleichenDenInstalliertenDateienByteFuerByte) {
    test::Tempordner t;
    installation::installieren(quellen, t.pfad() / "neu");
    const auto neu = alledateien(t.pfad() / "neu");
    const auto vorhanden = alledateien(installiert);
    ASSERT_FALSE(vorhanden.empty());
    EXPECT_EQ(neu.size(), vorhanden.size());
    for (const auto& [name, inhalt] : vorhanden) {
        ASSERT_TRUE(neu.count(name)) << name;
        EXPECT_TRUE(neu.at(name) == inhalt) << name << " weicht ab";
    }
}

TEST(Installation, DerErsteStartSetztDieInstallationEinUndAendertNichts) {
    Installiert i;
    // The working folder is the installation as it stands: the start finds its store complete.
    EXPECT_TRUE(alledateien(i.ordner.pfad()) == alledateien(installiert));
    EXPECT_EQ(i.s.anzahlnamen, 20);
    EXPECT_EQ(textgetrimmt(i.s, 5001), "Lehmann, Frank");
    EXPECT_EQ(textgetrimmt(i.s, 5007), "Becker, Thomas");
    EXPECT_EQ(textgetrimmt(i.s, 5008), "8. Name");
    EXPECT_EQ(textgetrimmt(i.s, 5020), "20. Name");
    EXPECT_EQ(textgetrimmt(i.s, 3613), "keine Lohnsteuer");
}

TEST(Installation, EinOrdnerMitBestandWirdNichtUeberschrieben) {
    test::Tempordner t;
    std::ofstream(t.pfad() / "Texte.txt") << "eigener Bestand";
    EXPECT_FALSE(installation::ohnebestand(Arbeitsordner(t.pfad())));
    SkriptDialoge dialoge;
    Sitzung s;
    s.ordner = Arbeitsordner(t.pfad());
    s.installation = installiert;
    s.dialoge = &dialoge;
    starten(s);
    EXPECT_EQ(test::dateiinhalt(t.pfad(), "Texte.txt").substr(0, 15), "eigener Bestand");
    EXPECT_EQ(test::dateiinhalt(t.pfad(), "Lonvir97.1tr").size(), 0u);
}

TEST(Installation, EinzelneDateiDesSatzesGiltAlsBestand) {
    test::Tempordner t;
    std::ofstream(t.pfad() / "l1997p.13") << "Bemerkung";
    EXPECT_FALSE(installation::ohnebestand(Arbeitsordner(t.pfad())));
    std::ofstream(t.pfad() / "nur-eine-notiz.txt") << "fremd";
    test::Tempordner leer;
    std::ofstream(leer.pfad() / "nur-eine-notiz.txt") << "fremd";
    EXPECT_TRUE(installation::ohnebestand(Arbeitsordner(leer.pfad())));
}

TEST(Installation, OhneInstallationsordnerBleibtDerNeueOrdnerLeer) {
    test::Tempordner t;
    EXPECT_FALSE(installation::einsetzen(t.pfad() / "gibt-es-nicht", Arbeitsordner(t.pfad())));
    EXPECT_TRUE(installation::ohnebestand(Arbeitsordner(t.pfad())));
}

TEST(Installation, EinsetzenIstDerCliBefehlAnlegenMitInstallation) {
    test::Tempordner t;
    const std::string cli = std::string(LONVIR_CLI) + " anlegen --ordner " +
                            (t.pfad() / "ordner").string() + " >/dev/null";
    ASSERT_EQ(std::system(cli.c_str()), 0);
    EXPECT_TRUE(alledateien(t.pfad() / "ordner") == alledateien(installiert));
}

TEST(Installation, AnlegenMitLeerLegtDenOrdnerOhneInstallationsdatenAn) {
    test::Tempordner t;
    const std::string cli = std::string(LONVIR_CLI) + " anlegen --leer --ordner " +
                            (t.pfad() / "ordner").string() + " >/dev/null";
    ASSERT_EQ(std::system(cli.c_str()), 0);
    EXPECT_EQ(test::dateiinhalt(t.pfad() / "ordner", "Lonvir97.1tr").size(), 0u);
    EXPECT_EQ(test::dateiinhalt(t.pfad() / "ordner", "Texte.txt").substr(5000 * 35, 7), "1. Name");
}

TEST(Installation, InstallierenInEinenOrdnerMitBestandWirdAbgewiesen) {
    test::Tempordner t;
    std::ofstream(t.pfad() / "L1997I.1") << "Bestand";
    EXPECT_THROW(installation::installieren(quellen, t.pfad()), Dateifehler);
    EXPECT_EQ(test::dateiinhalt(t.pfad(), "L1997I.1"), "Bestand");
    EXPECT_FALSE(fs::exists(t.pfad() / "Texte.txt"));
}

TEST(Quelltext, BetraegeWerdenExaktInPfennigGelesen) {
    const fs::path q = "probe.tsv";
    EXPECT_EQ(installation::pfennig("2408.53", q, 1), 240853);
    EXPECT_EQ(installation::pfennig("2408.5", q, 1), 240850);
    EXPECT_EQ(installation::pfennig("-2", q, 1), -200);
    EXPECT_EQ(installation::pfennig("", q, 1), 0);
    EXPECT_EQ(installation::currency("-2", q, 1), Currency::ganz(-2));
    EXPECT_EQ(installation::currency("0.0005", q, 1), Currency::roh(5));
    EXPECT_THROW((void)installation::pfennig("2408.531", q, 1), Dateifehler);
    EXPECT_THROW((void)installation::pfennig("24,08", q, 1), Dateifehler);
    EXPECT_THROW((void)installation::pfennig(".", q, 1), Dateifehler);
}

TEST(Quelltext, EineFalscheTarifzeileNenntDateiUndZeile) {
    test::Tempordner t;
    const fs::path q = t.pfad() / "lonvir97_1.tsv";
    std::ofstream(q) << "# Kopf\n1\tA 1\t2408.53\n";
    try {
        (void)installation::tariftabellelesen(q);
        FAIL() << "keine Meldung";
    } catch (const Dateifehler& f) {
        EXPECT_NE(std::string(f.what()).find("Zeile 2"), std::string::npos) << f.what();
        EXPECT_NE(std::string(f.what()).find("lonvir97_1.tsv"), std::string::npos);
    }
}

// Every list the screen and the pages build from the text table has its entries.
TEST(Texttabelle, JedeGeleseneListeHatEintraege) {
    Installiert i;
    const std::vector<std::pair<int, int>> listen = {
        {2839, 2840}, {2881, 2888}, {2891, 2893}, {2895, 2897}, {2899, 2901}, {2903, 2905},
        {2907, 2914}, {3000, 3000}, {3001, 3021}, {3023, 3033}, {3035, 3038}, {3040, 3049},
        {3051, 3056}, {3058, 3077}, {3079, 3095}, {3097, 3111}, {3112, 3128}, {3129, 3146},
        {3147, 3162}, {3164, 3179}, {3181, 3187}, {3191, 3210}, {3212, 3231}, {3233, 3253},
        {3255, 3269}, {3271, 3290}, {3301, 3319}, {3321, 3326}, {3328, 3358}, {3359, 3384},
        {3390, 3456}, {3460, 3461}, {3464, 3525}, {3536, 3544}, {3547, 3549}, {3552, 3556},
        {3564, 3621}, {3623, 3626}, {3628, 3657}, {3713, 3742}, {3835, 3846}, {3951, 3962},
        {3965, 3969}, {4005, 4009}, {4020, 4037}, {4040, 4046}, {4050, 4053}, {4093, 4108},
        {4111, 4123}, {4141, 4152}, {4155, 4159}, {4801, 4820}};
    for (const auto& [von, bis] : listen)
        for (int n = von; n <= bis; ++n)
            EXPECT_FALSE(textgetrimmt(i.s, n).empty()) << "Text " << n;
    // The first title of every block of row 6; the candidates' group A 13 has no block.
    const std::vector<int> titelbloecke = {
        1,    11,   31,   51,   71,   96,   121,  141,  166,  191,  221,  231,  261,  281,  301,
        321,  361,  401,  411,  451,  491,  531,  541,  571,  611,  651,  682,  751,  791,  811,
        831,  841,  851,  861,  871,  881,  891,  911,  951,  981,  1001, 1021, 1041, 1051, 1071,
        1081, 1083, 1086, 1089, 1092, 1096, 1101, 1116, 1131, 1161, 1176, 1191, 1206, 1221, 1236,
        1251, 1266, 1281, 1296, 1306, 1321, 1336, 1351, 1381, 1396, 1411};
    for (int n : titelbloecke)
        EXPECT_FALSE(textgetrimmt(i.s, n).empty()) << "Titel " << n;
    for (int b = 0; b < 14; ++b)
        EXPECT_FALSE(textgetrimmt(i.s, 1431 + 10 * b).empty()) << "Kr-Block " << b;
    for (int b = 0; b < 17; ++b)
        EXPECT_FALSE(textgetrimmt(i.s, 1571 + 10 * b).empty()) << "Arbeiter-Block " << b;
    for (int b = 0; b < 16; ++b)
        EXPECT_FALSE(textgetrimmt(i.s, 1741 + 3 * b).empty()) << "Fahrer-Block " << b;
    for (int b = 0; b < 7; ++b)
        EXPECT_FALSE(textgetrimmt(i.s, 1791 + 5 * b).empty()) << "Azubi-Block " << b;
    for (int b = 0; b < 20; ++b) {
        EXPECT_FALSE(textgetrimmt(i.s, 1831 + 10 * b).empty());
        EXPECT_FALSE(textgetrimmt(i.s, 2041 + 10 * b).empty());
        EXPECT_FALSE(textgetrimmt(i.s, 2681 + 10 * b).empty());
    }
    for (int b = 0; b < 21; ++b)
        EXPECT_FALSE(textgetrimmt(i.s, 2251 + 10 * b).empty());
    for (int b = 0; b < 15; ++b)
        EXPECT_FALSE(textgetrimmt(i.s, 2521 + 10 * b).empty());
}

// The program's own words of the fixed lists stand in the table letter for letter.
TEST(Texttabelle, ZitierteTexteStehenWoertlich) {
    Installiert i;
    EXPECT_EQ(textgetrimmt(i.s, 3323), "nein");
    EXPECT_EQ(textgetrimmt(i.s, 3324), "ja voll");
    EXPECT_EQ(textgetrimmt(i.s, 3325), "ja > 49%");
    EXPECT_EQ(textgetrimmt(i.s, 3326), "ja < 50%");
    EXPECT_EQ(textgetrimmt(i.s, 3359), "ld");
    EXPECT_EQ(textgetrimmt(i.s, 3360), "vh, 0 Ki");
    EXPECT_EQ(textgetrimmt(i.s, 3366), "vh, 6 Ki");
    EXPECT_EQ(textgetrimmt(i.s, 3367), "ld, 1 Ki");
    EXPECT_EQ(textgetrimmt(i.s, 3369), "ld. in U.");
    EXPECT_EQ(textgetrimmt(i.s, 3370), "manuell");
    EXPECT_EQ(textgetrimmt(i.s, 3536), "64. Lebensj. nicht vollendet");
    EXPECT_EQ(textgetrimmt(i.s, 3537), "64. Lebensjahr vollendet");
    EXPECT_EQ(textgetrimmt(i.s, 3547), "Normale Lohnsteuertabelle (Arb., An");
    EXPECT_EQ(textgetrimmt(i.s, 3548), "Besondere Lohnsteuertabelle (Beamte");
    EXPECT_EQ(textgetrimmt(i.s, 3301), "Beamte Bes.Ordn. A");
    EXPECT_EQ(textgetrimmt(i.s, 3318), "Sondertarifliche Angest.");
    EXPECT_EQ(textgetrimmt(i.s, 4801), "Kostenstelle 1");
    // Row 33: positions 0, 9, 21, 34, 47, 48 begin the classes, 49 is no tax at all.
    EXPECT_EQ(textgetrimmt(i.s, 3564), "Stkl. I, Kinderfreibeträge 0");
    EXPECT_EQ(textgetrimmt(i.s, 3564 + 9), "Stkl. II, Kinderfreibeträge 0,5");
    EXPECT_EQ(textgetrimmt(i.s, 3564 + 21), "Stkl. III, Kinderfreibeträge 0");
    EXPECT_EQ(textgetrimmt(i.s, 3564 + 34), "Stkl. IV, Kinderfreibeträge 0");
    EXPECT_EQ(textgetrimmt(i.s, 3564 + 47), "Stkl. V");
    EXPECT_EQ(textgetrimmt(i.s, 3564 + 48), "Stkl. VI");
    EXPECT_EQ(textgetrimmt(i.s, 3564 + 49), "keine Lohnsteuer");
}

TEST(Texttabelle, KeinQuelltextIstLaengerAls35Zeichen) {
    std::ifstream ein(quellen / "texte.tsv");
    std::string zeile;
    while (std::getline(ein, zeile)) {
        if (zeile.empty() || zeile[0] == '#')
            continue;
        const std::string text = zeile.substr(zeile.find('\t') + 1);
        EXPECT_LE(utf8NachCp1252(text).size(), 35u) << zeile;
    }
}

// Hand-checked cells of the public tables (DM as printed, times 100).
TEST(Tariftabellen, OeffentlicheBetraegeStehenAnIhremSatz) {
    // A 1 Stufe 1 West from 1.7.1997 (derived) 2408.53; Ost 84 % 2023.17.
    EXPECT_EQ(tarifsatz(installiert, "Lonvir97.3tr", 1).wert[0], 240853);
    EXPECT_EQ(tarifsatz(installiert, "Lonvir97.3tr", 301).wert[0], 202317);
    // Ost from 1.9.1997 (85 %): A 1 Stufe 1 2047.25.
    EXPECT_EQ(tarifsatz(installiert, "Lonvir97.4tr", 301).wert[0], 204725);
    // West 1.1.1998: A 1 Stufe 1 2444.66.
    EXPECT_EQ(tarifsatz(installiert, "Lonvir98.1tr", 1).wert[0], 244466);
    // Ost old structure, 1.10.1995 (84 %), A 1 Stufe 1 1270.46; Ortszuschlag class II
    // Stufe 1 665.71, married 808.91 - 665.71 = 143.20.
    const Tarifsatz ost95 = tarifsatz(installiert, "Lonvir97.1tr", 301);
    EXPECT_EQ(ost95.wert[0], 127046);
    EXPECT_EQ(ost95.wert[15], 66571);
    EXPECT_EQ(ost95.wert[16], 14320);
    // BAT VKA Vc 1997 (VergTV Nr. 31): Stufe 1 2381.86, allgemeine Zulage 188.36.
    const Tarifsatz vc = tarifsatz(installiert, "Lonvir97.1tr", 88);
    EXPECT_EQ(vc.wert[0], 238186);
    EXPECT_EQ(vc.wert[25], 18836);
    // Familienzuschlag Ost 1.7.1997, A 1 to A 8: Stufe 1 145.06, Stufe 2 275.39, so the
    // first child adds 130.33, the second 130.33 more (260.66).
    const Tarifsatz a1 = tarifsatz(installiert, "Lonvir97.3tr", 301);
    EXPECT_EQ(a1.wert[16], 14506);
    EXPECT_EQ(a1.wert[17], 13033);
    EXPECT_EQ(a1.wert[18], 26066);
}

// BAT VKA groups carried forward from the complete table of 1.5.1995 (VergTV Nr. 30) by the raises
// of VergTV Nr. 31 (1.3 %) and Nr. 32 (1.5 %), each cell rounded half up to the Pfennig.
TEST(Tariftabellen, BatVkaGruppenAusDerTabelle1995MitDenErhoehungen) {
    // Vb (record 79 + 8) Stufe 1: 2550.24 * 1.013 = 2583.39312 -> 2583.39 in 1997, and
    // 2583.39 * 1.015 = 2622.14085 -> 2622.14 in 1998. Vb stands with III: allgemeine Zulage
    // 200.90 / 203.91, Ortszuschlag class Ic 860.57 / 873.48.
    const Tarifsatz vb97 = tarifsatz(installiert, "Lonvir97.1tr", 87);
    EXPECT_EQ(vb97.wert[0], 258339);
    EXPECT_EQ(vb97.wert[25], 20090);
    EXPECT_EQ(vb97.wert[15], 86057);
    const Tarifsatz vb98 = tarifsatz(installiert, "Lonvir98.1tr", 87);
    EXPECT_EQ(vb98.wert[0], 262214);
    EXPECT_EQ(vb98.wert[25], 20391);
    EXPECT_EQ(vb98.wert[15], 87348);
    // The published BAT-O table of 1.4.1999 (86.5 % of West raised by 3.1 %) prints Vb Stufe 1
    // 2338.46: 2622.14 * 1.031 * 0.865 = 2622.14 * 0.891815 = 2338.46378 -> 2338.46.
    EXPECT_EQ((static_cast<std::int64_t>(vb98.wert[0]) * 891815 + 500000) / 1000000, 233846);
    // I (record 79) Stufe 12: 8502.77 * 1.013 = 8613.30601 -> 8613.31; no Zulage found for I.
    const Tarifsatz i97 = tarifsatz(installiert, "Lonvir97.3tr", 79);
    EXPECT_EQ(i97.wert[11], 861331);
    EXPECT_EQ(i97.wert[25], 0);
    // VIII (record 92) Stufe 1: 1857.30 * 1.013 = 1881.4449 -> 1881.44, * 1.015 = 1909.6616
    // -> 1909.66; Zulage as Vc (188.36 in 1997), Ortszuschlag class II 810.61.
    const Tarifsatz viii97 = tarifsatz(installiert, "Lonvir97.4tr", 92);
    EXPECT_EQ(viii97.wert[0], 188144);
    EXPECT_EQ(viii97.wert[25], 18836);
    EXPECT_EQ(viii97.wert[15], 81061);
    EXPECT_EQ(tarifsatz(installiert, "Lonvir98.2tr", 92).wert[0], 190966);
    // IXa (record 93) has its Ortszuschlag (class II) but no Zulage: its tier was not found.
    const Tarifsatz ixa97 = tarifsatz(installiert, "Lonvir97.1tr", 93);
    EXPECT_EQ(ixa97.wert[15], 81061);
    EXPECT_EQ(ixa97.wert[25], 0);
    // IIa and IIb (records 82, 83) stay empty: the 1995 table has only a row "II".
    EXPECT_FALSE(hatbetrag(tarifsatz(installiert, "Lonvir97.1tr", 82)));
    EXPECT_FALSE(hatbetrag(tarifsatz(installiert, "Lonvir97.1tr", 83)));
}

// Each block with a public source has basic pay in every group of the class.
TEST(Tariftabellen, JederBelegteBlockHatGrundgehalt) {
    struct Block {
        const char* datei;
        int erster, anzahl;
    };
    const std::vector<Block> bloecke = {
        {"Lonvir97.1tr", 301, 21}, {"Lonvir97.1tr", 323, 11}, {"Lonvir97.1tr", 335, 4},
        {"Lonvir97.1tr", 340, 10}, {"Lonvir97.3tr", 1, 21},   {"Lonvir97.3tr", 23, 11},
        {"Lonvir97.3tr", 35, 4},   {"Lonvir97.3tr", 40, 10},  {"Lonvir97.3tr", 301, 21},
        {"Lonvir97.3tr", 323, 11}, {"Lonvir97.3tr", 335, 4},  {"Lonvir97.3tr", 340, 10},
        {"Lonvir97.4tr", 1, 21},   {"Lonvir97.4tr", 301, 21}, {"Lonvir97.4tr", 351, 6},
        {"Lonvir98.1tr", 1, 21},   {"Lonvir98.1tr", 23, 11},  {"Lonvir98.1tr", 35, 4},
        {"Lonvir98.1tr", 40, 10},  {"Lonvir98.1tr", 51, 6},   {"Lonvir98.1tr", 301, 21},
        {"Lonvir98.1tr", 351, 6},  {"Lonvir98.2tr", 301, 21}, {"Lonvir98.2tr", 351, 6}};
    for (const Block& b : bloecke)
        for (int n = b.erster; n < b.erster + b.anzahl; ++n)
            EXPECT_TRUE(hatbetrag(tarifsatz(installiert, b.datei, n))) << b.datei << " Satz " << n;
    for (const char* datei : {"Lonvir97.1tr", "Lonvir97.2tr", "Lonvir97.3tr", "Lonvir97.4tr",
                              "Lonvir98.1tr", "Lonvir98.2tr"})
        // BAT VKA I, Ia, Ib, III, IVa, IVb, Vb, Vc, VIb, VII, VIII, IXa
        for (int n : {79, 80, 81, 84, 85, 86, 87, 88, 90, 91, 92, 93})
            EXPECT_TRUE(hatbetrag(tarifsatz(installiert, datei, n))) << datei << " " << n;
}

// The preset settings give the real rates and ceilings through the stored formulas.
TEST(Vorgaben, BeitragssaetzeUndGrenzen1997) {
    Installiert i;
    const Einstellungswerte& e = i.s.einstellungen;
    EXPECT_EQ(e.rvsatz, Currency::roh(101500)); // (8/10 + 19.5) / 2 = 10.15 %
    EXPECT_EQ(e.pvsatz, Currency::roh(8500));   // (2/10 + 1.5) / 2 = 0.85 %
    EXPECT_EQ(e.avsatz, Currency::roh(32500));  // (5/10 + 6.0) / 2 = 3.25 %
    EXPECT_EQ(e.bmgKvWest, 615000);             // (3 * 50 + 6000) DM
    EXPECT_EQ(e.bmgRvWest, 820000);             // (4 * 50 + 8000) DM
    EXPECT_EQ(e.geringWest, 61000);             // (1 * 10 + 600) DM
    EXPECT_EQ(e.bmgKvOst, 532500);              // (1 * 25 + 5300) DM
    EXPECT_EQ(e.bmgRvOst, 710000);              // (2 * 50 + 7000) DM
    EXPECT_EQ(e.geringOst, 52000);              // (2 * 10 + 500) DM
    EXPECT_EQ(e.ab_tarif2, 3);
    EXPECT_EQ(e.ab_tarif3, 7);
    EXPECT_EQ(e.ab_tarif4, 9);
    // Christmas bonus of the employees West: 3988.20 / 4252.72 = 0.9378 on the public
    // calculator page; the civil servants' factor of 1997 is the same 0.9378 (0.9239 * 1.015);
    // the employees in the Ost get 75 % of the West rate, 0.75 * 93.78 = 70.335; no factor
    // was found for the civil servants in the Ost.
    EXPECT_EQ(e.zuwendungsquote[2], Currency::roh(937800));
    EXPECT_EQ(e.zuwendungsquote[0], Currency::roh(937800));
    EXPECT_EQ(e.zuwendungsquote[3], Currency::roh(703350));
    EXPECT_EQ(e.zuwendungsquote[1], Currency::ganz(0));
    EXPECT_EQ(i.s.kvsatz[0][0], Currency::ganz(1340));
    EXPECT_EQ(i.s.kvsatz[11][27], Currency::ganz(1340));
}

TEST(Vorgaben, BeitragssaetzeUndGrenzen1998) {
    Installiert i(1998);
    const Einstellungswerte& e = i.s.einstellungen;
    EXPECT_EQ(e.rvsatz, Currency::roh(101500));
    EXPECT_EQ(e.bmgKvWest, 630000); // (6 * 50 + 6000) DM
    EXPECT_EQ(e.bmgRvWest, 840000); // (8 * 50 + 8000) DM
    EXPECT_EQ(e.geringWest, 62000); // (2 * 10 + 600) DM
    EXPECT_EQ(e.bmgKvOst, 525000);  // (-2 * 25 + 5300) DM: below the first list entry
    EXPECT_EQ(e.bmgRvOst, 700000);  // (0 * 50 + 7000) DM
    EXPECT_EQ(e.ab_tarif2, 9);
    EXPECT_EQ(e.ab_tarif3, 0);
    EXPECT_EQ(e.zuwendungsquote[2], Currency::roh(923900)); // 2930.47 / 3171.85
    EXPECT_EQ(e.zuwendungsquote[0], Currency::roh(923900)); // factor 0.9239 of 1998
    EXPECT_EQ(e.zuwendungsquote[3], Currency::roh(692925)); // 0.75 * 92.39
    EXPECT_EQ(i.s.kvsatz[5][3], Currency::ganz(1360));
}

TEST(Vorgaben, ZeilenfarbenSindDieDerLeerenDatei) {
    Installiert i;
    Sitzung standard;
    EXPECT_TRUE(i.s.dim.zeilenfarbe == dimvorgaben(standard).zeilenfarbe);
    EXPECT_FALSE(i.s.erstbenutzung);
}

TEST(Musterpersonal, DieBeamtinIstAngelegtUndDerStartStehtAufPersonEins) {
    Installiert i;
    const Personalsatz p = mustersatz(i, 7, 1);
    EXPECT_EQ(p.merkmal[2], 1);  // Ost
    EXPECT_EQ(p.merkmal[4], 0);  // Bes.Ordn. A
    EXPECT_EQ(p.merkmal[5], 11); // A 9 gD
    EXPECT_EQ(p.merkmal[8], 3);  // vh, 2 Ki
    EXPECT_EQ(p.merkmal[20], 6); // July
    EXPECT_EQ(p.wert[0], 4000);  // 40 hours a week
    EXPECT_EQ(i.s.aktuelleperson, 1);
    // Person 7 and later keep the record of a new person in every layer.
    Satzdatei plan;
    plan.oeffnen(i.ordner.pfad() / "L1997P.1", Personalsatz::laenge);
    EXPECT_EQ(plan.laenge(), 20 * Personalsatz::laenge);
}

// Every sample person is paid in January 1997 from the installed tables.
TEST(Musterpersonal, JedePersonBekommtImJanuarBezuege) {
    Installiert i;
    for (int person = 1; person <= 7; ++person) {
        const Personalsatz p = mustersatz(i, 1, person);
        EXPECT_GT(p.wert[7], 0) << "Person " << person;
        EXPECT_GT(p.wert[22], 0) << "Person " << person;
        EXPECT_GT(p.wert[45], 0) << "Person " << person;
    }
    // Person 3, A 7 Ost, service age from 10.1990: (97 - 90) * 12 - 10 + 1 = 75 months, 75 / 24
    // = 3, step 4. Ost table of 1.10.1995: A 7 step 4 1879.20 DM, Ortszuschlag class II
    // (A 1 to A 8) step 1 (single) 665.71 DM; gross 2544.91 DM.
    const Personalsatz krause = mustersatz(i, 1, 3);
    EXPECT_EQ(krause.merkmal[7], 3);
    EXPECT_EQ(krause.wert[7], 187920);
    EXPECT_EQ(krause.wert[8], 66571);
    EXPECT_EQ(krause.wert[22], 254491);
    // Person 4, A 6 Ost from 03.1986: 11 * 12 - 3 + 1 = 130 months, step 6 = 1899.11 DM;
    // married with one child: Ortszuschlag class II step 3 = 937.57 DM; 30 of 40 hours:
    // (1899.11 + 937.57) * 0.75 = 2836.68 * 0.75 = 2127.51 DM.
    const Personalsatz wagner = mustersatz(i, 1, 4);
    EXPECT_EQ(wagner.merkmal[7], 5);
    EXPECT_EQ(wagner.wert[8], 93757);
    EXPECT_EQ(wagner.wert[22], 212751);
    // Person 5, candidate for A 9 to A 11 under 26, Ost 1.10.1995: 1340.00 DM. A year of it,
    // 16080 DM, less 2000 DM for expenses, 108 DM special expenses and the reduced provision
    // allowance, stays below the basic allowance of 12095 DM: no wage tax, no insurance, paid
    // out in full.
    const Personalsatz yilmaz = mustersatz(i, 1, 5);
    EXPECT_EQ(yilmaz.wert[7], 134000);
    EXPECT_EQ(yilmaz.wert[45], 134000);
}

// The sample months are stored as the program computes them: loading any month of any sample
// person again (which computes and stores it) leaves every record of the year as it was. The
// Zuwendung of November counts November's own stored pay, so a single pass through the year
// would store eleven twelfths and the first refresh twelve.
TEST(Musterpersonal, EinNeuesLadenJedesMonatsAendertNichts) {
    Installiert i;
    const auto vorher = alledateien(i.ordner.pfad());
    for (std::int16_t person = 1; person <= 7; ++person)
        for (std::int16_t monat = 0; monat <= 11; ++monat)
            monatladen(i.s, person, monat);
    const auto nachher = alledateien(i.ordner.pfad());
    for (const auto& [name, inhalt] : vorher) {
        if (name.rfind("L1997", 0) == 0) {
            EXPECT_TRUE(nachher.at(name) == inhalt) << name << " hat sich geaendert";
        }
    }
}

TEST(Hilfe, TabellenseitenZeigenDieInstalliertenBetraege) {
    std::ifstream ein(installiert / "hilfe" / "33012.html");
    const std::string seite{std::istreambuf_iterator<char>(ein), std::istreambuf_iterator<char>()};
    EXPECT_NE(seite.find("Beamte West ab 7/97"), std::string::npos);
    EXPECT_NE(seite.find("2.408,53"), std::string::npos); // A 1 Stufe 1
}

// Every help context the menus, the panel pages and the row help open has its page.
TEST(Hilfe, JederKontextHatSeineSeite) {
    std::vector<int> kontexte = {
        33010, 33011, 33012, 71010, 70011, 33091, 33092, 33100, 33150, 33170, 70100, 70200, 70250,
        70109, 70209, 70259, 96201, 20940, 96857, 90006, 20900, 96150, 96807, 20930, 20000, 1000,
        90020, 90000, 90010, 96110, 96100, 96170, 96194, 96190, 96204, 11000, 12500, 45000, 96200};
    for (int basis : {11000, 12500, 45000, 96200})
        for (int zeile = 0; zeile <= 45; ++zeile)
            kontexte.push_back(basis + zeile);
    for (int k : kontexte) {
        const fs::path seite = installiert / "hilfe" / (std::to_string(k) + ".html");
        ASSERT_TRUE(fs::exists(seite)) << k;
        std::ifstream ein(seite);
        const std::string text{std::istreambuf_iterator<char>(ein),
                               std::istreambuf_iterator<char>()};
        EXPECT_NE(text.find("<h1>"), std::string::npos) << k;
    }
}

// A context that is both a written topic and a row topic keeps both.
TEST(Hilfe, GeschriebeneSeiteBekommtDenZeilenabschnitt) {
    std::ifstream ein(installiert / "hilfe" / "96201.html");
    const std::string text{std::istreambuf_iterator<char>(ein), std::istreambuf_iterator<char>()};
    EXPECT_NE(text.find("Überreicht durch"), std::string::npos);
    EXPECT_NE(text.find("Zeile 1: Dienstalter"), std::string::npos);
}

} // namespace lonvir
