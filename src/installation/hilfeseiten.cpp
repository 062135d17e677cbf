// Writing the help pages.
#include "installation/hilfeseiten.h"

#include "core/cp1252.h"
#include "core/laufzeitfehler.h"
#include "core/satzdatei.h"
#include "installation/quelltext.h"
#include "installation/tariftabellen.h"
#include "records/tarifsatz.h"
#include "records/textsatz.h"

#include <array>
#include <fstream>
#include <sstream>

namespace lonvir::installation {

namespace fs = std::filesystem;

namespace {

// First record of each staff class in the West half, as the look-up finds it, and its
// number of groups in the row 5 list.
struct Block {
    int basis;
    int gruppen;
    const char* name;
};
constexpr std::array<Block, 18> bloecke{{{1, 21, "Besoldungsordnung A"},
                                         {23, 11, "Besoldungsordnung B"},
                                         {35, 4, "Besoldungsordnung C"},
                                         {40, 10, "Besoldungsordnung R"},
                                         {51, 6, "Anwärter"},
                                         {58, 20, "BAT Bund/Länder"},
                                         {79, 17, "BAT VKA"},
                                         {97, 14, "BAT Kr (Pflegedienst)"},
                                         {112, 17, "Arbeiter"},
                                         {129, 18, "Kraftfahrer Bund"},
                                         {147, 16, "Kraftfahrer Land"},
                                         {164, 16, "Kraftfahrer VKA"},
                                         {181, 7, "Auszubildende"},
                                         {191, 20, "AVR Kirche"},
                                         {212, 20, "AVR Caritas"},
                                         {233, 21, "AVR Parität. Wohlfahrtsverband"},
                                         {255, 15, "Deutsche Bahn AG"},
                                         {271, 20, "Sondertarifliche Angestellte"}}};

std::string rechtsgetrimmt(std::string t) {
    t.erase(t.find_last_not_of(' ') + 1);
    return t;
}

std::string text(const Satzdatei& texte, int nummer) {
    std::array<std::uint8_t, Textsatz::laenge> b{};
    texte.lesen(nummer, b);
    return cp1252NachUtf8(rechtsgetrimmt(Textsatz::lesen(b).text));
}

// Pfennig as the tables print DM: "2.408,53".
std::string dm(std::int32_t pfennig) {
    const std::string ganz = std::to_string(pfennig / 100);
    std::string mitpunkten;
    for (std::size_t i = 0; i < ganz.size(); ++i) {
        if (i > 0 && (ganz.size() - i) % 3 == 0)
            mitpunkten += '.';
        mitpunkten += ganz[i];
    }
    const int rest = pfennig % 100;
    return mitpunkten + "," + (rest < 10 ? "0" : "") + std::to_string(rest);
}

std::string html(const std::string& t) {
    std::string aus;
    for (char c : t) {
        if (c == '<')
            aus += "&lt;";
        else if (c == '>')
            aus += "&gt;";
        else if (c == '&')
            aus += "&amp;";
        else
            aus += c;
    }
    return aus;
}

const std::array<const char*, 27> spalten{
    "Stufe 1",       "Stufe 2",      "Stufe 3",  "Stufe 4",       "Stufe 5",
    "Stufe 6",       "Stufe 7",      "Stufe 8",  "Stufe 9",       "Stufe 10",
    "Stufe 11",      "Stufe 12",     "Stufe 13", "Stufe 14",      "Stufe 15 o.a.",
    "OZ-Grundbetr.", "Verh.Zuschl.", "1 Kind",   "2 Kinder",      "3 Kinder",
    "4 Kinder",      "5 Kinder",     "6 Kinder", "in Unterk. II", "in UnterK. Ic",
    "Allg.St.Zul.",  "Überst.Verg."};

void blockschreiben(std::ostream& aus, const Satzdatei& tarif, const Satzdatei& texte,
                    const Block& block, bool ost) {
    std::vector<Tarifsatz> saetze;
    std::array<bool, 27> belegt{};
    for (int g = 0; g < block.gruppen; ++g) {
        std::array<std::uint8_t, Tarifsatz::laenge> b{};
        tarif.lesen(block.basis + g + (ost ? 300 : 0), b);
        saetze.push_back(Tarifsatz::lesen(b));
        for (int e = 0; e <= 26; ++e)
            belegt[static_cast<std::size_t>(e)] =
                belegt[static_cast<std::size_t>(e)] || saetze.back().wert[e] != 0;
    }
    aus << "<h2>" << html(block.name) << "</h2>\n";
    bool irgendeiner = false;
    for (bool b : belegt)
        irgendeiner = irgendeiner || b;
    if (!irgendeiner) {
        aus << "<p>Für diese Tabelle sind keine Beträge installiert (keine öffentliche Quelle "
               "gefunden, siehe QUELLEN.md).</p>\n";
        return;
    }
    aus << "<table border=\"1\" cellpadding=\"2\">\n<tr><th>Gruppe</th>";
    for (int e = 0; e <= 26; ++e)
        if (belegt[static_cast<std::size_t>(e)])
            aus << "<th>" << html(spalten[static_cast<std::size_t>(e)]) << "</th>";
    aus << "</tr>\n";
    for (int g = 0; g < block.gruppen; ++g) {
        aus << "<tr><td>" << html(text(texte, 3000 + block.basis + g)) << "</td>";
        for (int e = 0; e <= 26; ++e)
            if (belegt[static_cast<std::size_t>(e)]) {
                const std::int32_t w = saetze[static_cast<std::size_t>(g)].wert[e];
                aus << "<td align=\"right\">" << (w == 0 ? std::string() : dm(w)) << "</td>";
            }
        aus << "</tr>\n";
    }
    aus << "</table>\n";
}

void schreiben(const fs::path& datei, const std::string& inhalt) {
    std::ofstream aus(datei, std::ios::binary);
    aus << inhalt;
    if (!aus)
        throw Dateifehler(datei.string(), "Die Hilfeseite kann nicht geschrieben werden.");
}

std::string lesen(const fs::path& datei) {
    std::ifstream ein(datei, std::ios::binary);
    return {std::istreambuf_iterator<char>(ein), std::istreambuf_iterator<char>()};
}

// The section of one row for one staff class.
std::string zeilenabschnitt(const Quellzeile& z, bool beamte) {
    const auto feld = [&z](std::size_t i) { return i < z.felder.size() ? z.felder[i] : ""; };
    std::string zusatz = beamte ? feld(3) : feld(4);
    std::string text =
        "<h2>Zeile " + feld(0) + ": " + html(feld(1)) + "</h2>\n<p>" + html(feld(2)) + "</p>\n";
    if (!zusatz.empty())
        text += "<p>" + html(zusatz) + "</p>\n";
    return text;
}

// The row topics: a page per row for the staff classes with row help. A written page of the
// same context keeps its text and gets the row's section before its end.
void zeilenseitenschreiben(const fs::path& quelle, const fs::path& hilfe) {
    struct Art {
        int basis;
        bool beamte;
        const char* name;
    };
    const Art arten[] = {{11000, true, "Besoldungsordnung A"},
                         {12500, true, "Besoldungsordnung C"},
                         {45000, true, "Besoldungsordnung R"},
                         {96200, false, "BAT"}};
    const std::vector<Quellzeile> zeilen = tsvlesen(quelle);
    for (const Art& art : arten)
        for (const Quellzeile& z : zeilen) {
            const int zeile = ganzzahl(z.felder[0], quelle, z.zeile);
            if (zeile < 0 || zeile > 45 || z.felder.size() < 3)
                quellfehler(quelle, z.zeile, "Zeile 0 bis 45 mit Titel und Text erwartet.");
            const fs::path seite = hilfe / (std::to_string(art.basis + zeile) + ".html");
            const std::string abschnitt = zeilenabschnitt(z, art.beamte);
            std::string inhalt = lesen(seite);
            const auto ende = inhalt.rfind("</body>");
            if (ende != std::string::npos) {
                inhalt.insert(ende, abschnitt);
            } else {
                const std::string titel = std::string(art.name) + ", Zeile " + z.felder[0];
                inhalt =
                    "<!DOCTYPE html>\n<html lang=\"de\">\n<head><meta charset=\"utf-8\"><title>" +
                    html(titel) + "</title></head>\n<body>\n<h1>" + html(titel) + "</h1>\n" +
                    abschnitt + "</body>\n</html>\n";
            }
            schreiben(seite, inhalt);
        }
}

} // namespace

const std::vector<Tabellenthema>& tabellenthemen() {
    static const std::vector<Tabellenthema> themen{
        {33010, "Beamte West ab 1/97", 1997, 1, false, {0, 1, 2, 3, 4}},
        {33011, "Beamte West ab 3/97", 1997, 2, false, {0, 1, 2, 3, 4}},
        {33012, "Beamte West ab 7/97", 1997, 3, false, {0, 1, 2, 3, 4}},
        {71010, "Beamte Ost ab 1/97", 1997, 1, true, {0, 1, 2, 3, 4}},
        {70011, "Beamte Ost ab 3/97", 1997, 2, true, {0, 1, 2, 3, 4}},
        {33091, "Beamte Ost ab 7/97", 1997, 3, true, {0, 1, 2, 3, 4}},
        {33092, "Beamte Ost ab 9/97", 1997, 4, true, {0, 1, 2, 3, 4}},
        {33100, "Angestellte West B/L ab 1/97", 1997, 1, false, {5}},
        {33150, "Angestellte West VKA ab 1/97", 1997, 1, false, {6}},
        {33170, "Angestellte West Pflegedienst ab 1/97", 1997, 1, false, {7}},
        {70100, "Angestellte Ost B/L ab  1/97", 1997, 1, true, {5}},
        {70200, "Angestellte Ost VKA ab 1/97", 1997, 1, true, {6}},
        {70250, "Angestellte Ost Pflegedienst ab 1/97", 1997, 1, true, {7}},
        {70109, "Angestellte Ost B/L ab 9/97", 1997, 4, true, {5}},
        {70209, "Angestellte Ost VKA ab 9/97", 1997, 4, true, {6}},
        {70259, "Angestellte Ost Pflegedienst ab 9/97", 1997, 4, true, {7}},
    };
    return themen;
}

std::string tabellenseite(const fs::path& ordner, const Tabellenthema& thema) {
    Satzdatei tarif;
    tarif.oeffnen(ordner / tarifdateiname(thema.jahr, thema.datei), Tarifsatz::laenge);
    Satzdatei texte;
    texte.oeffnen(ordner / "Texte.txt", Textsatz::laenge);
    std::ostringstream aus;
    aus << "<!DOCTYPE html>\n<html lang=\"de\">\n<head><meta charset=\"utf-8\"><title>"
        << html(thema.titel) << "</title></head>\n<body>\n<h1>" << html(thema.titel)
        << "</h1>\n<p>Monatsbeträge in DM aus der installierten Tarifdatei "
        << tarifdateiname(thema.jahr, thema.datei) << (thema.ost ? " (Tarifgebiet Ost)" : " (West)")
        << ". Leere Felder: kein Betrag installiert.</p>\n";
    for (int art : thema.personalarten)
        blockschreiben(aus, tarif, texte, bloecke[static_cast<std::size_t>(art)], thema.ost);
    aus << "</body>\n</html>\n";
    return aus.str();
}

void hilfeschreiben(const fs::path& quellen, const fs::path& ziel) {
    const fs::path hilfe = ziel / "hilfe";
    fs::create_directories(hilfe);
    if (fs::is_directory(quellen))
        for (const fs::directory_entry& e : fs::directory_iterator(quellen))
            if (e.path().extension() == ".html")
                fs::copy_file(e.path(), hilfe / e.path().filename(),
                              fs::copy_options::overwrite_existing);
    zeilenseitenschreiben(quellen / "zeilen.tsv", hilfe);
    for (const Tabellenthema& t : tabellenthemen()) {
        const fs::path seite = hilfe / (std::to_string(t.kontext) + ".html");
        if (fs::exists(seite))
            throw Dateifehler(seite.string(),
                              "Die Seite wird aus den Tariftabellen erzeugt und darf nicht "
                              "geschrieben vorliegen.");
        schreiben(seite, tabellenseite(ziel, t));
    }
}

} // namespace lonvir::installation
