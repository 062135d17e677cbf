// The main screen's part in a change of the tables when no window stands.
#include "panels/hauptbildauftrag.h"

#include "engine/berechnen.h"
#include "engine/monatladen.h"

namespace lonvir {

namespace {

std::int16_t gueltigermonat(const Sitzung& s) {
    return s.merkmal[20] >= 0 && s.merkmal[20] <= 12 ? s.merkmal[20] : 0;
}

} // namespace

Hauptbildauftrag kernauftrag(Sitzung& s) {
    Hauptbildauftrag a;
    a.bildauffrischen = [&s] { monatladen(s, s.aktuelleperson, gueltigermonat(s)); };
    a.listenauffrischen = a.bildauffrischen;
    a.nachrechnen = [&s] {
        monatladen(s, s.aktuelleperson, gueltigermonat(s));
        if (s.merkmal[20] < 11) {
            s.aenderungscode = 4;
            folgemonate(s);
        }
    };
    return a;
}

double textzahl(const std::string& text) {
    std::size_t i = text.find_first_not_of(' ');
    if (i == std::string::npos)
        return 0;
    double vorzeichen = 1;
    if (text[i] == '-' || text[i] == '+') {
        vorzeichen = text[i] == '-' ? -1 : 1;
        ++i;
    }
    double zahl = 0;
    for (; i < text.size() && text[i] >= '0' && text[i] <= '9'; ++i)
        zahl = zahl * 10 + (text[i] - '0');
    if (i < text.size() && text[i] == '.') {
        double stelle = 0.1;
        for (++i; i < text.size() && text[i] >= '0' && text[i] <= '9'; ++i, stelle /= 10)
            zahl += (text[i] - '0') * stelle;
    }
    return vorzeichen * zahl;
}

std::size_t zeichenzahl(const std::string& utf8) {
    std::size_t n = 0;
    for (const char c : utf8)
        if ((static_cast<unsigned char>(c) & 0xC0) != 0x80)
            ++n;
    return n;
}

} // namespace lonvir
