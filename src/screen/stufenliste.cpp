// The texts of the step list of row 7.
#include "screen/stufenliste.h"

#include "start/texte.h"

namespace lonvir {

namespace {
constexpr const char* festesGrundgehalt = "Festes Grundgehalt";
} // namespace

std::vector<std::string> stufentexte(Sitzung& s) {
    std::vector<std::string> eintraege;
    if (s.stufen.festesGrundgehalt)
        eintraege.emplace_back(festesGrundgehalt);
    if (s.stufen.mitTexten)
        for (int nummer = s.stufen.anfang; nummer <= s.stufen.ende; ++nummer)
            eintraege.push_back(textgetrimmt(s, nummer));
    return eintraege;
}

} // namespace lonvir
