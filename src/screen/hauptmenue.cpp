// The menu bar of Form1 in the designed order, and what its entries do.
#include "screen/hauptmenue.h"

#include "screen/navigation.h"
#include "screen/personalloeschen.h"
#include "start/textmenues.h"
#include "transfer/jahreswechsel.h"

namespace lonvir {

namespace {

Menuepunkt eintrag(std::string name, std::string text, Menueaktion aktion, int zahl) {
    Menuepunkt p;
    p.name = std::move(name);
    p.text = std::move(text);
    p.aktion = aktion;
    p.zahl = zahl;
    return p;
}

Menuepunkt menue(std::string name, std::string text, std::vector<Menuepunkt> punkte) {
    Menuepunkt p = eintrag(std::move(name), std::move(text), Menueaktion::keine, 0);
    p.punkte = std::move(punkte);
    return p;
}

Menuepunkt seite(std::string name, std::string text, int nummer) {
    return eintrag(std::move(name), std::move(text), Menueaktion::seite, nummer);
}

Menuepunkt thema(std::string name, std::string text, int kontext) {
    return eintrag(std::move(name), std::move(text), Menueaktion::hilfe, kontext);
}

Menuepunkt jahresmenue(const Sitzung& s, int jahr, bool jahr1998) {
    const std::string j = std::to_string(jahr);
    Menuepunkt wahl = eintrag("M" + j, "Berechnungen für " + j, Menueaktion::jahr, jahr);
    wahl.markiert = jahrgewaehlt(s, jahr);
    Menuepunkt loeschen = eintrag("MSaetze" + j, j + "er Personaldaten löschen ...",
                                  Menueaktion::personalloeschen, jahr);
    // The tariff structure is that of the open year: the entry of the other year waits.
    Menuepunkt struktur = seite(jahr == 1997 ? "MHochrechnung97" : "Mhochrechnung98",
                                "Tarifstruktur " + j + " festlegen", 44);
    struktur.aktiv = jahr == 1997 ? s.ist1997() : !s.ist1997();
    if (jahr == 1998) {
        wahl.aktiv = jahr1998;
        loeschen.aktiv = jahr1998;
    }
    // The first entry: the take-over of the former version, or the year change.
    std::vector<Menuepunkt> punkte;
    if (jahr == 1997)
        punkte.push_back(seite("MWechel_96_97", "Version96 > Version97 ...", 67));
    else
        punkte.push_back(
            eintrag("MJahreswechsel", "Dez 97  >  Jan 98...", Menueaktion::jahreswechsel, 47));
    punkte.push_back(std::move(wahl));
    // The four tables of the year: pages 54 to 57, and 58, 59, 60, 62 for 1998.
    const std::string jj = jahr == 1997 ? "7" : "8";
    for (int tabelle = 1; tabelle <= 4; ++tabelle) {
        const int nummer = jahr == 1997 ? 53 + tabelle : (tabelle == 4 ? 62 : 57 + tabelle);
        punkte.push_back(seite("MTarife" + jj + std::to_string(tabelle),
                               j + "_" + std::to_string(tabelle) + "er Tarife editieren ...",
                               nummer));
    }
    punkte.push_back(std::move(struktur));
    punkte.push_back(std::move(loeschen));
    return menue(jahr == 1997 ? "M97" : "M98", jahr == 1997 ? "97" : "98", std::move(punkte));
}

Menuepunkt textmenue() {
    std::vector<Menuepunkt> punkte;
    for (const Textmenue& m : textmenues()) {
        // "Namen eingeben" is page 69, which shows the editor on the names.
        if (std::string(m.name) == "MNamen")
            punkte.push_back(seite(m.name, m.text, 69));
        else
            punkte.push_back(eintrag(m.name, m.text, Menueaktion::texte, m.textvon));
    }
    return menue("MTexte", "Txt", std::move(punkte));
}

std::vector<Menuepunkt> tabellenthemen() {
    return {
        thema("MBeamteWest1_97", "Beamte West ab 1/97", 33010),
        thema("MBeamteWest3_97", "Beamte West ab 3/97", 33011),
        thema("MBeamteWest7_97", "Beamte West ab 7/97", 33012),
        thema("MBeamteOst1_97", "Beamte Ost ab 1/97", 71010),
        thema("MBeamteOst3_97", "Beamte Ost ab 3/97", 70011),
        thema("MBeamteOst7_97", "Beamte Ost ab 7/97", 33091),
        thema("MBeamteOst_9_97", "Beamte Ost ab 9/97", 33092),
        thema("MAngestWestBL", "Angestellte West B/L ab 1/97", 33100),
        thema("MAngestWestVKA1_97", "Angestellte West VKA ab 1/97", 33150),
        thema("MAngestKR1_97", "Angestellte West Pflegedienst ab 1/97", 33170),
        thema("MAngestOstBL1_97", "Angestellte Ost B/L ab  1/97", 70100),
        thema("MAngestOstVKA1_97", "Angestellte Ost VKA ab 1/97", 70200),
        thema("MAngestOstPflege1_97", "Angestellte Ost Pflegedienst ab 1/97", 70250),
        thema("MAngestOstBL9_97", "Angestellte Ost B/L ab 9/97", 70109),
        thema("MAngestOstVKA9_97", "Angestellte Ost VKA ab 9/97", 70209),
        thema("MAngestOstKR9_97", "Angestellte Ost Pflegedienst ab 9/97", 70259),
    };
}

std::vector<Menuepunkt> infothemen() {
    return {
        thema("MÜberreicht", "Überreicht durch", 96201),
        thema("MLonvir97", "Über LONVIR97", 20940),
        thema("Mneu", "In diesem Update ist neu:", 96857),
        thema("MUpdate", "Update", 90006),
        thema("MBeihilfe", "Beihilfe", 20900),
        thema("MVorschlaege", "Vorschläge", 96150),
        thema("MDank", "Dankeschön", 96807),
        thema("MGeschenke", "Geschenke", 20930),
    };
}

// The print entries; the statutory statements add theirs behind these.
std::vector<Menuepunkt> druckpunkte() {
    const auto punkt = [](const char* name, const char* text) {
        return eintrag(name, text, Menueaktion::drucken, 0);
    };
    return {
        punkt("MGraphik", "Gehaltsberechnung als Graphik"),
        punkt("Mlinksbrutto", "Gehaltsberechnung nur brutto"),
        punkt("Mlinksnetto", "Gehaltsberechnung brutto/netto"),
        punkt("MlinksAG", "Gehaltsberechnung mit AG-Aufw."),
        punkt("MLst", "LSt, Soz, ZVK drucken"),
        punkt("MBeitrag", "Beitragsnachweis drucken"),
        punkt("MLstNachweis", "Lohnstr.-Nachweis drucken"),
    };
}

const Menuepunkt* suchen(const std::vector<Menuepunkt>& punkte, const std::string& name) {
    for (const Menuepunkt& p : punkte) {
        if (p.name == name)
            return &p;
        if (const Menuepunkt* q = suchen(p.punkte, name))
            return q;
    }
    return nullptr;
}

void meldung(Sitzung& s, const char* titel, const char* text) {
    if (s.dialoge)
        s.dialoge->zeigen({titel, text, Symbol::ausruf, Knoepfe::ok});
}

void seiteoeffnen(Menueziel& z, int nummer) {
    if (nummer == 35 && z.s.merkmal[20] == 12) {
        meldung(z.s, "Teilzeit",
                "Die Darstellung der Teilzeitbeträge ist nur bei einzelnen Monaten möglich.");
        return;
    }
    // The gross slider sets the month's gross: not in the year view, which is a sum.
    if (nummer == 43 && z.s.merkmal[20] == 12) {
        meldung(z.s, "Keine Änderung möglich",
                "Während das JAHRESGEHALT eingestellt ist, können keine Änderungen vorgenommen "
                "werden. Bitte stellen Sie ein Monatsgehalt ein.");
        return;
    }
    z.tablett.seiteoeffnen(nummer);
}

void zeilenhilfezeigen(Menueziel& z) {
    z.s.Tablettseite = 0;
    const auto kontext = zeilenhilfe(z.s.personalart(), z.s.aktuellezeile);
    if (!kontext) {
        meldung(z.s, "HILFE",
                "Für die in Zeile 2 eingestellten Bediensteten sind noch keine Hilfetexte "
                "verfügbar.");
        return;
    }
    if (z.hilfe)
        z.hilfe->zeigen(*kontext);
}

} // namespace

std::vector<Menuepunkt> hauptmenue(const Sitzung& s) {
    // The 1998 entries wait until a set of 1998 has been filled or a year change has run.
    const bool jahr1998 = !s.ist1997() || s.jahr1998freigegeben || s.ordner.laenge("L1998I.1") >= 1;
    return {
        menue("MDatei", "Wie",
              {
                  seite("Mpasswort", "Passwort ...", 2),
                  eintrag("MFarben", "Farbe ...", Menueaktion::form, 14),
                  seite("MVoreinstellungen", "Voreinstellungen ...", 61),
                  seite("MSozVersDaten", "Sozialversicherungsdaten ...", 63),
                  eintrag("M_KV", "KV_Beitragssätze ...", Menueaktion::kv, 0),
                  seite("MZVKDaten", "ZVK ...", 65),
                  seite("MWeihnachten", "Weihnachtsgeld-Quote ...", 64),
                  eintrag("MBeenden", "Beenden", Menueaktion::beenden, 0),
              }),
        jahresmenue(s, 1997, jahr1998),
        jahresmenue(s, 1998, jahr1998),
        textmenue(),
        seite("MTeilzeit", "Tz", 35),
        seite("MLohnsteuer", "LSt", 6),
        seite("MSozialversicherung", "Soz", 29),
        seite("MZusatzversicherung", "ZVK", 8),
        eintrag("MLstrTab", "LTab", Menueaktion::form, 0),
        menue("MTabelle", "GTab", tabellenthemen()),
        seite("MNetto", "Netto", 43),
        menue("MDrucken", "Druck", druckpunkte()),
        eintrag("MJahr", "Jahr", Menueaktion::form, 3),
        seite("MAmt", "Amt", 4),
        seite("MVKE", "VKE", 66),
        menue("MInfo", "Info", infothemen()),
        [] {
            Menuepunkt p = menue(
                "MHilfe", "?",
                {thema("MBedienanleitung", "Bedienanleitung", 20000), thema("M§", "§", 1000)});
            p.aktion = Menueaktion::zeilenhilfe;
            return p;
        }(),
    };
}

std::optional<Menuepunkt> menuepunkt(const Sitzung& s, const std::string& name) {
    const std::vector<Menuepunkt> leiste = hauptmenue(s);
    if (const Menuepunkt* p = suchen(leiste, name))
        return *p;
    return std::nullopt;
}

std::optional<int> zeilenhilfe(int personalart, int zeile) {
    switch (personalart) {
    case 0:
        return 11000 + zeile;
    case 2:
        return 12500 + zeile;
    case 3:
        return 45000 + zeile;
    case 5:
        return 96200 + zeile;
    default:
        return std::nullopt;
    }
}

void menueklick(Menueziel& z, const std::string& name) {
    const std::optional<Menuepunkt> p = menuepunkt(z.s, name);
    if (!p || !p->aktiv)
        return;
    switch (p->aktion) {
    case Menueaktion::seite:
        seiteoeffnen(z, p->zahl);
        break;
    case Menueaktion::hilfe:
        if (z.hilfe)
            z.hilfe->zeigen(p->zahl);
        break;
    case Menueaktion::jahr:
        jahrklick(z.s, z.form, static_cast<std::int16_t>(p->zahl));
        break;
    case Menueaktion::personalloeschen:
        personalsaetzeklick(z.s, z.form, p->zahl);
        break;
    case Menueaktion::beenden:
        z.beendet = true;
        break;
    case Menueaktion::zeilenhilfe:
        zeilenhilfezeigen(z);
        break;
    case Menueaktion::jahreswechsel:
        if (jahreswechselfragen(z.s))
            seiteoeffnen(z, p->zahl);
        break;
    case Menueaktion::kv:
        z.tablett.formwuenschen("KV");
        break;
    case Menueaktion::texte:
        for (const Textmenue& m : textmenues())
            if (p->name == m.name) {
                z.tablett.textbereichsetzen(m.textvon, m.textbis);
            }
        z.tablett.formwuenschen("Textedit");
        break;
    case Menueaktion::form:
        // MJahr: page 39 marks the annual overview, shown with the current person.
        if (p->name == "MJahr")
            z.s.Tablettseite = 39;
        // MLstrTab: the wage-tax table viewer, a form of its own name.
        z.formwunsch = p->name == "MLstrTab" ? "LStrTab" : "Form" + std::to_string(p->zahl);
        break;
    case Menueaktion::drucken:
        z.druckwunsch = p->name;
        break;
    case Menueaktion::keine:
        break;
    }
}

} // namespace lonvir
