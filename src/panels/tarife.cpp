// The tariff editor: reading a line, the group buttons, West and Ost, and the entry of one
// amount with its way through the later tables of the year.
#include "panels/tarife.h"

#include "core/pfennig.h"
#include "engine/tarifdatei.h"
#include "start/dateisatz.h"
#include "start/texte.h"

#include <array>

namespace lonvir {

namespace {

constexpr std::array<const char*, 27> spalten = {
    "Stufe 1",       "Stufe 2",      "Stufe 3",  "Stufe 4",       "Stufe 5",
    "Stufe 6",       "Stufe 7",      "Stufe 8",  "Stufe 9",       "Stufe 10",
    "Stufe 11",      "Stufe 12",     "Stufe 13", "Stufe 14",      "Stufe 15 o.a.",
    "OZ-Grundbetr.", "Verh.Zuschl.", "1 Kind",   "2 Kinder",      "3 Kinder",
    "4 Kinder",      "5 Kinder",     "6 Kinder", "in Unterk. II", "in UnterK. Ic",
    "Allg.St.Zul.",  "Überst.Verg."};

struct Bereich {
    int von;
    int bis;
};

// The West lines a group button puts on the scroll bar. The Kraftfahrer of the Bund and of a
// Land start one line above the number in their caption, as their look-up does. Entries 18
// and 19 are reached by no button.
constexpr std::array<Bereich, 20> bereiche = {
    {{1, 21},    {23, 33},   {35, 38},   {40, 49},   {51, 56},   {58, 77},   {79, 95},
     {97, 111},  {112, 128}, {129, 146}, {147, 162}, {164, 179}, {181, 190}, {191, 210},
     {212, 228}, {233, 253}, {255, 269}, {271, 290}, {1, 290},   {152, 160}}};

constexpr int markierfarbe = 14; // the chosen button in yellow
constexpr int grau = 7;
constexpr int letzterTarif = 4;
constexpr std::int32_t zugrosseZahl = 9999999;
constexpr const char* zugrossText = "Enter a number less than 32.768";

// "1 9 9 7 _ 1": the digits of year and table spaced out.
std::string gesperrt(int jahr, int tabelle) {
    std::string t;
    for (const char c : std::to_string(jahr)) {
        t += c;
        t += ' ';
    }
    return t + "_ " + std::to_string(tabelle);
}

} // namespace

const char* tarifspalte(int feld) {
    if (feld < 0 || feld > 26)
        throw Laufzeitfehler::indexfehler();
    return spalten[static_cast<std::size_t>(feld)];
}

bool tarifseite(int seite) {
    return (seite >= 54 && seite <= 60) || seite == 62;
}

Tarife::Tarife(Sitzung& sitzung, int seite, Hauptbildauftrag a)
    : s(sitzung), auftrag(std::move(a)) {
    // By the page: the year and the table; table 1 gets two blanks before the parenthesis,
    // the others three.
    if (!tarifseite(seite))
        throw Laufzeitfehler::indexfehler();
    jahr = seite <= 57 ? 1997 : 1998;
    tariffilenummer = seite <= 57 ? seite - 53 : (seite == 62 ? 4 : seite - 57);
    ueberschrift = "LONVIR    " + gesperrt(jahr, tariffilenummer) +
                   (tariffilenummer == 1 ? "  " : "   ") + "(Grundgeh., OZ, Allg.St.Z.)";
    // The tables of the set that is open are its files 14 to 17; another year's are opened
    // here by name.
    const int offen = s.jahr == 1998 ? 1998 : 1997;
    eigenedateien_ = jahr != offen || !s.datei(datei::tarif1).offen();
    if (eigenedateien_)
        for (int k = 1; k <= letzterTarif; ++k)
            eigene_[static_cast<std::size_t>(k - 1)].oeffnen(
                s.ordner.pfad(dateiname(datei::tarif1 + k - 1, jahr, s.schicht)),
                Tarifsatz::laenge);
    for (int i = 0; i <= 17; ++i) {
        const Tarifblock& b = tarifblock(i);
        Schalter[i].text = std::string(b.schalter) + "  (" + std::to_string(b.ersterWest) + "/" +
                           std::to_string(b.ersterOst) + ")";
    }
    ostversatz = 0;
    schalter_Click(0);
}

Satzdatei& Tarife::datei(int nummer) {
    if (nummer < 1 || nummer > letzterTarif)
        throw Laufzeitfehler::indexfehler();
    if (eigenedateien_)
        return eigene_[static_cast<std::size_t>(nummer - 1)];
    return s.datei(datei::tarif1 + nummer - 1);
}

Tarifsatz Tarife::lesen(int nummer) {
    std::array<std::uint8_t, Tarifsatz::laenge> b{};
    datei(nummer).lesen(satznummer, b);
    return Tarifsatz::lesen(b);
}

void Tarife::schreiben(int nummer, const Tarifsatz& t) {
    std::array<std::uint8_t, Tarifsatz::laenge> b{};
    t.schreiben(b);
    datei(nummer).schreiben(satznummer, b);
}

void Tarife::schalter_Click(int index) {
    if (index < 0 || index >= static_cast<int>(bereiche.size()))
        throw Laufzeitfehler::indexfehler();
    schalter = index;
    for (int i = 0; i <= 17; ++i)
        Schalter[i].farbe = i == index ? markierfarbe : grau;
    const Bereich& b = bereiche[static_cast<std::size_t>(index)];
    HScroll1.minimum = b.von + ostversatz;
    HScroll1.maximum = b.bis + ostversatz;
    // The scroll bar keeps its value inside the new range, and shows the line it stands on.
    int wert = HScroll1.wert;
    if (wert < HScroll1.minimum)
        wert = HScroll1.minimum;
    if (wert > HScroll1.maximum)
        wert = HScroll1.maximum;
    hscroll1_change(wert);
}

void Tarife::hscroll1_change(int wert) {
    if (wert < HScroll1.minimum || wert > HScroll1.maximum)
        return; // a scroll bar takes no value outside its range
    HScroll1.wert = wert;
    recordlesen();
    satzanzeigen();
    if (HScroll1.wert > 65534)
        fokus = 0;
}

void Tarife::recordlesen() {
    satznummer = HScroll1.wert;
    const Tarifsatz t = lesen(tariffilenummer);
    for (int i = 0; i <= 26; ++i) {
        satzbild[i] = t.wert[i];
        fieldboxes[i] = std::to_string(t.wert[i]);
    }
}

void Tarife::satzanzeigen() {
    const int nummer = 3000 + HScroll1.wert - ostversatz;
    Panel3D2 = std::to_string(HScroll1.wert) + "  " + textgetrimmt(s, nummer) + "  |";
}

void Tarife::Option1_Click() {
    Option1 = true;
    Option2 = false;
    ostversatz = 0;
    schalter_Click(schalter);
}

void Tarife::Option2_Click() {
    Option1 = false;
    Option2 = true;
    ostversatz = 300;
    schalter_Click(schalter);
}

void Tarife::FieldBoxes_GotFocus(int feld) {
    fokus = feld;
    alleszeichen = true;
}

void Tarife::einzelzeile(int feld, std::int32_t wert, Tarifsatz& t) const {
    t.wert[feld] = wert;
}

// The entry runs through this table and every later one of the year: an entry in the first
// table reaches the second, third and fourth, an entry in the fourth stays there.
void Tarife::durchschreiben(int feld, std::int32_t wert) {
    for (int nummer = tariffilenummer; nummer <= letzterTarif; ++nummer) {
        Tarifsatz t = lesen(nummer);
        einzelzeile(feld, wert, t);
        schreiben(nummer, t);
    }
    satzbild[feld] = wert;
}

int Tarife::fieldboxes_KeyPress(int feld, int taste) {
    // 1. Only control keys and digits reach the field.
    if ((taste >= 32 && taste <= 47) || (taste >= 58 && taste <= 127))
        return 0;
    if (taste != 13)
        return taste;
    // 2.
    std::string& text = fieldboxes[feld];
    if (text.empty())
        text = "0";
    pieptoene = 0;
    gespeichert = false;
    // A text of eight characters or more is cleared with a long warning, and nothing stored.
    if (text.size() >= 8) {
        text.clear();
        pieptoene = 100;
        return 0;
    }
    // The limit of leaving the field holds before anything is stored.
    if (!fieldboxes_lostfocus(feld))
        return 0;
    // 3.
    const std::int32_t wert = pf::gerundet(textzahl(text));
    durchschreiben(feld, wert);
    gespeichert = true;
    if (betrifftaktuelleperson() && auftrag.bildauffrischen)
        auftrag.bildauffrischen();
    // 4. Fields 23 to 26 form a ring at the end of the line.
    int naechstes = feld + 1;
    if (naechstes == 27)
        naechstes = 23;
    FieldBoxes_GotFocus(naechstes);
    return 0;
}

bool Tarife::fieldboxes_lostfocus(int feld) {
    std::string& text = fieldboxes[feld];
    if (textzahl(text) >= zugrosseZahl) {
        if (s.dialoge)
            s.dialoge->zeigen({"", zugrossText, Symbol::ausruf, Knoepfe::ok});
        fokus = feld;
        return false;
    }
    text = tarifaufraeumen(text);
    return true;
}

// The month on the screen reads this line from one of the tables the entry changed: the
// person's line, a table of the year that is open, from this table on. For Besoldungsordnung A
// the 1997 tables of March and July also give the transition allowance.
bool Tarife::betrifftaktuelleperson() const {
    const int offen = s.jahr == 1998 ? 1998 : 1997;
    const int art = s.personalart();
    if (art < 0 || art > 18 || s.merkmal[20] < 0 || s.merkmal[20] > 11)
        return false;
    if (art == 0 && jahr == 1997 && tariffilenummer <= 3)
        return true;
    if (jahr != offen || satznummer != tarifsatznummer(s))
        return false;
    return tarifdatei(s) - datei::tarif1 + 1 >= tariffilenummer;
}

void Tarife::Command1_Click() {
    Form_Unload();
}

void Tarife::Form_Unload() {
    if (geschlossen)
        return;
    geschlossen = true;
    for (Satzdatei& d : eigene_)
        d.schliessen();
    // The set is opened again so that the calculation reads the new tables.
    dateienoeffnen(s);
}

std::string tarifaufraeumen(const std::string& text) {
    std::string t = text;
    const auto komma = t.find(',');
    if (komma != std::string::npos)
        t = t.substr(0, komma) + "." + t.substr(komma + 1, 2);
    const auto blank = t.find(' ', 1);
    if (blank != std::string::npos && blank != 0)
        t = t.substr(0, blank) + (t.size() >= 2 ? t.substr(t.size() - 2) : t);
    return t;
}

} // namespace lonvir
