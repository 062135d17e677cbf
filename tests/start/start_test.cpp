// The start sequence as far as the store goes: settings, the start lock, the restored place.
#include "start/start.h"

#include "records/satzbild.h"
#include "start/einstellungen.h"
#include "testhilfe.h"

#include <gtest/gtest.h>

#include <fstream>

namespace lonvir {

namespace {

// A folder prepared before the start, and a session that has not started yet.
struct Startordner {
    Startordner() {
        s.ordner = Arbeitsordner(ordner.pfad());
        s.dialoge = &dialoge;
    }
    void datei(const std::string& name, const std::vector<std::uint8_t>& inhalt) const {
        std::ofstream aus(ordner.pfad() / name, std::ios::binary);
        aus.write(reinterpret_cast<const char*>(inhalt.data()),
                  static_cast<std::streamsize>(inhalt.size()));
    }
    [[nodiscard]] std::int64_t passwortartImSatz() const {
        const std::string d = test::dateiinhalt(ordner.pfad(), "Lonvir97.dim");
        std::uint64_t u = 0;
        for (std::size_t i = 0; i < 8; ++i)
            u |= std::uint64_t{static_cast<std::uint8_t>(d.at(204 + i))} << (8 * i);
        return static_cast<std::int64_t>(u);
    }
    test::Tempordner ordner;
    SkriptDialoge dialoge;
    Sitzung s;
};

// A display settings record with the start lock set to `passwortart` (in 1/10000).
std::vector<std::uint8_t> dimMitSperre(std::int64_t passwortart) {
    test::Satzbild b(Dimsatz::laenge);
    b.waehrung(204, passwortart).i16(228, 1).i16(230, 1);
    return b.bytes();
}

} // namespace

TEST(Starten, OhneSperreFolgtDieHauptform) {
    Startordner o;
    EXPECT_EQ(starten(o.s), Startergebnis::hauptform);
    EXPECT_TRUE(o.s.erstbenutzung);
    EXPECT_EQ(o.s.startphase, 0);
    EXPECT_EQ(o.s.aenderungssperre, 0);
}

TEST(Starten, PasswortartEinsVerlangtDasPasswort) {
    Startordner o;
    o.datei("Lonvir97.dim", dimMitSperre(10000));
    EXPECT_EQ(starten(o.s), Startergebnis::passwort);
    EXPECT_EQ(o.s.dim.passwortart, Currency::ganz(1));
}

TEST(Starten, PasswortartUeberEinsGiltNurImSpeicherAlsNull) {
    Startordner o;
    o.datei("Lonvir97.dim", dimMitSperre(20000));
    // The start form stays up and no main form follows.
    EXPECT_EQ(starten(o.s), Startergebnis::angehalten);
    EXPECT_EQ(o.s.dim.passwortart, Currency::ganz(0));
    EXPECT_EQ(o.passwortartImSatz(), 20000);
    // The reset reaches the file with the next store of the display settings.
    dimschreiben(o.s);
    EXPECT_EQ(o.passwortartImSatz(), 0);
}

TEST(Starten, NegativePasswortartTrifftKeinenZweig) {
    // Neither 0, 1 nor above 1: no form follows and the value stays as it is.
    Startordner o;
    o.datei("Lonvir97.dim", dimMitSperre(-10000));
    EXPECT_EQ(starten(o.s), Startergebnis::angehalten);
    EXPECT_EQ(o.s.dim.passwortart, Currency::ganz(-1));
}

TEST(Starten, StelltDiePersonAusDenEinstellungenWiederHer) {
    Startordner o;
    test::Satzbild voe(Voeinsatz::laenge);
    voe.text(0, std::string(260, ' ')).waehrung(380, 70000); // person 7
    o.datei("Lonvir97.voe", voe.bytes());
    starten(o.s);
    EXPECT_EQ(o.s.aktuelleperson, 7);
}

TEST(Starten, PersonNullInDenEinstellungenGiltAlsPersonEins) {
    Startordner o;
    test::Satzbild voe(Voeinsatz::laenge);
    voe.text(0, std::string(260, ' ')).waehrung(380, 0);
    o.datei("Lonvir97.voe", voe.bytes());
    o.s.aktuelleperson = 12;
    starten(o.s);
    EXPECT_EQ(o.s.aktuelleperson, 1);
}

namespace {
// A .voe record 1 holding only the place: layer, person and month index.
std::vector<std::uint8_t> voeMitOrt(std::int64_t schicht, std::int64_t person, std::int64_t monat) {
    test::Satzbild voe(Voeinsatz::laenge);
    voe.text(0, std::string(260, ' '));
    voe.waehrung(372, schicht * 10000).waehrung(380, person * 10000).waehrung(388, monat * 10000);
    return voe.bytes();
}
} // namespace

TEST(Ortwiederherstellen, PersonMonatUndSchichtAusDenEinstellungen) {
    Startordner o;
    o.datei("Lonvir97.voe", voeMitOrt(PLAN, 4, 7));
    starten(o.s);
    ASSERT_EQ(o.s.schicht, INFO); // the start opens the layer it was given
    EXPECT_EQ(ortwiederherstellen(o.s), PLAN);
    EXPECT_EQ(o.s.schicht, PLAN);
    EXPECT_EQ(o.s.datei(1).pfad().filename(), "L1997P.1");
    EXPECT_EQ(o.s.aktuelleperson, 4);
    EXPECT_EQ(o.s.merkmal[0], 3); // list position = person - 1
    EXPECT_EQ(o.s.merkmal[20], 7);
}

TEST(Ortwiederherstellen, PersonNullIstPersonEinsAufListenplatzNull) {
    Startordner o;
    o.datei("Lonvir97.voe", voeMitOrt(INFO, 0, 2));
    starten(o.s);
    EXPECT_EQ(ortwiederherstellen(o.s), INFO);
    EXPECT_EQ(o.s.aktuelleperson, 1);
    EXPECT_EQ(o.s.merkmal[0], 0);
    EXPECT_EQ(o.s.merkmal[20], 2);
}

TEST(Ortwiederherstellen, UnbekannteSchichtZeigtKeineAlsAktiv) {
    Startordner o;
    o.s.schicht = REAL;
    o.datei("Lonvir97.voe", voeMitOrt(3, 2, 13));
    starten(o.s);
    EXPECT_EQ(ortwiederherstellen(o.s), -1);
    EXPECT_EQ(o.s.schicht, REAL);
    EXPECT_EQ(o.s.datei(1).pfad().filename(), "L1997R.1");
    EXPECT_EQ(o.s.merkmal[20], 0); // month 13 is no list position: the month stays
    EXPECT_EQ(o.s.aktuelleperson, 2);
}

TEST(Ortwiederherstellen, DerNaechsteStartFindetDenOrtDerLetztenSpeicherung) {
    test::Tempordner ordner;
    {
        Sitzung s;
        s.ordner = Arbeitsordner(ordner.pfad());
        s.schicht = REAL;
        starten(s);
        s.aktuelleperson = 15;
        s.merkmal[20] = 10;
        voeschreiben(s);
    }
    Sitzung s;
    s.ordner = Arbeitsordner(ordner.pfad());
    starten(s);
    EXPECT_EQ(ortwiederherstellen(s), REAL);
    EXPECT_EQ(s.aktuelleperson, 15);
    EXPECT_EQ(s.merkmal[0], 14);
    EXPECT_EQ(s.merkmal[20], 10);
    EXPECT_EQ(s.datei(12).pfad().filename(), "L1997R.12");
}

} // namespace lonvir
