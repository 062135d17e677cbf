// The pay statement: gross block, deductions and payment, employer's cost, closing texts.
#include "reports/gehaltdrucken.h"

#include "core/cp1252.h"
#include "core/druckformat.h"
#include "core/pfennig.h"
#include "reports/druckzeilen.h"
#include "screen/betragstext.h"
#include "start/einstellungen.h"
#include "start/jahressaetze.h"

#include <array>

namespace lonvir {

namespace {

// The remark of the remark card that goes on the statement.
constexpr int gedruckteBemerkung = 14;

std::string ohneletztes(const std::string& text) {
    const std::size_t n = zeichenzahl(text);
    return n == 0 ? text : links(text, n - 1);
}

// Label at Tab(10), "DM" at Tab(45), the value ending in column 59.
void geldzeile(Drucker& d, const std::string& text, const std::string& wert) {
    d.Print({Tab{10}, text, Tab{45}, std::string("DM")}, Zeilenende::bleiben);
    betragrechts(d, 60, wert, Zeilenende::neu);
}

void fettlinie(Drucker& d) {
    d.FontBold(true);
    d.Print({Tab{10}, std::string(gleichlinie)});
}

// 1. to 6.: letterhead, title, the person's data and the rule.
void kopf(Sitzung& s, const Schirmtexte& b, int statementform, Drucker& d) {
    d.Orientation(hochformat);
    d.FontName("courier new");
    d.FontSize(statementform >= bruttonetto ? 9.0F : 12.0F);
    d.Print({});
    d.Print({});
    d.Print({Tab{12}, getrimmt(cp1252NachUtf8(s.dienststelle1)), Tab{60},
             getrimmt(cp1252NachUtf8(s.dienststellenort))});
    d.Print({Tab{12}, cp1252NachUtf8(s.dienststelle2)});
    d.Print({});
    d.Print({});
    d.FontSize(14);
    d.FontBold(true);
    d.Print({Tab{9}, grossbuchstaben(getrimmt(b.z[20])), std::string(" für "), b.z[0]});
    d.FontBold(false);
    d.FontSize(12);
    d.Print({});
    d.Print({Tab{10}, b.z[2], Tab{10}, b.z[4], Tab{10}, b.z[5], Tab{10}, b.z[6], Tab{10}, b.z[7]});
    for (int zeile : {23, 24}) {
        d.Print({Tab{10}, getrimmt(b.z[static_cast<std::size_t>(zeile)])}, Zeilenende::bleiben);
        betragrechts(d, 60, b.t[static_cast<std::size_t>(zeile)], Zeilenende::neu);
    }
    d.Print({Tab{10}, links(getrimmt(b.z[25]), 20)}, Zeilenende::bleiben);
    betragrechts(d, 60, b.t[25], Zeilenende::neu);
    d.Print({Tab{10}, links(b.z[1], 17), Tab{50}, "01." + getrimmt(cp1252NachUtf8(s.bdabeginn))});
    d.Print({});
    d.Print({Tab{10}, std::string(unterstrichlinie)});
}

// 7. to 13.: the pay rows, overtime, the month's sum, part-time and days.
void bruttoblock(Sitzung& s, const Schirmtexte& b, Drucker& d) {
    for (std::size_t i = 7; i <= 15; ++i)
        if (s.wert[static_cast<int>(i)] != 0)
            geldzeile(d, b.z[i], b.t[i]);
    if (s.wert[16] != 0) {
        d.Print({Tab{10}, ohneletztes(b.t[4]) + " Überstunden zu DM ", Tab{36}, b.t[5], Tab{43},
                 std::string("= DM")},
                Zeilenende::bleiben);
        betragrechts(d, 60, b.t[16], Zeilenende::neu);
    }
    for (std::size_t i = 17; i <= 19; ++i)
        if (s.wert[static_cast<int>(i)] != 0)
            geldzeile(d, b.z[i], b.t[i]);
    fettlinie(d);
    d.FontBold(false);
    d.FontBold(true);
    geldzeile(d, b.z[20], b.t[20]);
    const std::string anteil = s.merkmal[21] != 0 ? " % Teilzeit von " : " Wochenstunden von ";
    geldzeile(d, "für " + getrimmt(b.t[1]) + anteil + getrimmt(b.t[0]), b.t[21]);
    geldzeile(d, "für " + getrimmt(b.t[3]) + " Tage von " + getrimmt(b.t[2]) + " Tagen", b.t[22]);
    fettlinie(d);
    d.Print({});
    d.Print({});
    d.FontBold(false);
}

// 15. and 16.: the deductions and the payment.
void nettoblock(Sitzung& s, const Schirmtexte& b, Drucker& d) {
    for (std::size_t i = 33; i <= 44; ++i)
        if (s.wert[static_cast<int>(i)] != 0)
            geldzeile(d, links(b.z[i], 35), b.t[i]);
    fettlinie(d);
    geldzeile(d, "A U S Z A H L U N G  ", b.t[45]);
    d.Print({Tab{10}, std::string(gleichlinie)});
    d.FontBold(false);
    d.Print({});
    d.Print({});
}

// 18. to 20.: the employer's cost. The health-insurance share alone decides whether the four
// shares are shown; the total adds them all the same.
void arbeitgeberblock(Sitzung& s, const Schirmtexte& b, Drucker& d) {
    d.FontBold(true);
    d.Print({Tab{10}, std::string("ARBEITGEBERAUFWAND:")});
    d.FontBold(false);
    geldzeile(d, "Bruttogehalt", b.t[22]);
    if (s.nebenwert[0] != 0) {
        static constexpr std::array<const char*, 4> anteile = {
            "+ AG-Anteil Krankenversicherung", "+ AG-Anteil Pflegeversicherung",
            "+ AG-Anteil Rentenversicherung", "+ AG-Anteil Arbeitslosenvers."};
        for (int k = 0; k < 4; ++k)
            geldzeile(d, anteile[static_cast<std::size_t>(k)], betragstext(s.nebenwert[k]));
    }
    if (s.wert[31] != 0)
        geldzeile(d, "+ " + getrimmt(b.z[25]), betragstext(s.wert[31]));
    std::int32_t steuern = s.wert[32];
    for (int k = 4; k <= 6; ++k)
        steuern = pf::plus(steuern, s.nebenwert[k]);
    if (steuern != 0)
        geldzeile(d, "+ Übernommene Steuern", betragstext(steuern));
    std::int32_t gesamt = s.wert[22];
    for (int k = 0; k <= 6; ++k)
        gesamt = pf::plus(gesamt, s.nebenwert[k]);
    gesamt = pf::plus(pf::plus(gesamt, s.wert[31]), s.wert[32]);
    fettlinie(d);
    geldzeile(d, "ARBEITGEBERAUFWAND INSGESAMT", betragstext(gesamt));
    d.Print({Tab{10}, std::string(gleichlinie)});
}

// 21.: the box a clerk ticks when the annex goes with the statement.
void ankreuzzeile(Drucker& d) {
    d.FontBold(false);
    d.Print({std::string(9, ' ')}, Zeilenende::bleiben);
    d.FontSize(8.25F);
    d.Print({std::string("( ) Eine Übersicht über die Berechnung der Abzüge liegt bei.")});
}

// 22.: the report line of the year's settings and the printed remark of the remark card.
void schlusstexte(Sitzung& s, Drucker& d) {
    d.Print({});
    d.FontSize(12);
    Satzdatei& voe = s.datei(datei::voe);
    std::array<std::uint8_t, Voeinsatz::laenge> satz{};
    voe.lesen(voesatznummer(s), satz);
    std::string drucktext = cp1252NachUtf8(Voeinsatz::lesen(satz).berichtszeile);
    zeilendrucken(d, drucktext);
    drucktext = jahressatzlesen(s, s.aktuelleperson).text(gedruckteBemerkung);
    zeilendrucken(d, drucktext);
}

} // namespace

void gehaltdrucken(Sitzung& s, const Schirmtexte& bild, int statementform, Drucker& d) {
    kopf(s, bild, statementform, d);
    bruttoblock(s, bild, d);
    if (statementform != nurbrutto) {
        nettoblock(s, bild, d);
        if (statementform != bruttonetto)
            arbeitgeberblock(s, bild, d);
        ankreuzzeile(d);
    }
    schlusstexte(s, d);
    d.EndDoc();
}

} // namespace lonvir
