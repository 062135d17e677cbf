// The allowances display.
#include "reports/freibetraege.h"

#include "core/druckformat.h"
#include "engine/lohnsteuer.h"

namespace lonvir {

std::string Freibetraege::text(std::size_t zeile) const {
    return formatzahl(dm.at(zeile).alsDouble(), "#,##0.00");
}

Freibetraege freibetraegeberechnen(const Freibetragsauswahl& a) {
    Lohnsteuerlauf l;
    l.lzz = 1;
    l.re4 = Currency::ganz(std::int64_t{a.scrollwert} * 5400);
    l.stkl = a.steuerklasse;
    l.zkf = a.kinderfreibetraege;
    l.alter64 = a.altersentlastung;
    l.besonders = a.besonderetabelle;
    l.kirche = 1;
    lohnsteuer(l);

    // The routine holds wage, age and pension allowance in Pfennig, the rest in DM.
    const Klassenzeile& k = klassenzeile(a.steuerklasse);
    Freibetraege f;
    f.dm[0] = Currency::gerundet(l.re4.alsDouble() / 100.0);
    f.dm[1] = Currency::gerundet(l.alte.alsDouble() / 100.0);
    f.dm[2] = Currency::ganz(k.arbeitnehmerpauschbetrag);
    f.dm[3] = Currency::gerundet(l.vfb.alsDouble() / 100.0);
    f.dm[4] = Currency::ganz(k.haushaltsfreibetrag);
    f.dm[5] = Currency{};
    f.dm[6] = l.vsp;
    f.dm[7] = Currency::ganz(k.sonderausgabenpauschbetrag);
    f.dm[8] = l.zve < Currency{} ? Currency{} : l.zve;
    return f;
}

} // namespace lonvir
