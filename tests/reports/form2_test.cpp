// The totals form: caption, grid, the click on a person, and a cross-check against the month
// files read byte by byte.
#include "reports/form2.h"

#include "jahreshilfe.h"
#include "screen/form1.h"
#include "start/texte.h"

#include <gtest/gtest.h>

#include <fstream>

namespace lonvir {
namespace {

// --- the month files read without the program's readers
std::string datei(const test::Musterbestand& m, const std::string& name) {
    std::ifstream ein(m.t.pfad() / name, std::ios::binary);
    return {std::istreambuf_iterator<char>(ein), std::istreambuf_iterator<char>()};
}

std::int32_t int32(const std::string& d, std::size_t ab) {
    std::uint32_t v = 0;
    for (int i = 3; i >= 0; --i)
        v = (v << 8) | static_cast<unsigned char>(d[ab + static_cast<std::size_t>(i)]);
    return static_cast<std::int32_t>(v);
}

std::int16_t int16(const std::string& d, std::size_t ab) {
    return static_cast<std::int16_t>(static_cast<unsigned char>(d[ab]) |
                                     (static_cast<unsigned char>(d[ab + 1]) << 8));
}

struct Rohsatz {
    const std::string& d;
    std::size_t ab;
    [[nodiscard]] int merkmal(int i) const { return int16(d, ab + 2 * (i - 1)); }
    [[nodiscard]] std::int64_t wert(int k) const { return int32(d, ab + 90 + 4 * k); }
    [[nodiscard]] std::int64_t neben(int j) const { return int32(d, ab + 274 + 4 * j); }
};

// The employer's cost of a record as the totals count it, summed by the test's own rule.
std::int64_t aufwand(const Rohsatz& r) {
    const int art = r.merkmal(4);
    const std::int64_t anteile = r.neben(0) + r.neben(1) + r.neben(2) + r.neben(3);
    const std::int64_t steuern = r.wert(6) + r.wert(32) + r.neben(4) + r.neben(5) + r.neben(6);
    if (art <= 4)
        return r.wert(22) + r.wert(31);
    if (art == 18)
        return 0;
    return r.wert(22) + anteile + r.wert(31) + steuern;
}

// The last person with a December gross, read from the bytes of file 12; 10 if none.
int letzterMitDezember(const test::Musterbestand& m, int personen) {
    const std::string d = datei(m, "L1997I.12");
    for (int p = personen; p >= 1; --p)
        if (Rohsatz{d, static_cast<std::size_t>(p - 1) * 541}.wert(22) > 0)
            return p;
    return 10;
}

struct Gegenrechnung {
    std::int64_t gesamt = 0;
    std::int64_t brutto = 0;
};

// Sums persons 1..n of the twelve files; `kostenstelle` empty: all.
Gegenrechnung gegenrechnen(const test::Musterbestand& m, int n, const std::string& kostenstelle) {
    const std::string texte = datei(m, "Texte.txt");
    Gegenrechnung g;
    for (int monat = 1; monat <= 12; ++monat) {
        const std::string d = datei(m, "L1997I." + std::to_string(monat));
        for (int p = 1; p <= n; ++p) {
            const Rohsatz r{d, static_cast<std::size_t>(p - 1) * 541};
            const std::size_t text = static_cast<std::size_t>(4801 + r.merkmal(27) - 1) * 35;
            if (!kostenstelle.empty() &&
                texte.substr(text, 35).find(kostenstelle) == std::string::npos)
                continue;
            g.gesamt += aufwand(r);
            g.brutto += r.merkmal(4) == 18 ? 0 : r.wert(22);
        }
    }
    return g;
}

// Person p's months von..bis (1..12) moved to cost centre `stelle` in the records.
void kostenstellesetzen(Sitzung& s, int p, int von, int bis, int stelle) {
    for (int m = von; m <= bis; ++m) {
        Personalsatz satz = personalsatzlesen(s, m, p);
        satz.merkmal[27] = static_cast<std::int16_t>(stelle);
        personalsatzschreiben(s, m, p, satz);
    }
}

// The sample staff with edited months: an allowance typed for person 2 from March, overtime
// for person 6 in May, and two persons partly in the cost centre "Kostenstelle 3".
struct Bearbeitet {
    Bearbeitet() {
        Form1 f(m.s);
        f.listenfuellen();
        f.namensliste();
        const auto laden = [&](std::int16_t person, std::int16_t monat) {
            m.s.aktuelleperson = person;
            m.s.merkmal[0] = static_cast<std::int16_t>(person - 1);
            m.s.merkmal[20] = monat;
            f.bildauffrischen();
        };
        laden(2, 2);
        f.betragtippen(12, 12345); // 123,45 DM allowance from March on
        laden(6, 4);
        f.betragtippen(12, 50000);
        m.dialoge.vergessen();
        kostenstellesetzen(m.s, 2, 4, 12, 2);
        kostenstellesetzen(m.s, 6, 1, 6, 2);
        kostenstellesetzen(m.s, 1, 1, 12, 1);
    }
    test::Musterbestand m;
};

TEST(Form2, TheTotalsOfTheLayerEqualTheStoredRecordsReadByteByByte) {
    Bearbeitet b;
    Form2 f(b.m.s, {0, ""});
    f.Form_Load();
    const int n = letzterMitDezember(b.m, b.m.s.anzahlnamen);
    ASSERT_EQ(f.summen.bedienstetenzahl, n);
    const Gegenrechnung g = gegenrechnen(b.m, n, "");
    EXPECT_GT(g.gesamt, 0);
    EXPECT_EQ(f.summen.gesamtsummen[slot::gesamt], g.gesamt);
    EXPECT_EQ(f.summen.gesamtsummen[slot::beamtenbezuege] +
                  f.summen.gesamtsummen[slot::angestelltenverguetung] +
                  f.summen.gesamtsummen[slot::arbeiterloehne],
              g.brutto);
}

TEST(Form2, TheTotalsOfOneCostCentreEqualItsStoredMonths) {
    Bearbeitet b;
    Form2 f(b.m.s, {3, "Kostenstelle 3"});
    f.Form_Load();
    const Gegenrechnung g =
        gegenrechnen(b.m, letzterMitDezember(b.m, b.m.s.anzahlnamen), "Kostenstelle 3");
    EXPECT_GT(g.gesamt, 0);
    EXPECT_EQ(f.summen.gesamtsummen[slot::gesamt], g.gesamt);
    EXPECT_TRUE(f.summen.gewaehlt(2));
    EXPECT_TRUE(f.summen.gewaehlt(6));
    EXPECT_FALSE(f.summen.gewaehlt(1));
    EXPECT_FALSE(f.summen.gewaehlt(3));
    // Person 2 counts from April, person 6 until June.
    EXPECT_EQ(f.summen.wert(2, slot::gesamt, 3), 0);
    EXPECT_GT(f.summen.wert(2, slot::gesamt, 4), 0);
    EXPECT_GT(f.summen.wert(6, slot::gesamt, 6), 0);
    EXPECT_EQ(f.summen.wert(6, slot::gesamt, 7), 0);
}

TEST(Form2, TheGridListsTheChosenPersonsTheTotalsAndTheMonths) {
    Bearbeitet b;
    Form2 f(b.m.s, {3, "Kostenstelle 3"});
    f.Form_Load();
    EXPECT_EQ(f.caption, "ARBEITGEBERAUFWENDUNGEN für KOSTENSTELLE Kostenstelle 3");
    EXPECT_EQ(f.Grid1.zelle(0, 0), "Nr.");
    EXPECT_EQ(f.Grid1.zelle(0, 2), "Beamtenbezüge");
    EXPECT_EQ(f.Grid1.zelle(0, 10), "Gesamtaufwand");
    EXPECT_EQ(f.Grid1.zelle(1, 0), "2");
    EXPECT_EQ(f.Grid1.zelle(1, 1), "Schneider, Petra");
    EXPECT_EQ(f.Grid1.zelle(2, 0), "6");
    ASSERT_EQ(f.summenzeile(), 3);
    EXPECT_EQ(f.Grid1.zelle(3, 0), "GESAMTSUMME 1997");
    EXPECT_EQ(f.Grid1.zelle(3, 10), tausenderbild(f.summen.gesamtsummen[slot::gesamt]));
    EXPECT_EQ(f.Grid1.zelle(4, 0), "davon");
    EXPECT_EQ(f.Grid1.zelle(4, 1), "Januar");
    EXPECT_EQ(f.Grid1.zelle(15, 1), "Dezember");
    EXPECT_EQ(f.Grid1.zeilen(), 16);
    // A civil servant's column stays at zero here.
    EXPECT_EQ(f.Grid1.zelle(3, 2), "___.___.__0,00");
}

TEST(Form2, AClickOnAPersonsRowOpensThatPersonsYear) {
    Bearbeitet b;
    Form2 f(b.m.s, {0, ""});
    f.Form_Load();
    EXPECT_EQ(f.Grid1_Click(2), std::optional<std::int16_t>(2));
    EXPECT_FALSE(f.sichtbar);
    f.sichtbar = true;
    EXPECT_EQ(f.Grid1_Click(0), std::nullopt);
    EXPECT_EQ(f.Grid1_Click(f.summenzeile()), std::nullopt);
    EXPECT_EQ(f.Grid1_Click(f.summenzeile() + 3), std::nullopt);
    EXPECT_TRUE(f.sichtbar);
}

} // namespace
} // namespace lonvir
