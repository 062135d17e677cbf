// Tab-separated sources and exact decimal amounts.
#include "installation/quelltext.h"

#include "core/laufzeitfehler.h"

#include <fstream>

namespace lonvir::installation {

namespace {

std::vector<std::string> zerlegen(const std::string& zeile) {
    std::vector<std::string> felder;
    std::string::size_type ab = 0;
    for (;;) {
        const auto tab = zeile.find('\t', ab);
        felder.push_back(zeile.substr(ab, tab == std::string::npos ? tab : tab - ab));
        if (tab == std::string::npos)
            return felder;
        ab = tab + 1;
    }
}

// A decimal text as a count of 10^-stellen units; nothing is rounded: more decimals than
// allowed are an error.
std::int64_t dezimal(const std::string& text, int stellen, const std::filesystem::path& datei,
                     int zeile) {
    if (text.empty())
        return 0;
    std::size_t i = 0;
    const bool negativ = text[0] == '-';
    if (negativ)
        ++i;
    std::int64_t ganz = 0;
    int ziffern = 0;
    for (; i < text.size() && text[i] != '.'; ++i, ++ziffern) {
        if (text[i] < '0' || text[i] > '9' || ziffern >= 12)
            quellfehler(datei, zeile, "\"" + text + "\" ist keine Zahl.");
        ganz = ganz * 10 + (text[i] - '0');
    }
    int nachkomma = 0;
    std::int64_t bruch = 0;
    if (i < text.size()) {
        for (++i; i < text.size(); ++i, ++nachkomma) {
            if (text[i] < '0' || text[i] > '9' || nachkomma >= stellen)
                quellfehler(datei, zeile,
                            "\"" + text + "\" hat mehr als " + std::to_string(stellen) +
                                " Nachkommastellen oder ist keine Zahl.");
            bruch = bruch * 10 + (text[i] - '0');
        }
    }
    if (ziffern == 0 && nachkomma == 0)
        quellfehler(datei, zeile, "\"" + text + "\" ist keine Zahl.");
    for (int k = nachkomma; k < stellen; ++k)
        bruch *= 10;
    std::int64_t einheit = 1;
    for (int k = 0; k < stellen; ++k)
        einheit *= 10;
    const std::int64_t wert = ganz * einheit + bruch;
    return negativ ? -wert : wert;
}

} // namespace

void quellfehler(const std::filesystem::path& datei, int zeile, const std::string& grund) {
    throw Dateifehler(datei.string(), "Zeile " + std::to_string(zeile) + ": " + grund);
}

std::vector<Quellzeile> tsvlesen(const std::filesystem::path& datei) {
    std::ifstream ein(datei, std::ios::binary);
    if (!ein)
        throw Dateifehler(datei.string(), "Die Quelldatei fehlt oder kann nicht gelesen werden.");
    std::vector<Quellzeile> zeilen;
    std::string zeile;
    int nummer = 0;
    while (std::getline(ein, zeile)) {
        ++nummer;
        if (!zeile.empty() && zeile.back() == '\r')
            zeile.pop_back();
        if (zeile.empty() || zeile[0] == '#')
            continue;
        zeilen.push_back({nummer, zerlegen(zeile)});
    }
    return zeilen;
}

std::int32_t pfennig(const std::string& text, const std::filesystem::path& datei, int zeile) {
    const std::int64_t wert = dezimal(text, 2, datei, zeile);
    if (wert > INT32_MAX || wert < INT32_MIN)
        quellfehler(datei, zeile, "\"" + text + "\" ist zu groß.");
    return static_cast<std::int32_t>(wert);
}

Currency currency(const std::string& text, const std::filesystem::path& datei, int zeile) {
    return Currency::roh(dezimal(text, 4, datei, zeile));
}

std::int32_t ganzzahl(const std::string& text, const std::filesystem::path& datei, int zeile) {
    const std::int64_t wert = dezimal(text, 0, datei, zeile);
    if (wert > INT32_MAX || wert < INT32_MIN)
        quellfehler(datei, zeile, "\"" + text + "\" ist zu groß.");
    return static_cast<std::int32_t>(wert);
}

} // namespace lonvir::installation
