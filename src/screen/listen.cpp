// The lists of the rows: the fixed ones filled once, the others by staff class, group and month.
#include "screen/form1.h"
#include "screen/listenbereiche.h"
#include "screen/stufenliste.h"
#include "start/texte.h"

#include <utility>

namespace lonvir {

namespace {

bool ab1997Juli(const Sitzung& s) {
    return !s.ist1997() || s.merkmal[20] >= 6;
}

// A rate of the settings as the lists show it: the whole contribution with one decimal.
std::string satztext(Currency halbersatz) {
    const std::int64_t zehntel = (halbersatz + halbersatz).roh() / 1000;
    return std::to_string(zehntel / 10) + "," + std::to_string(zehntel % 10);
}

// The year of the set in a month entry: a year in the text is replaced, else appended.
std::string mitjahr(const std::string& text, int jahr) {
    const std::string j = std::to_string(jahr == 0 ? 1997 : jahr);
    if (text.size() >= 4 && text.compare(text.size() - 4, 2, "19") == 0)
        return text.substr(0, text.size() - 4) + j;
    return text.empty() ? j : text + " " + j;
}

} // namespace

void Form1::listesetzen(int zeile, std::vector<std::string> eintraege) {
    Bildzeile& z = bild.zeilen[static_cast<std::size_t>(zeile)];
    if (z.liste != eintraege) {
        z.liste = std::move(eintraege);
        ++z.listenstand;
    }
}

void Form1::textlistesetzen(int zeile, int anfang, int ende) {
    std::vector<std::string> eintraege;
    for (int nummer = anfang; nummer <= ende; ++nummer)
        eintraege.push_back(textgetrimmt(s, nummer));
    listesetzen(zeile, std::move(eintraege));
}

void Form1::listenfuellen() {
    for (Bildzeile& z : bild.zeilen)
        listesetzen(static_cast<int>(&z - bild.zeilen.data()), {});
    listesetzen(1, {"Bes.dienstalter  (MM.19JJ)", "Verg.dienstalter (MM.19JJ)",
                    "Dienstalterstufe n.Angabe", "Dienstalter nicht erforderlich"});
    textlistesetzen(2, 3321, 3322);
    textlistesetzen(3, 3323, 3326);
    textlistesetzen(4, 3301, 3319);
    listesetzen(10, {"Überleitungszulage", "Überleitungszulage nach Angabe"});
    textlistesetzen(12, 3390, 3449);
    listesetzen(13, bild.zeilen[12].liste);
    listesetzen(14, bild.zeilen[12].liste);
    textlistesetzen(15, 3450, 3456);
    listesetzen(16, {"Überstunden", "Stunden"});
    textlistesetzen(17, 3460, 3461);
    textlistesetzen(18, 3464, 3471);
    textlistesetzen(19, 3472, 3486);
    listesetzen(21, {"Wochenstd. von normal", "Prozent von normal"});
    listesetzen(22, {"Tage von normal"});
    listesetzen(23, {"Steuerfreibetrag"});
    textlistesetzen(24, 4111, 4119);
    textlistesetzen(25, 3552, 3554);
    textlistesetzen(26, 4050, 4053);
    textlistesetzen(28, 3538, 3544);
    textlistesetzen(29, 3547, 3549);
    listesetzen(30, {"Mit LSt.jahresausgl. des AG im Dez.", "Ohne LSt.jahresausgl. d. AG im Dez."});
    textlistesetzen(31, 3536, 3537);
    textlistesetzen(32, 4120, 4123);
    // Tax classes and child allowances: 50 entries, the last "keine Lohnsteuer".
    textlistesetzen(33, 3564, 3613);
    textlistesetzen(34, 3614, 3620);
    textlistesetzen(35, 3621, 3621);
    textlistesetzen(36, 3623, 3626);
    textlistesetzen(41, 3713, 3742);
    for (int zeile = 42; zeile <= 44; ++zeile)
        listesetzen(zeile, bild.zeilen[41].liste);
    listesetzen(45, {"A U S Z A H L U N G"});
}

void Form1::namensliste() {
    textlistesetzen(0, textnummer::ersterName, textnummer::ersterName - 1 + s.anzahlnamen);
}

void Form1::personalartlisten() {
    gruppenliste();
    amtsliste();
    stufenliste();
    familienliste();
    stellenzulageliste();
    zulagenliste();
    monatsliste();
}

void Form1::gruppenliste() {
    const Textbereich b = gruppenbereich(s.personalart(), s.jahr);
    textlistesetzen(5, b.anfang, b.ende);
}

void Form1::amtsliste() {
    const std::vector<Textbereich> bloecke = amtsbloecke(s.personalart());
    if (bloecke.empty()) {
        listesetzen(6, {});
        return;
    }
    const int letzter = static_cast<int>(bloecke.size()) - 1;
    if (s.merkmal[5] > letzter)
        s.merkmal[5] = static_cast<std::int16_t>(letzter);
    const Textbereich b = bloecke[static_cast<std::size_t>(s.merkmal[5] < 0 ? 0 : s.merkmal[5])];
    textlistesetzen(6, b.anfang, b.ende);
}

void Form1::stufenliste() {
    lonvir::stufenliste(s);
    listesetzen(7, stufentexte(s));
    bild.zeilen[7].aktiv = s.stufen.aktiv;
}

void Form1::familienliste() {
    const Textbereich b = familienbereich(s.personalart(), ab1997Juli(s));
    textlistesetzen(8, b.anfang, b.ende);
}

void Form1::stellenzulageliste() {
    textlistesetzen(9, 3382, 3384);
}

void Form1::zulagenliste() {
    const Textbereich b = zulagenbereich(s.personalart());
    textlistesetzen(11, b.anfang, b.ende);
}

void Form1::monatsliste() {
    const Textbereich b = monatsbereich(s.personalart());
    std::vector<std::string> eintraege;
    for (int nummer = b.anfang; nummer <= b.ende; ++nummer)
        eintraege.push_back(mitjahr(textgetrimmt(s, nummer), s.jahr));
    listesetzen(20, std::move(eintraege));
}

void Form1::kvliste() {
    // The 28 funds with the month's rate, then the typed subsidy and "none".
    const int monat = s.merkmal[20] < 12 ? s.merkmal[20] : 11;
    std::vector<std::string> eintraege;
    for (int kasse = 0; kasse <= 27; ++kasse) {
        std::string text = textgetrimmt(s, 3628 + kasse);
        // The rate is held in hundredths of a percent: 1350 is 13,50 %.
        const std::int64_t satz = s.kvsatz[monat][kasse].roh() / Currency::skala;
        if (satz > 0)
            text += " " + std::to_string(satz / 100) + "," + (satz % 100 < 10 ? "0" : "") +
                    std::to_string(satz % 100) + " %";
        eintraege.push_back(std::move(text));
    }
    eintraege.push_back(textgetrimmt(s, 3656));
    eintraege.push_back(textgetrimmt(s, 3657));
    listesetzen(37, std::move(eintraege));
}

void Form1::beitragslisten() {
    const Einstellungswerte& e = s.einstellungen;
    const std::string pv = satztext(e.pvsatz);
    // Entry 3: the employee pays 1 %, the employer the rest of the whole rate.
    const std::string pvrest = satztext(e.pvsatz - Currency::roh(Currency::skala / 2));
    std::vector<std::string> pflege;
    for (int k = 0; k <= 6; ++k) {
        const std::string text = textgetrimmt(s, 3696 + k);
        if (k == 1)
            pflege.push_back(text + " 1 % von " + pv);
        else if (k == 3)
            pflege.push_back(text + " " + pvrest + " % von " + pv);
        else if (k == 4 || k == 6)
            pflege.push_back(text);
        else
            pflege.push_back(text + " " + pv + " % / 2");
    }
    listesetzen(38, std::move(pflege));
    const std::pair<int, Currency> zweige[] = {{39, e.rvsatz}, {40, e.avsatz}};
    for (const auto& [zeile, satz] : zweige) {
        const int erster = zeile == 39 ? 3703 : 3708;
        listesetzen(zeile, {textgetrimmt(s, erster) + " " + satztext(satz) + " % / 2",
                            textgetrimmt(s, erster + 1)});
    }
}

} // namespace lonvir
