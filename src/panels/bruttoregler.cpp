// Page 43 "Netto": the gross amount of the month set directly with three scroll bars (hundreds
// of DM, DM, Pfennig) while the engine runs in gross mode and every row follows. The page lies
// over the left column; the result column of the main screen stays in view.
#include "core/betragstext.h"
#include "core/pfennig.h"
#include "engine/berechnen.h"
#include "panels/seiten.h"
#include "panels/seitenteile.h"
#include "start/texte.h"

#include <algorithm>

namespace lonvir {

namespace {

constexpr int ersterText = 4070;    // "Einstellung des Bruttobetrags"
constexpr int ergebnistexte = 4077; // Lohnsteuer ... Gesamtkosten des Arbeitgebers
constexpr int schliessentext = 4092;
constexpr int abstand = 200;

// The rows of the results, in the order of their captions 4077 to 4087.
std::int32_t ergebnis(const Sitzung& s, int i) {
    const auto& w = s.wert;
    const auto& n = s.nebenwert;
    switch (i) {
    case 0:
        return w[33];
    case 1:
        return w[35];
    case 2:
        return w[36];
    case 3:
        return w[37];
    case 4:
        return w[38];
    case 5:
        return w[39];
    case 6:
        return w[40];
    case 7:
        return w[31];
    case 8:
        return w[45];
    case 9:
        return pf::plus(pf::plus(n[0], n[1]), pf::plus(n[2], n[3]));
    default: {
        // Gross pay and everything the employer bears on top of it.
        std::int32_t summe = w[22];
        for (int k = 0; k <= 6; ++k)
            summe = pf::plus(summe, n[k]);
        return pf::plus(pf::plus(summe, w[31]), w[32]);
    }
    }
}

Tablettrollbalken& balken(Tablett& t, int nummer) {
    return nummer == 1 ? t.HScroll1 : nummer == 2 ? t.HScroll2 : t.HScroll3;
}

} // namespace

void seiteleeren(Tablett& t) {
    for (Tablettknopf* k : {&t.Command1, &t.Command2, &t.Command3, &t.Command4})
        k->sichtbar = false;
    for (int i = 1; i <= 3; ++i)
        balken(t, i).sichtbar = false;
    for (int i = 0; i <= 17; ++i) {
        t.Text[i].text.clear();
        t.Text[i].vordergrund = 0;
        t.Text[i].hintergrund = 15;
        t.Combo[i].liste.clear();
        t.Combo[i].position = -1;
        t.Combo[i].vordergrund = 0;
    }
    for (int i = 0; i <= 28; ++i) {
        t.zeile[i].text.clear();
        t.zeile[i].vordergrund = 0;
        t.zeile[i].hintergrund = 7;
        t.zeile[i].schrift = "arial";
        t.kasten[i].hintergrund = 7;
        t.kasten[i].text.clear();
        t.kasten[i].sichtbar = true;
        t.kasten[i].schriftgroesse = 8.25;
    }
}

void bruttoregler(Tablett& t) {
    Sitzung& s = t.s;
    if (s.bruttomodus == 1)
        seiteleeren(t);
    for (int i = 0; i <= 28; ++i)
        t.kasten[i].sichtbar = false;
    const int rechts = std::max(t.lage.breite / 2, 3900);
    // Left half: three heading rows, the results with their amounts, the way out.
    for (int i = 0; i <= 2; ++i)
        zeilezeigen(t, i, textgetrimmt(s, ersterText + 1 + i),
                    {100, 100 + i * abstand, 3600, abstand}, i == 0);
    for (int i = 0; i <= 10; ++i) {
        zeilezeigen(t, 3 + i, textgetrimmt(s, ergebnistexte + i),
                    {100, 800 + i * abstand, 2400, abstand}, i == 8);
        kastenzeigen(t, 3 + i, {2500, 800 + i * abstand, 1200, abstand});
    }
    zeilezeigen(t, 14, textgetrimmt(s, schliessentext),
                {100, 800 + 11 * abstand + 150, 3600, abstand});
    // Right half: the setting of the gross amount; the three bars in place of row labels,
    // as wide as the half leaves beside their label and their cell.
    const int balkenbreite = std::max(2000, t.lage.breite - rechts - 550 - 1300 - 100);
    zeilezeigen(t, 21, textgetrimmt(s, ersterText), {rechts, 100, 2600, abstand}, true);
    kastenzeigen(t, 21, {rechts + 600 + balkenbreite, 100, 1200, abstand});
    const char* namen[] = {"grob", "fein", "Pfg"};
    for (int i = 1; i <= 3; ++i) {
        const int oben = 200 + i * 2 * abstand;
        zeilezeigen(t, 21 + i, namen[i - 1], {rechts, oben, 500, abstand});
        Tablettrollbalken& b = balken(t, i);
        b.lage = {rechts + 550, oben, balkenbreite, abstand + 40};
        b.minimum = 0;
        b.maximum = i == 1 ? 150 : 99;
        b.sichtbar = true;
        kastenzeigen(t, 21 + i, {rechts + 600 + balkenbreite, oben, 1200, abstand});
        zeilezeigen(t, 24 + i, textgetrimmt(s, ersterText + 3 + i),
                    {rechts, 200 + 7 * abstand + i * abstand, 3600, abstand});
    }
    // The bars from the full-time gross, scroll events silent meanwhile: the coarse bar holds
    // hundreds of DM up to 15,000 DM, the fine bar DM, the third Pfennig.
    s.bruttomodus = 2;
    const std::int32_t brutto = std::max<std::int32_t>(s.wert[20], 0);
    t.HScroll1.wert = std::min<std::int32_t>(brutto / 10000, 150);
    t.HScroll2.wert = brutto % 10000 / 100;
    t.HScroll3.wert = brutto % 100;
    s.bruttomodus = 1;
    bruttobetraege(t);
}

void bruttobetraege(Tablett& t) {
    const Sitzung& s = t.s;
    for (int i = 0; i <= 10; ++i)
        t.kasten[3 + i].text = betragstext(ergebnis(s, i));
    t.kasten[21].text = betragstext(s.wert[20]);
    t.kasten[22].text = betragstext(pf::mal(t.HScroll1.wert, 10000));
    t.kasten[23].text = betragstext(pf::mal(t.HScroll2.wert, 100));
    t.kasten[24].text = betragstext(t.HScroll3.wert);
}

void bruttoaendern(Tablett& t) {
    Sitzung& s = t.s;
    s.Neuberechnung = -1;
    s.wert[21] = pf::plus(pf::plus(pf::mal(t.HScroll1.wert, 10000), pf::mal(t.HScroll2.wert, 100)),
                          t.HScroll3.wert);
    s.aenderungscode = 21;
    nachrechnen(s);
    // The run ends before the refresh of the open page in this mode: the page follows here.
    bruttobetraege(t);
}

} // namespace lonvir
