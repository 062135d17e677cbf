// Decoding each record type of the set into JSON.
#include "cli/satzjson.h"

#include "cli/json.h"
#include "core/cp1252.h"
#include "records/dimsatz.h"
#include "records/jahressatz.h"
#include "records/kvsatz.h"
#include "records/personalsatz.h"
#include "records/tarifsatz.h"
#include "records/textsatz.h"
#include "records/voeinsatz.h"

#include <algorithm>
#include <cctype>
#include <regex>

namespace lonvir::cli {

namespace {

std::string klein(std::string s) {
    std::transform(s.begin(), s.end(), s.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return s;
}

void personalsatz(Json& j, std::span<const std::uint8_t> b) {
    const Personalsatz p = Personalsatz::lesen(b);
    feldJson(j, "merkmal", p.merkmal); // elements 1..45
    feldJson(j, "wert", p.wert);
    feldJson(j, "nebenwert", p.nebenwert);
    schalterJson(j, p);
    j.text("bdabeginn", cp1252NachUtf8(p.bdabeginn));
}

void dimsatz(Json& j, std::span<const std::uint8_t> b) {
    const Dimsatz d = Dimsatz::lesen(b);
    feldJson(j, "zeilenfarbe", d.zeilenfarbe);
    const std::pair<const char*, Currency> felder[] = {
        {"form1top", d.form1top},       {"form1left", d.form1left},
        {"form1height", d.form1height}, {"form1width", d.form1width},
        {"form2top", d.form2top},       {"form2left", d.form2left},
        {"form2height", d.form2height}, {"form2width", d.form2width},
        {"form3top", d.form3top},       {"form3left", d.form3left},
        {"reserve172", d.reserve172},   {"reserve180", d.reserve180},
        {"lstrtabtop", d.lstrtabtop},   {"lstrtableft", d.lstrtableft},
        {"passwortart", d.passwortart}};
    for (const auto& [name, wert] : felder)
        j.roh(name, wert.text());
    feldJson(j, "passwort", d.passwort);
    j.zahl("anzahlpersonen", d.anzahlpersonen).zahl("reserve230", d.reserve230);
}

void jahressatz(Json& j, std::span<const std::uint8_t> b) {
    const Jahressatz satz = Jahressatz::lesen(b);
    j.feldAnfang("bemerkung");
    for (int i = 0; i <= 15; ++i)
        j.text(satz.text(i));
    j.feldEnde();
}

// Records 3 to 14 of Lonvir97.dim hold the health-insurance rates of 1997, 15 to 26 those of
// 1998, one month each.
bool istKvsatz(long nummer) {
    return nummer >= 3 && nummer <= 26;
}

void kvsatz(Json& j, long nummer, std::span<const std::uint8_t> b) {
    const Kvsatz k = Kvsatz::lesen(b);
    j.zahl("jahr", nummer <= 14 ? 1997 : 1998).zahl("monat", (nummer - 3) % 12 + 1);
    feldJson(j, "kvsatz", k.satz); // hundredths of a percent, by fund 0..27
}

void voeinsatz(Json& j, std::span<const std::uint8_t> b) {
    const Voeinsatz v = Voeinsatz::lesen(b);
    j.text("dienststelle1", cp1252NachUtf8(v.dienststelle1))
        .text("dienststelle2", cp1252NachUtf8(v.dienststelle2))
        .text("dienststellenort", cp1252NachUtf8(v.dienststellenort))
        .text("berichtszeile", cp1252NachUtf8(v.berichtszeile));
    feldJson(j, "voreinstellung", v.voreinstellung);
    feldJson(j, "vorgabewert", v.vorgabewert);
}

} // namespace

Satzart satzartVon(const std::string& dateiname) {
    const std::string n = klein(dateiname);
    if (std::regex_match(n, std::regex(R"(l199[78][ipr]\.([1-9]|1[0-2]))")))
        return Satzart::personalsatz;
    if (std::regex_match(n, std::regex(R"(l199[78][ipr]\.13)")))
        return Satzart::jahressatz;
    if (std::regex_match(n, std::regex(R"(lonvir9[78]\.[1-4]tr)")))
        return Satzart::tarifsatz;
    // The year change also writes copies with a layer letter, e.g. Lonvir97I.dim.
    if (std::regex_match(n, std::regex(R"(lonvir97[ipr]?\.dim)")))
        return Satzart::dimsatz;
    if (std::regex_match(n, std::regex(R"(lonvir97[ipr]?\.voe)")))
        return Satzart::voeinsatz;
    if (n == "texte.txt")
        return Satzart::textsatz;
    return Satzart::unbekannt;
}

int satzlaengeVon(Satzart art, long) {
    switch (art) {
    case Satzart::personalsatz:
        return Personalsatz::laenge;
    case Satzart::jahressatz:
        return Jahressatz::laenge;
    case Satzart::tarifsatz:
        return Tarifsatz::laenge;
    case Satzart::dimsatz:
        return Dimsatz::laenge;
    case Satzart::voeinsatz:
        return Voeinsatz::laenge;
    case Satzart::textsatz:
        return Textsatz::laenge;
    case Satzart::unbekannt:
        break;
    }
    return 1;
}

std::string satzAlsJson(Satzart art, const std::string& datei, long nummer,
                        std::span<const std::uint8_t> b) {
    Json j;
    j.objektAnfang().text("datei", datei).zahl("nummer", nummer);
    switch (art) {
    case Satzart::personalsatz:
        j.text("satzart", "Personalsatz");
        personalsatz(j, b);
        break;
    case Satzart::jahressatz:
        j.text("satzart", "Jahressatz");
        jahressatz(j, b);
        break;
    case Satzart::tarifsatz:
        j.text("satzart", "Tarifsatz");
        feldJson(j, "wert", Tarifsatz::lesen(b).wert);
        break;
    case Satzart::dimsatz:
        if (istKvsatz(nummer)) {
            j.text("satzart", "Kvsatz");
            kvsatz(j, nummer, b);
        } else if (nummer <= 2) {
            // Record 2 is the year change's copy of record 1.
            j.text("satzart", "Dimsatz");
            dimsatz(j, b);
        } else {
            j.text("satzart", "unbekannt");
        }
        break;
    case Satzart::voeinsatz:
        j.text("satzart", "Voeinsatz");
        voeinsatz(j, b);
        break;
    case Satzart::textsatz:
        j.text("satzart", "Textsatz").text("text", cp1252NachUtf8(Textsatz::lesen(b).text));
        break;
    default:
        j.text("satzart", "unbekannt");
        break;
    }
    return j.objektEnde().ergebnis();
}

} // namespace lonvir::cli
