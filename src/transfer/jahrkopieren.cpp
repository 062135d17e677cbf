// The copy of the year change: December 1997 into the twelve months of 1998 per layer, the
// year records, the settings records and the last 1997 tariff table into the four of 1998.
// Every file it writes is a new file put in place with the others at the end.
#include "core/dateitausch.h"
#include "core/laufzeitfehler.h"
#include "core/pfennig.h"
#include "records/bytes.h"
#include "start/dateisatz.h"
#include "transfer/altdatei.h"
#include "transfer/jahreswechsel.h"

#include <algorithm>
#include <array>
#include <vector>

namespace lonvir {

namespace {

constexpr int personalsatz = 541;
constexpr int jahressatz = 1280;
constexpr int dimsatz = 232;
constexpr int voesatz = 648;
constexpr int tarifsatz = 108;
// merkmal(20), the month of the record, lies at 2 * (20 - 1).
constexpr std::size_t monatsfeld = 38;
// A list of names and the directory entries: room enough beside the files.
constexpr std::uintmax_t zuschlag = 64 * 1024;

// The settings files of the year change carry the layer letter: Lonvir97I.dim, Lonvir97P.voe.
std::string einstellungsname(int schicht, const char* endung) {
    return std::string("Lonvir97") + schichtbuchstabe(schicht) + endung;
}

class Kopie {
public:
    Kopie(Sitzung& s, Jahreswechselfortschritt* f) : s_(s), f_(f) {}

    // Bytes the new files will take: each is a whole copy of its target, at least as long as
    // what the copy writes into it.
    std::uintmax_t bedarf() const {
        std::uintmax_t summe = zuschlag;
        const auto neu = [&](const std::string& name, std::uintmax_t geschrieben) {
            summe += std::max<std::uintmax_t>(s_.ordner.laenge(name), geschrieben);
        };
        for (int x = INFO; x <= REAL; ++x) {
            const auto n = static_cast<std::uintmax_t>(
                Altdatei(s_.ordner.pfad(dateiname(12, 1997, x)), personalsatz).saetze());
            const auto m = static_cast<std::uintmax_t>(
                Altdatei(s_.ordner.pfad(dateiname(13, 1997, x)), jahressatz).saetze());
            for (int monat = 1; monat <= 12; ++monat)
                neu(dateiname(monat, 1998, x), n * personalsatz);
            neu(dateiname(13, 1998, x), m * jahressatz);
            neu(einstellungsname(x, ".dim"), 26 * dimsatz);
            neu(einstellungsname(x, ".voe"), 2 * voesatz);
        }
        for (int t = datei::tarif1; t <= datei::tarif4; ++t)
            neu(dateiname(t, 1998, INFO), tarifsaetzeJahreswechsel * tarifsatz);
        return summe;
    }

    void schichtuebertragen(Dateitausch& tausch, std::int16_t schicht, Jahresuebertrag& e) {
        Jahreswechselstand stand;
        stand.schicht = schicht;
        // 1. The person count of the layer becomes the working one.
        const Altdatei dezember(pfad(dateiname(12, 1997, schicht)), personalsatz);
        const std::int32_t n = dezember.saetze();
        s_.dim.anzahlpersonen = pf::int16(n);
        stand.personen = n;
        // 2. Each person's December into the twelve months, the month field set per file.
        std::array<Neudatei*, 12> monate{};
        for (int f = 1; f <= 12; ++f)
            monate[static_cast<std::size_t>(f - 1)] =
                &tausch.datei(pfad(dateiname(f, 1998, schicht)), personalsatz);
        std::array<std::uint8_t, personalsatz> satz{};
        for (std::int32_t p = 1; p <= n; ++p) {
            dezember.lesen(p, satz);
            for (int f = 1; f <= 12; ++f) {
                bytes::setzeI16(satz, monatsfeld, static_cast<std::int16_t>(f - 1));
                monate[static_cast<std::size_t>(f - 1)]->schreiben(p, satz);
            }
            stand.person = p;
            melden(stand);
        }
        e.personen[schicht] = n;
        // 3. The year records.
        const Altdatei jahr(pfad(dateiname(13, 1997, schicht)), jahressatz);
        const std::int32_t m = jahr.saetze();
        stand.abschnitt = Jahreswechselstand::Abschnitt::jahressaetze;
        stand.jahressaetze = m;
        Neudatei& jahr98 = tausch.datei(pfad(dateiname(13, 1998, schicht)), jahressatz);
        std::array<std::uint8_t, jahressatz> karte{};
        for (std::int32_t p = 1; p <= m; ++p) {
            jahr.lesen(p, karte);
            jahr98.schreiben(p, karte);
            stand.jahressatz = p;
            melden(stand);
        }
        e.jahressaetze[schicht] = m;
        // 4. and 5. The settings: a record read from the file as it stands, written into
        // its new version.
        stand.abschnitt = Jahreswechselstand::Abschnitt::einstellungen;
        melden(stand);
        umsetzen(tausch, einstellungsname(schicht, ".dim"), dimsatz,
                 {{1, 2},
                  {3, 15},
                  {4, 16},
                  {5, 17},
                  {6, 18},
                  {7, 19},
                  {8, 20},
                  {9, 21},
                  {10, 22},
                  {11, 23},
                  {12, 24},
                  {13, 25},
                  {14, 26}});
        umsetzen(tausch, einstellungsname(schicht, ".voe"), voesatz, {{1, 2}});
    }

    // Records 1 to 600 of the last 1997 table under the same numbers into the four of 1998;
    // a 1998 table with more records keeps the rest.
    void tarifeuebertragen(Dateitausch& tausch) {
        Jahreswechselstand stand;
        stand.abschnitt = Jahreswechselstand::Abschnitt::tarife;
        stand.schicht = REAL;
        melden(stand);
        const Altdatei quelle(pfad(dateiname(datei::tarif4, 1997, INFO)), tarifsatz);
        std::vector<Neudatei*> ziele;
        for (int t = datei::tarif1; t <= datei::tarif4; ++t)
            ziele.push_back(&tausch.datei(pfad(dateiname(t, 1998, INFO)), tarifsatz));
        std::array<std::uint8_t, tarifsatz> satz{};
        for (std::int32_t r = 1; r <= tarifsaetzeJahreswechsel; ++r) {
            quelle.lesen(r, satz);
            for (Neudatei* ziel : ziele)
                ziel->schreiben(r, satz);
        }
    }

    void melden(const Jahreswechselstand& stand) {
        if (f_)
            f_->melden(stand);
    }

private:
    std::filesystem::path pfad(const std::string& name) const { return s_.ordner.pfad(name); }

    void umsetzen(Dateitausch& tausch, const std::string& name, int laenge,
                  std::initializer_list<std::pair<int, int>> vonnach) {
        const Altdatei alt(pfad(name), laenge);
        Neudatei& neu = tausch.datei(pfad(name), laenge);
        std::vector<std::uint8_t> satz(static_cast<std::size_t>(laenge));
        for (const auto& [von, nach] : vonnach) {
            alt.lesen(von, satz);
            neu.schreiben(nach, satz);
        }
    }

    Sitzung& s_;
    Jahreswechselfortschritt* f_;
};

std::string kb(std::uintmax_t bytes) {
    return std::to_string((bytes + 1023) / 1024) + " KB";
}

void nichtausgefuehrt(Sitzung& s, const std::string& grund) {
    if (s.dialoge)
        s.dialoge->zeigen({"Jahreswechsel",
                           grund + "\nDer Jahreswechsel wurde nicht ausgeführt; die Dateien "
                                   "von 1997 und 1998 sind unverändert.",
                           Symbol::ausruf, Knoepfe::ok});
}

std::string platztext(const std::filesystem::path& ordner, std::uintmax_t benoetigt,
                      std::uintmax_t frei) {
    return "Im Ordner " + ordner.string() + " ist nicht genug Platz: der Jahreswechsel braucht " +
           kb(benoetigt) + ", frei sind " + kb(frei) + ".";
}

} // namespace

Jahresuebertrag jahrkopieren(Sitzung& s, Jahreswechselfortschritt* fortschritt) {
    Jahresuebertrag e;
    const std::int16_t anzahl = s.dim.anzahlpersonen;
    // 1. The working files are closed while the copy runs.
    dateienschliessen(s);
    Kopie kopie(s, fortschritt);
    std::uintmax_t benoetigt = 0;
    try {
        Dateitausch tausch(s.ordner.ordner());
        benoetigt = kopie.bedarf();
        const std::uintmax_t frei = tausch::freierplatz(s.ordner.ordner());
        if (frei < benoetigt)
            throw Platzmangel(s.ordner.ordner(), benoetigt, frei);
        // 4. The three layers, then 5. the tariff tables.
        for (std::int16_t x : {INFO, PLAN, REAL})
            kopie.schichtuebertragen(tausch, x, e);
        kopie.tarifeuebertragen(tausch);
        Jahreswechselstand stand;
        stand.abschnitt = Jahreswechselstand::Abschnitt::vollziehen;
        stand.schicht = REAL;
        kopie.melden(stand);
        tausch.vollziehen();
        e.erfolgreich = true;
    } catch (const Platzmangel& f) {
        nichtausgefuehrt(s, platztext(f.ordner(), benoetigt, f.frei()));
    } catch (const Dateifehler& f) {
        nichtausgefuehrt(s, f.what());
    } catch (const Laufzeitfehler& f) {
        nichtausgefuehrt(s, f.what());
    }
    if (!e.erfolgreich) {
        s.dim.anzahlpersonen = anzahl;
        e.personen.fuellen(0);
        e.jahressaetze.fuellen(0);
    }
    // 8. The working set again; the person count stays that of the last layer copied.
    dateienoeffnen(s);
    // The 1998 entries of the menu are usable from now on.
    if (e.erfolgreich)
        s.jahr1998freigegeben = true;
    return e;
}

} // namespace lonvir
