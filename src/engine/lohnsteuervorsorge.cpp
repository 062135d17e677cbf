// The Vorsorgepauschale of the wage-tax table: 20 % of the step's top wage within the limits
// of the normal table, or capped at the special table's limit for civil servants.
#include "engine/lohnsteuerrechnen.h"
#include "engine/lohnsteuertarif.h"

#include <algorithm>

namespace lonvir {

namespace {

void normaleTabelle(Lohnsteuerlauf& l, Currency hoechst1, Currency hoechst2) {
    l.vhb = std::max(Currency{}, l.vhb - l.stufetop * Currency::roh(1600));
    if (l.vsp1 <= l.vhb) {
        l.vsp = l.vsp1;
        return;
    }
    l.vsp = l.vhb;
    const Currency rest = l.vsp1 - l.vhb;
    if (rest <= hoechst1) {
        l.vsp += rest;
        return;
    }
    l.vsp += hoechst1;
    l.vsp += std::min(haelfteDesRests(rest - hoechst1), hoechst2);
}

} // namespace

// The test looks at the whole hundredths of the half (DM cents), so any half that is not whole
// DM gains a Pfennig; after the cut to the 54-DM grid this never shows. It stays so.
Currency haelfteDesRests(Currency ueberschuss) {
    const Currency haelfte = geteiltGerundet(ueberschuss, 1, 2);
    const Currency abgeschnitten = aufHundertstelAbgeschnitten(haelfte);
    if ((haelfte * dm(100)).gerundetInt32() % 100 > 0)
        return abgeschnitten + Currency::roh(100);
    return abgeschnitten;
}

void vorsorge(Lohnsteuerlauf& l) {
    l.vsp1 = l.stufetop * Currency::roh(2000);
    const Currency kztab = dm(l.kztab);
    l.vhb = dm(6000) * kztab;
    const Currency hoechst1 = dm(2610) * kztab;
    const Currency hoechst2 = dm(1305) * kztab;
    if (l.besonders == 0)
        normaleTabelle(l, hoechst1, hoechst2);
    else if (l.besonders == 1)
        l.vsp = std::min(l.vsp1, dm(2214) * kztab);
    l.vsp = stufe54(l.vsp);
}

} // namespace lonvir
