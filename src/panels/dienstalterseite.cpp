// Page 42: the service-age worksheet. From the birth date and the months without pay it works
// out when a civil servant's service age begins, the step on 1.1.1996 and the next rise; for
// BAT employees the age step. Everything happens as keys are pressed in the five fields.
#include "panels/dienstalterseite.h"

#include "core/pfennig.h"
#include "core/zeichen.h"
#include "engine/schritte.h"
#include "panels/seiten.h"
#include "panels/seitenteile.h"
#include "start/texte.h"

namespace lonvir {

namespace {

constexpr int weiss = 15;
constexpr int gelb = 14;
constexpr int grau = 7;
constexpr int rot = 12;
constexpr int abstand = 250;

bool beamtenrechnung(int g) {
    return g == 0 || g == 2 || g == 12 || g == 14;
}
bool batrechnung(int g) {
    return g == 5 || g == 17;
}

void meldung(Tablett& t, const std::string& titel, const std::string& text,
             Symbol symbol = Symbol::ausruf) {
    if (t.s.dialoge)
        t.s.dialoge->zeigen({titel, text, symbol, Knoepfe::ok});
}

void feld(Tablett& t, int i, Lage lage, int hintergrund) {
    Tablettfeld& f = t.Text[i];
    f.lage = lage;
    f.sichtbar = true;
    f.vordergrund = rot;
    f.hintergrund = hintergrund;
    f.schrift = "arial";
}

void knoepfe(Tablett& t, int oben, bool rechnend) {
    const int breite = (t.Tablettbreite - 400) / 3;
    Tablettknopf* k[] = {&t.Command1, &t.Command2, &t.Command3};
    const char* texte[] = {"Übertrag", "Drucken", "Hilfe"};
    for (int i = 0; i < 3; ++i) {
        k[i]->text = texte[i];
        k[i]->lage = {100 + i * (breite + 100), oben, breite, 400};
        k[i]->sichtbar = rechnend || i == 2;
    }
}

// The heading lines, bold, at a pitch of 300.
void kopf(Tablett& t, std::initializer_list<std::string> zeilen) {
    int i = 0;
    for (const std::string& text : zeilen) {
        zeilezeigen(t, i, text, {100, 100 + i * 300, t.Tablettbreite - 200, 300}, true);
        ++i;
    }
}

// The rows that only say why there is nothing to work out.
void hinweisseite(Tablett& t, std::initializer_list<std::string> zeilen) {
    kopf(t, zeilen);
    knoepfe(t, 100 + static_cast<int>(zeilen.size()) * 300 + 300, false);
}

void monatszaehler(Tablett& t, int oben) {
    const int b = t.Tablettbreite;
    zeilezeigen(t, 21, "Zwischen", {100, oben, 700, abstand});
    feld(t, 3, {800, oben, 1000, abstand}, weiss);
    zeilezeigen(t, 22, "und", {1850, oben, 300, abstand});
    feld(t, 4, {2150, oben, 1000, abstand}, weiss);
    zeilezeigen(t, 23, "liegen", {100, oben + abstand + 50, 700, abstand});
    kastenzeigen(t, 11, {800, oben + abstand + 50, 600, abstand});
    zeilezeigen(t, 24, "ganze Monate.", {1450, oben + abstand + 50, b - 1550, abstand});
}

void beamtenseite(Tablett& t, int g) {
    const int b = t.Tablettbreite;
    const int rechts = b - 1250; // the cells and fields at the right edge
    if (g == 2 || g == 14)
        kopf(t, {"Berechnung der Dienstaltersstufe", "nach § 36 BBesG für Beamte der",
                 "der Bes.Ordnung C:"});
    else
        kopf(t, {"Berechnung der Dienstaltersstufe",
                 "nach § 28 BBesG für " + getrimmt(t.zeilenname(5))});
    int y = 1050;
    zeilezeigen(t, 3, "Geburtstag", {100, y, rechts - 150, abstand});
    feld(t, 0, {rechts, y, 1100, abstand}, weiss);
    t.Text[0].text = "TT.MM.JJJJ";
    y += abstand + 50;
    zeilezeigen(t, 4, "Frühester Beginn des BDA", {100, y, rechts - 150, abstand});
    kastenzeigen(t, 1, {rechts, y, 1100, abstand});
    y += abstand + 100;
    zeilezeigen(t, 5, "Er wird hinausgeschoben um:", {100, y, b - 200, abstand}, true);
    // The two periods: months typed, a quarter and a half of them counted.
    const auto zeitraum = [&](int z, int von, int bis, int eingabe) {
        y += abstand;
        zeilezeigen(t, z, "Monate ohne anrechenbare", {100, y, b - 200, abstand - 50});
        y += abstand - 50;
        zeilezeigen(t, z + 1, "Bezüge (aufgerundet) in der Zeit", {100, y, b - 200, abstand - 50});
        y += abstand - 50;
        zeilezeigen(t, z + 2, "vom", {100, y, 300, abstand});
        kastenzeigen(t, von, {400, y, 1000, abstand});
        zeilezeigen(t, z + 3, "bis", {1450, y, 250, abstand});
        kastenzeigen(t, bis, {1700, y, 1000, abstand});
        feld(t, eingabe, {b - 550, y, 450, abstand}, grau);
    };
    zeitraum(6, 2, 3, 1);
    y += abstand + 50;
    zeilezeigen(t, 10, "davon ein Viertel =", {100, y, 1600, abstand});
    kastenzeigen(t, 4, {1700, y, 600, abstand});
    zeilezeigen(t, 11, "Mon.", {2350, y, 500, abstand});
    y += 50;
    zeitraum(12, 5, 6, 2);
    y += abstand + 50;
    zeilezeigen(t, 16, "davon die Hälfte =", {100, y, 1600, abstand});
    kastenzeigen(t, 7, {1700, y, 600, abstand});
    zeilezeigen(t, 17, "Mon.", {2350, y, 500, abstand});
    y += abstand + 100;
    zeilezeigen(t, 18, "Beginn des BDA", {100, y, rechts - 150, abstand}, true);
    kastenzeigen(t, 8, {rechts, y, 1100, abstand});
    y += abstand + 50;
    zeilezeigen(t, 19, "Dienstaltersstufe am 1.1.1996", {100, y, rechts - 150, abstand}, true);
    kastenzeigen(t, 9, {rechts, y, 1100, abstand});
    y += abstand + 50;
    zeilezeigen(t, 20, "Nächstes Aufsteigen am", {100, y, rechts - 150, abstand});
    kastenzeigen(t, 10, {rechts, y, 1100, abstand});
    y += abstand + 200;
    monatszaehler(t, y);
    knoepfe(t, y + 2 * abstand + 250, true);
}

void batseite(Tablett& t) {
    const int b = t.Tablettbreite;
    const int rechts = b - 1250;
    kopf(t, {"Berechnung der Lebensaltersstufe", "nach § 27 BAT Abschn. A (staatlich)"});
    zeilezeigen(t, 3, "Geburtstag", {100, 1050, rechts - 150, abstand});
    feld(t, 0, {rechts, 1050, 1100, abstand}, weiss);
    t.Text[0].text = "TT.MM.JJJJ";
    const int y = 3800;
    zeilezeigen(t, 12, "Lebensalterstufe am 1.1.96", {100, y, rechts - 150, abstand}, true);
    kastenzeigen(t, 0, {rechts - 300, y, 1400, abstand});
    zeilezeigen(t, 13, "Nächstes Aufrücken am", {100, y + 300, rechts - 150, abstand});
    kastenzeigen(t, 10, {rechts, y + 300, 1100, abstand});
    monatszaehler(t, y + 800);
    knoepfe(t, y + 800 + 2 * abstand + 250, true);
}

// --- the keys of a date field

// The table of the date fields by the length the field has: a refusal, or the date accepted.
enum class Datumstaste { weiter, abgewiesen, angenommen, angenommenVerworfen };

Datumstaste datumstaste(Tablett& t, int index, int taste, std::size_t laenge) {
    const auto ablehnen = [&](const std::string& titel, const std::string& text) {
        meldung(t, titel, text);
        return Datumstaste::abgewiesen;
    };
    const std::string tag = "Nummer des Tages im Geburtsmonat";
    if ((taste >= 0 && taste <= 12) || (taste >= 14 && taste <= 45) || taste == 47 ||
        (taste >= 58 && taste <= 255))
        return ablehnen("Format", "Das Datum ist in folgendem Format einzugeben: TT.MM.JJJJ");
    if (index == 3 && (laenge == 9 || laenge == 10))
        return laenge == 9 ? Datumstaste::angenommen : Datumstaste::angenommenVerworfen;
    if (laenge == 10)
        return Datumstaste::angenommenVerworfen;
    if (laenge == 0 && taste > '3')
        return ablehnen(tag, index == 4 ? "An dieser Stelle ist nur 0, 1, 2 oder 3 erlaubt"
                                        : "An dieser Stelle ist nur 0, 1,2 oder 3 erlaubt");
    if (laenge == 1 && taste == '.')
        return ablehnen("Format", "Das Datum ist in folgendem Format einzugeben: TT.MM.JJ");
    if ((laenge == 2 || laenge == 5) && taste != '.')
        return ablehnen("", "Hier ist ein Punkt erforderlich");
    if (laenge == 3 && taste > '1')
        return ablehnen(tag, "An dieser Stelle ist nur 0 oder 1 erlaubt");
    if (laenge == 6 && index == 3 && taste > '2')
        return ablehnen(tag, "An dieser Stelle ist nur 0, 1 oder 2 erlaubt");
    return Datumstaste::weiter;
}

// "15.03.1960" as the working table keeps it: "15/03/1960".
std::string mitschraegstrich(std::string text) {
    if (text.size() > 2)
        text[2] = '/';
    if (text.size() > 5)
        text[5] = '/';
    return text;
}

// The step from the start of the step age on the BAT path (steps 5 of the age step).
void batstufe(Tablett& t) {
    Dienstalterwerte& w = t.dienstalter;
    const int m = monatsabstand(w.stufenbeginn, Datum{1, 1, 1996});
    w.stufe = stufe1996(m);
    if (w.endstufe > 0 && w.stufe > w.endstufe)
        w.stufe = w.endstufe;
    // The entry at position step - 1 of the step list of the main screen.
    const Stufenliste& liste = t.s.stufen;
    const int text = w.stufe - 1 - (liste.festesGrundgehalt ? 1 : 0);
    t.kasten[0].text = liste.mitTexten && text >= 0 && liste.anfang + text <= liste.ende
                           ? textgetrimmt(t.s, liste.anfang + text)
                           : "Stufe " + std::to_string(w.stufe);
    t.kasten[10].text =
        w.stufe == w.endstufe ? "Endstufe" : datumtext(jahredazu(w.stufenbeginn, w.stufe * 2));
    w.bdabeginn = w.stufenbeginn;
    w.berechnet = true;
    t.fokus = {Tablettfokusart::knopf, 1};
}

void warnzeilen(Tablett& t, int bis) {
    const char* texte[] = {
        "Es ist eine Kontrollrechnung vorzunehmen", "wenn es Zeiten im öffentlichen Dienst davor",
        "gibt, die nicht unmittelbar vorangehen,", "oder wenn der Angestellte in einer Verg.Gr.",
        "unterhalb BAT IIb eingestellt wurde."};
    for (int i = 7; i <= 11; ++i) {
        Tablettzeile& z = t.zeile[i];
        z.text = i <= bis ? texte[i - 7] : "";
        z.lage = {100, (i - 7) * 230 + 2500, 3200, 230};
        z.fett = false;
        z.hintergrund = grau;
        z.sichtbar = i <= bis;
    }
}

void zeilenleeren(Tablett& t, int von, int bis) {
    for (int i = von; i <= bis; ++i) {
        t.zeile[i].text.clear();
        t.zeile[i].sichtbar = false;
    }
}

void batgeburtstag(Tablett& t, const Datum& geburt) {
    Dienstalterwerte& w = t.dienstalter;
    const int vg = dienstalterbesoldungsgruppe(t.s);
    // 1. The final step by pay group.
    w.endstufe = batendstufe(vg, w.endstufe);
    // 2. Start and limit of the step age.
    const bool hoch = vg > 4;
    Datum erster = geburt;
    erster.tag = 1;
    w.anfangsalter = hoch ? 21 : 23;
    w.grenzalter = hoch ? 31 : 35;
    w.stufenbeginn = jahredazu(erster, w.anfangsalter);
    w.grenzmonat = jahredazu(erster, w.grenzalter);
    // 3.
    w.grenzmonatsende = tagedazu(monatedazu(w.grenzmonat, 1), -1);
    // 4. Still running at the end of 1995: the date of entry is asked for.
    if (w.grenzalter > jahresabstand(geburt, Datum{31, 12, 1995})) {
        for (int i : {5, 6}) {
            Tablettzeile& z = t.zeile[i];
            z.text = i == 5 ? "Ununterbrochen im öffentl." : "Dienst seit ..............";
            z.fett = true;
            z.hintergrund = grau;
            z.lage = {100, i == 5 ? 1800 : 2100, 2800, 250};
            z.sichtbar = true;
        }
        feld(t, 1, {3100, 2000, 1200, abstand}, weiss);
        t.Text[1].text.clear();
        t.fokus = {Tablettfokusart::text, 1};
        return;
    }
    // 5. Otherwise the step at once.
    zeilenleeren(t, 5, 6);
    t.Text[1].sichtbar = false;
    batstufe(t);
}

void beamtengeburtstag(Tablett& t, const Datum& geburt, int g) {
    Dienstalterwerte& w = t.dienstalter;
    const int bg = dienstalterbesoldungsgruppe(t.s);
    // 1. The first of the birth month of the 21st birthday.
    w.fruehesterbeginn = jahredazu(Datum{1, geburt.monat, geburt.jahr}, 21);
    t.kasten[1].text = datumtext(w.fruehesterbeginn);
    // 2. and 3. The periods between the 31st and the 35th birthday (C above C 2: the 40th).
    const int grenze = (g == 2 || g == 14) && bg > 1 ? 40 : 35;
    t.kasten[2].text = datumtext(jahredazu(geburt, 31));
    t.kasten[3].text = datumtext(tagedazu(jahredazu(geburt, grenze), -1));
    t.kasten[5].text = datumtext(jahredazu(geburt, grenze));
    // 4.
    t.kasten[6].text = "Ernennung";
    t.Text[0].hintergrund = gelb;
    // 5. From the entry office A 13 on the first period does not count.
    const auto ohneersten = [&] {
        t.Text[1].text = "0";
        t.kasten[4].text = "+ 0";
        w.viertel = 0;
        t.Text[1].hintergrund = gelb;
        t.Text[2].hintergrund = weiss;
        t.fokus = {Tablettfokusart::text, 2};
    };
    if (g == 0 || g == 12) {
        if (bg < 16) {
            t.Text[1].hintergrund = weiss;
            t.fokus = {Tablettfokusart::text, 1};
        } else {
            ohneersten();
        }
    }
    // 6. Tested on the staff class itself.
    if (t.s.personalart() == 2 || t.s.personalart() == 14)
        ohneersten();
}

void geburtstagannehmen(Tablett& t) {
    Dienstalterwerte& w = t.dienstalter;
    const std::string text = mitschraegstrich(t.Text[0].text);
    const Datum geburt = datumlesen(text);
    (void)jahredazu(geburt, 1); // the test that the date can be read
    w.geburtstag = text;
    w.geburt = geburt;
    w.berechnet = false;
    const int g = dienstaltergruppe(t.s);
    if (batrechnung(g))
        batgeburtstag(t, geburt);
    else if (beamtenrechnung(g) || g == 3 || g == 15)
        beamtengeburtstag(t, geburt, g);
}

// Enter in Text(2): the start of the service age and the step on 1.1.1996.
void bdaberechnen(Tablett& t) {
    Dienstalterwerte& w = t.dienstalter;
    const int g = dienstaltergruppe(t.s);
    t.Text[2].hintergrund = gelb;
    w.haelfte = std::stoi("0" + t.Text[2].text) / 2;
    t.kasten[7].text = "+ " + std::to_string(w.haelfte);
    w.monate = w.haelfte + w.viertel;
    w.bdabeginn = monatedazu(w.fruehesterbeginn, w.monate);
    t.kasten[8].text = datumtext(w.bdabeginn);
    // 1. and 2.
    const int m = monatsabstand(w.bdabeginn, Datum{1, 1, 1996});
    w.stufe = stufe1996(m);
    // 3.
    t.kasten[10].text = datumtext(jahredazu(w.bdabeginn, w.stufe * 2));
    // 4. The cap of the group.
    const int ende = endstufe(g, dienstalterbesoldungsgruppe(t.s));
    w.endstufe = ende;
    if (ende > 0 && w.stufe + 1 > ende) {
        w.stufe = ende;
        t.kasten[10].text = "Endstufe";
    }
    t.kasten[9].text = std::to_string(w.stufe);
    w.berechnet = true;
}

int monatstaste(Tablett& t, int index, int taste) {
    Dienstalterwerte& w = t.dienstalter;
    if (taste != 13 && (taste < '0' || taste > '9')) {
        meldung(t, "Format", "Hier sind nur die Ziffern 0 bis 9 zulässig.");
        return 0;
    }
    if (taste != 13) {
        if (t.Text[index].text.size() >= 4) {
            meldung(t, "Monate ohne Bezüge", "Es sind nur bis zu 4 Stellen zugelassen.");
            return 0;
        }
        return taste;
    }
    // Without an accepted birth date there is nothing to count from.
    if (t.kasten[1].text.empty())
        return 0;
    if (index == 1) {
        if (dienstalterbesoldungsgruppe(t.s) > 16)
            t.Text[1].text = "0";
        t.Text[1].hintergrund = gelb;
        t.Text[2].hintergrund = weiss;
        w.viertel = std::stoi("0" + t.Text[1].text) / 4;
        t.kasten[4].text = "+ " + std::to_string(w.viertel);
        t.fokus = {Tablettfokusart::text, 2};
        return 0;
    }
    const bool schonberechnet = !t.kasten[9].text.empty();
    bdaberechnen(t);
    if (schonberechnet)
        t.fokus = {Tablettfokusart::knopf, 1};
    return 0;
}

// A date accepted in Text(1) of the BAT path: "Dienst seit".
void dienstseitannehmen(Tablett& t) {
    Dienstalterwerte& w = t.dienstalter;
    // 1.
    w.dienstseit = datumlesen(mitschraegstrich(t.Text[1].text));
    const long d = tagesabstand(w.grenzmonatsende, w.dienstseit);
    if (d > 0) {
        // 2. Entered after the month of the age limit.
        zeilenleeren(t, 7, 11);
        batstufe(t);
        return;
    }
    // 3. The age on entry; half the years to the limit, as they stand, move the start.
    const int alter = jahresabstand(w.geburt, w.dienstseit);
    const double jahre = (w.grenzalter - alter) / 2.0;
    w.stufenbeginn = jahredazu(w.stufenbeginn, pf::gerundet(jahre));
    batstufe(t);
    warnzeilen(t, dienstalterbesoldungsgruppe(t.s) < 5 ? 11 : 9);
}

void datumannehmen(Tablett& t, int index) {
    switch (index) {
    case 0:
        geburtstagannehmen(t);
        break;
    case 1:
        dienstseitannehmen(t);
        break;
    case 3:
        (void)datumlesen(t.Text[3].text);
        t.fokus = {Tablettfokusart::text, 4};
        break;
    case 4:
        t.kasten[11].text =
            std::to_string(monatsabstand(datumlesen(t.Text[3].text), datumlesen(t.Text[4].text)));
        break;
    default:
        break;
    }
}

int datumsfeldtaste(Tablett& t, int index, int taste) {
    Tablettfeld& f = t.Text[index];
    switch (datumstaste(t, index, taste, f.text.size())) {
    case Datumstaste::abgewiesen:
        return 0;
    case Datumstaste::weiter:
        return taste;
    case Datumstaste::angenommen:
        // Text(3) takes the date at nine characters, with the key that makes the tenth.
        if (taste != 13)
            f.text += static_cast<char>(taste);
        datumannehmen(t, index);
        return 0;
    case Datumstaste::angenommenVerworfen:
        datumannehmen(t, index);
        return 0;
    }
    return 0;
}

// The cell that shows what a field works out; the error trap clears it.
int ergebniskasten(int index, bool bat) {
    switch (index) {
    case 0:
        return bat ? 0 : 1;
    case 1:
        return bat ? 0 : 4;
    case 2:
        return 8;
    default:
        return 11;
    }
}

} // namespace

void dienstalterseite(Tablett& t) {
    t.dienstalter = Dienstalterwerte{};
    const int g = dienstaltergruppe(t.s);
    const int bg = dienstalterbesoldungsgruppe(t.s);
    if (g == 1 || g == 13) {
        hinweisseite(t, {"Eine Berechnung der Dienstalters-", "stufen ist für Beamte der Bes.",
                         "Ordn. B nicht erforderlich."});
    } else if ((g == 3 || g == 15) && bg >= 2) {
        hinweisseite(t, {"Eine Berechnung der Dienstalters-", "stufe ist bei Richtern ab R 3 nicht",
                         "erforderlich, da feste Gehälter."});
    } else if (g == 4 || g == 16) {
        hinweisseite(t, {"ist für Beamtenanwärter nicht", "erforderlich."});
    } else if (g >= 24) {
        hinweisseite(t, {"ist nicht erforderlich."});
    } else if (beamtenrechnung(g)) {
        beamtenseite(t, g);
    } else if (batrechnung(g)) {
        batseite(t);
    } else {
        hinweisseite(t, {"Die Berechnung der Dienstalters-", "stufen für diesen Bereich ist in ",
                         "Arbeit und wird voraussichtlich", "im nächsten Update enthalten sein."});
    }
    if (t.Text[0].sichtbar)
        t.fokus = {Tablettfokusart::text, 0};
}

int dienstaltertaste(Tablett& t, int index, int taste) {
    const bool bat = batrechnung(dienstaltergruppe(t.s));
    // The first key into the prefilled birth date starts the page afresh, as the focus on the
    // field does; the key then stands alone in the field.
    if (index == 0 && t.Text[0].text == "TT.MM.JJJJ") {
        dienstalterfokus(t, 0);
        const int weiter = dienstaltertaste(t, 0, taste);
        if (weiter != 0 && weiter != 13)
            t.Text[0].text += static_cast<char>(weiter);
        return 0;
    }
    try {
        if (index == 0 || index == 3 || index == 4 || (index == 1 && bat))
            return datumsfeldtaste(t, index, taste);
        if ((index == 1 || index == 2) && !bat)
            return monatstaste(t, index, taste);
    } catch (const Datumfehler&) {
        t.kasten[ergebniskasten(index, bat)].text.clear();
        t.Text[index].text.clear();
        meldung(t, "Schade",
                "Es ist ein nicht behebbarer Fehler aufgetreten, der nur unter Windows 95 "
                "auftritt",
                Symbol::info);
    }
    return 0;
}

void dienstalterfokus(Tablett& t, int index) {
    if (index != 0)
        return;
    for (int i = 0; i <= 3; ++i)
        t.Text[i].text.clear();
    for (int i = 0; i <= 12; ++i)
        t.kasten[i].text.clear();
    t.dienstalter = Dienstalterwerte{};
    if (batrechnung(dienstaltergruppe(t.s))) {
        t.Text[1].sichtbar = false;
        zeilenleeren(t, 5, 11);
    }
}

void dienstalteruebertrag(Tablett& t) {
    Sitzung& s = t.s;
    const Dienstalterwerte& w = t.dienstalter;
    if (!w.berechnet || !t.auswahlsetzen) {
        meldung(t, "Übertrag",
                "Bitte geben Sie zuerst den Geburtstag und die Monate ein; erst dann ist eine "
                "Stufe berechnet, die übertragen werden kann.");
        return;
    }
    // A step that follows the service age (row 1 on an automatic entry) would be worked out
    // again from the start in the box "BDA" by the next run: the start goes there instead,
    // and every month takes its own step from it.
    const bool nachbda = !ohneDienstalter(s.personalart()) && s.merkmal[1] <= 1;
    if (nachbda && t.bdauebernehmen && w.bdabeginn.jahr >= 1900 && w.bdabeginn.jahr <= 1999) {
        const std::string text = datumtext(w.bdabeginn).substr(3);
        t.bdauebernehmen(text);
        return;
    }
    // 1.
    const int monat = s.merkmal[20];
    // 2. January with the step on 1.1.1996.
    t.auswahlsetzen(20, 0);
    t.auswahlsetzen(7, w.stufe - 1);
    // 3. A rise in 1996: from its month the next step.
    const std::string naechstes = t.kasten[10].text;
    if (naechstes.size() == 10 && naechstes.substr(6) == "1996") {
        t.auswahlsetzen(20, std::stoi(naechstes.substr(3, 2)) - 1);
        t.auswahlsetzen(7, w.stufe);
    }
    // 4.
    t.auswahlsetzen(20, monat);
}

void dienstalterdrucken(Tablett& t) {
    const int art = t.s.personalart();
    if (art >= 5 && art <= 17) {
        meldung(t, "Drucken",
                "Der Berechnungsbogen gilt für das Besoldungsdienstalter der Beamten; für "
                "Angestellte, Arbeiter und die anderen Tarife wird er nicht gedruckt.");
        return;
    }
    t.druckwunsch = "bda";
}

Dienstalterblatt dienstalterblatt(const Tablett& t) {
    const Dienstalterwerte& w = t.dienstalter;
    Dienstalterblatt b;
    b.name = getrimmt(t.zeilenname(0));
    b.gruppentext = getrimmt(t.zeilenname(5));
    b.gruppe = dienstaltergruppe(t.s);
    b.besoldungsgruppe = dienstalterbesoldungsgruppe(t.s);
    b.geburtstag = w.geburtstag.empty() ? "" : datumtext(w.geburt);
    b.fruehester = t.kasten[1].text;
    b.vollendung31 = t.kasten[2].text;
    b.vollendung35 = t.kasten[3].text;
    b.ab35 = t.kasten[5].text;
    b.viertel = w.viertel;
    b.haelfte = w.haelfte;
    b.bdabeginn = t.kasten[8].text;
    b.beginn = w.bdabeginn;
    b.berechnet = w.berechnet;
    b.endstufe = w.endstufe;
    return b;
}

} // namespace lonvir
