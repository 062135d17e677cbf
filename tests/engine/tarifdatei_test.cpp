// Tariff look-up: record numbers, the file of a month, reading lines from the tariff files.
#include "engine/tarifdatei.h"

#include "records/satzbild.h"
#include "start/dateisatz.h"
#include "testhilfe.h"

#include <gtest/gtest.h>

#include <fstream>

namespace lonvir {

namespace {

// A folder with tariff files laid down by the test, and the set opened on it.
struct Tarifordner {
    explicit Tarifordner(std::int16_t jahr = 1997) {
        s.ordner = Arbeitsordner(ordner.pfad());
        s.jahr = jahr;
    }
    // Record `nummer` of `name` gets `wert0` in element 0 and `wert26` in element 26.
    void zeile(const std::string& name, int nummer, std::int32_t wert0, std::int32_t wert26) {
        test::Satzbild b(Tarifsatz::laenge);
        b.i32(0, wert0).i32(104, wert26);
        std::fstream f(ordner.pfad() / name, std::ios::binary | std::ios::in | std::ios::out);
        if (!f.is_open())
            f.open(ordner.pfad() / name, std::ios::binary | std::ios::out);
        f.seekp(static_cast<std::streamoff>(nummer - 1) * Tarifsatz::laenge);
        f.write(reinterpret_cast<const char*>(b.bytes().data()), Tarifsatz::laenge);
    }
    test::Tempordner ordner;
    Sitzung s;
};

} // namespace

TEST(Tarifsatznummer, BasisJePersonalartPlusGruppe) {
    // West: base + group.
    EXPECT_EQ(tarifsatznummer(0, 0, false), 1);
    EXPECT_EQ(tarifsatznummer(0, 20, false), 21);
    EXPECT_EQ(tarifsatznummer(1, 3, false), 26);
    EXPECT_EQ(tarifsatznummer(5, 0, false), 58);
    EXPECT_EQ(tarifsatznummer(8, 2, false), 114);
    EXPECT_EQ(tarifsatznummer(11, 0, false), 164);
    EXPECT_EQ(tarifsatznummer(17, 19, false), 290);
    const int basen[19] = {1,   23,  35,  40,  51,  58,  79,  97,  112, 129,
                           147, 164, 181, 191, 212, 233, 255, 271, 300};
    for (int art = 0; art <= 18; ++art)
        EXPECT_EQ(tarifbasis(art), basen[art]) << "Personalart " << art;
}

TEST(Tarifsatznummer, OstLiegtDreihundertDahinter) {
    EXPECT_EQ(tarifsatznummer(0, 0, true), 301);
    EXPECT_EQ(tarifsatznummer(6, 4, true), 383); // 79 + 4 + 300
}

TEST(Tarifsatznummer, KraftfahrerBundUndLandEinsUnterIhremSchalter) {
    // Bund: caption 130, look-up base 129; Land: caption 148, base 147, Ost caption 447.
    EXPECT_EQ(tarifblock(9).ersterWest, 130);
    EXPECT_EQ(tarifsatznummer(9, 0, false), 129);
    EXPECT_EQ(tarifsatznummer(9, 1, false), 130);
    EXPECT_EQ(tarifblock(10).ersterWest, 148);
    EXPECT_EQ(tarifblock(10).ersterOst, 447);
    EXPECT_EQ(tarifsatznummer(10, 0, false), 147);
    EXPECT_EQ(tarifsatznummer(10, 0, true), 447);
    // The VKA drivers have no shift: caption and base are both 164.
    EXPECT_EQ(tarifblock(11).ersterWest, 164);
    EXPECT_EQ(tarifsatznummer(11, 0, false), 164);
}

TEST(Tarifsatznummer, PersonalartOhneImOstenAbSechshundert) {
    Sitzung s;
    s.merkmal[4] = 18;
    s.merkmal[5] = 0;
    s.merkmal[2] = 1;
    EXPECT_EQ(tarifsatznummer(s), 600);
    s.merkmal[5] = 3;
    EXPECT_EQ(tarifsatznummer(s), 603);
    s.merkmal[2] = 0;
    EXPECT_EQ(tarifsatznummer(s), 303);
}

TEST(Tarifsatznummer, UnbekanntePersonalartIstLaufzeitfehler9) {
    try {
        (void)tarifsatznummer(19, 0, false);
        FAIL();
    } catch (const Laufzeitfehler& f) {
        EXPECT_EQ(f.nummer(), 9);
    }
    EXPECT_THROW((void)tarifbasis(-1), Laufzeitfehler);
    EXPECT_THROW((void)tarifblock(18), Laufzeitfehler);
}

TEST(Tarifblock, SchalterDesTarifformulars) {
    EXPECT_STREQ(tarifblock(0).schalter, "Bes.Ordn. A");
    EXPECT_EQ(tarifblock(0).ersterOst, 301);
    EXPECT_STREQ(tarifblock(4).schalter, "Anwärter");
    EXPECT_STREQ(tarifblock(15).schalter, "AVR Parität.Wohlfahrtsv.");
    EXPECT_EQ(tarifblock(15).ersterOst, 533);
    EXPECT_STREQ(tarifblock(17).schalter, "Sondertarifliche Angest.");
    EXPECT_EQ(tarifblock(17).ersterWest, 271);
}

TEST(Tarifdatei, ZweiAbMaerzDreiAbJuli) {
    // ab_tarif2 = 3, ab_tarif3 = 7: January, February 14; March to June 15; from July 16.
    Einstellungswerte e;
    e.ab_tarif2 = 3;
    e.ab_tarif3 = 7;
    const int erwartet[13] = {0, 14, 14, 15, 15, 15, 15, 16, 16, 16, 16, 16, 16};
    for (int m = 1; m <= 12; ++m)
        EXPECT_EQ(tarifdatei(e, m), erwartet[m]) << "Monat " << m;
}

TEST(Tarifdatei, DieSpaetereVergleichsstufeGewinnt) {
    // ab_tarif4 = 2 with ab_tarif2 = 9: file 17 from February, also in September.
    Einstellungswerte e;
    e.ab_tarif4 = 2;
    e.ab_tarif2 = 9;
    EXPECT_EQ(tarifdatei(e, 1), 14);
    for (int m = 2; m <= 12; ++m)
        EXPECT_EQ(tarifdatei(e, m), 17) << "Monat " << m;
}

TEST(Tarifdatei, NullIstInaktivUndDerMonatKommtAusMerkmal20) {
    Sitzung s;
    s.merkmal[20] = 11; // December
    EXPECT_EQ(tarifdatei(s), 14);
    s.einstellungen.ab_tarif3 = 12;
    EXPECT_EQ(tarifdatei(s), 16);
    s.merkmal[20] = 10; // November
    EXPECT_EQ(tarifdatei(s), 14);
}

TEST(Tarifsatzlesen, FuelltTarifwertGenauWieGespeichert) {
    Tarifordner o;
    o.zeile("Lonvir97.1tr", 58, 312345, -7);
    o.zeile("Lonvir97.1tr", 358, 287654, 2147483647);
    dateienoeffnen(o.s);
    tarifsatzlesen(o.s, 58, datei::tarif1);
    EXPECT_EQ(o.s.tarifwert[0], 312345);
    EXPECT_EQ(o.s.tarifwert[1], 0);
    EXPECT_EQ(o.s.tarifwert[26], -7);
    tarifsatzlesen(o.s, 358, datei::tarif1);
    EXPECT_EQ(o.s.tarifwert[0], 287654);
    EXPECT_EQ(o.s.tarifwert[26], 2147483647);
}

TEST(Tarifsatzlesen, OstsatzEinerLeerenTabelleLiestNullen) {
    Tarifordner o;
    dateienoeffnen(o.s);
    o.s.tarifwert[0] = 99;
    o.s.tarifwert[26] = 98;
    tarifsatzlesen(o.s, 600, datei::tarif2);
    EXPECT_EQ(o.s.tarifwert, (Feld<std::int32_t, 0, 26>{}));
}

TEST(Tarifsatzlesen, JedesJahrLiestSeineVierDateien) {
    Tarifordner o(1998);
    o.zeile("Lonvir97.4tr", 1, 1997, 0);
    o.zeile("Lonvir98.4tr", 1, 1998, 0);
    dateienoeffnen(o.s);
    tarifsatzlesen(o.s, 1, datei::tarif4);
    EXPECT_EQ(o.s.tarifwert[0], 1998);
    o.s.jahr = 1997;
    dateienoeffnen(o.s);
    tarifsatzlesen(o.s, 1, datei::tarif4);
    EXPECT_EQ(o.s.tarifwert[0], 1997);
}

TEST(Tarifsatzlesen, ZweiteOeffnungenBleibenIn1998BeiDen1997erDateien) {
    Tarifordner o(1998);
    o.zeile("Lonvir97.2tr", 12, 220000, 0);
    o.zeile("Lonvir97.3tr", 12, 230000, 0);
    o.zeile("Lonvir98.2tr", 12, 980000, 0);
    dateienoeffnen(o.s);
    tarifsatzlesen(o.s, 12, datei::tarif2von1997);
    EXPECT_EQ(o.s.tarifwert[0], 220000);
    tarifsatzlesen(o.s, 12, datei::tarif3von1997);
    EXPECT_EQ(o.s.tarifwert[0], 230000);
    tarifsatzlesen(o.s, 12, datei::tarif2);
    EXPECT_EQ(o.s.tarifwert[0], 980000);
}

TEST(Tarifsatzlesen, In1997SindNummer15Und22DieselbeDatei) {
    Tarifordner o(1997);
    dateienoeffnen(o.s);
    Tarifsatz t;
    t.wert[0] = 4711;
    t.wert[14] = 5000; // "Stufe 15 o.a."
    tarifsatzschreiben(o.s, 7, datei::tarif2, t);
    tarifsatzlesen(o.s, 7, datei::tarif2von1997);
    EXPECT_EQ(o.s.tarifwert[0], 4711);
    EXPECT_EQ(o.s.tarifwert[14], 5000);
    EXPECT_EQ(tarifsatz(o.s, 7, datei::tarif2von1997), t);
}

} // namespace lonvir
