// personalloeschen: the warning, the reset of names and cost centres, the deleted set.
#include "screen/personalloeschen.h"

#include "records/personalsatz.h"
#include "start/dateisatz.h"
#include "start/personenanlegen.h"
#include "start/texte.h"
#include "start/vorgang.h"

namespace lonvir {

namespace {

constexpr const char* titel = "Personaldaten löschen";

bool nachfragen(Sitzung& s) {
    const std::string text = "Warnung! Bei Auswahl von  O K  werden   a l l e  bisher für  " +
                             std::to_string(s.jahr) +
                             "  eingegebenen Namen und die dazu gehörenden Personaldaten der "
                             "derzeit aktiven Schicht (INFO/PLAN/REAL) einschließlich der "
                             "Kostenstellen gelöscht. Änderungen in den Tarifdateien und der "
                             "Textdatei bleiben erhalten.";
    if (s.dialoge == nullptr)
        return true;
    return s.dialoge->zeigen({titel, text, Symbol::ausruf, Knoepfe::okAbbrechen}) == Knopf::ok;
}

void texteruecksetzen(Sitzung& s) {
    // 3.
    for (int n = 1; n <= 20; ++n)
        textschreiben(s, 4800 + n, "Kostenstelle " + std::to_string(n));
    // 4.
    for (int n = 1; n <= 20; ++n)
        textschreiben(s, 5000 + n, std::to_string(n) + ". Name");
    // 5. The bound adds the person count, which step 2 has just set to 0.
    for (int nummer = 4821; nummer <= 5000; ++nummer)
        textschreiben(s, nummer, "");
    for (int nummer = 5021; nummer <= 6000 + s.anzahlnamen; ++nummer)
        textschreiben(s, nummer, "");
}

void dateienloeschen(Sitzung& s) {
    // 6. The July file of 1997 (number 21) is closed with number 7; it is not deleted.
    for (int nummer = 1; nummer <= datei::jahressaetze; ++nummer) {
        s.datei(nummer).schliessen();
        if (nummer == 7)
            s.datei(datei::juli1997).schliessen();
        dateiloeschen(s, dateiname(nummer, s.jahr, s.schicht));
    }
}

// The records of the new persons in the open layer only, as person creation writes them:
// the other layers keep their persons.
void datensaetzeanlegen(Sitzung& s) {
    s.anzahlnamen = personenzaehlen(s);
    const std::int32_t gespeichert = gespeichertesaetze(s);
    if (s.anzahlnamen <= gespeichert)
        return;
    Personalsatz satz = Personalsatz::neu(0);
    schichtfuellen(s, gespeichert, satz);
}

} // namespace

bool personalloeschen(Sitzung& s, Hauptform& form) {
    // 1.
    s.Tablettseite = 22;
    if (!nachfragen(s))
        return false;
    // The names, the deleted files and the new persons are stored together: an interruption
    // leaves the layer as it was before the question.
    alsVorgang(s, [&] {
        // 2.
        for (int i = 0; i <= 45; ++i)
            s.merkmal[i] = 0;
        s.anzahlnamen = 0;
        // 3. to 5.
        texteruecksetzen(s);
        // 6.
        dateienloeschen(s);
        // 7.
        s.jahr = 1997;
        s.startphase = 0;
        dateienoeffnen(s);
        form.entladen();
        datensaetzeanlegen(s);
        form.laden();
    });
    return true;
}

void personalsaetzeklick(Sitzung& s, Hauptform& form, int jahr) {
    if (jahr == 1997 ? s.ist1997() : s.jahr == jahr) {
        personalloeschen(s, form);
        return;
    }
    const std::string text = std::string("Bitte wählen Sie \"") + (jahr == 1997 ? "1997" : "1998") +
                             "er-DATEIEN VERWENDEN\" und löschen Sie dann die Dateien.";
    if (s.dialoge)
        s.dialoge->zeigen({titel, text, Symbol::ausruf, Knoepfe::ok});
}

} // namespace lonvir
