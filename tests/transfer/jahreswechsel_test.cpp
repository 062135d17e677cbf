// The year change: its questions, what it copies where, and what it leaves alone.
#include "ordnerbild.h"
#include "records/dimsatz.h"
#include "records/personalsatz.h"
#include "records/tarifsatz.h"
#include "screen/uebertragung.h"
#include "start/dateisatz.h"
#include "start/satzzugriff.h"
#include "start/texte.h"
#include "transfer/jahreswechsel.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <ctime>
#include <fcntl.h>
#include <fstream>
#include <optional>
#include <sys/stat.h>

namespace lonvir {

namespace {

using test::Bestand;
using test::Ordnerbild;
using test::ordnerbild;
using test::teilbild;

std::string satzaus(const Ordnerbild& bild, const std::string& name, int nummer, int laenge) {
    const auto it = bild.find(name);
    if (it == bild.end())
        return {};
    const std::size_t ab = static_cast<std::size_t>(nummer - 1) * static_cast<std::size_t>(laenge);
    if (ab >= it->second.size())
        return std::string(static_cast<std::size_t>(laenge), '\0');
    std::string satz = it->second.substr(ab, static_cast<std::size_t>(laenge));
    satz.resize(static_cast<std::size_t>(laenge), '\0');
    return satz;
}

Personalsatz personalsatz(const std::string& roh) {
    return Personalsatz::lesen(
        std::span(reinterpret_cast<const std::uint8_t*>(roh.data()), roh.size()));
}

// Writes the bytes of a whole file.
void dateischreiben(const std::filesystem::path& pfad, const std::string& inhalt) {
    std::ofstream(pfad, std::ios::binary | std::ios::trunc) << inhalt;
}

// A tariff table of `saetze` records whose record r holds r * 1000 + `kennung` in every cell.
std::string tarifdatei(int saetze, int kennung) {
    std::string inhalt;
    for (int r = 1; r <= saetze; ++r) {
        Tarifsatz t;
        t.wert.fuellen(r * 1000 + kennung);
        std::array<std::uint8_t, Tarifsatz::laenge> b{};
        t.schreiben(b);
        inhalt.append(reinterpret_cast<const char*>(b.data()), b.size());
    }
    return inhalt;
}

} // namespace

TEST(Jahreswechselfragen, ErklaerungAusDenTextenUndNeinLaesstAllesStehen) {
    Bestand b;
    const Ordnerbild vorher = ordnerbild(b.ordner.pfad());
    b.dialoge.antworten(Knopf::nein);
    EXPECT_FALSE(jahreswechselfragen(b.s));
    ASSERT_EQ(b.dialoge.gezeigt().size(), 1u);
    const Meldung& m = b.dialoge.gezeigt()[0];
    EXPECT_EQ(m.titel, "Von 1997 nach 1998");
    EXPECT_EQ(m.symbol, Symbol::ausruf);
    EXPECT_EQ(m.knoepfe, Knoepfe::jaNein);
    // Twelve texts of 35 characters, each with a line break behind it.
    EXPECT_EQ(m.text.rfind(textlesen(b.s, 3951) + "\n", 0), 0u);
    EXPECT_NE(m.text.find(textlesen(b.s, 3962) + "\n"), std::string::npos);
    EXPECT_EQ(std::count(m.text.begin(), m.text.end(), '\n'), 12);
    EXPECT_EQ(test::unterschied(test::ordnerbild(b.ordner.pfad()), vorher), "");
}

TEST(Jahreswechselfragen, OhneBestand1998KeineWarnung) {
    Bestand b;
    ASSERT_EQ(b.s.ordner.laenge("L1998I.1"), 0u); // created empty by the open of 1997
    b.dialoge.antworten(Knopf::ja);
    EXPECT_TRUE(jahreswechselfragen(b.s));
    EXPECT_EQ(b.dialoge.gezeigt().size(), 1u);
}

TEST(Jahreswechselfragen, VorhandenerBestand1998WirdNurNachDerWarnungMitDatumUeberschrieben) {
    // The date is shown in local time; the test pins the zone of a German pay office.
    struct Zeitzone {
        Zeitzone() {
            if (const char* alt = std::getenv("TZ"))
                vorher = alt;
            ::setenv("TZ", "Europe/Berlin", 1);
            ::tzset();
        }
        ~Zeitzone() {
            if (vorher)
                ::setenv("TZ", vorher->c_str(), 1);
            else
                ::unsetenv("TZ");
            ::tzset();
        }
        std::optional<std::string> vorher;
    } zone;
    Bestand b;
    const auto januar = b.s.ordner.pfad("L1998I.1");
    dateischreiben(januar, std::string(541, 'x'));
    // 2 December 1997, 14:05:09 in Berlin (winter time, UTC+1) = 13:05:09 UTC.
    const timespec zeit[2] = {{881067909, 0}, {881067909, 0}};
    ASSERT_EQ(::utimensat(AT_FDCWD, januar.c_str(), zeit, 0), 0);
    const Ordnerbild vorher = ordnerbild(b.ordner.pfad());
    b.dialoge.antworten(Knopf::ja);
    b.dialoge.antworten(Knopf::nein);
    EXPECT_FALSE(jahreswechselfragen(b.s));
    ASSERT_EQ(b.dialoge.gezeigt().size(), 2u);
    const Meldung& w = b.dialoge.gezeigt()[1];
    EXPECT_EQ(w.titel, "Warnung");
    EXPECT_EQ(w.symbol, Symbol::stop);
    EXPECT_EQ(w.knoepfe, Knoepfe::jaNein);
    EXPECT_EQ(w.text, "Wenn Sie JA wählen, werden bereits vorhandene 1998er Dateien überschrieben. "
                      "Es handelt sich um die am 02.12.1997 14:05:09 angelegten Dateien. Wollen "
                      "Sie überschreiben?");
    EXPECT_EQ(test::unterschied(test::ordnerbild(b.ordner.pfad()), vorher), "");
    b.dialoge.antworten(Knopf::ja);
    b.dialoge.antworten(Knopf::ja);
    EXPECT_TRUE(jahreswechselfragen(b.s));
}

TEST(Jahreswechsel, JuliHatDenMonat6UndSonstAllesVomDezember) {
    Bestand b;
    test::dezembersetzen(b.s, PLAN, 2, 123456);
    const Ordnerbild vorher = ordnerbild(b.ordner.pfad());
    const Jahresuebertrag e = jahrkopieren(b.s, nullptr);
    ASSERT_TRUE(e.erfolgreich);
    const Ordnerbild nachher = ordnerbild(b.ordner.pfad());
    const std::string dezember = satzaus(vorher, "L1997P.12", 2, 541);
    for (int monat = 1; monat <= 12; ++monat) {
        const std::string neu = satzaus(nachher, "L1998P." + std::to_string(monat), 2, 541);
        const Personalsatz p = personalsatz(neu);
        EXPECT_EQ(p.merkmal[20], monat - 1) << monat;
        EXPECT_EQ(p.wert[22], 123456);
        // Every byte but the month field (offset 38) as in December.
        EXPECT_EQ(neu.substr(0, 38), dezember.substr(0, 38));
        EXPECT_EQ(neu.substr(40), dezember.substr(40));
    }
    EXPECT_EQ(personalsatz(satzaus(nachher, "L1998P.7", 2, 541)).merkmal[20], 6);
}

TEST(Jahreswechsel, JedeSchichtJedePersonUndDieBemerkungen) {
    Bestand b;
    const int n = b.s.anzahlnamen;
    ASSERT_GT(n, 1);
    for (int x = INFO; x <= REAL; ++x)
        for (int p = 1; p <= n; ++p)
            test::dezembersetzen(b.s, x, p, 1000 * x + p);
    const Ordnerbild vorher = ordnerbild(b.ordner.pfad());
    const Jahresuebertrag e = jahrkopieren(b.s, nullptr);
    ASSERT_TRUE(e.erfolgreich);
    const Ordnerbild nachher = ordnerbild(b.ordner.pfad());
    for (int x = INFO; x <= REAL; ++x) {
        const std::string l = std::string(1, "IPR"[x]);
        EXPECT_EQ(e.personen[x], n);
        for (int monat = 1; monat <= 12; ++monat) {
            const std::string name = "L1998" + l + "." + std::to_string(monat);
            ASSERT_EQ(nachher.at(name).size(), static_cast<std::size_t>(n) * 541) << name;
            for (int p = 1; p <= n; ++p)
                EXPECT_EQ(personalsatz(satzaus(nachher, name, p, 541)).wert[22], 1000 * x + p);
        }
        EXPECT_EQ(nachher.at("L1998" + l + ".13"), vorher.at("L1997" + l + ".13"));
    }
    // The files of 1997 keep every byte.
    EXPECT_EQ(teilbild(nachher, "L1997"), teilbild(vorher, "L1997"));
    EXPECT_EQ(nachher.at("Texte.txt"), vorher.at("Texte.txt"));
    for (int t = 1; t <= 4; ++t)
        EXPECT_EQ(nachher.at("Lonvir97." + std::to_string(t) + "tr"),
                  vorher.at("Lonvir97." + std::to_string(t) + "tr"));
    // The person count of the last layer copied stays the working one.
    EXPECT_EQ(b.s.dim.anzahlpersonen, n);
}

TEST(Jahreswechsel, LeererDezemberStehtZwoelfmalIn1998) {
    Bestand b;
    const int n = b.s.anzahlnamen;
    // Person n's December is all zeros.
    {
        Satzdatei d;
        d.oeffnen(b.s.ordner.pfad("L1997I.12"), 541);
        const std::array<std::uint8_t, 541> leer{};
        d.schreiben(n, leer);
    }
    ASSERT_TRUE(jahrkopieren(b.s, nullptr).erfolgreich);
    const Ordnerbild nachher = ordnerbild(b.ordner.pfad());
    for (int monat = 1; monat <= 12; ++monat) {
        std::string erwartet(541, '\0');
        erwartet[38] = static_cast<char>(monat - 1);
        EXPECT_EQ(satzaus(nachher, "L1998I." + std::to_string(monat), n, 541), erwartet) << monat;
    }
}

TEST(Jahreswechsel, SechshundertTarifsaetzeUndEineLaengereTabelle1998BehaeltIhrEnde) {
    Bestand b;
    dateischreiben(b.s.ordner.pfad("Lonvir97.4tr"), tarifdatei(610, 4));
    dateischreiben(b.s.ordner.pfad("Lonvir98.2tr"), tarifdatei(650, 82));
    dateischreiben(b.s.ordner.pfad("Lonvir98.3tr"), tarifdatei(20, 83));
    const Ordnerbild vorher = ordnerbild(b.ordner.pfad());
    ASSERT_TRUE(jahrkopieren(b.s, nullptr).erfolgreich);
    const Ordnerbild nachher = ordnerbild(b.ordner.pfad());
    const std::string quelle = vorher.at("Lonvir97.4tr");
    for (int t = 1; t <= 4; ++t) {
        const std::string name = "Lonvir98." + std::to_string(t) + "tr";
        EXPECT_EQ(nachher.at(name).substr(0, 600 * 108), quelle.substr(0, 600 * 108)) << name;
    }
    // Records 601 to 650 of the longer table stay; 601 to 610 of 1997 are not copied.
    EXPECT_EQ(nachher.at("Lonvir98.2tr").size(), 650u * 108);
    EXPECT_EQ(nachher.at("Lonvir98.2tr").substr(600 * 108),
              vorher.at("Lonvir98.2tr").substr(600 * 108));
    EXPECT_EQ(nachher.at("Lonvir98.3tr").size(), 600u * 108);
    EXPECT_EQ(nachher.at("Lonvir97.4tr"), quelle);
}

// The settings go into files with the layer letter; the common Lonvir97.dim and Lonvir97.voe,
// which the program reads, are not touched, so 1998 keeps its own settings record.
TEST(Jahreswechsel, EinstellungenGehenInDieDateienMitSchichtbuchstaben) {
    Bestand b;
    // Layer P already has its own settings file: record 1 and rates 3 to 14 with marks.
    std::string dim(14 * 232, '\0');
    for (int r = 1; r <= 14; ++r)
        dim[static_cast<std::size_t>((r - 1) * 232)] = static_cast<char>(r);
    dateischreiben(b.s.ordner.ordner() / "Lonvir97P.dim", dim);
    const Ordnerbild vorher = ordnerbild(b.ordner.pfad());
    ASSERT_TRUE(jahrkopieren(b.s, nullptr).erfolgreich);
    const Ordnerbild nachher = ordnerbild(b.ordner.pfad());
    EXPECT_EQ(nachher.at("Lonvir97.dim"), vorher.at("Lonvir97.dim"));
    EXPECT_EQ(nachher.at("Lonvir97.voe"), vorher.at("Lonvir97.voe"));
    const std::string p = nachher.at("Lonvir97P.dim");
    ASSERT_EQ(p.size(), 26u * 232);
    EXPECT_EQ(satzaus(nachher, "Lonvir97P.dim", 2, 232), satzaus(vorher, "Lonvir97P.dim", 1, 232));
    for (int r = 3; r <= 14; ++r) {
        EXPECT_EQ(satzaus(nachher, "Lonvir97P.dim", r, 232),
                  satzaus(vorher, "Lonvir97P.dim", r, 232));
        EXPECT_EQ(satzaus(nachher, "Lonvir97P.dim", r + 12, 232),
                  satzaus(vorher, "Lonvir97P.dim", r, 232));
    }
    // Layers without such files get them, of zeros: record 2 and 15 to 26 written.
    EXPECT_EQ(nachher.at("Lonvir97I.dim"), std::string(26 * 232, '\0'));
    EXPECT_EQ(nachher.at("Lonvir97R.voe"), std::string(2 * 648, '\0'));
}

TEST(Jahreswechsel, NachDemWechselStehenDieDateienDesArbeitssatzesOffen) {
    Bestand b;
    b.s.schicht = PLAN;
    dateienoeffnen(b.s);
    ASSERT_TRUE(jahrkopieren(b.s, nullptr).erfolgreich);
    EXPECT_TRUE(b.s.datei(1).offen());
    EXPECT_EQ(b.s.datei(1).pfad().filename(), "L1997P.1");
    EXPECT_TRUE(b.s.jahr1998freigegeben);
}

// A transfer in 1998 keeps the files of the other layer open; a year change replaces them, and
// the next transfer writes into the new files.
TEST(Jahreswechsel, EineUebertragungDanachSchreibtInDieNeuenDateien) {
    Bestand b;
    Sitzung& s = b.s;
    ASSERT_TRUE(jahrkopieren(s, nullptr).erfolgreich);
    s.jahr = 1998;
    dateienoeffnen(s);
    s.aktuelleperson = 2;
    uebertragen(s, INFO, PLAN);
    ASSERT_TRUE(s.nebenschichten[PLAN].dateien[3].offen());
    test::dezembersetzen(s, PLAN, 2, 123456);
    ASSERT_TRUE(jahrkopieren(s, nullptr).erfolgreich);
    // The year change gave PLAN's person 2 a December that INFO's has not.
    ASSERT_NE(personalsatzlesen(s, 3, 2).wert[22], 123456);
    Personalsatz maerz = personalsatzlesen(s, 3, 2);
    maerz.wert[12] = 777;
    personalsatzschreiben(s, 3, 2, maerz);
    uebertragen(s, INFO, PLAN);
    const Ordnerbild nachher = ordnerbild(b.ordner.pfad());
    for (int monat = 1; monat <= 12; ++monat) {
        const std::string m = "." + std::to_string(monat);
        EXPECT_EQ(satzaus(nachher, "L1998P" + m, 2, 541), satzaus(nachher, "L1998I" + m, 2, 541))
            << monat;
    }
    EXPECT_EQ(personalsatz(satzaus(nachher, "L1998P.3", 2, 541)).wert[12], 777);
}

TEST(Jahreswechsel, FortschrittNachJederPersonUndJedemJahressatz) {
    struct Zaehler : Jahreswechselfortschritt {
        int personen = 0, jahressaetze = 0, tarife = 0, vollziehen = 0;
        void melden(const Jahreswechselstand& st) override {
            using A = Jahreswechselstand::Abschnitt;
            personen += st.abschnitt == A::monate;
            jahressaetze += st.abschnitt == A::jahressaetze && st.jahressatz > 0;
            tarife += st.abschnitt == A::tarife;
            vollziehen += st.abschnitt == A::vollziehen;
        }
    } zaehler;
    Bestand b;
    ASSERT_TRUE(jahrkopieren(b.s, &zaehler).erfolgreich);
    EXPECT_EQ(zaehler.personen, 3 * b.s.anzahlnamen);
    EXPECT_EQ(zaehler.jahressaetze, 3 * b.s.anzahlnamen);
    EXPECT_EQ(zaehler.tarife, 1);
    EXPECT_EQ(zaehler.vollziehen, 1);
}

} // namespace lonvir
