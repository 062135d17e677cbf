// Lists for a spreadsheet.
#include "core/csvdatei.h"

#include "core/druckformat.h"

#include <cstdio>

namespace lonvir {

Csvfeld Csvfeld::text(std::string_view utf8) {
    return Csvfeld(rechtsgetrimmt(utf8), true);
}

Csvfeld Csvfeld::zahl(std::int64_t wert) {
    return Csvfeld(std::to_string(wert), false);
}

Csvfeld Csvfeld::pfennig(std::int64_t pfennig) {
    const std::uint64_t betrag =
        pfennig < 0 ? 0 - static_cast<std::uint64_t>(pfennig) : static_cast<std::uint64_t>(pfennig);
    char nachkomma[3];
    std::snprintf(nachkomma, sizeof nachkomma, "%02u", static_cast<unsigned>(betrag % 100));
    return Csvfeld((pfennig < 0 ? "-" : "") + std::to_string(betrag / 100) + "," + nachkomma,
                   false);
}

Csvfeld Csvfeld::dezimal(double wert, int nachkommastellen) {
    std::string format = "0";
    if (nachkommastellen > 0)
        format += "." + std::string(static_cast<std::size_t>(nachkommastellen), '0');
    return Csvfeld(formatzahl(wert, format), false);
}

Csvtabelle::Csvtabelle(const std::vector<std::string>& kopf) : inhalt_("\xEF\xBB\xBF") {
    for (std::size_t i = 0; i < kopf.size(); ++i) {
        if (i > 0)
            inhalt_ += ';';
        feldschreiben(kopf[i], true);
    }
    inhalt_ += "\r\n";
}

void Csvtabelle::zeile(const std::vector<Csvfeld>& felder) {
    for (std::size_t i = 0; i < felder.size(); ++i) {
        if (i > 0)
            inhalt_ += ';';
        feldschreiben(felder[i].inhalt_, felder[i].text_);
    }
    inhalt_ += "\r\n";
    ++zeilen_;
}

void Csvtabelle::feldschreiben(const std::string& feld, bool text) {
    const bool quoten = text && feld.find_first_of(";\"\r\n") != std::string::npos;
    if (!quoten) {
        inhalt_ += feld;
        return;
    }
    inhalt_ += '"';
    for (char c : feld) {
        if (c == '"')
            inhalt_ += '"';
        inhalt_ += c;
    }
    inhalt_ += '"';
}

} // namespace lonvir
