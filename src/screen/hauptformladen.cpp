// The load of the main form: the one sequence of Form_Load for the window and without one.
#include "screen/hauptform.h"

#include "start/start.h"
#include "start/vorgang.h"

namespace lonvir {

void hauptformladen(Sitzung& s, Hauptform& form) {
    // The lists take their words from the text table, which is read once for the whole load.
    Lesezeitraum zeitraum(s);
    // 1.
    form.sanduhr(true);
    s.aenderungssperre = -1;
    // 2.
    form.zeilenlistenfuellen();
    // 3.
    s.aktuelleperson = 1;
    // 4.
    form.jahresmenue();
    // 5.
    s.startphase = 0;
    form.zeilenfarben();
    // 6.
    form.jahresanzeige();
    // 7. The place where the user stopped, shown by the refresh.
    form.schichtanzeigen(ortwiederherstellen(s));
    form.bildauffrischen();
    s.aenderungssperre = 0;
    // 8.
    form.sanduhr(false);
}

} // namespace lonvir
