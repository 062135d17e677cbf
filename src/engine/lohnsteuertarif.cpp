// The tariff of the wage-tax table: zve on the 54-DM grid, the basic tariff of section 32a EStG
// in its three zones, and the tariff of classes 5 and 6.
#include "engine/lohnsteuertarif.h"

#include "engine/lohnsteuerrechnen.h"

#include <algorithm>
#include <optional>

namespace lonvir {

namespace {

const Currency obergrenze56 = Currency::ganz(62856);

// First zone, 12096 to 55727 DM: (86.63 y + 2590) y, y the ten-thousandth part above 12042.
Currency ersteZone(Currency betrag) {
    const Currency y = geteiltGerundet(betrag - dm(12042), 1, 10000);
    const Currency r = produktViermalAbgeschnitten(y, 86.63);
    return ((r + dm(2590)) * y).abgeschnitten();
}

// Second zone, 55728 to 120041 DM: (151.94 y + 3346) y + 12949, y above 55674.
Currency zweiteZone(Currency betrag) {
    const Currency y = geteiltGerundet(betrag - dm(55674), 1, 10000);
    const Currency r = produktViermalAbgeschnitten(y, 151.94);
    // The product is a Currency already: cutting it to four decimals changes nothing.
    const Currency ry = (r + dm(3346)) * y;
    return (ry + dm(12949)).abgeschnitten();
}

// Upper zone, from 120042 DM: 53 % less 22842.
Currency obereZone(Currency betrag) {
    return (betrag * Currency::roh(5300) - dm(22842)).abgeschnitten();
}

std::optional<Currency> tarifzone(Currency betrag) {
    if (betrag < dm(12096))
        return Currency{};
    if (betrag < dm(55728))
        return ersteZone(betrag);
    if (betrag <= dm(120041))
        return zweiteZone(betrag);
    if (betrag >= dm(120042))
        return obereZone(betrag);
    return std::nullopt; // between the two: no zone, st stays
}

} // namespace

void grundtarif(Lohnsteuerlauf& l, Currency betrag) {
    if (const std::optional<Currency> steuer = tarifzone(betrag))
        l.st = *steuer * dm(l.kztab);
}

void tarif56(Lohnsteuerlauf& l) {
    const Currency begrenzt = std::min(l.x, obergrenze56);
    grundtarif(l, begrenzt * Currency::roh(12500));
    const Currency st1 = l.st;
    grundtarif(l, begrenzt * Currency::roh(7500));
    const Currency st2 = l.st;
    const Currency differenz = dm(2) * (st1 - st2);
    const Currency mist = (begrenzt * Currency::roh(2590)).abgeschnitten();
    l.st = mist > differenz ? mist : differenz;
    if (l.x > obergrenze56)
        l.st = (l.st + (l.x - obergrenze56) * Currency::roh(5300)).abgeschnitten();
}

void tarif(Lohnsteuerlauf& l) {
    l.vsp = Currency{};
    if (l.stkl != 5 && l.stkl != 6)
        vorsorge(l);
    l.zve = l.stufewert - l.ztabfb - l.vsp;
    if (l.zve < Currency{}) {
        l.zve = Currency{};
        l.x = Currency{};
    } else if (l.zve > Currency{}) {
        l.x = stufe54(geteiltGerundet(l.zve, 1, l.kztab));
    }
    // A zve of exactly 0 keeps the x of an earlier run of this call.
    if (l.stkl == 5 || l.stkl == 6)
        tarif56(l);
    else
        grundtarif(l, l.x);
}

} // namespace lonvir
