// The health-insurance rates of the year in Lonvir97.dim and the engine's table kvsatz.
#include "start/kvsaetze.h"

#include "records/satzbild.h"
#include "start/dateisatz.h"
#include "start/einstellungen.h"
#include "start/start.h"
#include "testhilfe.h"

#include <gtest/gtest.h>

#include <fstream>

namespace lonvir {

namespace {

// A .dim file of 26 records: record 1 the display settings, then rates laid by the test.
struct Kvordner {
    explicit Kvordner(std::int16_t jahr) : bild(26 * Kvsatz::laenge) {
        s.ordner = Arbeitsordner(ordner.pfad());
        s.dialoge = &dialoge;
        s.jahr = jahr;
    }
    // Rate of fund `kasse` in record `satz`, in hundredths of a percent.
    void rate(int satz, int kasse, std::int16_t wert) {
        bild.i16(static_cast<std::size_t>((satz - 1) * 232 + 2 * kasse), wert);
    }
    void ablegen() const {
        std::ofstream aus(ordner.pfad() / "Lonvir97.dim", std::ios::binary);
        aus.write(reinterpret_cast<const char*>(bild.bytes().data()),
                  static_cast<std::streamsize>(bild.bytes().size()));
    }
    test::Tempordner ordner;
    SkriptDialoge dialoge;
    Sitzung s;
    test::Satzbild bild;
};

} // namespace

TEST(Kvsatznummer, DreiBisVierzehnFuer1997FuenfzehnBisSechsundzwanzigSonst) {
    Sitzung s;
    s.jahr = 1997;
    EXPECT_EQ(kvsatznummer(s, 0), 3);
    EXPECT_EQ(kvsatznummer(s, 11), 14);
    s.jahr = 0; // counts as 1997
    EXPECT_EQ(kvsatznummer(s, 5), 8);
    s.jahr = 1998;
    EXPECT_EQ(kvsatznummer(s, 0), 15);
    EXPECT_EQ(kvsatznummer(s, 11), 26);
    EXPECT_THROW((void)kvsatznummer(s, 12), Laufzeitfehler);
}

TEST(Kvsaetzelesen, Liest1997DieSaetzeDreiBisVierzehn) {
    Kvordner o(1997);
    o.rate(3, 0, 1350);  // January, fund 0: 13.5 %
    o.rate(3, 27, 1290); // January, fund 27
    o.rate(14, 5, 1420); // December, fund 5
    o.rate(15, 0, 1111); // January 1998: not this year
    o.rate(2, 0, 999);   // record 2 is no month
    o.ablegen();
    dateienoeffnen(o.s);
    kvsaetzelesen(o.s);
    EXPECT_EQ(o.s.kvsatz[0][0], Currency::ganz(1350));
    EXPECT_EQ(o.s.kvsatz[0][27], Currency::ganz(1290));
    EXPECT_EQ(o.s.kvsatz[11][5], Currency::ganz(1420));
    EXPECT_EQ(o.s.kvsatz[1][0], Currency::ganz(0));
    EXPECT_EQ(o.s.kvsatz[0][28], Currency::ganz(0));
    EXPECT_EQ(o.s.kvsatz[0][29], Currency::ganz(0));
}

TEST(Kvsaetzelesen, Liest1998DieSaetzeFuenfzehnBisSechsundzwanzig) {
    Kvordner o(1998);
    o.rate(3, 0, 1350);
    o.rate(15, 0, 1300); // January 1998
    o.rate(26, 27, -1);  // December 1998, a negative rate stays negative
    o.ablegen();
    dateienoeffnen(o.s);
    kvsaetzelesen(o.s);
    EXPECT_EQ(o.s.kvsatz[0][0], Currency::ganz(1300));
    EXPECT_EQ(o.s.kvsatz[11][27], Currency::ganz(-1));
}

TEST(Kvsaetzelesen, FehlendeMonateSindNull) {
    // Only the display settings record: every month lies past the end of the file.
    Kvordner o(1997);
    o.bild = test::Satzbild(Kvsatz::laenge);
    o.ablegen();
    dateienoeffnen(o.s);
    o.s.kvsatz[4][4] = Currency::ganz(77);
    kvsaetzelesen(o.s);
    for (int m = 0; m <= 11; ++m)
        EXPECT_EQ(o.s.kvsatz[m], (Feld<Currency, 0, 29>{})) << "Monat " << m;
}

TEST(Kvsaetzelesen, VoelesenBringtDieSaetzeDesJahres) {
    Kvordner o(1997);
    o.rate(9, 3, 1250);  // July 1997
    o.rate(21, 3, 1260); // July 1998
    o.ablegen();
    starten(o.s);
    EXPECT_EQ(o.s.kvsatz[6][3], Currency::ganz(1250));
    o.s.jahr = 1998;
    dateienoeffnen(o.s);
    voelesen(o.s);
    EXPECT_EQ(o.s.kvsatz[6][3], Currency::ganz(1260));
}

TEST(Kvsatzschreiben, SchreibtNurDenSatzDesMonats) {
    Kvordner o(1998);
    o.rate(1, 0, 14); // the colour of row 0 in record 1
    o.rate(16, 1, 1400);
    o.ablegen();
    dateienoeffnen(o.s);
    Kvsatz k = kvsatzlesen(o.s, kvsatznummer(o.s, 1));
    EXPECT_EQ(k.satz[1], 1400);
    k.satz[1] = 1380;
    kvsatzschreiben(o.s, kvsatznummer(o.s, 1), k);
    kvsaetzelesen(o.s);
    EXPECT_EQ(o.s.kvsatz[1][1], Currency::ganz(1380));
    dimlesen(o.s);
    EXPECT_EQ(o.s.dim.zeilenfarbe[0], 14);
    EXPECT_EQ(test::dateiinhalt(o.ordner.pfad(), "Lonvir97.dim").size(), 26 * 232u);
}

} // namespace lonvir
