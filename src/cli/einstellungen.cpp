// einstellungen: the settings record of the year decoded, and one pick on a settings page
// confirmed as the window confirms it.
#include "start/einstellungen.h"
#include "cli/befehle.h"

#include "engine/monatladen.h"
#include "engine/steuerrechtwahl.h"
#include "panels/vorgabeseiten.h"
#include "start/start.h"

#include <ostream>

namespace lonvir::cli {

namespace {

// One stored element: where it is edited, what it means, and its working value.
struct Eintrag {
    int element;
    int seite;
    int combo; // -1: a text box
    const char* bedeutung;
};

constexpr Eintrag eintraege[] = {
    {0, 63, 0, "KV-Beitragssatz"},
    {1, 63, 1, "PV-Beitragssatz"},
    {2, 63, 2, "RV-Beitragssatz"},
    {3, 63, 3, "AV-Beitragssatz"},
    {4, 63, 4, "BMG West KV"},
    {5, 63, 5, "BMG West PV"},
    {6, 63, 6, "BMG West RV"},
    {7, 63, 7, "BMG West AV"},
    {8, 63, 8, "Geringfügigkeitsgrenze West"},
    {9, 63, 9, "BMG Ost KV"},
    {10, 63, 10, "BMG Ost PV"},
    {11, 63, 11, "BMG Ost RV"},
    {12, 63, 12, "BMG Ost AV"},
    {13, 63, 13, "Geringfügigkeitsgrenze Ost"},
    {18, 44, 1, "Multiplikator Beamte"},
    {19, 44, 2, "Multiplikator Beamte ab"},
    {20, 44, 3, "Multiplikator Angestellte"},
    {21, 44, 4, "Multiplikator Angestellte ab"},
    {22, 44, 5, ".1er Tarife"},
    {23, 44, 6, ".2er Tarife"},
    {24, 44, 7, ".3er Tarife"},
    {25, 44, 8, ".4er Tarife"},
    {34, 44, 9, "Steuerrecht 1998 anwenden"},
    {26, 65, 0, "Zusatzversorgung"},
    {27, 65, 1, "ZVK-Versteuerung"},
    {28, 65, 2, "Kirchensteuer ZVK-Pauschsteuer"},
    {30, 64, -1, "Zuwendungsquote Beamte West"},
    {31, 64, -1, "Zuwendungsquote Beamte Ost"},
    {32, 64, -1, "Zuwendungsquote Angestellte West"},
    {33, 64, -1, "Zuwendungsquote Angestellte Ost"},
};

// The switch of the tax law belongs to the record of 1998 only.
bool gilt(const Sitzung& s, const Eintrag& e) {
    return e.element != steuerrecht1998element || !s.ist1997();
}

std::vector<std::string> liste(Sitzung& s, const Eintrag& e) {
    if (e.seite == 63)
        return sozvorgabenliste(e.combo);
    if (e.seite == 65)
        return zvkvorgabenliste(s, e.combo);
    if (e.seite == 44)
        return tarifstrukturliste(s, e.combo);
    return {};
}

// The entry a stored position shows, or "" when it lies outside its list.
std::string listentext(Sitzung& s, const Eintrag& e) {
    if (e.combo < 0)
        return {};
    const std::vector<std::string> l = liste(s, e);
    const std::int32_t p = s.voreinstellung[e.element].gerundetInt32();
    return p >= 0 && p < static_cast<std::int32_t>(l.size()) ? l[static_cast<std::size_t>(p)]
                                                             : std::string();
}

struct Abgeleitet {
    const char* name;
    std::string wert;
};

std::vector<Abgeleitet> abgeleitet(const Sitzung& s) {
    const Einstellungswerte& e = s.einstellungen;
    const auto z = [](std::int64_t v) { return std::to_string(v); };
    return {
        {"pvsatz", e.pvsatz.text()},
        {"rvsatz", e.rvsatz.text()},
        {"avsatz", e.avsatz.text()},
        {"bmgKvWest", z(e.bmgKvWest)},
        {"bmgPvWest", z(e.bmgPvWest)},
        {"bmgRvWest", z(e.bmgRvWest)},
        {"bmgAvWest", z(e.bmgAvWest)},
        {"geringWest", z(e.geringWest)},
        {"bmgKvOst", z(e.bmgKvOst)},
        {"bmgPvOst", z(e.bmgPvOst)},
        {"bmgRvOst", z(e.bmgRvOst)},
        {"bmgAvOst", z(e.bmgAvOst)},
        {"geringOst", z(e.geringOst)},
        {"multiplikatorBeamte", e.multiplikatorBeamte.text()},
        {"abMonatBeamte", z(e.abMonatBeamte)},
        {"multiplikatorAngestellte", e.multiplikatorAngestellte.text()},
        {"abMonatAngestellte", z(e.abMonatAngestellte)},
        {"tarifmonat1", z(e.tarifmonat1)},
        {"ab_tarif2", z(e.ab_tarif2)},
        {"ab_tarif3", z(e.ab_tarif3)},
        {"ab_tarif4", z(e.ab_tarif4)},
        {"zvkmodus", z(e.zvkmodus)},
        {"kirchenpausch", z(e.kirchenpausch)},
        {"zuwendungsquote0", e.zuwendungsquote[0].text()},
        {"zuwendungsquote1", e.zuwendungsquote[1].text()},
        {"zuwendungsquote2", e.zuwendungsquote[2].text()},
        {"zuwendungsquote3", e.zuwendungsquote[3].text()},
        // "Steuerrecht 1998 anwenden", element 34 of the record; it acts in 1998 only.
        {"steuerrecht1998", e.steuerrecht1998 ? "1" : "0"},
    };
}

void alsJson(Kontext& k, std::ostream& aus) {
    Sitzung& s = k.s;
    Json j;
    j.objektAnfang().zahl("jahr", s.ist1997() ? 1997 : s.jahr).zahl("satz", voesatznummer(s));
    feldJson(j, "voreinstellung", s.voreinstellung);
    feldJson(j, "vorgabewert", s.vorgabewert);
    j.feldAnfang("positionen");
    for (const Eintrag& e : eintraege) {
        if (!gilt(s, e))
            continue;
        j.objektAnfang()
            .zahl("element", e.element)
            .zahl("seite", e.seite)
            .text("bedeutung", e.bedeutung)
            .roh("wert", s.voreinstellung[e.element].text());
        if (e.combo >= 0)
            j.zahl("combo", e.combo).text("eintrag", listentext(s, e));
        j.objektEnde();
    }
    j.feldEnde();
    j.objektAnfang("abgeleitet");
    for (const Abgeleitet& a : abgeleitet(s))
        j.roh(a.name, a.wert);
    j.objektEnde();
    k.meldungenAnhaengen(j);
    j.objektEnde();
    aus << j.ergebnis() << "\n";
}

void alsText(Kontext& k, std::ostream& aus) {
    Sitzung& s = k.s;
    aus << "Einstellungen " << vorgabejahr(s) << " (Lonvir97.voe, Satz " << voesatznummer(s)
        << ")\n";
    for (const Eintrag& e : eintraege) {
        if (!gilt(s, e))
            continue;
        aus << "Seite " << e.seite << "  voreinstellung(" << e.element
            << ") = " << s.voreinstellung[e.element].text() << "  " << e.bedeutung;
        if (e.combo >= 0)
            aus << "  \"" << listentext(s, e) << "\"";
        aus << "\n";
    }
    for (int i = 2; i <= 11; ++i)
        aus << "Seite 65  vorgabewert(" << i << ") = " << s.vorgabewert[i] << " DM\n";
    aus << "Abgeleitet:\n";
    for (const Abgeleitet& a : abgeleitet(s))
        aus << "  " << a.name << " = " << a.wert << "\n";
    aus << steuerrechtzeile(s) << "\n";
}

// The person and month the window stands at after the start, unless the options name them.
void hauptbildladen(Kontext& k) {
    Sitzung& s = k.s;
    ortwiederherstellen(s);
    if (k.optionen.wert("person")) {
        const long person = k.optionen.zahl("person", 1, 1000);
        if (person > s.anzahlnamen)
            throw Aufruffehler("Person " + std::to_string(person) +
                               " gibt es nicht; angelegt sind " + std::to_string(s.anzahlnamen) +
                               ".");
        s.aktuelleperson = static_cast<std::int16_t>(person);
    }
    if (k.optionen.wert("monat"))
        s.merkmal[20] = static_cast<std::int16_t>(k.optionen.zahl("monat", 1, 13) - 1);
    monatladen(s, s.aktuelleperson, s.merkmal[20]);
}

// One pick or one typed value on the page, not yet stored. False when the page refused the
// typed value at Enter.
bool seiteausfuehren(Kontext& k, Tablett& t, int seite) {
    const Optionen& o = k.optionen;
    const int feld = static_cast<int>(o.zahl("feld", 0, 17));
    if (o.wert("auswahl")) {
        Tablettliste& c = t.Combo[feld];
        if (!c.sichtbar)
            throw Aufruffehler("Seite " + std::to_string(seite) + " hat keine Liste Combo(" +
                               std::to_string(feld) + ").");
        const long position = o.zahl("auswahl", -32768, 32767);
        if (position < 0 || position >= static_cast<long>(c.liste.size()))
            throw Aufruffehler("Die Liste Combo(" + std::to_string(feld) + ") der Seite " +
                               std::to_string(seite) + " hat " + std::to_string(c.liste.size()) +
                               " Einträge, Positionen 0 bis " + std::to_string(c.liste.size() - 1) +
                               ".");
        t.combo_GotFocus(feld);
        c.position = static_cast<int>(position);
        t.combo_Click(feld);
    } else {
        Tablettfeld& f = t.Text[feld];
        if (!f.sichtbar)
            throw Aufruffehler("Seite " + std::to_string(seite) + " hat kein Feld Text(" +
                               std::to_string(feld) + ").");
        t.text_GotFocus(feld);
        f.text.clear();
        const std::string getippt = o.pflicht("wert");
        for (const unsigned char c : getippt) {
            const int taste = t.text_KeyPress(feld, c);
            if (taste != 0)
                f.text.push_back(static_cast<char>(taste));
        }
        t.text_KeyPress(feld, 13);
        // A refused value empties its box and leaves the focus there.
        if (f.text.empty() && t.fokus == Tablettfokus{Tablettfokusart::text, feld})
            return false;
    }
    return true;
}

} // namespace

int einstellungen(Kontext& k, std::ostream& aus) {
    const Optionen& o = k.optionen;
    o.nurErlaubt({"seite", "feld", "auswahl", "wert", "person", "monat"});
    if (!o.wert("seite")) {
        if (o.wert("feld") || o.wert("auswahl") || o.wert("wert"))
            throw Aufruffehler("--feld, --auswahl und --wert gehören zu --seite.");
    } else {
        const int seite = static_cast<int>(o.zahl("seite", 2, 65));
        if (seite != 2 && seite != 44 && seite != 63 && seite != 64 && seite != 65)
            throw Aufruffehler("Einstellungsseiten sind 63, 64, 65, 44 und 2; Seite 61 markiert "
                               "Personen für das Hauptbild und geht nur im Fenster.");
        if ((o.wert("auswahl") ? 1 : 0) + (o.wert("wert") ? 1 : 0) != 1)
            throw Aufruffehler("--seite braucht --feld und genau eines von --auswahl oder --wert.");
        Form1lage lage;
        lage.breite = 12000;
        lage.panel3d2breite = 4800;
        lage.panel3d2hoehe = 9000;
        Tablett t(k.s, lage);
        k.s.Tablettseite = static_cast<std::int16_t>(seite);
        t.tablettoeffnen();
        if (!seiteausfuehren(k, t, seite)) {
            if (k.json) {
                Json j;
                j.objektAnfang().text("ergebnis", "abgewiesen");
                k.meldungenAnhaengen(j);
                j.objektEnde();
                aus << j.ergebnis() << "\n";
            }
            return 2;
        }
        // Only an entry the page took reaches the store: the screen's month is loaded (and
        // with it stored, as the window's start does), then "Speichern". Page 2 wrote the
        // lock at the pick.
        if (seite != 2) {
            hauptbildladen(k);
            t.Command1_Click();
        }
    }
    if (k.json)
        alsJson(k, aus);
    else
        alsText(k, aus);
    return 0;
}

} // namespace lonvir::cli
