// The remark cards in file 13 of the open layer and year.
#include "start/jahressaetze.h"

#include "start/dateisatz.h"
#include "testhilfe.h"

#include <gtest/gtest.h>

namespace lonvir {

namespace {
struct Kartenordner {
    explicit Kartenordner(std::int16_t schicht) {
        s.ordner = Arbeitsordner(ordner.pfad());
        s.schicht = schicht;
        dateienoeffnen(s);
    }
    test::Tempordner ordner;
    Sitzung s;
};
} // namespace

TEST(Jahressatzlesen, HinterDemDateiendeLeer) {
    Kartenordner o(INFO);
    EXPECT_EQ(jahressatzlesen(o.s, 3), Jahressatz{});
}

TEST(Jahressatzschreiben, SchreibtAnDieNummerDerPersonUndVerlaengertDieDatei) {
    Kartenordner o(INFO);
    Jahressatz j;
    j.setzen(14, "Auf der Abrechnung");
    j.setzen(15, "In der Jahresübersicht");
    jahressatzschreiben(o.s, 3, j);
    const std::string d = test::dateiinhalt(o.ordner.pfad(), "L1997I.13");
    ASSERT_EQ(d.size(), 3 * 1280u);
    EXPECT_EQ(d.substr(2 * 1280 + 1040, 18), "Auf der Abrechnung");
    EXPECT_EQ(d.substr(2 * 1280 + 1160, 22), "In der Jahres\xFC"
                                             "bersicht");
    EXPECT_EQ(jahressatzlesen(o.s, 3), j);
    // Records 1 and 2 are a hole of zeros and read as blank cards.
    EXPECT_EQ(jahressatzlesen(o.s, 1), Jahressatz{});
}

TEST(Jahressatzschreiben, BemerkungenGeltenJeSchicht) {
    Kartenordner o(PLAN);
    Jahressatz j;
    j.setzen(0, "nur in PLAN");
    jahressatzschreiben(o.s, 1, j);
    o.s.schicht = REAL;
    dateienoeffnen(o.s);
    EXPECT_EQ(jahressatzlesen(o.s, 1), Jahressatz{});
    o.s.schicht = PLAN;
    dateienoeffnen(o.s);
    EXPECT_EQ(jahressatzlesen(o.s, 1).text(0), "nur in PLAN" + std::string(29, ' '));
}

} // namespace lonvir
