// The pay step from the start of the service age: a step every two years, and for
// Besoldungsordnung A from July 1997 the ladder of two, three and four years.
#include "core/pfennig.h"
#include "engine/bdabeginn.h"
#include "engine/schritte.h"
#include "engine/stufenliste.h"

#include <string_view>

namespace lonvir {

namespace {

bool leer(std::string_view text) {
    for (char c : text)
        if (c != ' ')
            return false;
    return true;
}

// From July 1997 Besoldungsordnung A climbs after 2, 2, 2, 2, 3, 3, 3, 3, 4, 4, 4 years.
std::int16_t leiterstufe(int monate) {
    constexpr int grenzen[] = {24, 48, 72, 96, 132, 168, 204, 240, 288, 336, 384};
    std::int16_t stufe = 0;
    for (int grenze : grenzen)
        if (monate > grenze)
            ++stufe;
    return stufe;
}

// The list z(7) as it stands; before any list was built in the session, the one the table
// gives for the person, so that the step is cut as the screen would cut it.
Stufenliste stufenlisteOderTabelle(const Sitzung& s) {
    if (s.stufen.gebaut)
        return s.stufen;
    const bool reform = !s.ist1997() || s.merkmal[20] >= 6;
    return stufenlistefuer(s.personalart(), s.merkmal[5], reform, s.stufen);
}

} // namespace

bool ohneDienstalter(int art) {
    return art == 4 || (art >= 8 && art <= 12) || art == 16 || art == 17;
}

void stufeausbda(Sitzung& s) {
    const int art = s.personalart();
    if (ohneDienstalter(art))
        return;
    if (s.merkmal[1] > 1) {
        // The step is given by hand: the list is open and the start of the service age empty.
        s.stufen.aktiv = true;
        s.bdabeginn = std::string(7, ' ');
        return;
    }
    if (leer(s.bdabeginn)) {
        s.merkmal[7] = 0;
        return;
    }
    const bool leiter = art == 0 && (s.merkmal[20] > 5 || !s.ist1997());
    const int monatsnummer = s.merkmal[20] + 1 + (s.ist1997() ? 0 : 12);
    const double mm = bdamonat(s.bdabeginn);
    const double jj = bdajahr(s.bdabeginn);
    const std::int16_t dienstmonate = pf::gerundet16((97 - jj) * 12 - mm + monatsnummer);
    s.merkmal[7] = static_cast<std::int16_t>(dienstmonate / 24);
    const Stufenliste liste = stufenlisteOderTabelle(s);
    if (liste.gebaut && s.merkmal[7] > liste.letzteposition())
        s.merkmal[7] = static_cast<std::int16_t>(liste.letzteposition());
    if (!leiter)
        return;
    // The ladder is not held to the list here; the refresh of the screen cuts it.
    const int monate = dienstmonate + 1;
    if (monate >= 0)
        s.merkmal[7] = leiterstufe(monate);
}

} // namespace lonvir
