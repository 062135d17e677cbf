// The menu bar of Form1: order, captions, the year entries, and what the clicks do.
#include "formhilfe.h"
#include "panels/seiten.h"
#include "panels/tablett.h"
#include "screen/hauptmenue.h"
#include "start/start.h"
#include "testhilfe.h"

#include <gtest/gtest.h>

namespace lonvir {

namespace {

std::vector<std::string> texte(const std::vector<Menuepunkt>& punkte) {
    std::vector<std::string> t;
    for (const Menuepunkt& p : punkte)
        t.push_back(p.text);
    return t;
}

struct Menueumgebung {
    test::Umgebung u;
    test::Zaehlform form{u.s};
    Form1lage lage{0, 0, 12000, 8000, 3600, 8000, true, 0, 0, 0};
    MerkHilfe hilfe;
    Tablett tablett{u.s, lage, &hilfe};
    Menueziel ziel{u.s, form, tablett, &hilfe};
};

} // namespace

TEST(Hauptmenue, LeisteInDerReihenfolgeMitIhrenBeschriftungen) {
    test::Umgebung u;
    const std::vector<Menuepunkt> leiste = hauptmenue(u.s);
    EXPECT_EQ(texte(leiste), (std::vector<std::string>{"Wie", "97", "98", "Txt", "Tz", "LSt", "Soz",
                                                       "ZVK", "LTab", "GTab", "Netto", "Druck",
                                                       "Jahr", "Amt", "VKE", "Info", "?"}));
    EXPECT_EQ(texte(leiste[0].punkte),
              (std::vector<std::string>{"Passwort ...", "Farbe ...", "Voreinstellungen ...",
                                        "Sozialversicherungsdaten ...", "KV_Beitragssätze ...",
                                        "ZVK ...", "Weihnachtsgeld-Quote ...", "Beenden"}));
    EXPECT_EQ(leiste[0].punkte.back().name, "MBeenden");
    EXPECT_EQ(texte(leiste[1].punkte),
              (std::vector<std::string>{
                  "Version96 > Version97 ...", "Berechnungen für 1997",
                  "1997_1er Tarife editieren ...", "1997_2er Tarife editieren ...",
                  "1997_3er Tarife editieren ...", "1997_4er Tarife editieren ...",
                  "Tarifstruktur 1997 festlegen", "1997er Personaldaten löschen ..."}));
    EXPECT_EQ(texte(leiste[2].punkte),
              (std::vector<std::string>{
                  "Dez 97  >  Jan 98...", "Berechnungen für 1998", "1998_1er Tarife editieren ...",
                  "1998_2er Tarife editieren ...", "1998_3er Tarife editieren ...",
                  "1998_4er Tarife editieren ...", "Tarifstruktur 1998 festlegen",
                  "1998er Personaldaten löschen ..."}));
    EXPECT_EQ(leiste[4].name, "MTeilzeit");
    EXPECT_EQ(leiste[4].zahl, 35);
    EXPECT_EQ(leiste[5].zahl, 6);
    EXPECT_EQ(leiste[6].zahl, 29);
    EXPECT_EQ(leiste[7].zahl, 8);
    EXPECT_EQ(leiste[8].name, "MLstrTab");
    const Menuepunkt& gtab = leiste[9];
    ASSERT_EQ(gtab.punkte.size(), 16u);
    EXPECT_EQ(gtab.punkte[0].text, "Beamte West ab 1/97");
    EXPECT_EQ(gtab.punkte[4].zahl, 70011);
    EXPECT_EQ(gtab.punkte[10].text, "Angestellte Ost B/L ab  1/97");
    EXPECT_EQ(gtab.punkte[15].zahl, 70259);
    // "Netto" (page 43) stands between "GTab" and "Druck".
    EXPECT_EQ(leiste[10].name, "MNetto");
    EXPECT_EQ(leiste[10].text, "Netto");
    EXPECT_EQ(leiste[10].zahl, 43);
    EXPECT_EQ(leiste[11].name, "MDrucken");
    EXPECT_EQ(leiste[13].name, "MAmt");
    EXPECT_EQ(leiste[13].zahl, 4);
    const Menuepunkt& info = leiste[15];
    EXPECT_EQ(texte(info.punkte),
              (std::vector<std::string>{"Überreicht durch", "Über LONVIR97",
                                        "In diesem Update ist neu:", "Update", "Beihilfe",
                                        "Vorschläge", "Dankeschön", "Geschenke"}));
    EXPECT_EQ(leiste[16].name, "MHilfe");
    EXPECT_EQ(leiste[16].aktion, Menueaktion::zeilenhilfe);
    EXPECT_EQ(leiste[16].punkte[0].zahl, 20000);
    EXPECT_EQ(leiste[16].punkte[1].zahl, 1000);
}

TEST(Hauptmenue, JahrZeigtDieJahresuebersichtUndVkeOeffnetSeite66) {
    Menueumgebung m;
    EXPECT_EQ(menuepunkt(m.u.s, "MVKE")->zahl, 66);
    menueklick(m.ziel, "MJahr");
    EXPECT_EQ(m.u.s.Tablettseite, 39);
    EXPECT_EQ(m.ziel.formwunsch, std::optional<std::string>("Form3"));
    m.tablett.seiteanmelden(66, vkeseite);
    menueklick(m.ziel, "MVKE");
    EXPECT_EQ(m.u.s.Tablettseite, 66);
    EXPECT_TRUE(m.tablett.sichtbar);
    EXPECT_EQ(m.tablett.Command4.text, "Gesamtauswertungen auswählen");
}

TEST(Hauptmenue, TarifeintraegeOeffnenDieSeiten54Bis57Und58Bis60Und62) {
    test::Umgebung u;
    EXPECT_EQ(menuepunkt(u.s, "MTarife71")->zahl, 54);
    EXPECT_EQ(menuepunkt(u.s, "MTarife74")->zahl, 57);
    EXPECT_EQ(menuepunkt(u.s, "MTarife81")->zahl, 58);
    EXPECT_EQ(menuepunkt(u.s, "MTarife83")->zahl, 60);
    EXPECT_EQ(menuepunkt(u.s, "MTarife84")->zahl, 62);
    EXPECT_EQ(menuepunkt(u.s, "M_KV")->text, "KV_Beitragssätze ...");
}

TEST(Hauptmenue, TxtZeigtTexteditAufDemBereichDesEintrags) {
    Menueumgebung m;
    const Menuepunkt txt = *menuepunkt(m.u.s, "MTexte");
    ASSERT_EQ(txt.punkte.size(), 21u);
    EXPECT_EQ(txt.punkte.front().text, "Namen eingeben");
    menueklick(m.ziel, "MTBahn");
    EXPECT_EQ(m.tablett.formwunsch, std::optional<std::string>("Textedit"));
    EXPECT_EQ(m.tablett.textvon, 2521);
    EXPECT_EQ(m.tablett.textbis, 2670);
    m.tablett.formwunsch.reset();
    menueklick(m.ziel, "MNamen");
    EXPECT_EQ(m.u.s.Tablettseite, 69);
    EXPECT_EQ(m.tablett.formwunsch, std::optional<std::string>("Textedit"));
    EXPECT_EQ(m.tablett.textvon, 5001);
    EXPECT_EQ(m.tablett.textbis, 6000);
    menueklick(m.ziel, "MTarife82");
    EXPECT_EQ(m.u.s.Tablettseite, 59);
    EXPECT_EQ(m.tablett.formwunsch, std::optional<std::string>("Tarife"));
    menueklick(m.ziel, "M_KV");
    EXPECT_EQ(m.tablett.formwunsch, std::optional<std::string>("KV"));
    menueklick(m.ziel, "MAmt");
    EXPECT_EQ(m.u.s.Tablettseite, 4);
    EXPECT_TRUE(m.tablett.Combo[0].sichtbar);
}

TEST(Hauptmenue, JahreseintraegeNachDemGeoeffnetenSatz) {
    test::Umgebung u;
    EXPECT_TRUE(menuepunkt(u.s, "M1997")->markiert);
    EXPECT_FALSE(menuepunkt(u.s, "M1998")->markiert);
    // L1998I.1 is still empty: 1998 cannot be chosen yet.
    EXPECT_FALSE(menuepunkt(u.s, "M1998")->aktiv);
    EXPECT_FALSE(menuepunkt(u.s, "MSaetze1998")->aktiv);
    EXPECT_TRUE(menuepunkt(u.s, "MSaetze1997")->aktiv);
    Sitzung s98;
    s98.ordner = u.s.ordner;
    s98.jahr = 1998;
    starten(s98);
    EXPECT_TRUE(menuepunkt(u.s, "M1998")->aktiv);
    EXPECT_TRUE(menuepunkt(s98, "M1998")->markiert);
    EXPECT_FALSE(menuepunkt(s98, "M1997")->markiert);
}

TEST(Hauptmenue, SeiteAusDemMenueOeffnet) {
    Menueumgebung m;
    menueklick(m.ziel, "MLohnsteuer");
    EXPECT_EQ(m.u.s.Tablettseite, 6);
    EXPECT_TRUE(m.tablett.sichtbar);
    EXPECT_FALSE(m.tablett.sanduhr);
    menueklick(m.ziel, "MZusatzversicherung");
    EXPECT_EQ(m.u.s.Tablettseite, 8);
    EXPECT_EQ(m.tablett.Tablettbreite, 3600);
}

TEST(Hauptmenue, TeilzeitInDerJahressichtVerweigert) {
    Menueumgebung m;
    m.u.s.merkmal[20] = 12;
    menueklick(m.ziel, "MTeilzeit");
    EXPECT_EQ(m.u.s.Tablettseite, 0);
    EXPECT_FALSE(m.tablett.sichtbar);
    ASSERT_EQ(m.u.dialoge.gezeigt().size(), 1u);
    EXPECT_EQ(m.u.dialoge.gezeigt()[0].titel, "Teilzeit");
    EXPECT_EQ(m.u.dialoge.gezeigt()[0].text.rfind(
                  "Die Darstellung der Teilzeitbeträge ist nur bei einzelnen Monaten möglich.", 0),
              0u);
    m.u.s.merkmal[20] = 11;
    menueklick(m.ziel, "MTeilzeit");
    EXPECT_EQ(m.u.s.Tablettseite, 35);
}

TEST(Hauptmenue, HilfeDerZeileNachPersonalart) {
    Menueumgebung m;
    m.u.s.Tablettseite = 29;
    m.u.s.aktuellezeile = 12;
    m.u.s.merkmal[4] = 5;
    menueklick(m.ziel, "MHilfe");
    m.u.s.merkmal[4] = 0;
    m.u.s.aktuellezeile = 7;
    menueklick(m.ziel, "MHilfe");
    EXPECT_EQ(m.hilfe.kontexte, (std::vector<int>{96212, 11007}));
    EXPECT_EQ(m.u.s.Tablettseite, 0);
    m.u.s.merkmal[4] = 8; // workers: no row topics
    menueklick(m.ziel, "MHilfe");
    EXPECT_EQ(m.hilfe.kontexte.size(), 2u);
    ASSERT_EQ(m.u.dialoge.gezeigt().size(), 1u);
    EXPECT_EQ(m.u.dialoge.gezeigt()[0].titel, "HILFE");
    EXPECT_EQ(m.u.dialoge.gezeigt()[0].text,
              "Für die in Zeile 2 eingestellten Bediensteten sind noch keine Hilfetexte "
              "verfügbar.");
    EXPECT_EQ(zeilenhilfe(2, 45), 12545);
    EXPECT_EQ(zeilenhilfe(3, 0), 45000);
    EXPECT_FALSE(zeilenhilfe(1, 5));
}

TEST(Hauptmenue, ThemenZeigenIhrenHilfekontext) {
    Menueumgebung m;
    menueklick(m.ziel, "Mneu");
    menueklick(m.ziel, "MAngestOstKR9_97");
    menueklick(m.ziel, "M§");
    menueklick(m.ziel, "MGibtEsNicht");
    EXPECT_EQ(m.hilfe.kontexte, (std::vector<int>{96857, 70259, 1000}));
}

TEST(Hauptmenue, JahrUndLoeschenUeberDasMenue) {
    Menueumgebung m;
    menueklick(m.ziel, "M1997"); // checked: nothing
    EXPECT_EQ(m.form.ladungen, 0);
    menueklick(m.ziel, "M1998"); // disabled while no 1998 set is filled
    EXPECT_EQ(m.u.s.jahr, 1997);
    menueklick(m.ziel, "MSaetze1998");
    EXPECT_TRUE(m.u.dialoge.gezeigt().empty());
    m.u.dialoge.antworten(Knopf::abbrechen);
    menueklick(m.ziel, "MSaetze1997");
    ASSERT_EQ(m.u.dialoge.gezeigt().size(), 1u);
    EXPECT_EQ(m.u.dialoge.gezeigt()[0].titel, "Personaldaten löschen");
    EXPECT_EQ(m.u.s.Tablettseite, 22);
    menueklick(m.ziel, "MBeenden");
    EXPECT_TRUE(m.ziel.beendet);
}

} // namespace lonvir

namespace lonvir {

TEST(Hauptmenue, LTabZeigtDieLohnsteuertabelle) {
    Menueumgebung m;
    menueklick(m.ziel, "MLstrTab");
    EXPECT_EQ(m.ziel.formwunsch, std::optional<std::string>("LStrTab"));
}

namespace {

TEST(Hauptmenue, DruckmenueInDerReihenfolgeUndSeinKlickWuenschtDenDruck) {
    test::Umgebung u;
    const std::optional<Menuepunkt> druck = menuepunkt(u.s, "MDrucken");
    ASSERT_TRUE(druck);
    EXPECT_EQ(druck->text, "Druck");
    std::vector<std::string> namen;
    for (const Menuepunkt& p : druck->punkte) {
        namen.push_back(p.name);
        EXPECT_EQ(p.aktion, Menueaktion::drucken);
    }
    EXPECT_EQ(namen, (std::vector<std::string>{"MGraphik", "Mlinksbrutto", "Mlinksnetto",
                                               "MlinksAG", "MLst", "MBeitrag", "MLstNachweis"}));
    EXPECT_EQ(
        texte(druck->punkte),
        (std::vector<std::string>{"Gehaltsberechnung als Graphik", "Gehaltsberechnung nur brutto",
                                  "Gehaltsberechnung brutto/netto",
                                  "Gehaltsberechnung mit AG-Aufw.", "LSt, Soz, ZVK drucken",
                                  "Beitragsnachweis drucken", "Lohnstr.-Nachweis drucken"}));
    Menueumgebung m;
    menueklick(m.ziel, "Mlinksnetto");
    EXPECT_EQ(m.ziel.druckwunsch, std::optional<std::string>("Mlinksnetto"));
    EXPECT_FALSE(m.tablett.sichtbar);
}

} // namespace
} // namespace lonvir
