// Reading a typed number up to its first foreign character.
#include "panels/vorgabezahl.h"

namespace lonvir {

double vorgabezahl(const std::string& text) {
    std::size_t i = 0;
    while (i < text.size() && (text[i] == ' ' || text[i] == '\t'))
        ++i;
    double vorzeichen = 1;
    if (i < text.size() && (text[i] == '-' || text[i] == '+')) {
        vorzeichen = text[i] == '-' ? -1 : 1;
        ++i;
    }
    double wert = 0;
    double stelle = 0; // 0 before the full stop, then 0.1, 0.01, ...
    for (; i < text.size(); ++i) {
        const char c = text[i];
        if (c >= '0' && c <= '9') {
            if (stelle == 0) {
                wert = wert * 10 + (c - '0');
            } else {
                wert += (c - '0') * stelle;
                stelle /= 10;
            }
        } else if (c == '.' && stelle == 0) {
            stelle = 0.1;
        } else {
            break;
        }
    }
    return vorzeichen * wert;
}

} // namespace lonvir
