// Page 47: the year change runs on the panel, its labels showing what is being copied, and
// at the end what was copied and that the 1998 functions are ready.
#include "panels/seiten.h"
#include "start/texte.h"
#include "transfer/jahreswechsel.h"

namespace lonvir {

namespace {

constexpr int zeilen = 20; // labels 0 to 20 in one column
constexpr int rot = 12;

void beschriften(Tablett& t, int i, const std::string& text) {
    t.zeile[i].text = text;
}

const char* schichtname(int schicht) {
    static const char* const namen[] = {"INFO", "PLAN", "REAL"};
    return schicht >= INFO && schicht <= REAL ? namen[schicht] : "";
}

// The labels follow the copy; between two persons the window may serve its events.
class Seitenfortschritt : public Jahreswechselfortschritt {
public:
    explicit Seitenfortschritt(Tablett& t) : t_(t) {}

    void melden(const Jahreswechselstand& stand) override {
        using A = Jahreswechselstand::Abschnitt;
        if (stand.abschnitt == A::monate && stand.person > 0) {
            beschriften(t_, 7, "L1997.12 zu L1998.1 bis 12 ");
            beschriften(t_, 8, "mit je " + std::to_string(stand.personen) + " Datensätzen");
            beschriften(t_, 5,
                        std::string("Schicht ") + schichtname(stand.schicht) + ": " +
                            std::to_string(stand.person) + " von " +
                            std::to_string(stand.personen) + " Personen");
        } else if (stand.abschnitt == A::jahressaetze && stand.jahressatz > 0) {
            beschriften(t_, 10, "L1997.13 zu L1998.13");
            beschriften(t_, 11, "mit " + std::to_string(stand.jahressaetze) + " Datensätzen");
        } else if (stand.abschnitt == A::tarife) {
            beschriften(t_, 5, "Tariftabellen");
        }
        if (t_.zwischendurch)
            t_.zwischendurch();
    }

private:
    Tablett& t_;
};

void ergebniszeigen(Tablett& t, bool erfolgreich) {
    beschriften(t, 5, "");
    if (!erfolgreich) {
        beschriften(t, 19, "Der Jahreswechsel wurde nicht ausgeführt;");
        beschriften(t, 20, "die Dateien sind unverändert.");
    } else {
        // 6. The names here are not those of the files, and stay so.
        beschriften(t, 13, "Es wurden übertragen:");
        for (int tabelle = 1; tabelle <= 4; ++tabelle)
            beschriften(t, 13 + tabelle,
                        "Von L1997.4tr nach L1998." + std::to_string(tabelle) + "tr " +
                            std::to_string(tarifsaetzeJahreswechsel) + " Sätze");
        // 7.
        beschriften(t, 19, "Unter dem Menüpunkt 98 stehen jetzt");
        beschriften(t, 20, "die Funktionen für 1998 zur Verfügung.");
    }
    t.zeile[19].vordergrund = rot;
    t.zeile[20].vordergrund = rot;
}

} // namespace

void jahresuebertrag(Tablett& t) {
    // 1.
    t.sanduhr = true;
    // 2. One column of empty labels, shown while the copy runs.
    for (int i = 0; i <= zeilen; ++i) {
        Tablettzeile& z = t.zeile[i];
        z.text.clear();
        z.lage = {seitenlage::links, seitenlage::anfang + i * seitenlage::abstand,
                  t.Tablettbreite - 2 * seitenlage::links, seitenlage::abstand};
        z.sichtbar = true;
    }
    t.sichtbar = true;
    // 3.
    for (int n = jahreswechseltext::ersteSeitenzeile; n <= jahreswechseltext::letzteSeitenzeile;
         ++n)
        beschriften(t, n - jahreswechseltext::ersteSeitenzeile, textgetrimmt(t.s, n));
    if (t.zwischendurch)
        t.zwischendurch();
    // 4. and 5. The three layers and the tariff tables, then 8. the working set again.
    Seitenfortschritt fortschritt(t);
    const Jahresuebertrag ergebnis = jahrkopieren(t.s, &fortschritt);
    // 6. and 7.
    ergebniszeigen(t, ergebnis.erfolgreich);
    t.sanduhr = false;
}

} // namespace lonvir
