// The calculation driver: a fixed order of steps from the tariff to the payment.
#include "engine/berechnen.h"
#include "start/vorgang.h"

#include "core/laufzeitfehler.h"
#include "core/pfennig.h"
#include "engine/schritte.h"
#include "engine/zeilensummen.h"
#include "start/satzzugriff.h"

namespace lonvir {

namespace {

constexpr int jahresposition = 12;

// Runs step `nummer` of the calculation; a run-time error in it learns the step on its way up.
template <class Schritt> void schritt(int nummer, const char* name, Schritt&& rechnen) {
    try {
        rechnen();
    } catch (Laufzeitfehler& f) {
        f.schrittsetzen("Schritt " + std::to_string(nummer) + " (" + name + ")");
        throw;
    }
}

const char* schichtname(std::int16_t schicht) {
    switch (schicht) {
    case INFO:
        return "INFO";
    case PLAN:
        return "PLAN";
    case REAL:
        return "REAL";
    default:
        return "";
    }
}

bool ab1997Juli(const Sitzung& s) {
    return !s.ist1997() || s.merkmal[20] >= 6;
}

// Step 1: row 9's list by staff class; runs before the dispatch.
void zeile9schalten(Sitzung& s) {
    const int art = s.personalart();
    if ((art >= 5 && art <= 7) || (art >= 13 && art <= 15) || art == 17) {
        s.zeile9aktiv = 1;
    } else if ((art >= 8 && art <= 12) || art == 16) {
        s.zeile9aktiv = 0;
        s.wert[9] = 0;
    }
}

// Step 4: the typed rows back into wert.
void eingabenuebernehmen(Sitzung& s) {
    for (int zeile : {0, 1, 2, 3, 4, 5, 10, 12, 13, 14, 18, 19, 23, 24, 25, 26, 36, 41, 42, 43, 44})
        s.wert[zeile] = s.eingabe[zeile];
    // From July 1997 row 11 of staff class 0 is the performance step, computed, not typed.
    if (!(s.personalart() == 0 && ab1997Juli(s)))
        s.wert[11] = s.eingabe[11];
}

float faktor(std::int32_t dividend, std::int32_t divisor) {
    if (!(divisor > 0 && dividend > 1))
        return 0.0f;
    return static_cast<float>(static_cast<double>(dividend) / static_cast<double>(divisor));
}

// Step 5: the transition allowance base and the two factors.
void faktorenbestimmen(Sitzung& s) {
    if (s.personalart() == 0) {
        if (s.ist1997() && s.merkmal[20] < 6)
            s.wert[10] = 0;
        else
            ueberleitungsbasis(s);
    }
    s.teilzeitfaktor = faktor(s.wert[1], s.wert[0]);
    s.tagefaktor = faktor(s.wert[3], s.wert[2]);
}

// Steps 6 to 13: from the allowance rows to the paid rows and their sums.
void bruttozeilen(Sitzung& s) {
    schritt(6, "Überleitungszulage", [&] { ueberleitungszulage(s); });
    schritt(7, "VWL", [&] { vwlzeile(s); });
    schritt(8, "Urlaubsgeld", [&] { urlaubsgeld(s); });
    schritt(9, "Zuwendung", [&] { zuwendung(s); });
    schritt(10, "Überstunden und Teilzeit", [&] {
        s.wert[16] = pf::gerundet(static_cast<double>(pf::mal(s.wert[4], s.wert[5])) / 100.0);
        teilzeit(s);
    });
    schritt(11, "Summe der Bezüge", [&] { teilzeitsumme(s); });
    schritt(12, "Zahlbeträge", [&] { zahlwertebestimmen(s); });
    schritt(13, "Vier Summen", [&] { viersummen(s); });
}

void versorgung(Sitzung& s) {
    if (s.personalart() <= 4)
        umlage_beamte(s);
    else
        zvk_berechnen(s);
}

// Steps 15 to 19: period, church tax, current and one-off wage, the taxable wage.
void steuerlohnbestimmen(Sitzung& s) {
    s.zeitraum = s.merkmal[20] < 12 ? 2 : 1;
    s.kirchenpflicht = s.merkmal[36] < 2 ? 1 : 0;
    s.laufenderlohn = steuerpflichtigesumme(s, 7, 16);
    s.einmallohn = steuerpflichtigesumme(s, 17, 19);
    if (s.einmallohn < 30001) {
        // Up to 300.00 DM one-off pay is taxed as current wage.
        s.laufenderlohn = pf::plus(s.laufenderlohn, s.einmallohn);
        s.einmallohn = 0;
    }
    if (s.bruttomodus == 1)
        s.laufenderlohn = s.wert[22];
    Currency lohn =
        Currency::ganz(s.laufenderlohn) - Currency::ganz(s.wert[23]) + Currency::ganz(s.wert[24]);
    if (s.personalart() > 4)
        lohn += Currency::ganz(s.zvkwert[15]);
    s.lstwert[7] = lohn.gerundetInt32();
    // Tax is taken on a full month and scaled back with the month's tax.
    if (s.tagefaktor > 0.0f && s.tagefaktor < 1.0f)
        lohn = Currency::gerundet(lohn.alsDouble() / static_cast<double>(s.tagefaktor));
    s.steuerlohn = lohn;
}

// Step 23: taxes the employer bears.
void arbeitgebersteuern(Sitzung& s) {
    if (s.merkmal[32] == 1 || s.merkmal[32] == 3) {
        s.nebenwert[4] = pf::negiert(s.wert[33]);
        s.nebenwert[5] = pf::negiert(s.wert[35]);
        s.nebenwert[6] = pf::negiert(s.wert[36]);
        s.wert[33] = 0;
        s.wert[35] = 0;
        s.wert[36] = 0;
    } else {
        s.nebenwert[4] = 0;
        s.nebenwert[5] = 0;
        s.nebenwert[6] = 0;
    }
}

// Step 26: the payment.
void auszahlung(Sitzung& s) {
    std::int32_t summe = s.wert[22];
    for (int zeile = 33; zeile <= 44; ++zeile)
        summe = pf::plus(summe, s.wert[zeile]);
    s.wert[45] = summe;
}

// Step 28: staff class 18 ("ohne") has no pay at all.
void ohnePersonalart(Sitzung& s) {
    for (int zeile = 4; zeile <= 45; ++zeile)
        s.wert[zeile] = 0;
    s.nebenwert.fuellen(0);
    s.zahlwert.fuellen(Currency::ganz(0));
}

// Step 31: the month's record, written once per run in this one place.
void monatspeichern(Sitzung& s) {
    for (int i = 7; i <= 19; ++i)
        s.nebenwert[i] = s.zahlwert[i].gerundetInt32();
    Personalsatz satz = arbeitssatz(s);
    // Row 9 is stored after the part-time factor.
    satz.wert[9] = s.teilwert[9].gerundetInt32();
    satzschreiben(s, satz);
}

// Steps 14 to 24, from the pension step to the child benefit.
void abzuege(Sitzung& s, int start) {
    if (start <= 14)
        schritt(14, "Zusatzversorgung", [&] { versorgung(s); });
    if (start <= 24) {
        schritt(15, "Steuerpflichtiger Lohn", [&] { steuerlohnbestimmen(s); });
        if (s.merkmal[20] < jahresposition)
            schritt(21, "Lohnsteuer des Monats", [&] { monatssteuer(s); });
        else
            schritt(22, "Jahressumme", [&] { jahressumme(s); });
        schritt(23, "Pauschale Steuern", [&] { arbeitgebersteuern(s); });
        schritt(24, "Kindergeld", [&] { kindergeld(s); });
    }
}

// Steps 28 to 32.
void abschluss(Sitzung& s) {
    if (s.personalart() == 18)
        ohnePersonalart(s);
    if (s.folgelauf == 0) {
        schritt(29, "Versorgung und Sozialversicherung", [&] {
            versorgung(s);
            sozialversicherung(s);
            if (s.anzeige)
                s.anzeige->tablettauffrischen();
        });
    }
    schritt(30, "Steuer- und Versicherungsbrutto", [&] {
        s.wert[27] = pf::plus(s.lstwert[7], s.einmallohn);
        s.wert[29] = s.svwert[14];
        s.wert[28] = s.svwert[17];
    });
    // The year view is a sum of stored months and never overwrites December.
    if (s.startphase == 0 && s.merkmal[20] < jahresposition && s.jahressperre == 0)
        schritt(31, "Monat speichern", [&] { monatspeichern(s); });
}

} // namespace

int startschritt(int code) {
    if ((code >= 12 && code <= 19) || code == 21 || code == 22)
        return 4;
    if (code >= 23 && code <= 36)
        return 14;
    if (code >= 37 && code <= 40)
        return 25;
    if (code == 6 || (code >= 41 && code <= 44))
        return 26;
    return 1;
}

void berechnen(Sitzung& s) {
    try {
        zeile9schalten(s);
        const int start = startschritt(s.aenderungscode);
        if (start <= 2 && s.bruttomodus == 0)
            schritt(2, "Tarifwerte", [&] { tarifwerte(s); });
        if (start <= 5 && !(s.folgelauf == 1 && s.jahreslauf == 1)) {
            schritt(4, "Eingaben übernehmen", [&] { eingabenuebernehmen(s); });
            schritt(5, "Faktoren", [&] { faktorenbestimmen(s); });
        }
        if (start <= 13)
            bruttozeilen(s);
        abzuege(s, start);
        if (start <= 25)
            schritt(25, "Sozialversicherung", [&] { sozialversicherung(s); });
        schritt(26, "Auszahlung", [&] { auszahlung(s); });
        if (s.bruttomodus != 1)
            abschluss(s);
        if (s.anzeige)
            s.anzeige->mauszeigerNormal();
    } catch (Laufzeitfehler& f) {
        f.ortsetzen(s.aktuelleperson, s.merkmal[20], s.jahr, schichtname(s.schicht));
        throw;
    }
}

void nachrechnen(Sitzung& s) {
    if (s.Neuberechnung != -1)
        return;
    // The month and every later month are computed in memory first and then stored together:
    // an interrupted or failed input leaves the year as it was.
    alsVorgang(s, [&s] {
        berechnen(s);
        if (s.anzeige) {
            for (int zeile = 0; zeile <= 45; ++zeile)
                if (zeile != 32)
                    s.anzeige->zeilemalen(zeile);
        }
        s.Neuberechnung = 0;
        if (s.folgesperre == 0 && s.merkmal[20] < 11 && s.bruttomodus == 0) {
            s.aenderungscode = 4;
            folgemonate(s);
        }
    });
}

void folgemonate(Sitzung& s) {
    if (s.jahressperre != 0)
        return;
    s.folgelauf = 1;
    const std::int16_t monat = s.merkmal[20];
    const std::int16_t ueberstunden = pf::int16(s.wert[4]);
    const std::int32_t einmalzahlung = s.wert[19];
    const std::int32_t zuwendungseingabe = s.eingabe[18];
    // Overtime and the one-off rows belong to one month and never spread to the next.
    while (++s.merkmal[20] < 12) {
        s.eingabe[4] = 0;
        s.eingabe[18] = 0;
        s.eingabe[19] = 0;
        if (s.merkmal[20] == 6)
            stufeausbda(s);
        berechnen(s);
    }
    s.merkmal[20] = monat;
    s.eingabe[18] = zuwendungseingabe;
    s.eingabe[4] = ueberstunden;
    s.eingabe[19] = einmalzahlung;
    s.folgelauf = 0;
    stufeausbda(s);
    berechnen(s);
    s.eingabe[4] = 0;
    s.eingabe[19] = 0;
}

void jahressumme(Sitzung& s) {
    s.jahressperre = 1;
    s.eingabe.fuellen(0);
    s.wert.fuellen(0);
    Feld<std::int32_t, 0, 45> summen;
    for (int monat = 1; monat <= 12; ++monat) {
        s.merkmal[20] = static_cast<std::int16_t>(monat - 1);
        satzlesen(s);
        for (int zeile = 0; zeile <= 45; ++zeile)
            summen[zeile] = pf::plus(summen[zeile], s.wert[zeile]);
    }
    // The selection stays on the year position; the other lists are December's.
    s.merkmal[20] = jahresposition;
    s.wert = summen;
    if (s.anzeige)
        for (int zeile = 0; zeile <= 45; ++zeile)
            s.anzeige->zeilemalen(zeile);
}

} // namespace lonvir
