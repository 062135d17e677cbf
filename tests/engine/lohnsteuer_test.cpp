// The wage-tax routine: steps, periods, classes and the rounding of every step, worked by hand.
#include "engine/lohnsteuer.h"
#include "engine/lohnsteuerrechnen.h"
#include "engine/lohnsteuertarif.h"

#include "core/laufzeitfehler.h"

#include <gtest/gtest.h>

namespace lonvir {

namespace {

Currency pf(std::int64_t pfennig) {
    return Currency::ganz(pfennig);
}
Currency betrag(std::int64_t zehntausendstel) {
    return Currency::roh(zehntausendstel);
}

Lohnsteuerlauf lauf(std::int64_t re4, std::int16_t lzz, std::int16_t stkl,
                    std::int64_t zkfHalbe = 0) {
    Lohnsteuerlauf l;
    l.re4 = pf(re4);
    l.lzz = lzz;
    l.stkl = stkl;
    l.zkf = betrag(zkfHalbe * 5000);
    l.kirche = 1;
    lohnsteuer(l);
    return l;
}

} // namespace

TEST(Lohnsteuer, MonatslohnKlasseEinsSchrittFuerSchritt) {
    // 4000 DM a month, class I, normal table, no children.
    // zre4 = (400000 + 0.67) * 0.12 = 48000.0804 -> 48000 (truncated)
    // stufe54(47998) = 888 * 54 = 47952; stufewert 47954; stufetop 48007
    // stufeunten = 4795400 / 12 = 399616.67 -> 399616; stufeoben + 449 = 400065
    // ztabfb = 2000 + 108 = 2108
    // vsp1 = 0.2 * 48007 = 9601.4; vhb = 6000 - 0.16 * 48007 = 6000 - 7681.12 < 0 -> 0
    // rest = 9601.4 > 2610: vsp = 0 + 2610 + min(3495.71, 1305) = 3915 -> stufe54 = 3888
    // zve = 47954 - 2108 - 3888 = 41958; x = stufe54(41958) = 41958 (777 * 54)
    // y = 2.9916; r = 2.9916 * 86.63 = 259.162308 -> 259.1623
    // (259.1623 + 2590) * 2.9916 = 8523.5539... -> 8523
    // lstlzz = 852300 / 12 = 71025
    // surcharge: 7.5 % of 8523 = 639.225 < 20 % of (8523 - 1332) = 1438.2
    // solzlzz = 63922.5 / 12 = 5326.875 -> 5326; bk = 71025
    const Lohnsteuerlauf l = lauf(400000, 2, 1);
    EXPECT_EQ(l.zre4, pf(48000));
    EXPECT_EQ(l.stufewert, pf(47954));
    EXPECT_EQ(l.stufetop, pf(48007));
    EXPECT_EQ(l.stufeunten, pf(399616));
    EXPECT_EQ(l.stufeoben, pf(400065));
    EXPECT_EQ(l.kztab, 1);
    EXPECT_EQ(l.ztabfb, pf(2108));
    EXPECT_EQ(l.vsp1, betrag(96014000));
    EXPECT_EQ(l.vhb, pf(0));
    EXPECT_EQ(l.vsp, pf(3888));
    EXPECT_EQ(l.zve, pf(41958));
    EXPECT_EQ(l.x, pf(41958));
    EXPECT_EQ(l.st, pf(8523));
    EXPECT_EQ(l.lstlzz, pf(71025));
    EXPECT_EQ(l.solzlzz, pf(5326));
    EXPECT_EQ(l.bk, pf(71025));
}

TEST(Lohnsteuer, JahreslohnUnterZweiGibtStufenwertZwei) {
    // re4 0 a month: zre4 = 0.67 * 0.12 = 0.0804 -> 0; 0 - 2 < 0, so the step is 0 and
    // stufewert 2, stufetop 55; stufeunten = 200 / 12 = 16.67 -> 16, stufeoben 16 + 449 = 465.
    const Lohnsteuerlauf l = lauf(0, 2, 1);
    EXPECT_EQ(l.zre4, pf(0));
    EXPECT_EQ(l.stufewert, pf(2));
    EXPECT_EQ(l.stufetop, pf(55));
    EXPECT_EQ(l.stufeunten, pf(16));
    EXPECT_EQ(l.stufeoben, pf(465));
    EXPECT_EQ(l.lstlzz, pf(0));
}

TEST(Lohnsteuer, JahreslohnJeZeitraum) {
    // Year: 4800050 Pf / 100 = 48000.5, kept with its fraction (rounded, not truncated).
    EXPECT_EQ(lauf(4800050, 1, 1).zre4, betrag(480005000));
    // Week: (100000 + 0.89) * 3.6 / 7 = 51429.029... -> 51429
    EXPECT_EQ(lauf(100000, 3, 1).zre4, pf(51429));
    // Day: (10000 + 0.56) * 3.6 = 36002.016 -> 36002
    EXPECT_EQ(lauf(10000, 4, 1).zre4, pf(36002));
}

TEST(Lohnsteuer, StufengrenzenJeZeitraum) {
    // Year 4800050: stufe54(47998.5) = 47952, stufewert 47954: 4795400 .. 4795400 + 5399
    const Lohnsteuerlauf jahr = lauf(4800050, 1, 1);
    EXPECT_EQ(jahr.stufeunten, pf(4795400));
    EXPECT_EQ(jahr.stufeoben, pf(4800799));
    // Week 100000: zre4 51429, stufe54(51427) = 952 * 54 = 51408, stufewert 51410;
    // 7 * 5141000 / 360 = 99963.88 -> 99963, + 104 = 100067
    const Lohnsteuerlauf woche = lauf(100000, 3, 1);
    EXPECT_EQ(woche.stufeunten, pf(99963));
    EXPECT_EQ(woche.stufeoben, pf(100067));
    // Day 10000: zre4 36002, stufe54(36000) = 666 * 54 = 35964, stufewert 35966;
    // 3596600 / 360 = 9990.55 -> 9990, + 14 = 10004
    const Lohnsteuerlauf tag = lauf(10000, 4, 1);
    EXPECT_EQ(tag.stufeunten, pf(9990));
    EXPECT_EQ(tag.stufeoben, pf(10004));
}

TEST(Lohnsteuer, KlasseDreiHalbiertZveUndVerdoppeltDieSteuer) {
    // 4000 DM a month, class III: kztab 2, ztabfb = 2000 + 216 = 2216.
    // vsp1 = 9601.4; vhb = 12000 - 7681.12 = 4318.88; rest = 5282.52 > 5220:
    // half of 62.52 = 31.26 -> 31.27; vsp = 4318.88 + 5220 + 31.27 = 9570.15 -> 9558
    // zve = 47954 - 2216 - 9558 = 36180; x = stufe54(18090) = 18090 (335 * 54)
    // y = 0.6048; r = 52.393824 -> 52.3938; 2642.3938 * 0.6048 = 1598.1197... -> 1598
    // st = 2 * 1598 = 3196; lstlzz = 319600 / 12 = 26633.33 -> 26633
    const Lohnsteuerlauf l = lauf(400000, 2, 3);
    EXPECT_EQ(l.kztab, 2);
    EXPECT_EQ(l.ztabfb, pf(2216));
    EXPECT_EQ(l.vhb, betrag(43188800));
    EXPECT_EQ(l.vsp, pf(9558));
    EXPECT_EQ(l.zve, pf(36180));
    EXPECT_EQ(l.x, pf(18090));
    EXPECT_EQ(l.st, pf(3196));
    EXPECT_EQ(l.lstlzz, pf(26633));
}

TEST(Lohnsteuer, KlasseDreiZuschlagsgrenzeIst2664UndZwanzigProzentGreifen) {
    // t = 3196, grenze = 1332 * 2 = 2664: 7.5 % = 239.7, 20 % of 532 = 106.4 -> 106.4
    // solzlzz = 10640 / 12 = 886.67 -> 886
    const Lohnsteuerlauf l = lauf(400000, 2, 3);
    EXPECT_EQ(l.grenze, pf(2664));
    EXPECT_EQ(l.solzlzz, pf(886));
}

TEST(Lohnsteuer, KlasseSechsHatNurZweiMark) {
    // Class VI: ztabfb is the 2 DM alone, no Vorsorgepauschale: zve = 47954 - 2 = 47952.
    const Lohnsteuerlauf l = lauf(400000, 2, 6);
    EXPECT_EQ(l.ztabfb, pf(2));
    EXPECT_EQ(l.vsp, pf(0));
    EXPECT_EQ(l.zve, pf(47952));
    EXPECT_EQ(l.x, pf(47952));
}

TEST(Lohnsteuer, KlasseFuenfMitFuenfundzwanzigUndFuenfundsiebzigProzent) {
    // Class V, 4000 DM a month: ztabfb 2000, zve = x = 45954; begrenzt 45954.
    // 1.25 * 45954 = 57442.5: y = 0.17685 -> 0.1768 (tie to even); r = 26.862992 -> 26.8629
    //   3372.8629 * 0.1768 = 596.3222 + 12949 -> 13545
    // 0.75 * 45954 = 34465.5: y = 2.24235 -> 2.2424 (tie to even); r = 194.259112 -> 194.2591
    //   2784.2591 * 2.2424 = 6243.4226 -> 6243
    // difference 2 * (13545 - 6243) = 14604; mist = 0.259 * 45954 = 11902.086 -> 11902
    // st = 14604; lstlzz = 1460400 / 12 = 121700
    const Lohnsteuerlauf l = lauf(400000, 2, 5);
    EXPECT_EQ(l.x, pf(45954));
    EXPECT_EQ(l.st, pf(14604));
    EXPECT_EQ(l.lstlzz, pf(121700));
}

TEST(Lohnsteuer, KlasseFuenfUndEinsMitXNullOhneSteuer) {
    // A wage of 0: x is 0; class I's tariff gives 0, class V's mist and difference are 0.
    EXPECT_EQ(lauf(0, 2, 1).st, pf(0));
    EXPECT_EQ(lauf(0, 2, 5).x, pf(0));
    EXPECT_EQ(lauf(0, 2, 5).st, pf(0));
    EXPECT_EQ(lauf(0, 2, 6).st, pf(0));
}

TEST(Lohnsteuer, KinderfreibetraegeSenkenZuschlagUndKirchensteuerNichtLohnsteuer) {
    // Class I, 4000 DM, zkf 1: the wage tax stays 71025 (step 7 without children).
    // Second run: ztabfb = 2108 + 6912 = 9020; zve = 47954 - 9020 - 3888 = 35046 = x
    // y = 2.3004; r = 199.283652 -> 199.2836; 2789.2836 * 2.3004 = 6416.468 -> 6416
    // surcharge: 7.5 % of 6416 = 481.2 < 20 % of 5084 = 1016.8; 48120 / 12 = 4010
    // bk = 641600 / 12 = 53466.67 -> 53466
    const Lohnsteuerlauf l = lauf(400000, 2, 1, 2);
    EXPECT_EQ(l.kfb, pf(6912));
    EXPECT_EQ(l.lstlzz, pf(71025));
    EXPECT_EQ(l.stlohn, pf(8523));
    EXPECT_EQ(l.ztabfb, pf(9020));
    EXPECT_EQ(l.x, pf(35046));
    EXPECT_EQ(l.t, pf(6416));
    EXPECT_EQ(l.solzlzz, pf(4010));
    EXPECT_EQ(l.bk, pf(53466));
}

TEST(Lohnsteuer, OhneKinderIstDieZuschlagssteuerDieVonSchrittSieben) {
    const Lohnsteuerlauf l = lauf(400000, 2, 1, 0);
    EXPECT_EQ(l.t, l.stlohn);
    EXPECT_EQ(l.kfb, pf(0));
    EXPECT_EQ(l.ztabfb, pf(2108));
}

TEST(Lohnsteuer, KlasseVierHalberKinderfreibetrag) {
    // Class IV: 3456 DM per child allowance; zkf 1.5 -> 5184
    EXPECT_EQ(lauf(400000, 2, 4, 3).kfb, pf(5184));
}

TEST(Lohnsteuer, ZveVonGenauNullBehaeltDasXDesErstenLaufs) {
    // Class I, zkf 2, year 19874 DM: zre4 19874, stufewert 19874, stufetop 19927
    // vsp1 = 3985.4; vhb = 6000 - 3188.32 = 2811.68; rest 1173.72 <= 2610: vsp = 3985.4 -> 3942
    // zve = 19874 - 2108 - 3942 = 13824 = x; y = 0.1782, r = 15.437466 -> 15.4374
    //   2605.4374 * 0.1782 = 464.289 -> 464
    // Second run: zve = 13824 - 13824 = 0 exactly: x is neither cleared nor set, so the tax
    // for surcharge and church tax stays 464. It stays so.
    const Lohnsteuerlauf l = lauf(1987400, 1, 1, 4);
    EXPECT_EQ(l.zve, pf(0));
    EXPECT_EQ(l.x, pf(13824));
    EXPECT_EQ(l.stlohn, pf(464));
    EXPECT_EQ(l.t, pf(464));
    EXPECT_EQ(l.bk, pf(46400));
}

TEST(Lohnsteuer, BesondereTabelleDeckeltVorsorgeBei2214) {
    // besonders 1: vsp = min(9601.4, 2214) = 2214 = 41 * 54
    // zve = 47954 - 2108 - 2214 = 43632 = x; y = 3.159, r = 273.66417 -> 273.6641
    // 2863.6641 * 3.159 = 9046.3148... -> 9046; lstlzz = 904600 / 12 = 75383.33 -> 75383
    Lohnsteuerlauf l;
    l.re4 = pf(400000);
    l.lzz = 2;
    l.stkl = 1;
    l.besonders = 1;
    lohnsteuer(l);
    EXPECT_EQ(l.vsp, pf(2214));
    EXPECT_EQ(l.x, pf(43632));
    EXPECT_EQ(l.st, pf(9046));
    EXPECT_EQ(l.lstlzz, pf(75383));
}

TEST(Lohnsteuer, OhneKircheKeinKirchensteuerbetrag) {
    Lohnsteuerlauf l;
    l.re4 = pf(400000);
    l.lzz = 2;
    l.stkl = 1;
    l.kirche = 0;
    lohnsteuer(l);
    EXPECT_EQ(l.bk, pf(0));
    EXPECT_EQ(l.lstlzz, pf(71025));
}

TEST(Lohnsteuer, AltersentlastungsbetragMitMonatsgrenze) {
    // 40 % of 400000 = 160000, limited to 372000 / 12 = 31000; wage 369000
    // zre4 = 369000.67 * 0.12 = 44280.08 -> 44280
    Lohnsteuerlauf l;
    l.re4 = pf(400000);
    l.lzz = 2;
    l.stkl = 1;
    l.alter64 = 1;
    lohnsteuer(l);
    EXPECT_EQ(l.alte, pf(31000));
    EXPECT_EQ(l.zre4, pf(44280));
}

TEST(Lohnsteuer, AltersentlastungsbetragRundetAufWennPfennigbruchBleibt) {
    // 40 % of 1234 Pf = 493.6 -> 100 * 493.6 = 49360, modulo 100 = 60 > 0: 493 + 1 = 494
    Lohnsteuerlauf l;
    l.re4 = pf(1234);
    l.lzz = 2;
    l.stkl = 1;
    l.alter64 = 1;
    lohnsteuer(l);
    EXPECT_EQ(l.alte, pf(494));
}

TEST(Lohnsteuer, VersorgungsfreibetragUndFreibetragDesZeitraums) {
    // vbez 100000: 40 % = 40000, below 600000 / 12 = 50000: vfb 40000.
    // With alter64 too: 40 % of (300000 - 100000) = 80000, limited to 31000.
    // Wage = 300000 - 40000 - 31000 - 5000 = 224000; zre4 = 224000.67 * 0.12 = 26880.08 -> 26880
    Lohnsteuerlauf l;
    l.re4 = pf(300000);
    l.vbez = pf(100000);
    l.lzzfreib = pf(5000);
    l.alter64 = 1;
    l.lzz = 2;
    l.stkl = 1;
    lohnsteuer(l);
    EXPECT_EQ(l.vfb, pf(40000));
    EXPECT_EQ(l.alte, pf(31000));
    EXPECT_EQ(l.zre4, pf(26880));
    // vbez 2000000: 40 % = 800000, limited to 50000.
    l.vbez = pf(2000000);
    l.re4 = pf(2000000);
    l.alter64 = 0;
    lohnsteuer(l);
    EXPECT_EQ(l.vfb, pf(50000));
}

TEST(Lohnsteuer, AnteilAbUndAuf) {
    // Month: 600000 / 12 = 50000 exactly: both 50000.
    EXPECT_EQ(anteilab(pf(600000), 2), pf(50000));
    EXPECT_EQ(anteilauf(pf(600000), 2), pf(50000));
    // Week: 7 * 372000 / 360 = 7233.33: down 7233, up 7234.
    EXPECT_EQ(anteilab(pf(372000), 3), pf(7233));
    EXPECT_EQ(anteilauf(pf(372000), 3), pf(7234));
    // Day: 372000 / 360 = 1033.33: down 1033, up 1034.
    EXPECT_EQ(anteilab(pf(372000), 4), pf(1033));
    EXPECT_EQ(anteilauf(pf(372000), 4), pf(1034));
    // Month: 13 / 12 = 1.0833: up 2. 12.0012 / 12 = 1.0001: less than 0.01 left, so 1.
    EXPECT_EQ(anteilauf(pf(13), 2), pf(2));
    EXPECT_EQ(anteilauf(betrag(120012), 2), pf(1));
    // Year: anteilab cuts the fraction, anteilauf is the amount itself.
    EXPECT_EQ(anteilab(betrag(12345), 1), pf(1));
    EXPECT_EQ(anteilauf(betrag(12345), 1), betrag(12345));
}

TEST(Lohnsteuer, Stufe54) {
    EXPECT_EQ(stufe54(pf(107)), pf(54));
    EXPECT_EQ(stufe54(pf(108)), pf(108));
    EXPECT_EQ(stufe54(betrag(1079999)), pf(54));
    EXPECT_EQ(stufe54(pf(53)), pf(0));
}

TEST(Grundtarif, ErsteSteuerBei12096) {
    // x 12042 is below the zone: 0.
    // x 12096: y = 0.0054; r = 0.467802 -> 0.4678; 2590.4678 * 0.0054 = 13.9885 -> 13
    Lohnsteuerlauf l;
    l.kztab = 1;
    grundtarif(l, pf(12042));
    EXPECT_EQ(l.st, pf(0));
    grundtarif(l, pf(12096));
    EXPECT_EQ(l.st, pf(13));
}

TEST(Grundtarif, ZonengrenzenUndLueckeZwischen120041Und120042) {
    Lohnsteuerlauf l;
    l.kztab = 1;
    // 55727: y = 4.3685; r = 378.443155 -> 378.4431; 2968.4431 * 4.3685 = 12967.6437 -> 12967
    grundtarif(l, pf(55727));
    EXPECT_EQ(l.st, pf(12967));
    // 55728: y = 0.0054; r = 0.820476 -> 0.8204; 3346.8204 * 0.0054 = 18.0728 + 12949 -> 12967
    grundtarif(l, pf(55728));
    EXPECT_EQ(l.st, pf(12967));
    // 120041: y = 6.4367; r = 977.992198 -> 977.9921; 4323.9921 * 6.4367 = 27832.23995
    //   -> 27832.2400 (rounded to Currency) + 12949 = 40781.24 -> 40781
    grundtarif(l, pf(120041));
    EXPECT_EQ(l.st, pf(40781));
    // 120042: 0.53 * 120042 - 22842 = 40780.26 -> 40780
    grundtarif(l, pf(120042));
    EXPECT_EQ(l.st, pf(40780));
    // Between the two: st stays as it was.
    l.st = pf(777);
    grundtarif(l, betrag(1200415000));
    EXPECT_EQ(l.st, pf(777));
    // Class III doubles: 2 * 13 at 12096.
    l.kztab = 2;
    grundtarif(l, pf(12096));
    EXPECT_EQ(l.st, pf(26));
}

TEST(Grundtarif, ProduktImFliesskommaWirdAufVierStellenAbgeschnitten) {
    // 1.89 * 86.63 = 163.7307 exactly, but in 64-bit floating point the product of the two
    // binary values times 10000 lands just below 1637307, and the cut gives 163.7306.
    EXPECT_EQ(produktViermalAbgeschnitten(betrag(18900), 86.63), betrag(1637306));
    // 2.9916 * 86.63 = 259.162308 -> 259.1623
    EXPECT_EQ(produktViermalAbgeschnitten(betrag(29916), 86.63), betrag(2591623));
}

TEST(Vorsorge, HaelfteBekommtEinenPfennigWennSieNichtGanzeMarkIst) {
    // 62.52 / 2 = 31.26: 3126 modulo 100 = 26 > 0 -> 31.26 + 0.01 = 31.27
    EXPECT_EQ(haelfteDesRests(betrag(625200)), betrag(312700));
    // 125 / 2 = 62.5 -> 62.51
    EXPECT_EQ(haelfteDesRests(pf(125)), betrag(625100));
    // 62 / 2 = 31: 3100 modulo 100 = 0 -> 31
    EXPECT_EQ(haelfteDesRests(pf(62)), pf(31));
    // 0.0003 / 2 = 0.00015 -> 0.0002 (tie to even); cut to 0.00, 100 * 0.0002 rounds to 0: 0
    EXPECT_EQ(haelfteDesRests(betrag(3)), pf(0));
}

TEST(Lohnsteuer, UnbekannteKlasseIstIndexfehler) {
    Lohnsteuerlauf l;
    l.stkl = 7;
    try {
        lohnsteuer(l);
        FAIL() << "kein Laufzeitfehler";
    } catch (const Laufzeitfehler& f) {
        EXPECT_EQ(f.nummer(), 9);
    }
}

} // namespace lonvir
