// The load of the main form: the one sequence of Form_Load for the window and without one.
#include "screen/hauptform.h"

#include "start/start.h"

namespace lonvir {

void hauptformladen(Sitzung& s, Hauptform& form) {
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
