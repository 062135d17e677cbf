// Page 67: the take-over of the data of the former version, announced and not yet done.
#include "panels/seiten.h"
#include "start/texte.h"

namespace lonvir {

void versionsseite(Tablett& t) {
    ueberschrift(t, "1997er Daten der Version 1996.7 übernehmen");
    int zeile = 1;
    for (int n = versionstext::erster; n <= versionstext::letzter; ++n, ++zeile)
        erklaerzeile(t, zeile, textgetrimmt(t.s, n), std::nullopt);
    const int fuss = seitenlage::anfang + (zeile + 1) * seitenlage::abstand;
    t.Command1.text = "Übernehmen";
    t.Command1.lage = {seitenlage::links, fuss, 1500, 400};
    t.Command1.sichtbar = true;
    t.Command2.text = "Abbrechen";
    t.Command2.lage = {seitenlage::links + 1700, fuss, 1500, 400};
    t.Command2.sichtbar = true;
    t.fokus = {Tablettfokusart::knopf, 2};
}

void versionuebernehmen(Tablett& t) {
    if (t.s.dialoge)
        t.s.dialoge->zeigen({"Leider ...",
                             "Diese Funktion wird erst ab der Version 1998 funktionsfähig sein.",
                             Symbol::ausruf, Knoepfe::ok});
}

} // namespace lonvir
