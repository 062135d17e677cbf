// A confirmed input as one transaction: a full disk or a run-time error leaves the old state,
// an interruption after the journal is complete is finished at the next start.
#include "core/laufzeitfehler.h"
#include "core/schreibstoerung.h"
#include "engine/monatladen.h"
#include "screen/eingabe.h"
#include "screen/uebertragung.h"
#include "start/bestandspruefung.h"
#include "start/start.h"
#include "start/vorgang.h"
#include "testhilfe.h"

#include <gtest/gtest.h>

namespace lonvir {

namespace {

namespace fs = std::filesystem;
using Abbild = std::map<std::string, std::string>;

struct Stoerungsende {
    ~Stoerungsende() { schreibstoerung::einstellen(0); }
};

// The folder as the next start finds it: an interrupted store finished, the store checked.
Abbild nachNeustart(const fs::path& ordner) {
    SkriptDialoge d;
    Sitzung s;
    s.ordner = Arbeitsordner(ordner);
    s.dialoge = &d;
    starten(s);
    return test::ordnerinhalt(ordner);
}

// Runs `arbeit` on a new sample store once with every write failing from the k-th on, for
// k = 1, 2, ... until it succeeds; after each failure and a restart the store holds the old
// state or the new one, and the message says which.
template <typename Vorbereiten, typename Arbeit>
void volleFestplatte(Vorbereiten vorbereiten, Arbeit arbeit) {
    Stoerungsende ende;
    Abbild neu;
    {
        test::Musterumgebung m;
        vorbereiten(m.s);
        arbeit(m.s);
        neu = test::ordnerinhalt(m.ordner.pfad());
    }
    for (long k = 1;; ++k) {
        test::Musterumgebung m;
        vorbereiten(m.s);
        const Abbild alt = test::ordnerinhalt(m.ordner.pfad());
        ASSERT_NE(alt, neu);
        schreibstoerung::einstellen(k);
        std::string meldung;
        try {
            arbeit(m.s);
        } catch (const Dateifehler& f) {
            meldung = f.what();
        }
        schreibstoerung::einstellen(0);
        if (meldung.empty()) {
            EXPECT_GT(k, 1);
            EXPECT_EQ(test::ordnerinhalt(m.ordner.pfad()), neu);
            return;
        }
        const Abbild danach = nachNeustart(m.ordner.pfad());
        if (meldung.find("Es wurde nichts gespeichert.") != std::string::npos)
            EXPECT_EQ(danach, alt) << k << ": " << meldung;
        else if (meldung.find("wird beim nächsten Start zu Ende gespeichert") != std::string::npos)
            EXPECT_EQ(danach, neu) << k << ": " << meldung;
        else
            ADD_FAILURE() << k << ": " << meldung;
        ASSERT_LT(k, 100);
    }
}

} // namespace

TEST(Vorgang, EinTastendruckAufVollerFestplatteLaesstDenAltenOderDenNeuenStand) {
    volleFestplatte([](Sitzung& s) { monatladen(s, 2, 2); },
                    [](Sitzung& s) { betragbestaetigen(s, 12, 12345); });
}

TEST(Vorgang, EineUebertragungAufVollerFestplatteLaesstDenAltenOderDenNeuenStand) {
    volleFestplatte(
        [](Sitzung& s) {
            monatladen(s, 2, 2);
            betragbestaetigen(s, 12, 777);
        },
        [](Sitzung& s) {
            s.aktuelleperson = 2;
            uebertragen(s, INFO, PLAN);
        });
}

TEST(Vorgang, DasErsteOeffnenVon1998AufVollerFestplatteZerreisstKeinenSatz) {
    Stoerungsende ende;
    for (long k = 1; k <= 3; ++k) {
        test::Musterumgebung m;
        schreibstoerung::einstellen(k);
        SkriptDialoge d;
        Sitzung s;
        s.ordner = m.s.ordner;
        s.dialoge = &d;
        s.jahr = 1998;
        EXPECT_THROW(starten(s), Dateifehler) << k;
        schreibstoerung::einstellen(0);
        nachNeustart(m.ordner.pfad());
        EXPECT_EQ(test::dateiinhalt(m.ordner.pfad(), "L1998I.1").size() % 541, 0U);
        EXPECT_FALSE(personendateienpruefen(m.s.ordner, 1998)) << k;
    }
}

TEST(Vorgang, EineAnlageAufVollerFestplatteLaesstKeinenHalbenOrdner) {
    Stoerungsende ende;
    Abbild ganz;
    {
        test::Musterumgebung m;
        ganz = test::ordnerinhalt(m.ordner.pfad());
    }
    const auto anlegen = [](const fs::path& ordner) {
        SkriptDialoge d;
        Sitzung s;
        s.ordner = Arbeitsordner(ordner);
        s.installation = LONVIR_INSTALLATION;
        s.dialoge = &d;
        starten(s);
    };
    for (long k = 1;; k *= 2) {
        test::Tempordner t;
        schreibstoerung::einstellen(k);
        std::string meldung;
        try {
            anlegen(t.pfad());
        } catch (const Dateifehler& f) {
            meldung = f.what();
        }
        schreibstoerung::einstellen(0);
        if (meldung.empty()) {
            EXPECT_GT(k, 1);
            break;
        }
        // Nothing of the installation arrived: the next start creates the whole folder.
        EXPECT_NE(meldung.find("Der Arbeitsordner wurde nicht angelegt."), std::string::npos)
            << meldung;
        EXPECT_TRUE(test::ordnerinhalt(t.pfad()).empty()) << k;
        anlegen(t.pfad());
        EXPECT_EQ(test::ordnerinhalt(t.pfad()), ganz) << k;
        ASSERT_LT(k, 1L << 20);
    }
}

TEST(Vorgang, EinLaufzeitfehlerVorDemSpeichernSchreibtNichts) {
    test::Musterumgebung m;
    monatladen(m.s, 1, 2);
    const Abbild alt = test::ordnerinhalt(m.ordner.pfad());
    // 1 hour of a 38.5-hour week: the factor overflows the pay of the later months.
    try {
        betragbestaetigen(m.s, 0, 1);
        FAIL() << "kein Laufzeitfehler";
    } catch (const Laufzeitfehler& f) {
        EXPECT_EQ(std::string(f.what()),
                  "Laufzeitfehler 6: Überlauf. Es wurde nichts gespeichert.");
    }
    EXPECT_EQ(test::ordnerinhalt(m.ordner.pfad()), alt);
    EXPECT_FALSE(m.s.vorgang.aktiv());
}

TEST(Vorgang, EinInnererVorgangSpeichertErstMitDemAeusseren) {
    test::Musterumgebung m;
    const Abbild alt = test::ordnerinhalt(m.ordner.pfad());
    Vorgang aussen(m.s);
    {
        Vorgang innen(m.s);
        monatladen(m.s, 2, 4);
        betragbestaetigen(m.s, 13, 4444);
        innen.abschliessen();
    }
    EXPECT_EQ(test::ordnerinhalt(m.ordner.pfad()), alt);
    aussen.abschliessen();
    EXPECT_NE(test::ordnerinhalt(m.ordner.pfad()), alt);
}

TEST(Vorgang, EinNurLesendGeoeffneterOrdnerRechnetAberSchreibtNichts) {
    test::Musterumgebung m;
    fs::remove(m.ordner.pfad() / "L1998I.1");
    const Abbild alt = test::ordnerinhalt(m.ordner.pfad());
    SkriptDialoge d;
    Sitzung s;
    s.ordner = m.s.ordner;
    s.dialoge = &d;
    s.nurLesen = true;
    starten(s);
    monatladen(s, 2, 2);
    betragbestaetigen(s, 12, 5000);
    EXPECT_EQ(s.wert[12], 5000);
    // The later months see the input in memory.
    monatladen(s, 2, 5);
    EXPECT_EQ(s.wert[12], 5000);
    EXPECT_EQ(test::ordnerinhalt(m.ordner.pfad()), alt);
}

TEST(Vorgang, DasFensterBietetBeiEinemSchadenNurLesenOderEnde) {
    test::Musterumgebung m;
    test::dateisetzen(m.ordner.pfad(), "L1997I.1", "");
    const Abbild alt = test::ordnerinhalt(m.ordner.pfad());
    {
        SkriptDialoge nein(false);
        Sitzung s;
        s.ordner = m.s.ordner;
        s.dialoge = &nein;
        EXPECT_THROW(startenOderNurLesen(s), Bestandsschaden);
        ASSERT_EQ(nein.gezeigt().size(), 1U);
        EXPECT_EQ(nein.gezeigt()[0].titel, "Datenbestand beschädigt");
        EXPECT_EQ(nein.gezeigt()[0].knoepfe, Knoepfe::jaNein);
        EXPECT_EQ(nein.gezeigt()[0].text.rfind("Die Datei L1997I.1 ist beschädigt", 0), 0U);
    }
    SkriptDialoge ja(true);
    Sitzung s;
    s.ordner = m.s.ordner;
    s.dialoge = &ja;
    EXPECT_EQ(startenOderNurLesen(s), Startergebnis::hauptform);
    EXPECT_TRUE(s.nurLesen);
    monatladen(s, 2, 1);
    EXPECT_EQ(test::ordnerinhalt(m.ordner.pfad()), alt);
}

} // namespace lonvir

namespace lonvir {

namespace {
bool vermerktJetzt(const Sitzung& s, const std::string& name) {
    const auto k = dateikennung(s.ordner.ordner() / name);
    return k && s.pruefvermerk.gilt(name, *k);
}

std::string monatsname(int monat) {
    return "L1997I." + std::to_string(monat);
}
} // namespace

TEST(Vorgang, EinSpeichernHaeltDieVermerkeSeinerGesundenDateienAufDemStand) {
    test::Musterumgebung m;
    test::Tempordner ablage;
    m.s.pruefvermerk.laden(m.ordner.pfad(), pruefregeln, ablage.pfad());
    for (int monat = 1; monat <= 12; ++monat)
        m.s.pruefvermerk.eintragen(monatsname(monat),
                                   *dateikennung(m.ordner.pfad() / monatsname(monat)));
    // Another program writes March between the check and the store: March is read again.
    test::dateisetzen(m.ordner.pfad(), "L1997I.3", test::dateiinhalt(m.ordner.pfad(), "L1997I.3"));
    monatladen(m.s, 2, 1);
    betragbestaetigen(m.s, 12, 2500); // February and the months after it
    EXPECT_TRUE(vermerktJetzt(m.s, "L1997I.1"));
    EXPECT_TRUE(vermerktJetzt(m.s, "L1997I.2"));
    EXPECT_FALSE(vermerktJetzt(m.s, "L1997I.3"));
    for (int monat = 4; monat <= 12; ++monat)
        EXPECT_TRUE(vermerktJetzt(m.s, monatsname(monat))) << monat;

    // A record no run writes takes the file's note away.
    std::vector<std::uint8_t> ff(541, 0xFF);
    alsVorgang(m.s, [&] { m.s.datei(5).schreiben(1, ff); });
    EXPECT_FALSE(vermerktJetzt(m.s, "L1997I.5"));
    EXPECT_TRUE(vermerktJetzt(m.s, "L1997I.6"));

    // The notes outlive the session: the next start reads only what changed.
    m.s.pruefvermerk.sichern();
    Pruefvermerk neu;
    neu.laden(m.ordner.pfad(), pruefregeln, ablage.pfad());
    EXPECT_TRUE(neu.gilt("L1997I.12", *dateikennung(m.ordner.pfad() / "L1997I.12")));
    EXPECT_FALSE(neu.gilt("L1997I.5", *dateikennung(m.ordner.pfad() / "L1997I.5")));
}

} // namespace lonvir
