// Part-time pay: rows 7 to 19 after the part-time factor, the Ortszuschlag of a person whose
// spouse is in the public service, and the VWL of civil servants.
#include "engine/monatladen.h"
#include "engine/schritte.h"
#include "start/satzzugriff.h"
#include "tarifhilfe.h"
#include "testhilfe.h"

#include <gtest/gtest.h>

namespace lonvir {

namespace {

// A civil servant (staff class 0) "vh, 0 Ki" with an Ortszuschlag of 1,000.00 DM whose
// step-1 base in the record read last is 800.00 DM; every row follows the factor.
void teilzeitperson(Sitzung& s, int art, float faktor) {
    s.merkmal[4] = static_cast<std::int16_t>(art);
    s.merkmal[8] = 1;
    s.wert[8] = 100000;
    s.tarifwert[15] = 80000;
    s.teilzeitfaktor = faktor;
    for (int zeile = 7; zeile <= 19; ++zeile)
        s.tei[zeile] = 1;
}

// Pfennig with four decimals, as teilwert holds them.
Currency pf(std::int64_t zehntausendstel) {
    return Currency::roh(zehntausendstel);
}

} // namespace

TEST(Teilzeit, FaktorEinsMitEhegatteUnter50GibtSonderteilGleichZeile8) {
    Sitzung s;
    teilzeitperson(s, 0, 1.0f);
    s.merkmal[3] = 3; // "ja < 50%"
    teilzeit(s);
    // 100000 - 80000 + 1 * 80000 = 100000, the row itself, by the special rule.
    EXPECT_EQ(s.teilwert[8], Currency::ganz(100000));
    EXPECT_EQ(s.oz_sonder, 1);
}

TEST(Teilzeit, EhegatteUnter50MitFaktorUnterEinsFolgtDemFaktor) {
    Sitzung s;
    teilzeitperson(s, 0, 0.5f);
    s.merkmal[3] = 3;
    teilzeit(s);
    EXPECT_EQ(s.teilwert[8], Currency::ganz(50000)); // 100000 * 0.5
    EXPECT_EQ(s.oz_sonder, 0);
}

TEST(Teilzeit, EhegatteUeber49MitHalberStelleNimmtDieSonderregel) {
    Sitzung s;
    teilzeitperson(s, 0, 0.5f);
    s.merkmal[3] = 2; // "ja > 49%"; 0.5 lies above the float 0.49999899
    teilzeit(s);
    // 100000 - 80000 + 0.5 * 80000 = 60000 instead of 100000 * 0.5 = 50000.
    EXPECT_EQ(s.teilwert[8], Currency::ganz(60000));
    EXPECT_EQ(s.oz_sonder, 1);
}

TEST(Teilzeit, EhegatteUeber49UnterHalberStelleFolgtDemFaktor) {
    Sitzung s;
    // 19.00 of 40.00 hours: 0.475.
    teilzeitperson(s, 5, static_cast<float>(1900.0 / 4000.0));
    s.merkmal[3] = 2;
    teilzeit(s);
    // 100000 * 0.475 (as float 0.47499999403953552) = 47499.999403953552 -> 47499.9994.
    EXPECT_EQ(s.teilwert[8], pf(474999994));
    EXPECT_EQ(s.oz_sonder, 0);
}

TEST(Teilzeit, EhegatteVollImOeffentlichenDienstImmerSonderregel) {
    Sitzung s;
    teilzeitperson(s, 13, 0.25f);
    s.merkmal[3] = 1; // "ja voll"
    teilzeit(s);
    // 100000 - 80000 + 0.25 * 80000 = 40000.
    EXPECT_EQ(s.teilwert[8], Currency::ganz(40000));
    EXPECT_EQ(s.oz_sonder, 1);
}

TEST(Teilzeit, OhneEhegatteImDienstFolgtDerOrtszuschlagDemFaktor) {
    Sitzung s;
    teilzeitperson(s, 3, 0.5f);
    s.merkmal[3] = 0; // "nein"
    teilzeit(s);
    EXPECT_EQ(s.teilwert[8], Currency::ganz(50000));
    EXPECT_EQ(s.oz_sonder, 0);
}

TEST(Teilzeit, LedigeUndManuellerOrtszuschlagFolgenDemFaktor) {
    for (std::int16_t stufe : {0, 11}) {
        Sitzung s;
        teilzeitperson(s, 0, 0.5f);
        s.merkmal[3] = 1;
        s.merkmal[8] = stufe; // "ld" or "manuell"
        teilzeit(s);
        EXPECT_EQ(s.teilwert[8], Currency::ganz(50000)) << "Stufe " << stufe;
        EXPECT_EQ(s.oz_sonder, 0);
    }
}

TEST(Teilzeit, AnwaerterUndArbeiterOhneSonderregel) {
    for (int art : {4, 8, 9, 10, 11, 12}) {
        Sitzung s;
        teilzeitperson(s, art, 0.5f);
        s.merkmal[3] = 1;
        teilzeit(s);
        EXPECT_EQ(s.teilwert[8], Currency::ganz(50000)) << "Personalart " << art;
        EXPECT_EQ(s.oz_sonder, 0);
    }
}

TEST(Teilzeit, OhneTeiSchalterBleibtDerOrtszuschlag) {
    Sitzung s;
    teilzeitperson(s, 0, 0.5f);
    s.merkmal[3] = 1;
    s.tei[8] = 0;
    teilzeit(s);
    EXPECT_EQ(s.teilwert[8], Currency::ganz(100000));
    EXPECT_EQ(s.oz_sonder, 0);
}

TEST(Teilzeit, PersonalartAusserhalbAllerListenBehaeltDenWertDesLetztenLaufs) {
    Sitzung s;
    teilzeitperson(s, 19, 0.5f);
    s.teilwert[8] = Currency::ganz(12345);
    teilzeit(s);
    EXPECT_EQ(s.teilwert[8], Currency::ganz(12345));
}

TEST(Teilzeit, OhnePersonalartKeinOrtszuschlag) {
    Sitzung s;
    teilzeitperson(s, 18, 0.5f);
    teilzeit(s);
    EXPECT_EQ(s.teilwert[8], Currency::ganz(0));
}

TEST(Teilzeit, ZeilenFolgenIhremSchalterMitDemFaktorAlsFloat) {
    Sitzung s;
    // 10.00 of 30.00 hours: the float 1/3 is 0.3333333432674408.
    teilzeitperson(s, 5, static_cast<float>(1000.0 / 3000.0));
    s.wert[7] = 300000;
    s.wert[12] = 4500;
    s.tei[12] = 0;
    s.wert[19] = 7;
    teilzeit(s);
    // 300000 * 0.3333333432674408 = 100000.00298... -> 100000.0030.
    EXPECT_EQ(s.teilwert[7], pf(1000000030));
    EXPECT_EQ(s.teilwert[12], Currency::ganz(4500)); // no switch: as it stands
    // 7 * 0.3333333432674408 = 2.33333340287 -> 2.3333.
    EXPECT_EQ(s.teilwert[19], pf(23333));
}

TEST(Teilzeit, BeamteMitDreiViertelStelleBekommenDieHalbeVwl) {
    Sitzung s;
    teilzeitperson(s, 0, 0.75f);
    s.merkmal[15] = 2;
    s.wert[15] = 1300;
    teilzeit(s);
    EXPECT_EQ(s.teilwert[15], Currency::ganz(650)); // half of 1300, not 0.75 of it
}

TEST(Teilzeit, BeamteInVollzeitBekommenDieGanzeVwl) {
    Sitzung s;
    teilzeitperson(s, 2, 1.0f);
    s.merkmal[15] = 2;
    s.wert[15] = 1300;
    teilzeit(s);
    EXPECT_EQ(s.teilwert[15], Currency::ganz(1300));
}

TEST(Teilzeit, BeamteMitGetippterVwlOhneAuswahlBehaltenSieGanz) {
    Sitzung s;
    teilzeitperson(s, 0, 0.5f);
    s.merkmal[15] = 0;
    s.wert[15] = 1300;
    teilzeit(s);
    EXPECT_EQ(s.teilwert[15], Currency::ganz(1300));
}

TEST(Teilzeit, AngestellteVwlFolgtDemSchalter) {
    Sitzung s;
    teilzeitperson(s, 5, 0.75f);
    s.merkmal[15] = 2;
    s.wert[15] = 1300;
    teilzeit(s);
    EXPECT_EQ(s.teilwert[15], Currency::ganz(975)); // 1300 * 0.75
    s.tei[15] = 0;
    teilzeit(s);
    EXPECT_EQ(s.teilwert[15], Currency::ganz(1300));
}

TEST(Teilzeit, FaktorNullGibtKeineVwl) {
    for (int art : {0, 5, 18}) {
        Sitzung s;
        teilzeitperson(s, art, 0.0f);
        s.merkmal[15] = 2;
        s.wert[15] = 1300;
        s.teilwert[15] = Currency::ganz(99);
        teilzeit(s);
        EXPECT_EQ(s.teilwert[15], Currency::ganz(0)) << "Personalart " << art;
    }
}

TEST(Teilzeit, OhnePersonalartBleibtDieVwlVomLetztenLauf) {
    Sitzung s;
    teilzeitperson(s, 18, 0.5f);
    s.merkmal[15] = 2;
    s.wert[15] = 1300;
    s.teilwert[15] = Currency::ganz(99);
    teilzeit(s);
    EXPECT_EQ(s.teilwert[15], Currency::ganz(99));
}

} // namespace lonvir

// The same rules in a run of the month, with the Ortszuschlag from a tariff line.
namespace lonvir {

namespace {

// Person 1 in June 1997, Besoldungsordnung A group 8, "vh, 0 Ki", with `normal` and `teilzeit`
// weekly hours; the test line lies in the first tariff file (stage 1 80000, married 15001).
void teilzeitmonat(test::Umgebung& u, std::int32_t normal, std::int32_t teilzeit,
                   std::int16_t ehegatte, std::int16_t vwl) {
    Sitzung& s = u.s;
    test::tarifzeile(s, datei::tarif1, 9, test::testsatz());
    Personalsatz juni = personalsatzlesen(s, 6, 1);
    juni.merkmal[4] = 0;
    juni.merkmal[5] = 8;
    juni.merkmal[3] = ehegatte;
    juni.merkmal[8] = 1;
    juni.merkmal[15] = vwl;
    juni.wert[0] = normal;
    juni.wert[1] = teilzeit;
    juni.tei[8] = 1;
    personalsatzschreiben(s, 6, 1, juni);
    monatladen(s, 1, 5);
}

} // namespace

TEST(TeilzeitImLauf, VollzeitMitEhegatteUnter50GibtSonderteilGleichZeile8) {
    test::Umgebung u;
    teilzeitmonat(u, 4000, 4000, 3, 0);
    // Row 8: 80000 + 15001 / 2 = 87500.5 -> 87500 (spouse "ja < 50%" halves the married part).
    EXPECT_EQ(u.s.wert[8], 87500);
    // Factor 1 with "ja < 50%": the special rule, 87500 - 80000 + 1 * 80000 = 87500.
    EXPECT_EQ(u.s.oz_sonder, 1);
    EXPECT_EQ(u.s.teilwert[8], Currency::ganz(87500));
}

TEST(TeilzeitImLauf, EhegatteUeber49MitHalberStelle) {
    test::Umgebung u;
    teilzeitmonat(u, 4000, 2000, 2, 0);
    // 87500 - 80000 + 0.5 * 80000 = 47500, not 87500 * 0.5 = 43750.
    EXPECT_EQ(u.s.oz_sonder, 1);
    EXPECT_EQ(u.s.teilwert[8], Currency::ganz(47500));
}

TEST(TeilzeitImLauf, BeamterMitDreiViertelStelleUndVwl1300Bekommt650) {
    test::Umgebung u;
    teilzeitmonat(u, 4000, 3000, 0, 2);
    EXPECT_EQ(u.s.wert[15], 1300);
    EXPECT_EQ(u.s.teilwert[15], Currency::ganz(650));
}

} // namespace lonvir
