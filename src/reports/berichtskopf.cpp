// What the landscape statements share.
#include "reports/berichtskopf.h"

#include "core/cp1252.h"

#include <array>

namespace lonvir {

std::string gesperrtermonat(int monat) {
    static const std::array<const char*, 12> woerter = {
        "J A N U A R",     "F E B R U A R",  "M Ä R Z",     "A P R I L",         "M A I",
        "J U N I",         "J U L I",        "A U G U S T", "S E P T E M B E R", "O K T O B E R",
        "N O V E M B E R", "D E Z E M B E R"};
    if (monat < 0 || monat > 11) {
        return {};
    }
    return woerter[static_cast<std::size_t>(monat)];
}

std::string unterstriche(int laenge) {
    return std::string(static_cast<std::size_t>(laenge), '_');
}

void briefkopf(const Sitzung& s, Drucker& d, int ortspalte) {
    d.Print({cp1252NachUtf8(s.dienststelle1), Tab{ortspalte}, cp1252NachUtf8(s.dienststellenort)});
    d.Print({cp1252NachUtf8(s.dienststelle2)});
}

} // namespace lonvir
