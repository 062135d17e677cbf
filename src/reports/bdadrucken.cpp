// The service-age sheet, portrait: letterhead and title, the earliest start and the two
// periods that put it back, the resulting start, the step table, the hand-calculation form.
#include "reports/bdadrucken.h"

#include "core/cp1252.h"
#include "core/druckformat.h"
#include "engine/tarifdatei.h"
#include "reports/druckzeilen.h"

#include <string>

namespace lonvir {

namespace {

constexpr int text = 10;
constexpr int rechts = 65;
constexpr int datumsspalte = 52;
// The body runs to column 77, at 12 points a little wider than the paper between its margins:
// the printer draws such a page smaller as a whole, so the right-hand column stays on it.
constexpr float grundschrift = 12.0F;

std::string monate(int n) {
    return std::to_string(n) + "  Monate";
}

void kopf(Sitzung& s, const Dienstalterblatt& b, Drucker& d) {
    d.Orientation(hochformat);
    d.FontName("courier new");
    d.FontSize(grundschrift);
    d.Print({Tab{10}, getrimmt(cp1252NachUtf8(s.dienststelle1)), Tab{56},
             getrimmt(cp1252NachUtf8(s.dienststellenort))});
    d.Print({Tab{10}, getrimmt(cp1252NachUtf8(s.dienststelle2))});
    d.FontSize(14);
    d.FontBold(true);
    d.Print({});
    d.Print({});
    d.Print({Tab{8}, std::string("Berechnung des Besoldungsdienstalters (BDA)")});
    d.Print({Tab{8}, "für " + getrimmt(b.name)});
    d.Print({Tab{8}, getrimmt(b.gruppentext)});
    d.FontSize(grundschrift);
    d.FontBold(false);
    strichzeile(d);
    d.Print({});
}

// 3. The first reduction: the period between the 31st and the 35th (40th) birthday.
void ersterabschnitt(const Dienstalterblatt& b, Drucker& d) {
    const bool a = b.gruppe == 0 || b.gruppe == 12;
    const bool c = b.gruppe == 2 || b.gruppe == 14;
    // For Bes.Ordn. C both branches print the lines of "C 1": the same text on purpose.
    const bool entfaellt = (a && b.besoldungsgruppe >= 16) || c;
    const std::string amt = c ? "C 1" : "A 13";
    const std::string rechtsspalte[] = {"Entfällt bei ", "BesGr. mit", "Eingangsamt", amt};
    const std::string zweite = c ? "   u.d. Vollend. des 40. Lebensjahres am "
                                 : "   u.d. Vollend. des 35. Lebensjahres am ";
    const auto rechtsdazu = [&](int i) {
        if (entfaellt)
            d.Print({Tab{rechts}, rechtsspalte[i]});
        else if (i == 2)
            d.Print({Tab{rechts}, monate(b.viertel)});
        else
            d.Print({});
    };
    d.Print({Tab{text}, std::string("1. um die Hälfte der Zeiten zwischen der")},
            Zeilenende::bleiben);
    rechtsdazu(0);
    d.Print({Tab{text}, std::string("   Vollendung des    31. Lebensjahres am "), Tab{datumsspalte},
             b.vollendung31},
            Zeilenende::bleiben);
    rechtsdazu(1);
    d.Print({Tab{text}, zweite, Tab{datumsspalte}, b.vollendung35}, Zeilenende::bleiben);
    rechtsdazu(2);
    d.Print({Tab{text}, std::string("   (Einzeldarstellung siehe unten)")}, Zeilenende::bleiben);
    rechtsdazu(3);
}

void stufentabelle(Sitzung& s, const Dienstalterblatt& b, Drucker& d) {
    d.Print({Tab{text}, std::string("Dienstaltersstufen:"), Tab{50},
             std::string(b.gruppe > 11 ? "Grundgehalt (Ost)" : "Grundgehalt")});
    // The tariff line of the person's group; the working array is left as it was.
    const Feld<std::int32_t, 0, 26> gemerkt = s.tarifwert;
    tarifsatzlesen(s, tarifsatznummer(s), tarifdatei(s));
    const Feld<std::int32_t, 0, 26> linie = s.tarifwert;
    s.tarifwert = gemerkt;
    const int letzte = b.endstufe > 0 ? b.endstufe : 15;
    Datum ab = b.beginn;
    for (int n = 1; n <= letzte; ++n) {
        std::string stufe = "Stufe " + std::to_string(n);
        if (n == letzte)
            stufe += " (Endstufe)";
        d.Print({Tab{text}, stufe, Tab{30}, "ab " + datumtext(ab), Tab{50},
                 formatpfennig(linie[n - 1], "###,###.00") + " DM"});
        ab = jahredazu(ab, 2);
    }
}

void handrechnung(Drucker& d) {
    const std::string feld = "____ Monate";
    d.Print({Tab{text}, std::string("Der o.g. Zeitraum"), Tab{50}, std::string("nach Nr. 1"),
             Tab{rechts}, std::string("nach Nr. 2")});
    d.Print(
        {Tab{text}, std::string("umfaßt"), Tab{50}, std::string(" 48  Monate"), Tab{rechts}, feld});
    d.Print({});
    d.Print({Tab{text}, std::string("In dieser Zeit standen dem Bediensteten")});
    d.Print({Tab{text}, std::string("die folgenden anrechenbaren Bezüge zu:")});
    for (int i = 0; i < 3; ++i) {
        d.Print({Tab{text}, std::string(39, '_'), Tab{50}, feld, Tab{rechts}, feld});
        d.Print({});
    }
    d.Print({Tab{50}, std::string("------------------------------")});
    d.Print(
        {Tab{text}, std::string("Restliche Monate ohne Bezüge"), Tab{50}, feld, Tab{rechts}, feld});
    d.Print({Tab{text}, std::string("davon die Hälfte  (Übertrag nach Nr. 1)"), Tab{50}, feld});
    d.Print({Tab{text}, std::string("davon ein Viertel (Übertrag nach Nr. 2)"), Tab{rechts}, feld});
}

} // namespace

void bdadrucken(Sitzung& s, const Dienstalterblatt& b, Drucker& d) {
    kopf(s, b, d);
    // 1.
    d.Print({Tab{text}, std::string("Geburtstag"), Tab{rechts}, b.geburtstag});
    d.Print({Tab{text}, std::string("Frühester Beginn des Besoldungsdienstalters"), Tab{rechts},
             b.fruehester});
    d.Print({});
    // 2.
    d.Print({Tab{text}, std::string("Der Beginn ist um Zeiten hinauszuschieben, in denen")});
    d.Print({Tab{text}, std::string("kein Anpsruch auf Besoldung bestand und zwar")});
    d.Print({});
    // 3.
    ersterabschnitt(b, d);
    // 4.
    d.Print({});
    d.Print({Tab{text}, std::string("2. um ein Viertel der Zeiten danach, nämlich ab")});
    d.Print({Tab{text}, b.ab35 + "   " + " bis zur (erneuten) Ernennung", Tab{rechts},
             monate(b.haelfte)});
    d.Print({Tab{text}, std::string("   (Einzeldarstellung siehe unten)")});
    d.Print({Tab{rechts}, std::string("-------------")});
    // 5.
    d.Print({Tab{text}, std::string("Das Besoldungsdienstalter beginnt also am"), Tab{rechts}},
            Zeilenende::bleiben);
    d.FontBold(true);
    d.Print({b.bdabeginn});
    d.FontBold(false);
    d.Print({Tab{rechts}, std::string("=============")});
    strichzeile(d);
    d.Print({});
    // 6.
    if (b.berechnet)
        stufentabelle(s, b, d);
    // 7.
    strichzeile(d);
    d.Print({});
    handrechnung(d);
    strichzeile(d);
    d.EndDoc();
}

} // namespace lonvir
