// drucken beitragsnachweis|lohnsteuernachweis: the month's statements of the layer for the
// insurers and the tax office, from the stored records, as text, PDF or CSV.
#include "cli/druckberichte.h"

#include "reports/beitragsnachweis.h"
#include "reports/lohnsteuernachweis.h"

namespace lonvir::cli {

namespace {

int monatAus(Kontext& k) {
    return static_cast<int>(k.optionen.zahl("monat", 1, 12)) - 1;
}

const Druckberichtanmeldung beitrag({
    .name = "beitragsnachweis",
    .titel = "Beitragsnachweis",
    .optionen = {"monat"},
    .drucken =
        [](Kontext& k, Drucker& d) {
            beitragsnachweisdrucken(k.s, beitragsnachweisbilden(k.s, monatAus(k)), d);
        },
    .csv = [](Kontext& k) { return beitragsnachweiscsv(beitragsnachweisbilden(k.s, monatAus(k))); },
});

const Druckberichtanmeldung lohnsteuer({
    .name = "lohnsteuernachweis",
    .titel = "Lohnsteuer-Nachweis",
    .optionen = {"monat"},
    .drucken =
        [](Kontext& k, Drucker& d) {
            lohnsteuernachweisdrucken(k.s, lohnsteuernachweisbilden(k.s, monatAus(k)), d);
        },
    .csv =
        [](Kontext& k) {
            return lohnsteuernachweiscsv(lohnsteuernachweisbilden(k.s, monatAus(k)));
        },
});

} // namespace

} // namespace lonvir::cli
