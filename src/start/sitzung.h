// The working state: one person, one month, one layer and year, and the open file set.
#pragma once

#include "core/arbeitsordner.h"
#include "core/currency.h"
#include "core/dialoge.h"
#include "core/feld.h"
#include "core/pruefvermerk.h"
#include "core/satzdatei.h"
#include "records/dimsatz.h"
#include "records/personalsatz.h"
#include "records/voeinsatz.h"
#include "start/lohnsteuerlauf.h"

#include <array>
#include <cstdint>
#include <filesystem>
#include <string>

namespace lonvir {

// What the engine tells the screen: a row to repaint, the open panel to refresh.
class Anzeige {
public:
    virtual ~Anzeige() = default;
    virtual void zeilemalen(int zeile) = 0;
    virtual void tablettauffrischen() = 0;
    virtual void mauszeigerNormal() = 0;
};

enum Schicht : std::int16_t { INFO = 0, PLAN = 1, REAL = 2 };

// File numbers of the set; 1 to 12 are the month files.
namespace datei {
constexpr int jahressaetze = 13;
constexpr int tarif1 = 14;
constexpr int tarif2 = 15;
constexpr int tarif3 = 16;
constexpr int tarif4 = 17;
constexpr int dim = 18;
constexpr int voe = 19;
constexpr int texte = 20;
constexpr int juli1997 = 21;
constexpr int tarif2von1997 = 22;
constexpr int tarif3von1997 = 23;
} // namespace datei

// What `aktualisieren` derives from the settings record: rates, ceilings, months, factors.
struct Einstellungswerte {
    Currency pvsatz, rvsatz, avsatz; // employee's half, in percent
    std::int32_t bmgKvWest = 0, bmgPvWest = 0, bmgRvWest = 0, bmgAvWest = 0, geringWest = 0;
    std::int32_t bmgKvOst = 0, bmgPvOst = 0, bmgRvOst = 0, bmgAvOst = 0, geringOst = 0;
    Currency multiplikatorBeamte, multiplikatorAngestellte;
    std::int32_t abMonatBeamte = 0, abMonatAngestellte = 0;
    std::int32_t tarifmonat1 = 0, ab_tarif2 = 0, ab_tarif3 = 0, ab_tarif4 = 0;
    std::int32_t liste26 = 0;
    std::int32_t zvkmodus = 0, kirchenpausch = 0;
    Feld<Currency, 0, 3> zuwendungsquote;
    // "Steuerrecht 1998 anwenden": element 34, which the record otherwise keeps as read; 1 on,
    // 0 off. Only the record of 1998 acts on it.
    bool steuerrecht1998 = false;
};

// The step list of row 7 as it stands: "Festes Grundgehalt" in front where set, then the text
// records anfang..ende. A rebuild that sets no end keeps the end of the list before it.
struct Stufenliste {
    bool gebaut = false; // no list has been built yet in this session
    bool festesGrundgehalt = false;
    bool mitTexten = false;
    std::int16_t anfang = 0;
    std::int16_t ende = 0;
    bool aktiv = true;

    [[nodiscard]] int eintraege() const {
        const int texte = mitTexten && ende >= anfang ? ende - anfang + 1 : 0;
        return (festesGrundgehalt ? 1 : 0) + texte;
    }
    // -1 for an empty list, as a list box reports it.
    [[nodiscard]] int letzteposition() const { return eintraege() - 1; }
};

// The person files 1 to 13 of one layer; index = file number, 0 unused.
using Personendateien = std::array<Satzdatei, 14>;

// The person files of a layer other than the one on the screen, opened by a transfer beside the
// set and kept open for the next one, for the year and folder they were opened in.
struct Nebenschicht {
    std::int16_t jahr = 0; // 0: not open
    bool nurLesen = false;
    std::filesystem::path ordner;
    Personendateien dateien;
};

struct Sitzung {
    // Every file of the set writes through the session's transaction while one is open, and
    // keeps its reads for the action under way; the text table is read whole at its first use.
    // So do the person files of the other layers.
    Sitzung() {
        for (std::size_t nummer = 0; nummer < dateien.size(); ++nummer) {
            dateien[nummer].binden(&vorgang);
            dateien[nummer].binden(&lesepuffer, nummer == datei::texte);
        }
        for (Nebenschicht& n : nebenschichten)
            for (Satzdatei& d : n.dateien) {
                d.binden(&vorgang);
                d.binden(&lesepuffer);
            }
    }
    Sitzung(const Sitzung&) = delete;
    Sitzung& operator=(const Sitzung&) = delete;

    // --- where the data lie and who answers the questions
    Arbeitsordner ordner;
    // The compiled installation data that seed a working folder without a store; empty: none.
    std::filesystem::path installation;
    std::array<Satzdatei, 24> dateien; // index = file number 1..23; 0 unused
    // The person files of the layers not on the screen that a transfer has opened (index =
    // layer); closed with the set and whenever a file of the folder is deleted.
    std::array<Nebenschicht, 3> nebenschichten;
    Dialoge* dialoge = nullptr;
    Anzeige* anzeige = nullptr; // the screen that shows the rows; none in the CLI
    // The writes of the confirmed input under way, stored together at its end (Vorgang).
    Schreibvorgang vorgang;
    // What the action under way has read from the files (Lesezeitraum, Vorgang).
    Lesepuffer lesepuffer;
    // The files the check at open found sound, kept beside the folder so that the next start
    // reads only what changed; the session's own stores keep it up to date.
    Pruefvermerk pruefvermerk;
    // The folder is opened for reading only: the files are not created, and what the session
    // computes stays in memory; nothing is ever written.
    bool nurLesen = false;
    // A settings record that failed its checks: its defaults serve this run, and the damaged
    // record is not overwritten.
    bool dimGesperrt = false;
    bool voeGesperrt = false;

    // --- place
    std::int16_t jahr = 1997;
    std::int16_t schicht = INFO;
    std::int16_t aktuelleperson = 1;
    std::int16_t aktuellerdatei = 1;
    std::int16_t anzahlnamen = 0;
    std::int16_t Tablettseite = 0;
    // Set by a year change that went through: the 1998 entries of the menu are usable.
    bool jahr1998freigegeben = false;

    // --- the person's month
    Feld<std::int16_t, 0, 45> merkmal;
    Feld<std::int32_t, 0, 45> wert;
    Feld<std::int32_t, 0, 45> eingabe;
    Feld<std::int32_t, 0, 25> nebenwert;
    Schalter lst, soz, zvk, wei, tei, bru;
    std::string bdabeginn = "01.1997"; // raw code page 1252, 7 bytes

    // --- the results of a run
    Feld<Currency, 7, 19> teilwert;
    Feld<Currency, 7, 19> zahlwert;
    float teilzeitfaktor = 0;
    float tagefaktor = 0;
    Feld<std::int32_t, 0, 27> lstwert;
    Feld<std::int32_t, 0, 27> svwert;
    Feld<std::int32_t, 0, 27> zvkwert;
    Feld<std::int32_t, 0, 26> tarifwert;
    std::int16_t oz_sonder = 0;
    // The bases of the transition allowance: the March 1997 and the July 1997 pay, Pfennig.
    std::int32_t basis_alt = 0;
    std::int32_t basis_neu = 0;
    // Sums of the paid rows (step 13 of the run), Pfennig.
    std::int32_t steuerbrutto = 0; // rows subject to wage tax
    std::int32_t svbrutto = 0;     // rows subject to social insurance
    std::int32_t zvkbrutto = 0;    // rows subject to supplementary pension
    // The tax inputs the run prepares (steps 15 to 19).
    std::int16_t zeitraum = 2;       // 2 month, 1 year
    std::int16_t kirchenpflicht = 0; // 1 while church tax applies
    std::int32_t laufenderlohn = 0;  // taxable current wage of the month, Pfennig
    std::int32_t einmallohn = 0;     // taxable one-off wage above 300.00 DM, Pfennig
    Currency steuerlohn;             // taxable wage, grossed up to a full month
    // The working limits of the supplementary pension, Pfennig.
    std::int32_t pauschgrenze = 0, entgeltgrenze = 0, freianteil = 0, svanteil = 0;
    std::int32_t stufengrenze = 0;
    // The employee's care-insurance factor; a selection without its own keeps the last one.
    Currency pvfaktor;
    // The wage tax of the month (steps 20 and 21).
    Lohnsteuerlauf lohnsteuerlauf; // inputs, outputs and working values of the last run
    Currency kirchensatz;          // 0.08, 0.09 or 0
    std::int32_t grenzsatz = 0;    // marginal rate of the wage, percent; shown, read by no step

    // --- flags of the screen and the driver
    std::int16_t aenderungssperre = 0;
    std::int16_t bildwirdgebaut = 0;
    std::int16_t startphase = 0;
    std::int16_t aktuellezeile = 0;
    std::int16_t Neuberechnung = 0;
    std::int16_t aenderungscode = 0;
    std::int16_t bruttomodus = 0;
    std::int16_t folgelauf = 0;
    std::int16_t jahreslauf = 0;
    std::int16_t jahressperre = 0; // set while the year view stands
    std::int16_t folgesperre = 0;  // set by a caller that wants no follow-up months
    std::int16_t zeile9aktiv = 1;  // row 9's list can be used
    Stufenliste stufen;            // the list z(7) of the steps

    // --- settings
    Dimsatz dim; // row colours, window places, start lock, as working values
    Feld<Currency, 0, 40> voreinstellung;
    Feld<std::int32_t, 0, 14> vorgabewert;
    std::string dienststelle1 = std::string(40, ' ');
    std::string dienststelle2 = std::string(40, ' ');
    std::string dienststellenort = std::string(20, ' ');
    std::string berichtszeile = std::string(100, ' ');
    Einstellungswerte einstellungen;
    // Health-insurance rate by month 0..11 and fund 0..29 (28 typed subsidy, 29 none), in
    // hundredths of a percent: 13.5 % is 1350.
    Feld<Feld<Currency, 0, 29>, 0, 11> kvsatz;
    bool erstbenutzung = false; // the display settings file was empty at start
    // Screen size in twips, for the default window places; the window sets the real one.
    std::int32_t bildschirmhoehe = 11520;
    std::int32_t bildschirmbreite = 15360;

    [[nodiscard]] Satzdatei& datei(int nummer) {
        if (nummer < 1 || nummer > 23)
            throw Laufzeitfehler::indexfehler();
        return dateien[static_cast<std::size_t>(nummer)];
    }
    [[nodiscard]] bool ist1997() const { return jahr == 1997 || jahr == 0; }
    [[nodiscard]] int personalart() const { return merkmal[4]; }
};

} // namespace lonvir
