// The wage-tax routine: allowances, yearly wage, table step, class table, the two tariff runs,
// then surcharge and church-tax base.
#include "engine/lohnsteuer.h"

#include "core/feld.h"
#include "core/pfennig.h"
#include "engine/lohnsteuerrechnen.h"
#include "engine/lohnsteuertarif.h"
#include "engine/solidaritaet.h"

namespace lonvir {

namespace {

// The share of a year in each period, as numerator and denominator.
struct Anteil {
    std::int64_t zaehler;
    std::int64_t nenner;
};

bool anteilVon(std::int16_t lzz, Anteil& a) {
    switch (lzz) {
    case 2:
        a = {1, 12};
        return true;
    case 3:
        a = {7, 360};
        return true;
    case 4:
        a = {1, 360};
        return true;
    default:
        return false;
    }
}

// Rounds up to whole Pfennig only when at least 0.01 Pfennig is left over.
bool hundertstelUebrig(Currency v) {
    return pf::int32(v.roh() / 100) % 100 > 0;
}

Currency aufgerundet(Currency v) {
    return v.abgeschnitten() + (hundertstelUebrig(v) ? dm(1) : Currency{});
}

Feld<Klassenzeile, 1, 6> klassentabelle() {
    Feld<Klassenzeile, 1, 6> k;
    k[1] = {1, 2000, 108, 0, 6912, 0};
    k[2] = {1, 2000, 108, 5616, 6912, 0};
    k[3] = {2, 2000, 216, 0, 6912, 0};
    k[4] = {1, 2000, 108, 0, 3456, 0};
    k[5] = {1, 2000, 0, 0, 0, 0};
    k[6] = {1, 0, 0, 0, 0, 2}; // class 6 has no Arbeitnehmer-Pauschbetrag: 2 DM is all
    return k;
}

void leeren(Lohnsteuerlauf& l) {
    l.lstlzz = l.solzlzz = l.bk = l.stufeunten = l.stufeoben = Currency{};
    l.vfb = l.alte = l.zre4 = l.stufewert = l.stufetop = Currency{};
    l.ztabfb = l.kfb = l.vsp1 = l.vhb = l.vsp = l.zve = l.x = l.st = Currency{};
    l.kztab = 0;
    l.stlohn = l.t = l.grenze = Currency{};
}

// Pension and age allowances of the period; gives the wage that goes on.
Currency freibetraege(Lohnsteuerlauf& l) {
    if (l.vbez != Currency{}) {
        l.vfb = aufgerundet(l.vbez * Currency::roh(4000));
        l.vfb = std::min(l.vfb, anteilauf(Currency::ganz(600000), l.lzz));
    }
    if (l.alter64 == 1) {
        l.alte = aufgerundet((l.re4 - l.vbez) * Currency::roh(4000));
        l.alte = std::min(l.alte, anteilauf(Currency::ganz(372000), l.lzz));
    }
    return l.re4 - l.vfb - l.alte - l.lzzfreib;
}

// The yearly wage in DM from the wage of the period in Pfennig.
void jahreslohn(Lohnsteuerlauf& l, Currency lohn) {
    switch (l.lzz) {
    case 1:
        l.zre4 = geteiltGerundet(lohn, 1, 100);
        break;
    case 2:
        l.zre4 = geteiltAbgeschnitten(lohn + Currency::roh(6700), 12, 100);
        break;
    case 3:
        l.zre4 = geteiltAbgeschnitten(lohn + Currency::roh(8900), 36, 70);
        break;
    case 4:
        l.zre4 = geteiltAbgeschnitten(lohn + Currency::roh(5600), 36, 10);
        break;
    default:
        break;
    }
}

// The step of 54 DM the yearly wage falls in, and its bounds in the period for display.
void tabellenstufe(Lohnsteuerlauf& l) {
    const Currency stufe = l.zre4 - dm(2) < Currency{} ? Currency{} : stufe54(l.zre4 - dm(2));
    l.stufewert = stufe + dm(2);
    l.stufetop = l.stufewert + dm(53);
    l.stufeunten = anteilab(l.stufewert * dm(100), l.lzz);
    switch (l.lzz) {
    case 1:
        l.stufeoben = l.stufeunten + dm(5399);
        break;
    case 2:
        l.stufeoben = l.stufeunten + dm(449);
        break;
    case 3:
        l.stufeoben = l.stufeunten + dm(104);
        break;
    case 4:
        l.stufeoben = l.stufeunten + dm(14);
        break;
    default:
        break;
    }
}

void klassenfreibetraege(Lohnsteuerlauf& l) {
    const Klassenzeile& k = klassenzeile(l.stkl);
    l.kztab = k.kztab;
    l.ztabfb = dm(k.arbeitnehmerpauschbetrag + k.sonderausgabenpauschbetrag +
                  k.haushaltsfreibetrag + k.sonstiges);
    l.kfb = dm(k.kinderfreibetrag) * l.zkf;
}

} // namespace

const Klassenzeile& klassenzeile(std::int16_t stkl) {
    static const Feld<Klassenzeile, 1, 6> tabelle = klassentabelle();
    return tabelle[stkl];
}

Currency anteilab(Currency w, std::int16_t lzz) {
    Anteil a{};
    if (lzz == 1)
        return w.abgeschnitten();
    if (!anteilVon(lzz, a))
        return Currency{};
    return geteiltAbgeschnitten(w, a.zaehler, a.nenner);
}

Currency anteilauf(Currency w, std::int16_t lzz) {
    Anteil a{};
    if (lzz == 1)
        return w;
    if (!anteilVon(lzz, a))
        return Currency{};
    const Currency q = geteiltGerundet(w, a.zaehler, a.nenner);
    if (hundertstelUebrig(q))
        return q.abgeschnitten() + dm(1);
    return geteiltAbgeschnitten(w, a.zaehler, a.nenner);
}

void lohnsteuer(Lohnsteuerlauf& l) {
    leeren(l);
    jahreslohn(l, freibetraege(l));
    tabellenstufe(l);
    klassenfreibetraege(l);

    // The tax withheld is that without child allowances.
    tarif(l);
    l.stlohn = l.st;
    l.lstlzz = anteilab(l.st * dm(100), l.lzz);

    // Child allowances lower only the tax that surcharge and church tax are taken from.
    if (l.zkf > Currency{}) {
        l.ztabfb += l.kfb;
        tarif(l);
    }
    l.t = l.st;

    const Steuertarif& recht = steuertarif(l.recht);
    l.grenze = dm(recht.freigrenze) * dm(l.kztab);
    l.solzlzz =
        anteilab(solidaritaetszuschlag(l.t, l.grenze, recht.zuschlagpromille) * dm(100), l.lzz);
    if (l.kirche > 0)
        l.bk = anteilab(l.t * dm(100), l.lzz);
}

} // namespace lonvir
