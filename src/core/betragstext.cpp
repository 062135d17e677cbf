// Formatting amounts for the rows of the main screen.
#include "core/betragstext.h"

#include <cstdlib>

namespace lonvir {

namespace {

// 123456 -> "1.234,56"; 5 -> "0,05".
std::string ziffern(std::int64_t betrag) {
    std::string ganz = std::to_string(betrag / 100);
    const std::int64_t rest = betrag % 100;
    for (int stelle = static_cast<int>(ganz.size()) - 3; stelle > 0; stelle -= 3)
        ganz.insert(static_cast<std::size_t>(stelle), ".");
    return ganz + "," + (rest < 10 ? "0" : "") + std::to_string(rest);
}

std::int64_t betragVon(std::int32_t wert) {
    return std::llabs(static_cast<std::int64_t>(wert));
}

} // namespace

std::string betragstext(std::int32_t pfennig) {
    return ziffern(betragVon(pfennig)) + (pfennig < 0 ? "-" : "+");
}

std::string zeilentext(int zeile, std::int32_t wert) {
    if (zeile >= 0 && zeile <= 3) {
        if (wert % 100 == 0)
            return std::to_string(wert / 100);
        return (wert < 0 ? "-" : "") + ziffern(betragVon(wert));
    }
    if (zeile >= 27 && zeile <= 32)
        return {};
    const char* zeichen = wert < 0 ? "-" : (wert > 0 ? "+" : "±");
    return ziffern(betragVon(wert)) + zeichen;
}

} // namespace lonvir
