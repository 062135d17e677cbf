// The tariff of the wage-tax table: zve on the 54-DM grid, the basic tariff of section 32a EStG
// in its three zones by the figures of the run's law, and the tariff of classes 5 and 6.
#include "engine/lohnsteuertarif.h"

#include "engine/lohnsteuerrechnen.h"

#include <algorithm>
#include <optional>

namespace lonvir {

namespace {

const Currency obergrenze56 = Currency::ganz(62856);

// First zone: (faktor1 y + konstante1) y, y the ten-thousandth part above abzug1; 1996/1997
// (86.63 y + 2590) y above 12042, 1998 (91.19 y + 2590) y above 12312.
Currency ersteZone(const Steuertarif& t, Currency betrag) {
    const Currency y = geteiltGerundet(betrag - dm(t.abzug1), 1, 10000);
    const Currency r = produktViermalAbgeschnitten(y, t.faktor1);
    return ((r + dm(t.konstante1)) * y).abgeschnitten();
}

// Second zone: (faktor2 z + konstante2) z + sockel2, z above abzug2; 1996/1997 (151.94 z +
// 3346) z + 12949 above 55674, 1998 (151.96 z + 3434) z + 13938 above 58590.
Currency zweiteZone(const Steuertarif& t, Currency betrag) {
    const Currency y = geteiltGerundet(betrag - dm(t.abzug2), 1, 10000);
    const Currency r = produktViermalAbgeschnitten(y, t.faktor2);
    // The product is a Currency already: cutting it to four decimals changes nothing.
    const Currency ry = (r + dm(t.konstante2)) * y;
    return (ry + dm(t.sockel2)).abgeschnitten();
}

// Upper zone: 53 % less 22842 (1998: 22843).
Currency obereZone(const Steuertarif& t, Currency betrag) {
    return (betrag * Currency::roh(5300) - dm(t.abzug3)).abgeschnitten();
}

std::optional<Currency> tarifzone(const Steuertarif& t, Currency betrag) {
    if (betrag < dm(t.eingang))
        return Currency{};
    if (betrag < dm(t.anfang2))
        return ersteZone(t, betrag);
    if (betrag <= dm(t.ende2))
        return zweiteZone(t, betrag);
    if (betrag >= dm(t.anfang3))
        return obereZone(t, betrag);
    return std::nullopt; // between the two: no zone, st stays
}

} // namespace

void grundtarif(Lohnsteuerlauf& l, Currency betrag) {
    if (const std::optional<Currency> steuer = tarifzone(steuertarif(l.recht), betrag))
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
