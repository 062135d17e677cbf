// The wage-tax routine against a second, deliberately plain reading of the same rules: every
// amount an integer count of 1/10000 (of DM or of a Pfennig), every step written out again.
// Over all classes, periods, child counts, both tables and the age relief the two must agree.
#include "engine/lohnsteuer.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <vector>

namespace lonvir {

namespace {

using ganz = std::int64_t;
constexpr ganz E = 10000; // one unit in ten-thousandths

// Cut towards zero.
ganz teile(ganz a, ganz b) {
    return a / b;
}

// To the nearest, ties to even (b > 0).
ganz teileGerundet(ganz a, ganz b) {
    ganz q = a / b;
    ganz r = a % b;
    if (r < 0)
        r = -r;
    if (2 * r > b || (2 * r == b && q % 2 != 0))
        q += a < 0 ? -1 : 1;
    return q;
}

ganz einheitAb(ganz a) {
    return a / E * E;
}
ganz mal(ganz a, ganz b) {
    return teileGerundet(a * b, E);
}
ganz raster54(ganz v) {
    return v / (54 * E) * (54 * E);
}

struct Fall {
    ganz re4; // Pfennig, whole
    int lzz;
    int stkl;
    ganz zkfHalbe;
    int alter64;
    int besonders;
};

struct Ergebnis {
    ganz lstlzz, solzlzz, bk, stufeunten, stufeoben;
};

ganz periodeAb(ganz w, int lzz) {
    if (lzz == 1)
        return einheitAb(w);
    if (lzz == 2)
        return w / (12 * E) * E;
    if (lzz == 3)
        return 7 * w / (360 * E) * E;
    return w / (360 * E) * E;
}

ganz periodeAuf(ganz w, int lzz) {
    if (lzz == 1)
        return w;
    ganz z = lzz == 3 ? 7 : 1;
    ganz n = lzz == 2 ? 12 : 360;
    ganz q = teileGerundet(w * z, n);
    if ((q / 100) % 100 > 0)
        return einheitAb(q) + E;
    return w * z / (n * E) * E;
}

ganz aufrunden(ganz v) {
    return (v / 100) % 100 > 0 ? einheitAb(v) + E : einheitAb(v);
}

// Income tax of 1996 to 1998 on x (ten-thousandths of DM), before splitting.
ganz einkommensteuer(ganz x, ganz vorher) {
    if (x < 12096 * E)
        return 0;
    if (x < 55728 * E) {
        ganz y = teileGerundet(x - 12042 * E, 10000);
        ganz r = y * 8663 / 100;
        return einheitAb(mal(r + 2590 * E, y));
    }
    if (x <= 120041 * E) {
        ganz y = teileGerundet(x - 55674 * E, 10000);
        ganz r = y * 15194 / 100;
        return einheitAb(mal(r + 3346 * E, y) + 12949 * E);
    }
    if (x >= 120042 * E)
        return einheitAb(x * 53 / 100 - 22842 * E);
    return vorher;
}

Ergebnis zweiteLesung(const Fall& f) {
    const ganz re4 = f.re4 * E;
    ganz alte = 0;
    if (f.alter64 == 1)
        alte = std::min(aufrunden(mal(re4, 4000)), periodeAuf(372000 * E, f.lzz));
    const ganz lohn = re4 - alte;

    ganz zre4 = 0;
    if (f.lzz == 1)
        zre4 = teileGerundet(lohn, 100);
    if (f.lzz == 2)
        zre4 = teile((lohn + 6700) * 12, 100 * E) * E;
    if (f.lzz == 3)
        zre4 = teile((lohn + 8900) * 36, 70 * E) * E;
    if (f.lzz == 4)
        zre4 = teile((lohn + 5600) * 36, 10 * E) * E;

    const ganz stufewert = (zre4 < 2 * E ? 0 : raster54(zre4 - 2 * E)) + 2 * E;
    const ganz stufetop = stufewert + 53 * E;
    Ergebnis e{};
    e.stufeunten = periodeAb(stufewert * 100, f.lzz);
    const ganz spanne[] = {0, 5399, 449, 104, 14};
    e.stufeoben = e.stufeunten + spanne[f.lzz] * E;

    // kztab, Arbeitnehmer-, Sonderausgaben-, Haushalts-, Kinderfreibetrag, other
    const ganz tab[7][6] = {
        {0, 0, 0, 0, 0, 0},         {1, 2000, 108, 0, 6912, 0}, {1, 2000, 108, 5616, 6912, 0},
        {2, 2000, 216, 0, 6912, 0}, {1, 2000, 108, 0, 3456, 0}, {1, 2000, 0, 0, 0, 0},
        {1, 0, 0, 0, 0, 2}};
    const ganz kz = tab[f.stkl][0];
    const ganz freibetraege =
        (tab[f.stkl][1] + tab[f.stkl][2] + tab[f.stkl][3] + tab[f.stkl][5]) * E;
    const ganz kinder = tab[f.stkl][4] * f.zkfHalbe * E / 2;

    ganz vsp = 0;
    if (f.stkl <= 4) {
        const ganz vsp1 = mal(stufetop, 2000);
        if (f.besonders == 1) {
            vsp = std::min(vsp1, 2214 * kz * E);
        } else {
            ganz vhb = std::max<ganz>(0, 6000 * kz * E - mal(stufetop, 1600));
            if (vsp1 <= vhb) {
                vsp = vsp1;
            } else if (vsp1 - vhb <= 2610 * kz * E) {
                vsp = vsp1;
            } else {
                ganz h = teileGerundet(vsp1 - vhb - 2610 * kz * E, 2);
                ganz cent = h / 100 * 100;
                h = teileGerundet(h, 100) % 100 > 0 ? cent + 100 : cent;
                vsp = vhb + 2610 * kz * E + std::min(h, 1305 * kz * E);
            }
        }
        vsp = raster54(vsp);
    }

    ganz x = 0;
    ganz st = 0;
    auto tarifrechnen = [&](ganz abzug) {
        const ganz zve = stufewert - abzug - vsp;
        if (zve < 0)
            x = 0;
        if (zve > 0)
            x = raster54(teileGerundet(zve, kz));
        if (f.stkl <= 4) {
            st = einkommensteuer(x, st / kz) * kz;
            return;
        }
        const ganz b = std::min(x, 62856 * E);
        const ganz hoch = einkommensteuer(mal(b, 12500), st);
        const ganz tief = einkommensteuer(mal(b, 7500), hoch);
        const ganz d = 2 * (hoch - tief);
        const ganz m = einheitAb(mal(b, 2590));
        st = m > d ? m : d;
        if (x > 62856 * E)
            st = einheitAb(st + mal(x - 62856 * E, 5300));
    };

    tarifrechnen(freibetraege);
    e.lstlzz = periodeAb(st * 100, f.lzz);
    if (f.zkfHalbe > 0)
        tarifrechnen(freibetraege + kinder);
    const ganz t = st;
    const ganz grenze = 1332 * kz * E;
    ganz soli = 0;
    if (t > grenze) {
        const ganz a = teileGerundet(t * 75, 1000);
        const ganz b = teileGerundet((t - grenze) * 20, 100);
        soli = b < a ? b : a;
    }
    e.solzlzz = periodeAb(soli * 100, f.lzz);
    e.bk = periodeAb(t * 100, f.lzz);
    return e;
}

Ergebnis ersteLesung(const Fall& f) {
    Lohnsteuerlauf l;
    l.re4 = Currency::ganz(f.re4);
    l.lzz = static_cast<std::int16_t>(f.lzz);
    l.stkl = static_cast<std::int16_t>(f.stkl);
    l.zkf = Currency::roh(f.zkfHalbe * 5000);
    l.alter64 = static_cast<std::int16_t>(f.alter64);
    l.besonders = static_cast<std::int16_t>(f.besonders);
    l.kirche = 1;
    lohnsteuer(l);
    return {l.lstlzz.roh(), l.solzlzz.roh(), l.bk.roh(), l.stufeunten.roh(), l.stufeoben.roh()};
}

// Wages of a month, in Pfennig, from no tax through all three zones of the tariff.
const ganz monatsloehne[] = {0, 98700, 151234, 287650, 400000, 612345, 987654, 1888888, 3100000};

std::vector<Fall> faelle() {
    std::vector<Fall> alle;
    const ganz kinderHalbe[] = {0, 1, 2, 5, 12};
    int n = 0;
    for (int lzz = 1; lzz <= 4; ++lzz) {
        for (ganz monat : monatsloehne) {
            ganz re4 = monat;
            if (lzz == 1)
                re4 = monat * 12 + 37;
            if (lzz == 3)
                re4 = monat * 12 / 52;
            if (lzz == 4)
                re4 = monat / 30;
            for (int stkl = 1; stkl <= 6; ++stkl) {
                ++n;
                const ganz k = stkl <= 4 ? kinderHalbe[n % 5] : kinderHalbe[n % 2];
                alle.push_back({re4, lzz, stkl, k, n % 3 == 0 ? 1 : 0, n % 2});
            }
        }
    }
    return alle;
}

} // namespace

TEST(LohnsteuerVergleich, ZweiLesungenStimmenUeberein) {
    const std::vector<Fall> alle = faelle();
    ASSERT_GE(alle.size(), 200u);
    for (const Fall& f : alle) {
        SCOPED_TRACE(testing::Message()
                     << "re4 " << f.re4 << " lzz " << f.lzz << " stkl " << f.stkl << " zkf/2 "
                     << f.zkfHalbe << " alter64 " << f.alter64 << " besonders " << f.besonders);
        const Ergebnis a = ersteLesung(f);
        const Ergebnis b = zweiteLesung(f);
        EXPECT_EQ(a.lstlzz, b.lstlzz);
        EXPECT_EQ(a.solzlzz, b.solzlzz);
        EXPECT_EQ(a.bk, b.bk);
        EXPECT_EQ(a.stufeunten, b.stufeunten);
        EXPECT_EQ(a.stufeoben, b.stufeoben);
    }
}

TEST(LohnsteuerVergleich, JedeKlasseJederZeitraumBeideTabellenUndAlterKommenVor) {
    // The cases must cover what they claim: each class in each period, both tables, age
    // relief on and off, children, and every zone of the tariff.
    bool gesehen[5][7] = {};
    int besondere = 0, alte = 0, mitKindern = 0, zone1 = 0, zone2 = 0, zone3 = 0;
    for (const Fall& f : faelle()) {
        gesehen[f.lzz][f.stkl] = true;
        besondere += f.besonders;
        alte += f.alter64;
        mitKindern += f.zkfHalbe > 0 ? 1 : 0;
        Lohnsteuerlauf l;
        l.re4 = Currency::ganz(f.re4);
        l.lzz = static_cast<std::int16_t>(f.lzz);
        l.stkl = static_cast<std::int16_t>(f.stkl);
        lohnsteuer(l);
        zone1 += l.x >= Currency::ganz(12096) && l.x < Currency::ganz(55728) ? 1 : 0;
        zone2 += l.x >= Currency::ganz(55728) && l.x < Currency::ganz(120042) ? 1 : 0;
        zone3 += l.x >= Currency::ganz(120042) ? 1 : 0;
    }
    for (int lzz = 1; lzz <= 4; ++lzz)
        for (int stkl = 1; stkl <= 6; ++stkl)
            EXPECT_TRUE(gesehen[lzz][stkl]) << lzz << " " << stkl;
    EXPECT_GT(besondere, 50);
    EXPECT_GT(alte, 30);
    EXPECT_GT(mitKindern, 50);
    EXPECT_GT(zone1, 20);
    EXPECT_GT(zone2, 20);
    EXPECT_GT(zone3, 10);
}

} // namespace lonvir
