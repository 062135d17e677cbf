// The hint on a month without an installed tariff amount.
#include "engine/tarifluecke.h"

#include "engine/tarifdatei.h"
#include "start/dateisatz.h"

namespace lonvir {

std::optional<std::string> tariflueckenhinweis(const Sitzung& s) {
    const int art = s.personalart();
    if (art < 0 || art > 17 || s.merkmal[20] >= 12 || s.bruttomodus != 0 || s.wert[22] != 0)
        return std::nullopt;
    for (int i = 0; i <= 26; ++i)
        if (s.tarifwert[i] != 0)
            return std::nullopt;
    return "Für diese Gruppe ist kein Tarifbetrag installiert (" +
           dateiname(tarifdatei(s), s.jahr, s.schicht) + ", Satz " +
           std::to_string(tarifsatznummer(s)) + ")";
}

} // namespace lonvir
