// The reports of `lonvir97-cli drucken BERICHT`, and the output of printed reports as text,
// PDF or CSV (core/csv.h).
//
// A report registers itself with one entry in its own source file of src/cli:
//
//     namespace {
//     Druckbericht bericht() {
//         Druckbericht b;
//         b.name = "beitragsnachweis";
//         b.titel = "Beitragsnachweis";
//         b.optionen = {"monat", "kostenstelle"};
//         b.drucken = [](Kontext& k, Drucker& d) {
//             beitragsnachweisdrucken(k.s, beitragsnachweisbilden(k.s, monatAus(k)), d);
//         };
//         b.csv = [](Kontext& k) {
//             return beitragsnachweiscsv(beitragsnachweisbilden(k.s, monatAus(k)));
//         };
//         return b;
//     }
//     const Druckberichtanmeldung anmeldung(bericht());
//     } // namespace
//
// `drucken` reads its own options from k.optionen (throwing Aufruffehler for bad usage, exit
// status 2) and prints through the `Drucker` exactly as the window prints: one `EndDoc` per
// document. `csv` is optional; a report without it refuses --format csv. The command checks
// the options (the report's, --format, --aus and the common ones), opens the working folder,
// runs the report and writes the file through `druckausgabe`.
//
// `druckausgabe` serves every command that prints (e.g. a range of the wage-tax table): text
// is the plain-text face (one line per printed line, a form feed per document), pdf the same
// pages as the printer (font embedded), csv the list. With --aus the file is written under a
// temporary name and renamed when complete; without it the output goes to stdout. With
// --json stdout gets {"bericht", "format", "datei", "dokumente", "seiten", "meldungen"}.
#pragma once

#include "cli/befehle.h"
#include "core/csv.h"
#include "core/drucker.h"

#include <functional>
#include <iosfwd>
#include <string>
#include <vector>

namespace lonvir::cli {

struct Druckbericht {
    std::string name;                  // the BERICHT of the command line
    std::string titel;                 // German, the title of the PDF
    std::vector<std::string> optionen; // options of the report beyond --format and --aus
    std::function<void(Kontext&, Drucker&)> drucken;
    std::function<Csvtabelle(Kontext&)> csv; // empty: no CSV form
};

// Registers a report at program start; a name registered twice ends the program.
struct Druckberichtanmeldung {
    explicit Druckberichtanmeldung(Druckbericht bericht);
};

// The report of that name; nullptr when there is none.
[[nodiscard]] const Druckbericht* druckbericht(const std::string& name);
// All names, sorted.
[[nodiscard]] std::vector<std::string> druckberichtnamen();

// What a printing command hands to the output.
struct Druckauftrag {
    std::string bericht; // name for the JSON summary
    std::string titel;
    std::function<void(Drucker&)> drucken;
    std::function<Csvtabelle()> csv; // empty: no CSV form
};

// Reads --format text|pdf|csv (default text) and --aus, prints and writes. Returns the exit
// status 0; bad usage throws Aufruffehler, an unwritable file Dateifehler.
int druckausgabe(Kontext& k, const Druckauftrag& auftrag, std::ostream& aus);

} // namespace lonvir::cli
