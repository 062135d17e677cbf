// tabelle: one band of the wage-tax table viewer with the six classes.
#include "cli/befehle.h"

#include "cli/druckberichte.h"
#include "core/betragstext.h"
#include "reports/tabellendruck.h"

#include "reports/lohnsteuertabelle.h"

#include <iomanip>
#include <ostream>

namespace lonvir::cli {

namespace {

std::int16_t zeitraumAus(const Optionen& o) {
    const std::string w = o.pflicht("zeitraum");
    if (w == "jahr")
        return 1;
    if (w == "monat")
        return 2;
    if (w == "woche")
        return 3;
    if (w == "tag")
        return 4;
    throw Aufruffehler("--zeitraum muss jahr, monat, woche oder tag sein, nicht \"" + w + "\".");
}

Currency kirchensatzAus(const Optionen& o) {
    if (o.schalter("kirche"))
        throw Aufruffehler("--kirche erwartet 8 oder 9.");
    const std::string w = o.wert("kirche").value_or("8");
    if (w == "8")
        return Currency::roh(800);
    if (w == "9")
        return Currency::roh(900);
    throw Aufruffehler("--kirche erwartet 8 oder 9, nicht \"" + w + "\".");
}

Tabellenauswahl auswahlAus(const Optionen& o, bool mitStufe = true) {
    Tabellenauswahl a;
    a.lohnzeitraum = zeitraumAus(o);
    if (mitStufe)
        a.scrollwert = static_cast<std::int32_t>(o.zahl("stufe", 0, lstrtabScrollMax));
    a.kinderfreibetraege = halbeSchritte(o, "kinder", false);
    a.besonderetabelle = o.schalter("beamte") ? 1 : 0;
    a.altersentlastung = o.schalter("alter") ? 1 : 0;
    a.kirchensteuersatz = kirchensatzAus(o);
    a.recht = rechtAus(o);
    return a;
}

void alsJson(Kontext& k, const Lohnsteuertabelle& t, std::ostream& aus) {
    Json j;
    j.objektAnfang()
        .zahl("zeitraum", t.auswahl.lohnzeitraum)
        .zahl("stufe", t.auswahl.scrollwert)
        .zahl("von", t.band.unten.gerundetInt32())
        .zahl("bis", t.band.oben.gerundetInt32())
        .roh("kinderfreibetraege", t.auswahl.kinderfreibetraege.text())
        .zahl("beamte", t.auswahl.besonderetabelle)
        .zahl("alter", t.auswahl.altersentlastung)
        .roh("kirchensteuersatz", t.auswahl.kirchensteuersatz.text())
        .zahl("recht", static_cast<std::int16_t>(t.auswahl.recht))
        .text("titel", lstrtabTitelFuer(t.auswahl.recht));
    j.feldAnfang("klassen");
    for (int klasse = 1; klasse <= 6; ++klasse) {
        const Tabellenzeile& z = t.zeilen[klasse];
        j.objektAnfang()
            .text("klasse", klassenzeilen[static_cast<std::size_t>(klasse - 1)])
            .zahl("lohnsteuer", z.lohnsteuer.gerundetInt32())
            .zahl("solidaritaetszuschlag", z.solidaritaetszuschlag.gerundetInt32())
            .zahl("kirchensteuer", z.kirchensteuer.gerundetInt32())
            .objektEnde();
    }
    j.feldEnde();
    k.meldungenAnhaengen(j);
    aus << j.objektEnde().ergebnis() << "\n";
}

void alsText(const Lohnsteuertabelle& t, std::ostream& aus) {
    aus << lstrtabTitelFuer(t.auswahl.recht) << "\n";
    const std::vector<std::string> texte = auswahltexte(t.auswahl);
    for (std::size_t i = 0; i < texte.size(); ++i)
        aus << (i > 0 ? ", " : "") << texte[i];
    aus << "\n"
        << "von DM " << tabellenbetrag(t.band.unten) << "   bis DM " << tabellenbetrag(t.band.oben)
        << "\n";
    aus << std::left << std::setw(8) << tabellenkopf[0] << std::right;
    for (std::size_t s = 1; s < tabellenkopf.size(); ++s)
        aus << std::setw(15) << tabellenkopf[s];
    aus << "\n";
    for (int klasse = 1; klasse <= 6; ++klasse) {
        const Tabellenzeile& z = t.zeilen[klasse];
        aus << std::left << std::setw(8) << klassenzeilen[static_cast<std::size_t>(klasse - 1)]
            << std::right << std::setw(15) << tabellenbetrag(z.lohnsteuer) << std::setw(15)
            << tabellenbetrag(z.solidaritaetszuschlag) << std::setw(15)
            << tabellenbetrag(z.kirchensteuer) << "\n";
    }
}

// A DM amount of --von or --bis: whole DM, or DM and Pfennig after a comma or a point.
std::int64_t pfennigAus(const Optionen& o, const std::string& name) {
    const std::string w = o.pflicht(name);
    const std::optional<std::int64_t> pfennig = dmlesen(w);
    if (!pfennig)
        throw Aufruffehler("--" + name +
                           " erwartet einen Betrag in DM wie 2000 oder 2000,50, nicht \"" + w +
                           "\".");
    return *pfennig;
}

// A range of bands, one line each, through the printer into text, PDF or CSV.
int tabellenbereich(Kontext& k, std::ostream& aus) {
    k.optionen.nurErlaubt({"zeitraum", "kinder", "beamte", "alter", "kirche", "recht", "von", "bis",
                           "format", "aus"});
    Tabellenbereich b;
    b.auswahl = auswahlAus(k.optionen, false);
    b.von = scrollwertfuer(b.auswahl.lohnzeitraum, pfennigAus(k.optionen, "von"));
    b.bis = scrollwertfuer(b.auswahl.lohnzeitraum, pfennigAus(k.optionen, "bis"));
    if (const std::string fehler = bereichpruefen(b); !fehler.empty())
        throw Aufruffehler(fehler);
    Druckauftrag auftrag;
    auftrag.bericht = "tabelle";
    auftrag.titel = lstrtabTitelFuer(b.auswahl.recht);
    auftrag.drucken = [&b](Drucker& d) { tabellenbereichdrucken(b, d); };
    auftrag.csv = [&b] { return tabellenbereichcsv(b); };
    return druckausgabe(k, auftrag, aus);
}

} // namespace

int tabelle(Kontext& k, std::ostream& aus) {
    if (k.optionen.wert("von") || k.optionen.wert("bis"))
        return tabellenbereich(k, aus);
    k.optionen.nurErlaubt({"zeitraum", "stufe", "kinder", "beamte", "alter", "kirche", "recht"});
    Lohnsteuertabelle t;
    t.auswahl = auswahlAus(k.optionen);
    tabellefuellen(t);
    if (k.json)
        alsJson(k, t, aus);
    else
        alsText(t, aus);
    return 0;
}

} // namespace lonvir::cli
