// drucken jahresuebersicht|gehaelterliste|monatsuebersicht: the annual overview of one person
// and the two lists of the totals over the staff, from the stored records, as text, PDF or CSV.
#include "cli/druckberichte.h"

#include "core/druckformat.h"
#include "reports/form2.h"
#include "reports/form3.h"
#include "reports/uebersichtcsv.h"
#include "start/texte.h"

namespace lonvir::cli {

namespace {

// --person P and --ansicht ag|abzuege: the form as it opens (the employer's cost), or after
// "Abzüge aufrufen".
Form3 jahresuebersicht(Kontext& k) {
    const long person = k.optionen.zahl("person", 1, 1000);
    if (person > k.s.anzahlnamen)
        throw Aufruffehler("Person " + std::to_string(person) + " gibt es nicht; angelegt sind " +
                           std::to_string(k.s.anzahlnamen) + ".");
    const std::string ansicht = k.optionen.wert("ansicht").value_or("ag");
    if (ansicht != "ag" && ansicht != "abzuege")
        throw Aufruffehler("--ansicht muss ag oder abzuege sein, nicht \"" + ansicht + "\".");
    Form3 f(k.s);
    f.jahresperson = static_cast<std::int16_t>(person);
    f.Form_Load();
    f.Form_Activate();
    if (ansicht == "abzuege")
        f.Command2_Click();
    return f;
}

// --kostenstelle N: 0 (the default) all staff, N the cost centre of text record 4800 + N, as
// the list of page 66 offers it.
Kostenstellenwahl kostenstelleAus(Kontext& k) {
    const int anzahl = kostenstellenzaehlen(k.s);
    const long n = k.optionen.zahl("kostenstelle", 0, 200, 0);
    if (n > anzahl)
        throw Aufruffehler("Kostenstelle " + std::to_string(n) + " gibt es nicht; angelegt sind " +
                           std::to_string(anzahl) + ".");
    Kostenstellenwahl w;
    w.position = static_cast<int>(n);
    if (n > 0)
        w.kostenstelle = textgetrimmt(k.s, textnummer::ersteKostenstelle - 1 + static_cast<int>(n));
    return w;
}

Druckbericht jahresbericht() {
    Druckbericht b;
    b.name = "jahresuebersicht";
    b.titel = "Jahresübersicht";
    b.optionen = {"person", "ansicht"};
    b.drucken = [](Kontext& k, Drucker& d) {
        Form3 f = jahresuebersicht(k);
        f.Command3_Click(d);
    };
    b.csv = [](Kontext& k) { return jahresuebersichtcsv(jahresuebersicht(k)); };
    return b;
}

// A list over the totals of the staff, or of one cost centre: printed and as CSV.
Druckbericht summenbericht(const char* name, const char* titel,
                           void (*drucken)(Sitzung&, const Jahressummen&, Drucker&),
                           Csvtabelle (*csv)(Sitzung&, const Jahressummen&)) {
    Druckbericht b;
    b.name = name;
    b.titel = titel;
    b.optionen = {"kostenstelle"};
    b.drucken = [drucken](Kontext& k, Drucker& d) {
        drucken(k.s, jahressummen(k.s, kostenstelleAus(k)), d);
    };
    b.csv = [csv](Kontext& k) { return csv(k.s, jahressummen(k.s, kostenstelleAus(k))); };
    return b;
}

const Druckberichtanmeldung jahr(jahresbericht());
const Druckberichtanmeldung liste(summenbericht("gehaelterliste", "Gehälterliste",
                                                gehaelterlistedrucken, gehaelterlistecsv));
const Druckberichtanmeldung monate(summenbericht("monatsuebersicht", "Monatsübersicht",
                                                 monatsuebersichtdrucken, monatsuebersichtcsv));

} // namespace

} // namespace lonvir::cli
