// The year change is all or nothing: a failure or an end of the process at any step leaves,
// after the next start, the folder exactly as before or exactly as after a whole change; a
// full disk is told with the folder and the room needed.
#include "core/dateitausch.h"
#include "ordnerbild.h"
#include "start/dateisatz.h"
#include "start/start.h"
#include "transfer/jahreswechsel.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <fstream>
#include <sys/wait.h>
#include <unistd.h>

namespace lonvir {

namespace {

namespace fs = std::filesystem;
using test::Ordnerbild;
using test::ordnerbild;

// The long run of the suite (ctest label "lang") tries every step.
bool langerlauf() {
    const char* lang = std::getenv("LONVIR_LANG");
    return lang && *lang && std::string(lang) != "0";
}

struct Probe {
    explicit Probe(std::function<int(Tauschschritt)> p) { tausch::probe = std::move(p); }
    ~Probe() { tausch::probe = nullptr; }
};

struct Kleinbestand {
    test::Tempordner ordner;
    SkriptDialoge dialoge;
    Sitzung s;
};

// 20 persons in all layers, as a first start makes them.
void kleinerbestand(Kleinbestand& k) {
    k.s.ordner = Arbeitsordner(k.ordner.pfad());
    k.s.dialoge = &k.dialoge;
    starten(k.s);
}

// The steps to interrupt: every step that is not a record or a copied block, and some of
// those; in the long run all but the bulk of record writes.
std::vector<std::size_t> pruefpunkte(const std::vector<Tauschschritt>& liste, int schreibproben,
                                     std::size_t jeder) {
    std::vector<std::size_t> punkte;
    std::size_t nebensache = 0;
    for (std::size_t i = 0; i < liste.size(); ++i) {
        const bool massenschritt =
            liste[i] == Tauschschritt::schreiben || liste[i] == Tauschschritt::kopieren;
        if (!massenschritt && nebensache++ % jeder == 0)
            punkte.push_back(i);
    }
    for (int k = 0; k < schreibproben; ++k)
        punkte.push_back(liste.size() * static_cast<std::size_t>(2 * k + 1) /
                         static_cast<std::size_t>(2 * schreibproben));
    return punkte;
}

// A store of 20 persons without the installation data, whose Decembers differ per layer and
// person, with a 1997 table to copy and a longer 1998 table; its picture before and after.
struct Vorlage {
    Vorlage() {
        kleinerbestand(b);
        for (int x = INFO; x <= REAL; ++x)
            for (int p = 1; p <= b.s.anzahlnamen; ++p)
                test::dezembersetzen(b.s, x, p, 7000 * x + p);
        std::ofstream(b.ordner.pfad() / "Lonvir97.4tr", std::ios::binary)
            << std::string(600 * 108, '\x41');
        std::ofstream(b.ordner.pfad() / "Lonvir98.2tr", std::ios::binary)
            << std::string(610 * 108, '\x42');
        dateienschliessen(b.s);
        vorher = ordnerbild(b.ordner.pfad());
        Kleinbestand kopie;
        neu(kopie);
        EXPECT_TRUE(jahrkopieren(kopie.s, nullptr).erfolgreich);
        dateienschliessen(kopie.s);
        nachher = ordnerbild(kopie.ordner.pfad());
        neu(kopie);
        Probe p([&](Tauschschritt s) {
            liste.push_back(s);
            return 0;
        });
        EXPECT_TRUE(jahrkopieren(kopie.s, nullptr).erfolgreich);
    }
    // A fresh copy of the store before the change, its files open.
    void neu(Kleinbestand& ziel) const {
        dateienschliessen(ziel.s);
        fs::remove_all(ziel.ordner.pfad());
        fs::copy(b.ordner.pfad(), ziel.ordner.pfad(), fs::copy_options::recursive);
        ziel.s.ordner = Arbeitsordner(ziel.ordner.pfad());
        ziel.s.dialoge = &ziel.dialoge;
        dateienoeffnen(ziel.s);
        ziel.s.jahr1998freigegeben = false;
    }
    Kleinbestand b;
    Ordnerbild vorher, nachher;
    std::vector<Tauschschritt> liste;
};

const Vorlage& vorlage() {
    static const Vorlage v;
    return v;
}

// The next start: leftovers completed or removed; then the folder is one of the two states.
void startundvergleich(Kleinbestand& x, std::size_t punkt, int& alt, int& neu) {
    dateienschliessen(x.s);
    starten(x.s);
    dateienschliessen(x.s);
    const Ordnerbild jetzt = ordnerbild(x.ordner.pfad());
    const bool istalt = jetzt == vorlage().vorher;
    const bool istneu = jetzt == vorlage().nachher;
    EXPECT_TRUE(istalt || istneu) << "Schritt " << punkt << " von " << vorlage().liste.size()
                                  << ": " << test::unterschied(jetzt, vorlage().vorher);
    alt += istalt;
    neu += istneu;
}

} // namespace

TEST(Jahreswechselsicherheit, VorherUndNachherUnterscheidenSichIn1998) {
    const Vorlage& v = vorlage();
    EXPECT_NE(v.vorher, v.nachher);
    EXPECT_EQ(test::teilbild(v.vorher, "L1997"), test::teilbild(v.nachher, "L1997"));
    // 49 new files: 13 per layer, the two settings files per layer, four tariff tables.
    EXPECT_EQ(std::count(v.liste.begin(), v.liste.end(), Tauschschritt::umbenennen), 49 + 1);
}

TEST(Jahreswechselsicherheit, EinFehlerAnJedemSchrittLaesstAllesWieVorherMitMeldung) {
    const Vorlage& v = vorlage();
    Kleinbestand x;
    kleinerbestand(x);
    int alt = 0, neu = 0;
    for (std::size_t punkt : pruefpunkte(v.liste, langerlauf() ? 40 : 3, langerlauf() ? 1 : 12)) {
        v.neu(x);
        x.dialoge.vergessen();
        std::size_t zaehler = 0;
        Jahresuebertrag e;
        {
            Probe p([&](Tauschschritt) { return zaehler++ == punkt ? EIO : 0; });
            e = jahrkopieren(x.s, nullptr);
        }
        // Before the list stands a failure is reported and nothing is changed; after it
        // the renames are finished at once.
        if (!e.erfolgreich) {
            ASSERT_EQ(x.dialoge.gezeigt().size(), 1u) << punkt;
            EXPECT_EQ(x.dialoge.gezeigt()[0].titel, "Jahreswechsel");
            EXPECT_NE(x.dialoge.gezeigt()[0].text.find("nicht ausgeführt"), std::string::npos);
            EXPECT_FALSE(x.s.jahr1998freigegeben);
        }
        dateienschliessen(x.s);
        EXPECT_EQ(
            test::unterschied(ordnerbild(x.ordner.pfad()), e.erfolgreich ? v.nachher : v.vorher),
            "")
            << "Schritt " << punkt;
        startundvergleich(x, punkt, alt, neu);
    }
    EXPECT_GT(alt, 0);
    EXPECT_GT(neu, 0);
}

// The process ends at a step as a kill would end it: nothing after that step happens, no
// destructor runs. The next start settles the folder.
TEST(Jahreswechselsicherheit, EinAbbruchAnJedemSchrittGibtNachDemStartAltOderNeu) {
    const Vorlage& v = vorlage();
    Kleinbestand x;
    kleinerbestand(x);
    int alt = 0, neu = 0;
    for (std::size_t punkt : pruefpunkte(v.liste, langerlauf() ? 40 : 3, langerlauf() ? 1 : 12)) {
        v.neu(x);
        const pid_t kind = ::fork();
        ASSERT_GE(kind, 0);
        if (kind == 0) {
            std::size_t zaehler = 0;
            tausch::probe = [&](Tauschschritt) {
                if (zaehler++ == punkt)
                    ::_exit(9);
                return 0;
            };
            (void)jahrkopieren(x.s, nullptr);
            ::_exit(0);
        }
        int status = 0;
        ::waitpid(kind, &status, 0);
        ASSERT_TRUE(WIFEXITED(status));
        EXPECT_EQ(WEXITSTATUS(status), 9) << punkt;
        startundvergleich(x, punkt, alt, neu);
    }
    EXPECT_GT(alt, 0);
    EXPECT_GT(neu, 0);
}

TEST(Jahreswechselsicherheit, ZuWenigPlatzWirdVorherErkanntUndNenntOrdnerUndBedarf) {
    const Vorlage& v = vorlage();
    Kleinbestand x;
    kleinerbestand(x);
    v.neu(x);
    const auto vorher = tausch::freierplatz;
    tausch::freierplatz = [](const fs::path&) { return std::uintmax_t{10 * 1024}; };
    const Jahresuebertrag e = jahrkopieren(x.s, nullptr);
    tausch::freierplatz = vorher;
    EXPECT_FALSE(e.erfolgreich);
    ASSERT_EQ(x.dialoge.gezeigt().size(), 1u);
    const std::string& text = x.dialoge.gezeigt()[0].text;
    EXPECT_NE(text.find("Im Ordner " + x.ordner.pfad().string() + " ist nicht genug Platz"),
              std::string::npos)
        << text;
    EXPECT_NE(text.find("frei sind 10 KB"), std::string::npos) << text;
    EXPECT_NE(text.find("braucht "), std::string::npos);
    dateienschliessen(x.s);
    EXPECT_EQ(test::unterschied(test::ordnerbild(x.ordner.pfad()), v.vorher), "");
}

TEST(Jahreswechselsicherheit, EineVolleplatteMittenImSchreibenLaesstAllesWieVorher) {
    const Vorlage& v = vorlage();
    Kleinbestand x;
    kleinerbestand(x);
    v.neu(x);
    std::size_t zaehler = 0;
    Jahresuebertrag e;
    {
        Probe p([&](Tauschschritt s) {
            return s == Tauschschritt::schreiben && ++zaehler == 300 ? ENOSPC : 0;
        });
        e = jahrkopieren(x.s, nullptr);
    }
    EXPECT_FALSE(e.erfolgreich);
    ASSERT_EQ(x.dialoge.gezeigt().size(), 1u);
    EXPECT_NE(x.dialoge.gezeigt()[0].text.find("ist nicht genug Platz: der Jahreswechsel braucht"),
              std::string::npos)
        << x.dialoge.gezeigt()[0].text;
    dateienschliessen(x.s);
    EXPECT_EQ(test::unterschied(test::ordnerbild(x.ordner.pfad()), v.vorher), "");
}

TEST(Jahreswechselsicherheit, DerStartEntferntReste) {
    const Vorlage& v = vorlage();
    Kleinbestand x;
    kleinerbestand(x);
    v.neu(x);
    dateienschliessen(x.s);
    std::ofstream(x.ordner.pfad() / "L1998I.3.jwneu") << "halb";
    std::ofstream(x.ordner.pfad() / "Dateitausch.jwliste.jwneu") << "L1998I.3.jwneu\tL1998I.3\n";
    starten(x.s);
    dateienschliessen(x.s);
    EXPECT_EQ(test::unterschied(test::ordnerbild(x.ordner.pfad()), v.vorher), "");
}

TEST(Jahreswechselsicherheit, DerStartVollendetEineListeOhneSchlusszeileNicht) {
    const Vorlage& v = vorlage();
    Kleinbestand x;
    kleinerbestand(x);
    v.neu(x);
    dateienschliessen(x.s);
    std::ofstream(x.ordner.pfad() / "L1998I.3.jwneu") << "halb";
    std::ofstream(x.ordner.pfad() / "Dateitausch.jwliste") << "L1998I.3.jwneu\tL1998I.3\n";
    starten(x.s);
    dateienschliessen(x.s);
    EXPECT_EQ(test::unterschied(test::ordnerbild(x.ordner.pfad()), v.vorher), "");
}

} // namespace lonvir
