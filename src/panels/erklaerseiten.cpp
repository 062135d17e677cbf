// Pages 6, 29 and 8 (supplementary pension): one row per working step of the engine, its
// caption the text record at the page's base plus the step's position.
#include "core/betragstext.h"
#include "panels/seiten.h"
#include "start/texte.h"

#include <cstdio>

namespace lonvir {

void erklaerzeile(Tablett& t, int i, const std::string& text,
                  const std::optional<std::int32_t>& betrag) {
    const int oben = seitenlage::anfang + i * seitenlage::abstand;
    const int kastenlinks = t.Tablettbreite - seitenlage::kastenbreite - 100;
    Tablettzeile& z = t.zeile[i];
    z.text = text;
    z.lage = {seitenlage::links, oben, kastenlinks - seitenlage::links - 50, seitenlage::abstand};
    z.sichtbar = true;
    Tablettkasten& k = t.kasten[i];
    k.lage = {kastenlinks, oben, seitenlage::kastenbreite, seitenlage::abstand};
    k.text = betrag ? betragstext(*betrag) : std::string();
    k.sichtbar = betrag.has_value();
}

void ueberschrift(Tablett& t, const std::string& text) {
    erklaerzeile(t, 0, text, std::nullopt);
    t.zeile[0].fett = true;
}

namespace {

constexpr int lohnsteuertexte = 3743;
constexpr int sozialtexte = 3773;
constexpr int zvktexte = 3803;

// Position 13 of lstwert heads the one-off part and bears no amount.
constexpr int sonstigebezuege = 13;

void zeilenaus(Tablett& t, int basis, int letzte) {
    ueberschrift(t, textlesen(t.s, basis));
    for (int i = 1; i <= letzte; ++i)
        erklaerzeile(t, i, textlesen(t.s, basis + i), std::nullopt);
}

void betraegeaus(Tablett& t, const Feld<std::int32_t, 0, 27>& werte, int letzte) {
    for (int i = 1; i <= letzte; ++i) {
        t.kasten[i].text = betragstext(werte[i]);
        t.kasten[i].sichtbar = true;
    }
}

// A number as a text with a decimal comma and no trailing zeros: 450 / 100 is "4,5".
std::string kommazahl(std::int32_t hundertstel) {
    const std::int32_t ganz = hundertstel / 100;
    std::int32_t rest = hundertstel % 100;
    if (rest < 0)
        rest = -rest;
    std::string text = (hundertstel < 0 && ganz == 0 ? "-" : "") + std::to_string(ganz);
    if (rest == 0)
        return text;
    char nachkomma[4];
    std::snprintf(nachkomma, sizeof nachkomma, "%02d", rest);
    std::string n = nachkomma;
    if (n.back() == '0')
        n.pop_back();
    return text + "," + n;
}

} // namespace

void lohnsteuerzeilen(Tablett& t) {
    zeilenaus(t, lohnsteuertexte, 27);
    t.zeile[sonstigebezuege].fett = true;
}

void lohnsteuerbetraege(Tablett& t) {
    betraegeaus(t, t.s.lstwert, 27);
    t.kasten[sonstigebezuege].sichtbar = false;
}

void sozialzeilen(Tablett& t) {
    zeilenaus(t, sozialtexte, 27);
    t.zeile[0].text = "S O Z I A L V E R S I C H E R U N G";
    t.Command3.text = "Hilfe";
    t.Command3.lage = {seitenlage::links, seitenlage::anfang + 28 * seitenlage::abstand + 60, 1100,
                       300};
    t.Command3.sichtbar = true;
}

void sozialbetraege(Tablett& t) {
    betraegeaus(t, t.s.svwert, 27);
}

void zvkzeilen(Tablett& t) {
    zeilenaus(t, zvktexte, 25);
    t.zeile[0].text = "Z U S A T Z V E R S O R G U N G";
    // The rate and the ceiling are written into their captions.
    t.zeile[9].text += "  (" + kommazahl(t.s.wert[25]) + " %)";
    t.zeile[10].text += kommazahl(t.s.stufengrenze) + " DM,";
}

void zvkbetraege(Tablett& t) {
    betraegeaus(t, t.s.zvkwert, 25);
}

} // namespace lonvir
