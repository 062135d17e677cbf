// Reading and writing the text table, and counting names and cost centres.
#include "start/texte.h"

#include "start/bestandspruefung.h"

#include <algorithm>

#include "core/cp1252.h"
#include "core/zeichen.h"
#include "records/bytes.h"
#include "records/textsatz.h"

#include <array>

namespace lonvir {

namespace {
std::string rohlesen(Sitzung& s, int nummer) {
    std::array<std::uint8_t, Textsatz::laenge> b{};
    s.datei(datei::texte).lesen(nummer, b);
    return Textsatz::lesen(b).text;
}

bool leer(const std::string& roh) {
    return roh.find_first_not_of(' ') == std::string::npos;
}
} // namespace

std::string textlesen(Sitzung& s, int nummer) {
    return cp1252NachUtf8(rohlesen(s, nummer));
}

std::string textgetrimmt(Sitzung& s, int nummer) {
    return cp1252NachUtf8(rechtsgetrimmt(rohlesen(s, nummer)));
}

void textschreiben(Sitzung& s, int nummer, const std::string& text) {
    std::string roh = utf8NachCp1252(text);
    // A control character in a name marks a damaged text table: a typed one becomes a blank.
    if (nummer >= textnummer::ersterName && nummer <= textnummer::letzterName)
        std::replace_if(
            roh.begin(), roh.end(),
            [](char c) { return steuerzeichen(static_cast<unsigned char>(c)); }, ' ');
    Textsatz t{bytes::fest(roh, Textsatz::laenge)};
    std::array<std::uint8_t, Textsatz::laenge> b{};
    t.schreiben(b);
    s.datei(datei::texte).schreiben(nummer, b);
}

std::int16_t personenzaehlen(Sitzung& s) {
    for (int nummer = textnummer::letzterName; nummer >= textnummer::ersterName; --nummer)
        if (!leer(rohlesen(s, nummer)))
            return static_cast<std::int16_t>(nummer - 5000);
    return 0;
}

std::int16_t kostenstellenzaehlen(Sitzung& s) {
    int nummer = textnummer::ersteKostenstelle;
    while (!leer(rohlesen(s, nummer)))
        ++nummer;
    return static_cast<std::int16_t>(nummer - textnummer::ersteKostenstelle);
}

} // namespace lonvir
