// Lists for a spreadsheet.
#include "core/csv.h"

#include "core/druckformat.h"

#include <cstdlib>

namespace lonvir {

namespace {

std::string zelle(const std::string& text) {
    if (text.find_first_of(";\"\r\n") == std::string::npos) {
        return text;
    }
    std::string aus = "\"";
    for (char c : text) {
        aus += c;
        if (c == '"') {
            aus += '"';
        }
    }
    return aus + "\"";
}

void zeileanhaengen(std::string& aus, const Csvzeile& zeile) {
    for (std::size_t i = 0; i < zeile.size(); ++i) {
        if (i > 0) {
            aus += ';';
        }
        aus += zelle(zeile[i]);
    }
    aus += "\r\n";
}

} // namespace

std::string Csvtabelle::text() const {
    std::string aus = "\xEF\xBB\xBF";
    zeileanhaengen(aus, kopf);
    for (const Csvzeile& z : zeilen) {
        zeileanhaengen(aus, z);
    }
    return aus;
}

std::string csvbetrag(std::int64_t pfennig) {
    const std::uint64_t betrag =
        pfennig < 0 ? 0 - static_cast<std::uint64_t>(pfennig) : static_cast<std::uint64_t>(pfennig);
    std::string cent = std::to_string(betrag % 100);
    if (cent.size() < 2) {
        cent.insert(0, "0");
    }
    return (pfennig < 0 ? "-" : "") + std::to_string(betrag / 100) + "," + cent;
}

std::string csvbetrag(double dm) {
    return formatzahl(dm, "0.00");
}

} // namespace lonvir
