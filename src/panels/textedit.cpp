// The text editor: a record by the scroll bar, its block's caption, Enter to store, the red
// warning past 35 characters, and the search with "Weiter".
#include "panels/textedit.h"

#include "core/cp1252.h"
#include "panels/namen.h"
#include "panels/textgruppen.h"
#include "start/texte.h"

namespace lonvir {

namespace {

constexpr std::size_t textlaenge = 35;
constexpr int letzterSatz = 6000;

std::string getrimmt(const std::string& t) {
    const auto anfang = t.find_first_not_of(' ');
    if (anfang == std::string::npos)
        return {};
    return t.substr(anfang, t.find_last_not_of(' ') - anfang + 1);
}

// The byte position of the last `n` characters of a UTF-8 text.
std::string letztezeichen(const std::string& t, std::size_t n) {
    std::size_t zeichen = zeichenzahl(t);
    std::size_t i = 0;
    while (zeichen > n && i < t.size()) {
        ++i;
        while (i < t.size() && (static_cast<unsigned char>(t[i]) & 0xC0) == 0x80)
            ++i;
        --zeichen;
    }
    return t.substr(i);
}

// The first character that code page 1252 cannot hold; empty when there is none.
std::string fremdeszeichen(const std::string& t) {
    for (std::size_t i = 0; i < t.size();) {
        std::size_t j = i + 1;
        while (j < t.size() && (static_cast<unsigned char>(t[j]) & 0xC0) == 0x80)
            ++j;
        const std::string zeichen = t.substr(i, j - i);
        if (cp1252NachUtf8(utf8NachCp1252(zeichen)) != zeichen)
            return zeichen;
        i = j;
    }
    return {};
}

unsigned char klein(unsigned char c) {
    if ((c >= 'A' && c <= 'Z') || (c >= 0xC0 && c <= 0xDE && c != 0xD7))
        return static_cast<unsigned char>(c + 0x20);
    if (c == 0x8A || c == 0x8C || c == 0x8E)
        return static_cast<unsigned char>(c + 0x10);
    if (c == 0x9F)
        return 0xFF;
    return c;
}

std::string kleingeschrieben(const std::string& utf8) {
    std::string t = utf8NachCp1252(utf8);
    for (char& c : t)
        c = static_cast<char>(klein(static_cast<unsigned char>(c)));
    return t;
}

std::vector<std::string> erklaerung(Sitzung& s, int von, int bis) {
    std::vector<std::string> zeilen;
    for (int nummer = von; nummer <= bis; ++nummer)
        zeilen.push_back(textgetrimmt(s, nummer));
    while (!zeilen.empty() && zeilen.back().empty())
        zeilen.pop_back();
    return zeilen;
}

} // namespace

const std::vector<Textmenue>& textmenues() {
    static const std::vector<Textmenue> menues = {
        {"MNamen", "Namen eingeben", 5001, 6000},
        {"MTKostenstellen", "Kostenstellen", 4801, 5000},
        {"MTa", "Dienstbez. Bes.Ordn. A", 1, 530},
        {"MTB", "Dienstbez. Bes.Ordn. B", 531, 850},
        {"MTC", "Dienstbez. Bes.Ordn. C", 851, 890},
        {"MTR", "Dienstbez. Bes.Ordn. R", 891, 1080},
        {"MTAnwärter", "Dienstbez. Anwärter", 1091, 1100},
        {"MTBAT", "Dienstbez. BAT (B/L, VKA)", 1101, 1430},
        {"MTPflege", "Dienstbez. Pflegedienst", 1431, 1570},
        {"MTArbeiter", "Dienstbez. Arbeiter", 1571, 1740},
        {"MTFahrer", "Dienstbez. Kraftfahrer", 1741, 1788},
        {"MTAzubi", "Dienstbez. Auszubildende", 1791, 1825},
        {"MTKirche", "Dienstbez. AVR-Kirche (BAT)", 1831, 2030},
        {"MTAVRC", "Dienstbez. AVR-Caritas", 2041, 2240},
        {"MTAVRP", "Dienstbez. AVR-Parit.", 2251, 2510},
        {"MTBahn", "Dienstbez. Deutsche Bahn", 2521, 2670},
        {"MTAussertar", "Dienstbez. Außertarifl.Bed.", 2681, 2880},
        {"MTZulagen", "Bezeichnungen der Zulagen", 3390, 3449},
        {"MTeinmalige", "Bez.d.einmaligen Zuwendungen", 3472, 3486},
        {"MTEinbehalte", "Bez. der Einbehalte", 3713, 3742},
        {"MTalles", "Alles", 1, 6000},
    };
    return menues;
}

Textedit::Textedit(Sitzung& sitzung, std::int16_t von, std::int16_t bis, Hauptbildauftrag a)
    : s(sitzung), auftrag(std::move(a)), textvon(von), textbis(bis) {
    if (von < 1 || bis > letzterSatz || bis < von)
        throw Laufzeitfehler::indexfehler();
    // Form_Load: the explanation by range.
    if (textvon == 1 && textbis == letzterSatz)
        Label1 = erklaerung(s, 3861, 3869);
    else if (textvon == 5001)
        Label1 = erklaerung(s, 3870, 3885);
    else
        Label1 = erklaerung(s, 3886, 3901);
    // Form_Activate.
    HScroll1.minimum = textvon;
    HScroll1.maximum = textbis;
    HScroll1.wert = textvon;
    aufstocken();
}

void Textedit::hscroll1_change(int wert) {
    if (wert < HScroll1.minimum || wert > HScroll1.maximum)
        return; // a scroll bar takes no value outside its range
    HScroll1.wert = wert;
    aufstocken();
}

void Textedit::aufstocken() {
    Text1 = textgetrimmt(s, HScroll1.wert);
    Text1farbe = 0;
    const int gruppe = textgruppe(HScroll1.wert);
    Label3 = gruppe > 0 ? textgetrimmt(s, gruppe) : std::string();
    kopf = Label3 + "  (Satz " + std::to_string(HScroll1.wert) + ")";
}

void Textedit::text1_KeyDown(int taste) {
    if (taste != 13)
        return;
    gespeichert = false;
    // Only Enter cuts, and it keeps the right end.
    std::string text = getrimmt(Text1);
    if (zeichenzahl(text) > textlaenge)
        text = letztezeichen(text, textlaenge);
    const std::string fremd = fremdeszeichen(text);
    if (!fremd.empty()) {
        if (s.dialoge)
            s.dialoge->zeigen({"Texte editieren",
                               "Das Zeichen \"" + fremd +
                                   "\" kann in der Texttabelle nicht gespeichert werden. Der "
                                   "Text bleibt, wie er war.",
                               Symbol::ausruf, Knoepfe::ok});
        return;
    }
    textschreiben(s, HScroll1.wert, text);
    gespeichert = true;
    // The main screen follows at once; a new name gets its records first.
    if (HScroll1.wert >= textnummer::ersterName)
        namenzaehlen(s);
    if (auftrag.listenauffrischen)
        auftrag.listenauffrischen();
    if (HScroll1.wert < HScroll1.maximum)
        ++HScroll1.wert;
    aufstocken();
}

void Textedit::text1_KeyUp() {
    Text1farbe = zeichenzahl(getrimmt(Text1)) > textlaenge ? 12 : 0;
}

void Textedit::Text2_KeyPress(int taste) {
    if (taste == 13)
        suchen(HScroll1.minimum);
}

void Textedit::Command1_Click() {
    if (HScroll1.wert >= letzterSatz)
        return;
    suchen(HScroll1.wert + 1);
}

// From record `ab` to the end of the range, at the latest record 6000.
void Textedit::suchen(int ab) {
    sanduhr = true;
    const int bis = HScroll1.maximum < letzterSatz ? HScroll1.maximum : letzterSatz;
    for (int nummer = ab; nummer <= bis; ++nummer) {
        suchposition = nummer;
        if (textenthaelt(textgetrimmt(s, nummer), Text2)) {
            sanduhr = false;
            hscroll1_change(nummer);
            return;
        }
    }
    sanduhr = false;
    if (s.dialoge)
        s.dialoge->zeigen({"Suchen", "Leider nicht gefunden", Symbol::ausruf, Knoepfe::ok});
}

void Textedit::command2_Click() {
    namenzaehlen(s);
    Form_Unload();
}

void Textedit::Form_Unload() {
    if (geschlossen)
        return;
    geschlossen = true;
    if (auftrag.listenauffrischen)
        auftrag.listenauffrischen();
}

bool textenthaelt(const std::string& text, const std::string& suchtext) {
    return kleingeschrieben(getrimmt(text)).find(kleingeschrieben(getrimmt(suchtext))) !=
           std::string::npos;
}

} // namespace lonvir
