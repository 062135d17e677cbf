// The file set of a layer and a year.
#include "start/dateisatz.h"
#include "start/einstellungen.h"
#include "testhilfe.h"

#include <gtest/gtest.h>

#include <fstream>

namespace lonvir {

namespace fs = std::filesystem;

namespace {
bool da(const test::Tempordner& t, const std::string& name) {
    return fs::exists(t.pfad() / name);
}
} // namespace

TEST(Dateisatz, ErsterStartLegtDenGanzenSatzAn) {
    test::Umgebung u;
    for (char x : {'I', 'P', 'R'}) {
        for (int n = 1; n <= 13; ++n)
            EXPECT_TRUE(da(u.ordner, std::string("L1997") + x + "." + std::to_string(n))) << x << n;
        // The 1997 branch creates the January file of 1998 and only that one.
        EXPECT_TRUE(da(u.ordner, std::string("L1998") + x + ".1"));
        EXPECT_FALSE(da(u.ordner, std::string("L1998") + x + ".2"));
    }
    for (const char* name : {"Lonvir97.1tr", "Lonvir97.2tr", "Lonvir97.3tr", "Lonvir97.4tr",
                             "Lonvir97.dim", "Lonvir97.voe", "Texte.txt"})
        EXPECT_TRUE(da(u.ordner, name)) << name;
    EXPECT_FALSE(da(u.ordner, "Lonvir98.1tr"));
    // The 1998 month file exists but stays empty until a 1998 set is filled.
    EXPECT_EQ(fs::file_size(u.ordner.pfad() / "L1998I.1"), 0u);
}

TEST(Dateisatz, NummernUndSatzlaengen) {
    test::Umgebung u;
    dateienoeffnen(u.s);
    EXPECT_EQ(u.s.datei(3).pfad().filename(), "L1997I.3");
    EXPECT_EQ(u.s.datei(3).satzlaenge(), 541);
    EXPECT_EQ(u.s.datei(13).satzlaenge(), 1280);
    EXPECT_EQ(u.s.datei(14).pfad().filename(), "Lonvir97.1tr");
    EXPECT_EQ(u.s.datei(17).satzlaenge(), 108);
    EXPECT_EQ(u.s.datei(18).satzlaenge(), 232);
    EXPECT_EQ(u.s.datei(19).satzlaenge(), 648);
    EXPECT_EQ(u.s.datei(20).satzlaenge(), 35);
    EXPECT_EQ(u.s.datei(21).pfad().filename(), "L1997I.7");
    EXPECT_EQ(u.s.datei(22).pfad().filename(), "Lonvir97.2tr");
    EXPECT_EQ(u.s.datei(23).pfad().filename(), "Lonvir97.3tr");
    EXPECT_THROW((void)u.s.datei(24), Laufzeitfehler);
}

TEST(Dateisatz, Im1998erSatzBleibtDatei21DerJuli1997) {
    test::Umgebung u(1998, PLAN);
    EXPECT_EQ(u.s.datei(7).pfad().filename(), "L1998P.7");
    EXPECT_EQ(u.s.datei(21).pfad().filename(), "L1997P.7");
    EXPECT_EQ(u.s.datei(14).pfad().filename(), "Lonvir98.1tr");
    EXPECT_EQ(u.s.datei(22).pfad().filename(), "Lonvir97.2tr");
    // Settings keep their 1997 names in 1998.
    EXPECT_EQ(u.s.datei(18).pfad().filename(), "Lonvir97.dim");
    EXPECT_EQ(u.s.datei(19).pfad().filename(), "Lonvir97.voe");
}

TEST(Dateisatz, VorhandeneKleinschreibungWirdGeoeffnet) {
    test::Tempordner t;
    std::ofstream(t.pfad() / "l1997p.7") << std::string(541, '\0');
    std::ofstream(t.pfad() / "Lonvir97.Voe") << std::string(648, '\0');
    SkriptDialoge d;
    Sitzung s;
    s.ordner = Arbeitsordner(t.pfad());
    s.dialoge = &d;
    s.schicht = PLAN;
    dateienoeffnen(s);
    EXPECT_EQ(s.datei(7).pfad().filename(), "l1997p.7");
    EXPECT_EQ(s.datei(21).pfad().filename(), "l1997p.7");
    EXPECT_EQ(s.datei(19).pfad().filename(), "Lonvir97.Voe");
    EXPECT_FALSE(da(t, "L1997P.7"));
    EXPECT_FALSE(da(t, "Lonvir97.voe"));
}

TEST(Dateisatz, UnbekannteSchichtOeffnetNurTexteUndTarife1997) {
    test::LeereUmgebung u(5);
    Sitzung& s = u.s;
    EXPECT_FALSE(s.datei(1).offen());
    EXPECT_FALSE(s.datei(21).offen());
    EXPECT_TRUE(s.datei(20).offen());
    EXPECT_TRUE(s.datei(22).offen());
    EXPECT_TRUE(s.datei(23).offen());
}

TEST(Dateisatz, SchichtwechselOeffnetNeuUndLiestEinstellungen) {
    test::Umgebung u;
    u.s.voreinstellung[2] = Currency::ganz(8); // pension 20.3 %: (8/10 + 19.5) / 2 = 10.15
    voeschreiben(u.s);
    u.s.voreinstellung[2] = Currency::ganz(0);
    schichtwechsel(u.s, REAL);
    EXPECT_EQ(u.s.schicht, REAL);
    EXPECT_EQ(u.s.datei(1).pfad().filename(), "L1997R.1");
    EXPECT_EQ(u.s.einstellungen.rvsatz, Currency::roh(101500));
}

} // namespace lonvir
