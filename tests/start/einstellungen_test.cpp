// The settings records on disk: defaults of empty files, the formulas, the records per year.
#include "start/einstellungen.h"

#include "records/satzbild.h"
#include "start/dateisatz.h"
#include "testhilfe.h"

#include <gtest/gtest.h>

#include <fstream>

namespace lonvir {

namespace {

namespace fs = std::filesystem;

// A session on a temporary folder whose files the test lays down before the set is opened.
struct Ordnersitzung {
    explicit Ordnersitzung(std::int16_t jahr = 1997) {
        s.ordner = Arbeitsordner(ordner.pfad());
        s.jahr = jahr;
    }
    void datei(const std::string& name, const std::vector<std::uint8_t>& inhalt) const {
        std::ofstream aus(ordner.pfad() / name, std::ios::binary);
        aus.write(reinterpret_cast<const char*>(inhalt.data()),
                  static_cast<std::streamsize>(inhalt.size()));
    }
    [[nodiscard]] std::string inhalt(const std::string& name) const {
        return test::dateiinhalt(ordner.pfad(), name);
    }
    test::Tempordner ordner;
    Sitzung s;
};

std::vector<std::uint8_t> verkettet(const std::vector<std::uint8_t>& a,
                                    const std::vector<std::uint8_t>& b) {
    std::vector<std::uint8_t> v = a;
    v.insert(v.end(), b.begin(), b.end());
    return v;
}

// A .voe record with the place and one rate step set, all else zero and the texts blank.
test::Satzbild voebild(std::int64_t person, std::int64_t pflegeschritt) {
    test::Satzbild b(Voeinsatz::laenge, 0);
    b.text(0, std::string(260, ' '));
    b.text(60, "Amt");
    b.waehrung(268, pflegeschritt * 10000);
    b.waehrung(380, person * 10000);
    return b;
}

std::int64_t waehrungBei(const std::string& datei, std::size_t ab) {
    std::uint64_t u = 0;
    for (std::size_t i = 0; i < 8; ++i)
        u |= std::uint64_t{static_cast<std::uint8_t>(datei.at(ab + i))} << (8 * i);
    return static_cast<std::int64_t>(u);
}

} // namespace

TEST(Voelesen, LeereDateiGibtDieGrundsaetze) {
    Ordnersitzung o;
    dateienoeffnen(o.s);
    voelesen(o.s);
    const Einstellungswerte& e = o.s.einstellungen;
    // (0/10 + 1.5)/2 = 0.75 %, (0/10 + 19.5)/2 = 9.75 %, (0/10 + 6.0)/2 = 3 %.
    EXPECT_EQ(e.pvsatz.roh(), 7500);
    EXPECT_EQ(e.rvsatz.roh(), 97500);
    EXPECT_EQ(e.avsatz.roh(), 30000);
    // Ceilings 6000, 8000 DM and the limit 600 DM in the West; 5300, 7000, 500 in the Ost.
    EXPECT_EQ(e.bmgKvWest, 600000);
    EXPECT_EQ(e.bmgPvWest, 600000);
    EXPECT_EQ(e.bmgRvWest, 800000);
    EXPECT_EQ(e.bmgAvWest, 800000);
    EXPECT_EQ(e.geringWest, 60000);
    EXPECT_EQ(e.bmgKvOst, 530000);
    EXPECT_EQ(e.bmgPvOst, 530000);
    EXPECT_EQ(e.bmgRvOst, 700000);
    EXPECT_EQ(e.bmgAvOst, 700000);
    EXPECT_EQ(e.geringOst, 50000);
    // Multipliers 0/1000 + 1 = 1; every month 0, so every later tariff file inactive.
    EXPECT_EQ(e.multiplikatorBeamte.roh(), 10000);
    EXPECT_EQ(e.multiplikatorAngestellte.roh(), 10000);
    EXPECT_EQ(e.ab_tarif2, 0);
    EXPECT_EQ(e.ab_tarif3, 0);
    EXPECT_EQ(e.ab_tarif4, 0);
    EXPECT_EQ(o.s.aktuelleperson, 1);
    EXPECT_EQ(o.s.dienststelle1, std::string(40, ' '));
    EXPECT_EQ(o.s.berichtszeile, std::string(100, ' '));
    EXPECT_EQ(o.s.vorgabewert, (Feld<std::int32_t, 0, 14>{}));
    // Reading creates nothing: the file stays empty until the first store.
    EXPECT_EQ(o.inhalt("Lonvir97.voe").size(), 0u);
}

TEST(Aktualisieren, JedeFormelDerVoreinstellung) {
    Sitzung s;
    auto setze = [&s](int i, std::int64_t zehntausendstel) {
        s.voreinstellung[i] = Currency::roh(zehntausendstel);
    };
    setze(1, 50000);    // PV 5:  (0.5 + 1.5) / 2   = 1.0 %
    setze(2, 80000);    // RV 8:  (0.8 + 19.5) / 2  = 10.15 %
    setze(3, -40000);   // AV -4: (-0.4 + 6.0) / 2  = 2.8 %
    setze(4, 30000);    // (3 * 50 + 6000) * 100    = 615000
    setze(5, -20000);   // (-2 * 50 + 6000) * 100   = 590000
    setze(6, 40000);    // (4 * 50 + 8000) * 100    = 820000
    setze(7, 10000);    // (1 * 50 + 8000) * 100    = 805000
    setze(8, 50000);    // (5 * 10 + 600) * 100     = 65000
    setze(9, 20000);    // (2 * 25 + 5300) * 100    = 535000
    setze(10, 30000);   // (3 * 25 + 5300) * 100    = 537500
    setze(11, 20000);   // (2 * 50 + 7000) * 100    = 710000
    setze(12, 10000);   // (1 * 50 + 7000) * 100    = 705000
    setze(13, 30000);   // (3 * 10 + 500) * 100     = 53000
    setze(15, 120000);  // person 12
    setze(18, 130000);  // 13 / 1000 + 1 = 1.013
    setze(19, 70000);   // from month 7
    setze(20, 250000);  // 25 / 1000 + 1 = 1.025
    setze(21, 90000);   // from month 9
    setze(22, 10000);   // .1er from month 1
    setze(23, 30000);   // .2er from 3
    setze(24, 70000);   // .3er from 7
    setze(25, 100000);  // .4er from 10
    setze(26, 10000);   // list position 1
    setze(27, 10000);   // zvkmodus 1
    setze(28, 70000);   // 7 % church tax on the lump tax
    setze(30, 1000000); // quota 100
    setze(31, 505000);  // quota 50.5, copied as it stands
    setze(32, 800000);  // quota 80
    setze(33, 1);       // quota 0.0001
    aktualisieren(s);
    const Einstellungswerte& e = s.einstellungen;
    EXPECT_EQ(e.pvsatz.roh(), 10000);
    EXPECT_EQ(e.rvsatz.roh(), 101500);
    EXPECT_EQ(e.avsatz.roh(), 28000);
    EXPECT_EQ(e.bmgKvWest, 615000);
    EXPECT_EQ(e.bmgPvWest, 590000);
    EXPECT_EQ(e.bmgRvWest, 820000);
    EXPECT_EQ(e.bmgAvWest, 805000);
    EXPECT_EQ(e.geringWest, 65000);
    EXPECT_EQ(e.bmgKvOst, 535000);
    EXPECT_EQ(e.bmgPvOst, 537500);
    EXPECT_EQ(e.bmgRvOst, 710000);
    EXPECT_EQ(e.bmgAvOst, 705000);
    EXPECT_EQ(e.geringOst, 53000);
    EXPECT_EQ(s.aktuelleperson, 12);
    EXPECT_EQ(e.multiplikatorBeamte.roh(), 10130);
    EXPECT_EQ(e.abMonatBeamte, 7);
    EXPECT_EQ(e.multiplikatorAngestellte.roh(), 10250);
    EXPECT_EQ(e.abMonatAngestellte, 9);
    EXPECT_EQ(e.tarifmonat1, 1);
    EXPECT_EQ(e.ab_tarif2, 3);
    EXPECT_EQ(e.ab_tarif3, 7);
    EXPECT_EQ(e.ab_tarif4, 10);
    EXPECT_EQ(e.liste26, 1);
    EXPECT_EQ(e.zvkmodus, 1);
    EXPECT_EQ(e.kirchenpausch, 7);
    EXPECT_EQ(e.zuwendungsquote[0].roh(), 1000000);
    EXPECT_EQ(e.zuwendungsquote[1].roh(), 505000);
    EXPECT_EQ(e.zuwendungsquote[2].roh(), 800000);
    EXPECT_EQ(e.zuwendungsquote[3].roh(), 1);
}

TEST(Aktualisieren, BruchteileRundenZurGeradenNachbarzahl) {
    Sitzung s;
    s.voreinstellung[23] = Currency::roh(25000); // 2.5 -> 2
    s.voreinstellung[24] = Currency::roh(35000); // 3.5 -> 4
    s.voreinstellung[25] = Currency::roh(-5000); // -0.5 -> 0
    s.voreinstellung[4] = Currency::roh(1);      // (0.0001 * 50 + 6000) * 100 = 600000.5 -> 600000
    s.voreinstellung[9] =
        Currency::roh(3); // (0.0003 * 25 + 5300) = 5300.0075 -> *100 = 530000.75 -> 530001
    s.voreinstellung[18] = Currency::roh(5); // 0.0005 / 1000 + 1 = 1.0000005 -> 1.0000
    s.voreinstellung[2] = Currency::roh(5);  // (0.00005 + 19.5) / 2 = 9.750025 -> 9.7500
    aktualisieren(s);
    const Einstellungswerte& e = s.einstellungen;
    EXPECT_EQ(e.ab_tarif2, 2);
    EXPECT_EQ(e.ab_tarif3, 4);
    EXPECT_EQ(e.ab_tarif4, 0);
    EXPECT_EQ(e.bmgKvWest, 600000);
    EXPECT_EQ(e.bmgKvOst, 530001);
    EXPECT_EQ(e.multiplikatorBeamte.roh(), 10000);
    EXPECT_EQ(e.rvsatz.roh(), 97500);
}

TEST(Aktualisieren, PersonNullGiltAlsPersonEins) {
    Sitzung s;
    s.aktuelleperson = 9;
    s.voreinstellung[15] = Currency::ganz(0);
    aktualisieren(s);
    EXPECT_EQ(s.aktuelleperson, 1);
    s.voreinstellung[15] = Currency::ganz(7);
    aktualisieren(s);
    EXPECT_EQ(s.aktuelleperson, 7);
}

TEST(Voelesen, LiestSatzEinsFuer1997UndSatzZweiSonst) {
    Ordnersitzung o(1997);
    o.datei("Lonvir97.voe", verkettet(voebild(3, 5).bytes(), voebild(8, 10).bytes()));
    dateienoeffnen(o.s);
    voelesen(o.s);
    EXPECT_EQ(o.s.aktuelleperson, 3);
    EXPECT_EQ(o.s.einstellungen.pvsatz.roh(), 10000); // (5/10 + 1.5) / 2 = 1 %
    EXPECT_EQ(o.s.dienststelle1, "Amt" + std::string(37, ' '));
    o.s.jahr = 1998;
    dateienoeffnen(o.s);
    voelesen(o.s);
    EXPECT_EQ(o.s.aktuelleperson, 8);
    EXPECT_EQ(o.s.einstellungen.pvsatz.roh(), 12500); // (10/10 + 1.5) / 2 = 1.25 %
}

TEST(Voelesen, DateiNurMitSatzEinsLiestSatzZweiAlsNullen) {
    Ordnersitzung o(1998);
    o.datei("Lonvir97.voe", voebild(3, 5).bytes());
    dateienoeffnen(o.s);
    voelesen(o.s);
    // Record 2 lies past the end: all zero, so the base values and person 1.
    EXPECT_EQ(o.s.voreinstellung, (Feld<Currency, 0, 40>{}));
    EXPECT_EQ(o.s.einstellungen.pvsatz.roh(), 7500);
    EXPECT_EQ(o.s.einstellungen.bmgRvWest, 800000);
    EXPECT_EQ(o.s.aktuelleperson, 1);
    EXPECT_EQ(o.s.dienststelle1, std::string(40, ' '));
}

TEST(Voeschreiben, SchreibtDenOrtDesBenutzersInDenSatzDesJahres) {
    Ordnersitzung o(1997);
    dateienoeffnen(o.s);
    voelesen(o.s);
    o.s.voreinstellung[1] = Currency::ganz(4);
    o.s.voreinstellung[14] = Currency::ganz(9); // overwritten by the store
    o.s.vorgabewert[6] = 8000;
    o.s.schicht = REAL;
    o.s.aktuelleperson = 17;
    o.s.merkmal[20] = 11;
    voeschreiben(o.s);
    const std::string d = o.inhalt("Lonvir97.voe");
    ASSERT_EQ(d.size(), 648u); // record 1 only
    EXPECT_EQ(d.substr(0, 260), std::string(260, ' '));
    EXPECT_EQ(waehrungBei(d, 268), 40000);  // element 1
    EXPECT_EQ(waehrungBei(d, 372), 20000);  // element 14: layer 2
    EXPECT_EQ(waehrungBei(d, 380), 170000); // element 15: person 17
    EXPECT_EQ(waehrungBei(d, 388), 110000); // element 16: month index 11
    EXPECT_EQ(static_cast<std::uint8_t>(d[612]) + 256 * static_cast<std::uint8_t>(d[613]), 8000);
}

TEST(Voeschreiben, Speichern1998LaesstDenSatzVon1997Unberuehrt) {
    Ordnersitzung o(1997);
    o.datei("Lonvir97.voe", voebild(3, 5).bytes());
    const std::string vorher = o.inhalt("Lonvir97.voe");
    o.s.jahr = 1998;
    dateienoeffnen(o.s);
    voelesen(o.s);
    o.s.voreinstellung[1] = Currency::ganz(12);
    o.s.aktuelleperson = 4;
    voeschreiben(o.s);
    const std::string d = o.inhalt("Lonvir97.voe");
    ASSERT_EQ(d.size(), 2 * 648u);
    EXPECT_EQ(d.substr(0, 648), vorher);
    EXPECT_EQ(waehrungBei(d, 648 + 268), 120000);
    EXPECT_EQ(waehrungBei(d, 648 + 380), 40000);
}

TEST(Voedatei, GrossesUndKleinesVSindEineDatei) {
    // Written as Lonvir97.Voe by an installation of the 1997 branch.
    Ordnersitzung o(1997);
    o.datei("Lonvir97.Voe", voebild(6, 5).bytes());
    dateienoeffnen(o.s);
    voelesen(o.s);
    EXPECT_EQ(o.s.aktuelleperson, 6);
    o.s.jahr = 1998;
    dateienoeffnen(o.s);
    voelesen(o.s);
    o.s.aktuelleperson = 2;
    voeschreiben(o.s);
    // The 1998 store reaches the same file as its record 2; no second spelling appears.
    EXPECT_FALSE(fs::exists(o.ordner.pfad() / "Lonvir97.voe"));
    EXPECT_EQ(o.inhalt("Lonvir97.Voe").size(), 2 * 648u);
    o.s.jahr = 1997;
    dateienoeffnen(o.s);
    voelesen(o.s);
    EXPECT_EQ(o.s.aktuelleperson, 6);
}

TEST(Voedatei, BeideSchreibweisenAufDerPlatteWerdenAlsEineBenutzt) {
    // Both spellings lie in the folder: both years take the same one of them, so a 1998
    // store and a 1997 read meet in one file and the other spelling is never touched.
    Ordnersitzung o(1998);
    o.datei("Lonvir97.Voe", voebild(6, 5).bytes());
    o.datei("Lonvir97.voe", voebild(9, 5).bytes());
    const std::string voeGross = o.inhalt("Lonvir97.Voe");
    dateienoeffnen(o.s);
    voelesen(o.s);
    o.s.aktuelleperson = 5;
    voeschreiben(o.s);
    o.s.jahr = 1997;
    dateienoeffnen(o.s);
    voelesen(o.s);
    EXPECT_EQ(o.s.aktuelleperson, 9);
    EXPECT_EQ(o.s.datei(datei::voe).pfad().filename(), "Lonvir97.voe");
    const std::string klein = test::dateiinhalt(o.ordner.pfad(), "Lonvir97.voe");
    ASSERT_EQ(klein.size(), 2 * 648u);
    EXPECT_EQ(waehrungBei(klein, 648 + 380), 50000);
    std::ifstream ein(o.ordner.pfad() / "Lonvir97.Voe", std::ios::binary);
    const std::string gross{std::istreambuf_iterator<char>(ein), {}};
    EXPECT_EQ(gross, voeGross);
}

TEST(Dimlesen, LeereDateiGibtDieVorgaben) {
    Ordnersitzung o;
    o.s.bildschirmhoehe = 9000;
    o.s.bildschirmbreite = 12000;
    dateienoeffnen(o.s);
    dimlesen(o.s);
    const Dimsatz& d = o.s.dim;
    EXPECT_TRUE(o.s.erstbenutzung);
    const int farben[46] = {14, 14, 14, 14, 12, 14, 14, 10, 10, 10, 10, 11, 11, 11, 11, 11,
                            11, 7,  7,  7,  14, 14, 14, 14, 14, 14, 14, 14, 14, 14, 14, 14,
                            10, 10, 10, 10, 10, 11, 11, 11, 11, 7,  7,  7,  7,  14};
    for (int z = 0; z <= 45; ++z)
        EXPECT_EQ(d.zeilenfarbe[z], farben[z]) << "Zeile " << z;
    EXPECT_EQ(d.form1top, Currency::ganz(0));
    EXPECT_EQ(d.form1left, Currency::ganz(0));
    EXPECT_EQ(d.form1height, Currency::ganz(8680)); // 9000 - 320
    EXPECT_EQ(d.form1width, Currency::ganz(12000));
    EXPECT_EQ(d.form2top, Currency::ganz(1000));
    EXPECT_EQ(d.form2left, Currency::ganz(0));
    EXPECT_EQ(d.form2height, Currency::ganz(8000)); // 9000 - 1000
    EXPECT_EQ(d.form2width, Currency::ganz(12000));
    EXPECT_EQ(d.form3top, Currency::ganz(0));
    EXPECT_EQ(d.form3left, Currency::ganz(0));
    EXPECT_EQ(d.lstrtabtop, Currency::ganz(650)); // main form's top 0 + 650
    EXPECT_EQ(d.lstrtableft, Currency::ganz(0));
    EXPECT_EQ(d.passwortart, Currency::ganz(0));
    EXPECT_EQ(d.passwort, (Feld<std::int16_t, 0, 7>{}));
    EXPECT_EQ(d.anzahlpersonen, 1);
    EXPECT_EQ(d.reserve230, 1);
    // The defaults stay in memory; the file is written by dimschreiben only.
    EXPECT_EQ(o.inhalt("Lonvir97.dim").size(), 0u);
}

TEST(Dimlesen, LiestSatzEins) {
    Ordnersitzung o;
    test::Satzbild b(Dimsatz::laenge);
    b.i16(0, 3).i16(90, 9).waehrung(92, 4000000).waehrung(204, 10000).i16(228, 25);
    o.datei("Lonvir97.dim", b.bytes());
    dateienoeffnen(o.s);
    dimlesen(o.s);
    EXPECT_FALSE(o.s.erstbenutzung);
    EXPECT_EQ(o.s.dim.zeilenfarbe[0], 3);
    EXPECT_EQ(o.s.dim.zeilenfarbe[1], 0);
    EXPECT_EQ(o.s.dim.zeilenfarbe[45], 9);
    EXPECT_EQ(o.s.dim.form1top, Currency::ganz(400));
    EXPECT_EQ(o.s.dim.passwortart, Currency::ganz(1));
    EXPECT_EQ(o.s.dim.anzahlpersonen, 25);
}

TEST(Dimschreiben, SchreibtSatzEinsUndLaesstDieKvSaetzeStehen) {
    Ordnersitzung o;
    // Record 1 and a rate record 3 behind it.
    test::Satzbild b(3 * Dimsatz::laenge);
    b.i16(2 * 232, 1350);
    o.datei("Lonvir97.dim", b.bytes());
    dateienoeffnen(o.s);
    dimlesen(o.s);
    o.s.dim.zeilenfarbe[4] = 13;
    o.s.dim.lstrtabtop = Currency::ganz(650);
    o.s.dim.anzahlpersonen = 20;
    dimschreiben(o.s);
    const std::string d = o.inhalt("Lonvir97.dim");
    ASSERT_EQ(d.size(), 3 * 232u);
    EXPECT_EQ(d[8], 13);
    EXPECT_EQ(waehrungBei(d, 188), 6500000);
    EXPECT_EQ(d[228], 20);
    EXPECT_EQ(static_cast<std::uint8_t>(d[464]) + 256 * static_cast<std::uint8_t>(d[465]), 1350);
}

TEST(Textfarbe, DunkleZeilenfarbenBekommenWeisseSchrift) {
    // Dark: 0 to 6, 8, 9, 12, 13 -> white (15); 7, 10, 11, 14, 15 -> black (0).
    const int erwartet[16] = {15, 15, 15, 15, 15, 15, 15, 0, 15, 15, 0, 0, 15, 15, 0, 0};
    for (int farbe = 0; farbe <= 15; ++farbe)
        EXPECT_EQ(textfarbe(farbe), erwartet[farbe]) << "Farbe " << farbe;
}

} // namespace lonvir
