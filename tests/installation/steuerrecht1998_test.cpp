// A month of 1998 of the sample BAT employee computed by the tax law of 1998 when the settings
// of 1998 switch it on, and by the law of 1997 when they do not.
#include "testhilfe.h"

#include "engine/monatladen.h"
#include "start/einstellungen.h"
#include "start/satzzugriff.h"
#include "start/start.h"

#include <gtest/gtest.h>

namespace lonvir {

namespace {

// Petra Schneider (person 2, BAT VKA Vc step 5, West, class I, 9 % church tax) as she stands in
// January 1997, set into January of 1998.
struct Januar1998 {
    explicit Januar1998(bool recht1998) {
        {
            Sitzung s97;
            s97.ordner = Arbeitsordner(ordner.pfad());
            s97.installation = LONVIR_INSTALLATION;
            s97.dialoge = &dialoge;
            starten(s97);
            petra = personalsatzlesen(s97, 1, 2);
        }
        s.ordner = Arbeitsordner(ordner.pfad());
        s.installation = LONVIR_INSTALLATION;
        s.dialoge = &dialoge;
        s.jahr = 1998;
        starten(s);
        personalsatzschreiben(s, 1, 2, petra);
        s.voreinstellung[steuerrecht1998element] = Currency::ganz(recht1998 ? 1 : 0);
        aktualisieren(s);
        monatladen(s, 2, 0);
    }
    test::Tempordner ordner;
    SkriptDialoge dialoge;
    Personalsatz petra;
    Sitzung s;
};

} // namespace

// Gross 1998: Vc step 5 2889.59 * 1.015 = 2932.93, Ortszuschlag 822.77, allgemeine Zulage
// 191.19: 3946.89 DM, all of it taxable. The yearly tariff tax of that month's step is 8294 DM
// under the law of 1998 (x = 41364; see the routine's tests), 8339 DM under that of 1997.
// 1998: wage tax 8294 / 12 -> 691.16 DM, surcharge 5.5 % of 8294 = 456.17 / 12 -> 38.01 DM,
// church tax 9 % of 691.16 = 62.2044 -> 62.20 DM.
// 1997: 8339 / 12 -> 694.91 DM, 7.5 % of 8339 = 625.425 / 12 -> 52.11 DM, 9 % -> 62.54 DM.
TEST(Steuerrecht1998, MusterangestellteImJanuar1998) {
    Januar1998 an(true);
    EXPECT_EQ(an.s.wert[22], 394689);
    EXPECT_EQ(an.s.wert[33], -69116);
    EXPECT_EQ(an.s.wert[35], -3801);
    EXPECT_EQ(an.s.wert[36], -6220);
    Januar1998 aus(false);
    EXPECT_EQ(aus.s.wert[22], 394689);
    EXPECT_EQ(aus.s.wert[33], -69491);
    EXPECT_EQ(aus.s.wert[35], -5211);
    EXPECT_EQ(aus.s.wert[36], -6254);
}

// The switch lies in the record of 1998 and is stored with it; the record of 1997 keeps its
// element 34 at 0.
TEST(Steuerrecht1998, DerSchalterWirdImSatzDes1998erJahresGespeichert) {
    Januar1998 an(true);
    voeschreiben(an.s);
    Sitzung neu;
    neu.ordner = Arbeitsordner(an.ordner.pfad());
    neu.installation = LONVIR_INSTALLATION;
    neu.dialoge = &an.dialoge;
    neu.jahr = 1998;
    starten(neu);
    EXPECT_TRUE(neu.einstellungen.steuerrecht1998);
    Sitzung s97;
    s97.ordner = Arbeitsordner(an.ordner.pfad());
    s97.dialoge = &an.dialoge;
    starten(s97);
    EXPECT_FALSE(s97.einstellungen.steuerrecht1998);
}

} // namespace lonvir
