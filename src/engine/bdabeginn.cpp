// Reading month and year out of the service-age text.
#include "engine/bdabeginn.h"

#include <cctype>

namespace lonvir {

namespace {

// A number read from the front of a text as the runtime's Val reads it: leading blanks,
// then digits up to the first other character.
double zahlgelesen(std::string_view text) {
    std::size_t i = 0;
    while (i < text.size() && text[i] == ' ')
        ++i;
    double zahl = 0;
    while (i < text.size() && std::isdigit(static_cast<unsigned char>(text[i])))
        zahl = zahl * 10 + (text[i++] - '0');
    return zahl;
}

} // namespace

double bdamonat(std::string_view bdabeginn) {
    return zahlgelesen(bdabeginn.substr(0, 2));
}

double bdajahr(std::string_view bdabeginn) {
    return zahlgelesen(bdabeginn.size() > 2 ? bdabeginn.substr(bdabeginn.size() - 2) : bdabeginn);
}

} // namespace lonvir
