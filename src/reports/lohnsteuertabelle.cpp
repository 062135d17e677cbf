// The wage-tax table viewer: band arithmetic, the fill over six classes, the cell format.
#include "reports/lohnsteuertabelle.h"

#include "engine/lohnsteuer.h"

namespace lonvir {

std::string lstrtabTitelFuer(Steuerrecht recht) {
    return "Lohnsteuer-Tabelle " + steuerrechtjahr(recht);
}

std::string kinderfreibetragseintrag(int position) {
    if (position == 0)
        return "keine Kinderfreibeträge";
    return std::to_string(position / 2) + (position % 2 ? ",5" : ",0") + " Kinderfreibeträge";
}

Tabellenband stufeberechnen(std::int16_t lohnzeitraum, std::int32_t v) {
    // The official table's steps: 54 DM a year, 4.50 DM a month, 1.05 DM a week, 0.15 DM a day.
    const std::int64_t w = v;
    Tabellenband b;
    switch (lohnzeitraum) {
    case 1:
        b.unten = Currency::ganz(w * 5400 - 5200);
        b.oben = b.unten + Currency::ganz(5399);
        break;
    case 2:
        b.unten = Currency::ganz(w * 450 + 16);
        b.oben = b.unten + Currency::ganz(449);
        break;
    case 3:
        b.unten = Currency::ganz(w * 105 + 3);
        b.oben = b.unten + Currency::ganz(104);
        break;
    case 4:
        b.unten = Currency::ganz(w * 15);
        b.oben = b.unten + Currency::ganz(14);
        break;
    default:
        break;
    }
    return b;
}

namespace {

Tabellenzeile klassenzeile(const Lohnsteuertabelle& t, std::int16_t steuerklasse) {
    Lohnsteuerlauf l;
    l.re4 = t.tabellenlohn; // the lower bound, in Pfennig
    l.lzz = t.auswahl.lohnzeitraum;
    l.stkl = steuerklasse;
    l.zkf = t.auswahl.kinderfreibetraege;
    l.alter64 = t.auswahl.altersentlastung;
    l.besonders = t.auswahl.besonderetabelle;
    l.kirche = 1;
    l.recht = t.auswahl.recht;
    lohnsteuer(l);
    Tabellenzeile z;
    z.lohnsteuer = l.lstlzz;
    z.solidaritaetszuschlag = l.solzlzz;
    // Church tax of the table is the wage tax times the rate, the Pfennig fraction cut off.
    z.kirchensteuer = (l.lstlzz * t.auswahl.kirchensteuersatz).abgeschnitten();
    return z;
}

} // namespace

bool tabellefuellen(Lohnsteuertabelle& t) {
    const Tabellenband band = stufeberechnen(t.auswahl.lohnzeitraum, t.auswahl.scrollwert);
    if (t.gefuellt && band == t.band && t.auswahl == t.gefuelltMit)
        return false;
    t.band = band;
    t.tabellenlohn = band.unten;
    for (std::int16_t klasse = 1; klasse <= 6; ++klasse)
        t.zeilen[klasse] = klassenzeile(t, klasse);
    t.gefuellt = true;
    t.gefuelltMit = t.auswahl;
    return true;
}

std::string tabellenbetrag(Currency pfennig) {
    // Whole Pfennig are whole hundredths of a DM; a fraction of a Pfennig is rounded away.
    const std::int64_t cent = pfennig.gerundetInt32();
    const std::int64_t betrag = cent < 0 ? -cent : cent;
    std::string ganzteil = betrag / 100 == 0 ? "" : std::to_string(betrag / 100);
    for (int i = static_cast<int>(ganzteil.size()) - 3; i > 0; i -= 3)
        ganzteil.insert(static_cast<std::size_t>(i), ".");
    const std::int64_t rest = betrag % 100;
    return (cent < 0 ? "-" : "") + ganzteil + "," + (rest < 10 ? "0" : "") + std::to_string(rest);
}

} // namespace lonvir
