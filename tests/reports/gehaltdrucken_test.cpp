// The pay statement on the recording printer: every line of the three forms laid out by hand
// from the rows' texts, the tab rule, the overtime line and the employer's cost.
#include "reports/gehaltdrucken.h"

#include "core/cp1252.h"
#include "core/laufzeitfehler.h"
#include "nachweishilfe.h"
#include "records/voeinsatz.h"
#include "start/jahressaetze.h"
#include "testhilfe.h"

#include <gtest/gtest.h>

namespace lonvir {
namespace {

using test::spalten;

std::string feld(const std::string& utf8, std::size_t laenge) {
    std::string roh = utf8NachCp1252(utf8);
    roh.resize(laenge, ' ');
    return roh;
}

// A BAT employee's January as the screen shows it: basic pay and a general allowance.
struct Statement : ::testing::Test {
    test::Umgebung u;
    Schirmtexte b;

    Statement() {
        Sitzung& s = u.s;
        s.dienststelle1 = feld("Stadtverwaltung Musterstadt", 40);
        s.dienststelle2 = feld("Personalamt", 40);
        s.dienststellenort = feld("Musterstadt", 20);
        s.bdabeginn = "05.1990";
        s.aktuelleperson = 1;
        Voeinsatz v;
        v.berichtszeile = feld("Bei Fragen: Zimmer 12", 100);
        std::array<std::uint8_t, Voeinsatz::laenge> satz{};
        v.schreiben(satz);
        s.datei(datei::voe).schreiben(1, satz);
        Jahressatz karte;
        karte.setzen(14, "Gültig bis auf Widerruf");
        jahressatzschreiben(s, 1, karte);

        b.z[0] = "Muster, Max";
        b.z[1] = "Dienstaltersstufe ab dem";
        b.z[2] = "West";
        b.z[4] = "Angestellte BAT VKA";
        b.z[5] = "BAT Vc";
        b.z[6] = "Sachbearbeiter";
        b.z[7] = "Stufe 5";
        b.z[9] = "Allg. Stellenzulage";
        b.z[20] = "Januar 1997";
        b.z[23] = "Steuerfreibetrag  ";
        b.z[24] = "kein Sachbezug";
        b.z[25] = "ZVK-Umlage und noch mehr Text";
        b.t[0] = "38,50";
        b.t[1] = "38,50";
        b.t[2] = "30";
        b.t[3] = "30";
        b.t[7] = "2.889,59+";
        b.t[9] = "188,36+";
        b.t[20] = "3.077,95+";
        b.t[21] = "3.077,95+";
        b.t[22] = "3.077,95+";
        b.t[23] = "0,00±";
        b.t[24] = "0,00±";
        b.t[25] = "0,00±";
        s.wert[7] = 288959;
        s.wert[9] = 18836;
        s.wert[20] = 307795;
        s.wert[22] = 307795;
    }

    std::vector<std::string> drucken(int form) {
        Merkdrucker d;
        gehaltdrucken(u.s, b, form, d);
        EXPECT_EQ(d.dokumente.size(), 1u);
        std::vector<std::string> zeilen;
        for (std::size_t i = 0; i < d.dokumente.at(0).zeilen.size(); ++i)
            zeilen.push_back(d.zeile(0, i));
        letzte = d.dokumente.at(0);
        return zeilen;
    }

    Druckdokument letzte;
};

const std::string unterstriche(50, '_');
const std::string gleich(50, '=');

std::vector<std::string> bruttoblock() {
    return {
        "",
        "",
        spalten({{12, "Stadtverwaltung Musterstadt"}, {60, "Musterstadt"}}),
        spalten({{12, "Personalamt"}}),
        "",
        "",
        spalten({{9, "JANUAR 1997 für Muster, Max"}}),
        "",
        spalten({{10, "West"}}),
        spalten({{10, "Angestellte BAT VKA"}}),
        spalten({{10, "BAT Vc"}}),
        spalten({{10, "Sachbearbeiter"}}),
        spalten({{10, "Stufe 5"}}),
        // Value texts end in column 59: "0,00±" has five characters and starts in 55.
        spalten({{10, "Steuerfreibetrag"}, {55, "0,00±"}}),
        spalten({{10, "kein Sachbezug"}, {55, "0,00±"}}),
        // Row 25 cut to 20 characters.
        spalten({{10, "ZVK-Umlage und noch "}, {55, "0,00±"}}),
        // Row 1 cut to 17 characters, the service age behind "01.".
        spalten({{10, "Dienstaltersstufe"}, {50, "01.05.1990"}}),
        "",
        spalten({{10, unterstriche}}),
        spalten({{10, "Stufe 5"}, {45, "DM"}, {51, "2.889,59+"}}),
        spalten({{10, "Allg. Stellenzulage"}, {45, "DM"}, {53, "188,36+"}}),
        spalten({{10, gleich}}),
        spalten({{10, "Januar 1997"}, {45, "DM"}, {51, "3.077,95+"}}),
        spalten({{10, "für 38,50 Wochenstunden von 38,50"}, {45, "DM"}, {51, "3.077,95+"}}),
        spalten({{10, "für 30 Tage von 30 Tagen"}, {45, "DM"}, {51, "3.077,95+"}}),
        spalten({{10, gleich}}),
        "",
        "",
    };
}

std::vector<std::string> schluss() {
    return {"", spalten({{10, "Bei Fragen: Zimmer 12"}}),
            spalten({{10, "Gültig bis auf Widerruf"}})};
}

TEST_F(Statement, Form1EndetNachDemBruttoblock) {
    std::vector<std::string> erwartet = bruttoblock();
    for (const std::string& z : schluss())
        erwartet.push_back(z);
    EXPECT_EQ(drucken(nurbrutto), erwartet);
    EXPECT_EQ(letzte.ausrichtung, hochformat);
    // Header 12 in form 1, the title 14 bold, the body 12; the month's block bold.
    EXPECT_EQ(letzte.zeilen[2].stuecke[0].groesse, 12.0F);
    EXPECT_EQ(letzte.zeilen[6].stuecke[0].groesse, 14.0F);
    EXPECT_TRUE(letzte.zeilen[6].stuecke[0].fett);
    EXPECT_EQ(letzte.zeilen[8].stuecke[0].groesse, 12.0F);
    EXPECT_FALSE(letzte.zeilen[19].stuecke[0].fett);
    EXPECT_TRUE(letzte.zeilen[22].stuecke[0].fett);
    EXPECT_TRUE(letzte.zeilen[24].stuecke[0].fett);
    EXPECT_FALSE(letzte.zeilen[29].stuecke[0].fett);
}

TEST_F(Statement, TeilzeitInProzentUndUeberstunden) {
    u.s.merkmal[21] = 1;
    b.t[1] = "50,0";
    b.t[0] = "100,0";
    u.s.wert[16] = 15750;
    b.t[4] = "5,00+";
    b.t[5] = "31,50+";
    b.t[16] = "157,50+";
    const std::vector<std::string> z = drucken(nurbrutto);
    // "5,00 Überstunden zu DM " at 10 ends in 32; the rate at 36, "= DM" at 43, the value
    // of seven characters at 53.
    EXPECT_EQ(
        z.at(21),
        spalten({{10, "5,00 Überstunden zu DM "}, {36, "31,50+"}, {43, "= DM"}, {53, "157,50+"}}));
    EXPECT_EQ(z.at(24),
              spalten({{10, "für 50,0 % Teilzeit von 100,0"}, {45, "DM"}, {51, "3.077,95+"}}));
}

TEST_F(Statement, EinLangerTextSchiebtDenBetragInDieNaechsteZeile) {
    b.z[8] = "Ortszuschlag Stufe 2 verheiratet mit Kind";
    b.t[8] = "810,61+";
    u.s.wert[8] = 81061;
    const std::vector<std::string> z = drucken(nurbrutto);
    // The label of 41 characters ends in column 50, past the "DM" of 45: "DM" and the value
    // go to the next line, and the rest of the row follows there.
    EXPECT_EQ(z.at(20), spalten({{10, "Ortszuschlag Stufe 2 verheiratet mit Kind"}}));
    EXPECT_EQ(z.at(21), spalten({{45, "DM"}, {53, "810,61+"}}));
    EXPECT_EQ(z.at(22), spalten({{10, "Allg. Stellenzulage"}, {45, "DM"}, {53, "188,36+"}}));
}

// The net block of a month with wage tax and the four insurance rows.
void abzuege(Statement& t) {
    Sitzung& s = t.u.s;
    s.wert[33] = -67683;
    s.wert[37] = -26053;
    s.wert[45] = 230279;
    t.b.z[33] = "Lohnsteuer Stkl. I, Kinderfreibeträge 0 und mehr";
    t.b.t[33] = "676,83-";
    t.b.z[37] = "AOK Niedersachsen 13,40 %";
    t.b.t[37] = "260,53-";
    t.b.z[38] = "Pflegeversicherung 1,7 % / 2"; // no amount: not printed
    t.b.t[45] = "2.302,79+";
}

std::vector<std::string> nettoblock() {
    return {
        // Row 33 cut to 35 characters.
        spalten({{10, "Lohnsteuer Stkl. I, Kinderfreibeträ"}, {45, "DM"}, {53, "676,83-"}}),
        spalten({{10, "AOK Niedersachsen 13,40 %"}, {45, "DM"}, {53, "260,53-"}}),
        spalten({{10, gleich}}),
        spalten({{10, "A U S Z A H L U N G  "}, {45, "DM"}, {51, "2.302,79+"}}),
        spalten({{10, gleich}}),
        "",
        "",
    };
}

// Nine blanks at 12 points are 64.8 points: column 14 of the 8.25 font.
const std::string ankreuzzeile =
    spalten({{14, "( ) Eine Übersicht über die Berechnung der Abzüge liegt bei."}});

TEST_F(Statement, Form2MitAbzuegenUndAnkreuzzeile) {
    abzuege(*this);
    std::vector<std::string> erwartet = bruttoblock();
    for (const std::string& z : nettoblock())
        erwartet.push_back(z);
    erwartet.push_back(ankreuzzeile);
    for (const std::string& z : schluss())
        erwartet.push_back(z);
    EXPECT_EQ(drucken(bruttonetto), erwartet);
    EXPECT_EQ(letzte.zeilen[2].stuecke[0].groesse, 9.0F); // header 9 in forms 2 and 3
    const Druckstueck& kreuz = letzte.zeilen[35].stuecke.back();
    EXPECT_EQ(kreuz.groesse, 8.25F);
    EXPECT_NEAR(kreuz.x, 64.8, 1e-9);
    // The empty line before the closing texts still at 8.25, the texts at 12.
    EXPECT_EQ(letzte.zeilen[36].hoehe, 8.25F);
    EXPECT_EQ(letzte.zeilen[37].stuecke[0].groesse, 12.0F);
}

TEST_F(Statement, Form3OhneKvAnteilZeigtKeinenDerVierAnteileDochDieSummeZaehltSie) {
    abzuege(*this);
    Sitzung& s = u.s;
    s.nebenwert[0] = 0;
    s.nebenwert[1] = 2616;
    s.nebenwert[2] = 30000;
    s.nebenwert[3] = 10000;
    const std::vector<std::string> z = drucken(mitarbeitgeber);
    std::vector<std::string> erwartet = bruttoblock();
    for (const std::string& n : nettoblock())
        erwartet.push_back(n);
    // 3077.95 + 26.16 + 300.00 + 100.00 = 3504.11 DM.
    for (const std::string& n :
         {spalten({{10, "ARBEITGEBERAUFWAND:"}}),
          spalten({{10, "Bruttogehalt"}, {45, "DM"}, {51, "3.077,95+"}}), spalten({{10, gleich}}),
          spalten({{10, "ARBEITGEBERAUFWAND INSGESAMT"}, {45, "DM"}, {51, "3.504,11+"}}),
          spalten({{10, gleich}}), ankreuzzeile})
        erwartet.push_back(n);
    for (const std::string& n : schluss())
        erwartet.push_back(n);
    EXPECT_EQ(z, erwartet);
}

TEST_F(Statement, Form3MitAnteilenUmlageUndUebernommenenSteuern) {
    abzuege(*this);
    Sitzung& s = u.s;
    s.nebenwert[0] = 26053;
    s.nebenwert[1] = 3305;
    s.nebenwert[2] = 39469;
    s.nebenwert[3] = 12638;
    s.nebenwert[5] = 1500;
    s.wert[31] = 14000;
    s.wert[32] = 2000;
    b.z[25] = "  ZVK-Umlage ";
    const std::vector<std::string> z = drucken(mitarbeitgeber);
    // From line 35 on: after the net block.
    const std::vector<std::string> erwartet = {
        spalten({{10, "ARBEITGEBERAUFWAND:"}}),
        spalten({{10, "Bruttogehalt"}, {45, "DM"}, {51, "3.077,95+"}}),
        spalten({{10, "+ AG-Anteil Krankenversicherung"}, {45, "DM"}, {53, "260,53+"}}),
        spalten({{10, "+ AG-Anteil Pflegeversicherung"}, {45, "DM"}, {54, "33,05+"}}),
        spalten({{10, "+ AG-Anteil Rentenversicherung"}, {45, "DM"}, {53, "394,69+"}}),
        spalten({{10, "+ AG-Anteil Arbeitslosenvers."}, {45, "DM"}, {53, "126,38+"}}),
        spalten({{10, "+ ZVK-Umlage"}, {45, "DM"}, {53, "140,00+"}}),
        // 20.00 + 15.00 DM
        spalten({{10, "+ Übernommene Steuern"}, {45, "DM"}, {54, "35,00+"}}),
        spalten({{10, gleich}}),
        // 3077.95 + 260.53 + 33.05 + 394.69 + 126.38 + 15.00 + 140.00 + 20.00 = 4067.60
        spalten({{10, "ARBEITGEBERAUFWAND INSGESAMT"}, {45, "DM"}, {51, "4.067,60+"}}),
        spalten({{10, gleich}}),
        ankreuzzeile,
    };
    ASSERT_GE(z.size(), 35u + erwartet.size());
    EXPECT_EQ(std::vector<std::string>(z.begin() + 35, z.begin() + 35 + 12), erwartet);
}

TEST_F(Statement, DieSummeDesArbeitgeberaufwandsLaeuftUeber) {
    abzuege(*this);
    u.s.wert[22] = 2147000000;
    u.s.nebenwert[0] = 483647;
    u.s.nebenwert[1] = 1;
    Merkdrucker d;
    EXPECT_THROW(gehaltdrucken(u.s, b, mitarbeitgeber, d), Laufzeitfehler);
}

TEST_F(Statement, EinMonatAusserhalbDesJahresDrucktDenTitelOhneMonatswort) {
    b.z[20].clear(); // the month list shows no entry
    const std::vector<std::string> z = drucken(nurbrutto);
    EXPECT_EQ(z.at(6), spalten({{9, " für Muster, Max"}}));
}

} // namespace
} // namespace lonvir
