// Texts and numbers for printed reports.
#include "core/druckformat.h"

#include <cmath>
#include <cstdio>

namespace lonvir {

namespace {

bool folgebyte(unsigned char c) {
    return (c & 0xC0) == 0x80;
}

} // namespace

std::size_t zeichenzahl(std::string_view utf8) {
    std::size_t n = 0;
    for (unsigned char c : utf8) {
        n += folgebyte(c) ? 0 : 1;
    }
    return n;
}

std::string links(std::string_view utf8, std::size_t anzahl) {
    std::size_t zeichen = 0;
    for (std::size_t i = 0; i < utf8.size(); ++i) {
        if (!folgebyte(static_cast<unsigned char>(utf8[i]))) {
            if (zeichen == anzahl) {
                return std::string(utf8.substr(0, i));
            }
            ++zeichen;
        }
    }
    return std::string(utf8);
}

std::string linksgetrimmt(std::string_view text) {
    const auto a = text.find_first_not_of(' ');
    return a == std::string_view::npos ? std::string() : std::string(text.substr(a));
}

std::string rechtsgetrimmt(std::string_view text) {
    const auto e = text.find_last_not_of(' ');
    return e == std::string_view::npos ? std::string() : std::string(text.substr(0, e + 1));
}

std::string getrimmt(std::string_view text) {
    return rechtsgetrimmt(linksgetrimmt(text));
}

// Lower-case letters of code page 1252 lie in a-z and in U+00E0..U+00FE but for the
// division sign U+00F7; their capitals are 32 below. ÿ (U+00FF) becomes Ÿ (U+0178), and the
// three Latin Extended letters š, œ, ž their capitals.
std::string grossbuchstaben(std::string_view utf8) {
    std::string aus;
    aus.reserve(utf8.size());
    for (std::size_t i = 0; i < utf8.size(); ++i) {
        const auto c = static_cast<unsigned char>(utf8[i]);
        if (c >= 'a' && c <= 'z') {
            aus += static_cast<char>(c - 32);
        } else if (c == 0xC3 && i + 1 < utf8.size()) {
            const auto d = static_cast<unsigned char>(utf8[i + 1]);
            // U+00E0..U+00FE are C3 A0..C3 BE; their capitals C3 80..C3 9E.
            const bool klein = d >= 0xA0 && d <= 0xBE && d != 0xB7;
            if (d == 0xBF) {
                aus += "\xC5\xB8";
            } else {
                aus += static_cast<char>(c);
                aus += static_cast<char>(klein ? d - 0x20 : d);
            }
            ++i;
        } else if (c == 0xC5 && i + 1 < utf8.size()) {
            const auto d = static_cast<unsigned char>(utf8[i + 1]);
            // š U+0161, œ U+0153, ž U+017E: capitals one below.
            const bool klein = d == 0xA1 || d == 0x93 || d == 0xBE;
            aus += static_cast<char>(c);
            aus += static_cast<char>(klein ? d - 1 : d);
            ++i;
        } else {
            aus += static_cast<char>(c);
        }
    }
    return aus;
}

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

void betragrechts(Drucker& d, int endspalte, const std::string& text, Zeilenende ende) {
    d.Print({Tab{endspalte - static_cast<int>(zeichenzahl(text))}, text}, ende);
}

} // namespace lonvir
