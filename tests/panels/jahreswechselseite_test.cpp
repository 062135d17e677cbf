// Pages 47 and 67 through the menu: the year change with its labels, and the take-over of the
// former version that is announced only.
#include "../transfer/ordnerbild.h"
#include "core/dateitausch.h"
#include "panels/seiten.h"
#include "panels/tablett.h"
#include "screen/hauptform.h"
#include "screen/hauptmenue.h"
#include "start/dateisatz.h"
#include "start/texte.h"

#include <gtest/gtest.h>

#include <cerrno>

namespace lonvir {

namespace {

struct Menueumgebung {
    Menueumgebung() : form(b.s), tablett(b.s, lage), ziel{b.s, form, tablett} {
        lage.breite = 12000;
        lage.panel3d2breite = 4000;
        lage.panel3d2hoehe = 7000;
    }
    test::Bestand b;
    Kernform form;
    Form1lage lage;
    Tablett tablett;
    Menueziel ziel;
};

bool aktiv(const Sitzung& s, const std::string& name) {
    const auto p = menuepunkt(s, name);
    return p && p->aktiv;
}

} // namespace

TEST(Jahreswechselmenue, EintraegeMitIhrenBeschriftungen) {
    Menueumgebung m;
    const auto wechsel = menuepunkt(m.b.s, "MJahreswechsel");
    ASSERT_TRUE(wechsel);
    EXPECT_EQ(wechsel->text, "Dez 97  >  Jan 98...");
    EXPECT_TRUE(wechsel->aktiv);
    const auto version = menuepunkt(m.b.s, "MWechel_96_97");
    ASSERT_TRUE(version);
    EXPECT_EQ(version->text, "Version96 > Version97 ...");
    // First entries of their menus.
    const auto leiste = hauptmenue(m.b.s);
    EXPECT_EQ(leiste[1].punkte.front().name, "MWechel_96_97");
    EXPECT_EQ(leiste[2].punkte.front().name, "MJahreswechsel");
}

TEST(Jahreswechselseite, NeinAufDieErsteFrageOeffnetKeineSeite) {
    Menueumgebung m;
    const auto vorher = test::ordnerbild(m.b.ordner.pfad());
    m.b.dialoge.antworten(Knopf::nein);
    menueklick(m.ziel, "MJahreswechsel");
    EXPECT_EQ(m.b.s.Tablettseite, 0);
    EXPECT_FALSE(m.tablett.sichtbar);
    EXPECT_FALSE(aktiv(m.b.s, "M1998"));
    EXPECT_EQ(test::unterschied(test::ordnerbild(m.b.ordner.pfad()), vorher), "");
}

TEST(Jahreswechselseite, DieSeiteZeigtDenFortschrittUndWasUebertragenWurde) {
    Menueumgebung m;
    EXPECT_FALSE(aktiv(m.b.s, "M1998"));
    EXPECT_FALSE(aktiv(m.b.s, "MSaetze1998"));
    int aufrufe = 0;
    bool sichtbarbeimaufruf = true;
    std::string fortschritt;
    m.tablett.zwischendurch = [&] {
        ++aufrufe;
        sichtbarbeimaufruf =
            sichtbarbeimaufruf && m.tablett.sichtbar && m.tablett.zeile[0].sichtbar;
        if (fortschritt.empty() && !m.tablett.zeile[5].text.empty())
            fortschritt = m.tablett.zeile[5].text;
    };
    m.b.dialoge.antworten(Knopf::ja);
    menueklick(m.ziel, "MJahreswechsel");
    const Tablett& t = m.tablett;
    EXPECT_EQ(m.b.s.Tablettseite, 47);
    EXPECT_TRUE(t.sichtbar);
    EXPECT_FALSE(t.sanduhr);
    EXPECT_TRUE(sichtbarbeimaufruf);
    EXPECT_GT(aufrufe, 3 * m.b.s.anzahlnamen);
    EXPECT_EQ(fortschritt,
              "Schicht INFO: 1 von " + std::to_string(m.b.s.anzahlnamen) + " Personen");
    for (int i = 0; i <= 4; ++i)
        EXPECT_EQ(t.zeile[i].text, textgetrimmt(m.b.s, 3965 + i));
    EXPECT_EQ(t.zeile[7].text, "L1997.12 zu L1998.1 bis 12 ");
    EXPECT_EQ(t.zeile[8].text, "mit je " + std::to_string(m.b.s.anzahlnamen) + " Datensätzen");
    EXPECT_EQ(t.zeile[10].text, "L1997.13 zu L1998.13");
    EXPECT_EQ(t.zeile[11].text, "mit " + std::to_string(m.b.s.anzahlnamen) + " Datensätzen");
    EXPECT_EQ(t.zeile[13].text, "Es wurden übertragen:");
    EXPECT_EQ(t.zeile[14].text, "Von L1997.4tr nach L1998.1tr 600 Sätze");
    EXPECT_EQ(t.zeile[17].text, "Von L1997.4tr nach L1998.4tr 600 Sätze");
    EXPECT_EQ(t.zeile[19].text, "Unter dem Menüpunkt 98 stehen jetzt");
    EXPECT_EQ(t.zeile[20].text, "die Funktionen für 1998 zur Verfügung.");
    EXPECT_EQ(t.zeile[19].vordergrund, 12);
    EXPECT_EQ(t.zeile[20].vordergrund, 12);
    EXPECT_TRUE(t.zeile[5].text.empty());
    // One column: the same left edge, one pitch apart.
    for (int i = 1; i <= 20; ++i) {
        EXPECT_TRUE(t.zeile[i].sichtbar);
        EXPECT_EQ(t.zeile[i].lage.links, t.zeile[0].lage.links);
        EXPECT_EQ(t.zeile[i].lage.oben - t.zeile[i - 1].lage.oben, seitenlage::abstand);
    }
    EXPECT_FALSE(t.zeile[21].sichtbar);
    EXPECT_TRUE(aktiv(m.b.s, "M1998"));
    EXPECT_TRUE(aktiv(m.b.s, "MSaetze1998"));
}

TEST(Jahreswechselseite, EinFehlschlagSagtDassNichtsGeaendertWurde) {
    Menueumgebung m;
    dateienschliessen(m.b.s);
    const auto vorher = test::ordnerbild(m.b.ordner.pfad());
    dateienoeffnen(m.b.s);
    // The first new file cannot be written.
    tausch::probe = [](Tauschschritt) { return EIO; };
    m.b.dialoge.antworten(Knopf::ja);
    menueklick(m.ziel, "MJahreswechsel");
    tausch::probe = nullptr;
    EXPECT_EQ(m.b.s.Tablettseite, 47);
    EXPECT_EQ(m.tablett.zeile[19].text, "Der Jahreswechsel wurde nicht ausgeführt;");
    EXPECT_EQ(m.tablett.zeile[20].text, "die Dateien sind unverändert.");
    EXPECT_TRUE(m.tablett.zeile[13].text.empty());
    ASSERT_EQ(m.b.dialoge.gezeigt().size(), 2u);
    EXPECT_EQ(m.b.dialoge.gezeigt()[1].titel, "Jahreswechsel");
    EXPECT_FALSE(aktiv(m.b.s, "M1998"));
    dateienschliessen(m.b.s);
    EXPECT_EQ(test::unterschied(test::ordnerbild(m.b.ordner.pfad()), vorher), "");
}

TEST(Versionsseite, UeberschriftTexteUndZweiKnoepfe) {
    Menueumgebung m;
    menueklick(m.ziel, "MWechel_96_97");
    const Tablett& t = m.tablett;
    EXPECT_EQ(m.b.s.Tablettseite, 67);
    EXPECT_TRUE(t.sichtbar);
    EXPECT_EQ(t.zeile[0].text, "1997er Daten der Version 1996.7 übernehmen");
    EXPECT_TRUE(t.zeile[0].fett);
    for (int n = versionstext::erster; n <= versionstext::letzter; ++n) {
        const int i = n - versionstext::erster + 1;
        EXPECT_EQ(t.zeile[i].text, textgetrimmt(m.b.s, n));
        EXPECT_FALSE(t.zeile[i].text.empty());
    }
    EXPECT_TRUE(t.Command1.sichtbar);
    EXPECT_TRUE(t.Command2.sichtbar);
    EXPECT_EQ(t.Command2.text, "Abbrechen");
}

TEST(Versionsseite, DerErsteKnopfSagtLeiderUndAendertNichts) {
    Menueumgebung m;
    menueklick(m.ziel, "MWechel_96_97");
    dateienschliessen(m.b.s);
    const auto vorher = test::ordnerbild(m.b.ordner.pfad());
    dateienoeffnen(m.b.s);
    m.tablett.Command1_Click();
    ASSERT_EQ(m.b.dialoge.gezeigt().size(), 1u);
    const Meldung& meldung = m.b.dialoge.gezeigt()[0];
    EXPECT_EQ(meldung.titel, "Leider ...");
    EXPECT_EQ(meldung.text, "Diese Funktion wird erst ab der Version 1998 funktionsfähig sein.");
    EXPECT_EQ(meldung.symbol, Symbol::ausruf);
    EXPECT_TRUE(m.tablett.sichtbar);
    dateienschliessen(m.b.s);
    EXPECT_EQ(test::unterschied(test::ordnerbild(m.b.ordner.pfad()), vorher), "");
    m.tablett.command2_Click();
    EXPECT_FALSE(m.tablett.sichtbar);
    EXPECT_TRUE(m.lage.panel3d2sichtbar);
}

} // namespace lonvir
