// Texts and numbers for printed reports.
#include "core/druckformat.h"

#include <cmath>
#include <cstdio>

namespace lonvir {

std::string formatzahl(double wert, std::string_view format) {
    const auto punkt = format.find('.');
    const std::string_view ganz = format.substr(0, punkt);
    const int stellen =
        punkt == std::string_view::npos ? 0 : static_cast<int>(format.size() - punkt - 1);
    const bool gruppen = ganz.find(',') != std::string_view::npos;
    int mindestganz = 0;
    for (char c : ganz) {
        mindestganz += c == '0' ? 1 : 0;
    }

    char puffer[64];
    std::snprintf(puffer, sizeof puffer, "%.*f", stellen, std::fabs(wert));
    std::string ziffern(puffer);
    const auto komma = ziffern.find('.');
    std::string ganzteil = ziffern.substr(0, komma);
    const std::string bruch = komma == std::string::npos ? "" : ziffern.substr(komma + 1);

    // Leading zeros beyond the digits the format shows always are dropped: "###,###.00"
    // prints 0.5 as ",50".
    while (static_cast<int>(ganzteil.size()) > mindestganz && !ganzteil.empty() &&
           ganzteil.front() == '0') {
        ganzteil.erase(0, 1);
    }
    while (static_cast<int>(ganzteil.size()) < mindestganz) {
        ganzteil.insert(0, "0");
    }
    if (gruppen) {
        for (int i = static_cast<int>(ganzteil.size()) - 3; i > 0; i -= 3) {
            ganzteil.insert(static_cast<std::size_t>(i), ".");
        }
    }
    std::string aus = ganzteil;
    if (stellen > 0) {
        aus += "," + bruch;
    }
    const bool null = ziffern.find_first_not_of("0.") == std::string::npos;
    return (wert < 0 && !null ? "-" : "") + aus;
}

std::string formatpfennig(std::int64_t pfennig, std::string_view format) {
    return formatzahl(static_cast<double>(pfennig) / 100.0, format);
}

void rechtsbuendig(std::vector<Druckteil>& zeile, int endspalte, const std::string& text) {
    zeile.emplace_back(Tab{endspalte - static_cast<int>(zeichenzahl(text))});
    zeile.emplace_back(text);
}

void betragrechts(Drucker& d, int endspalte, const std::string& text, Zeilenende ende) {
    std::vector<Druckteil> zeile;
    rechtsbuendig(zeile, endspalte, text);
    d.Print(zeile, ende);
}

} // namespace lonvir
