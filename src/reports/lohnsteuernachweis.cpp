// The wage-tax statement.
#include "reports/lohnsteuernachweis.h"

#include "core/druckformat.h"
#include "core/pfennig.h"
#include "engine/steuerrechtwahl.h"
#include "reports/berichtskopf.h"
#include "start/satzzugriff.h"
#include "start/texte.h"

namespace lonvir {

namespace {

constexpr std::array<int, lohnsteuerspalten> endspalten = {30,  42,  54,  66,  78, 92,
                                                           104, 116, 128, 140, 158};
constexpr int regel = 170;

enum class Anteil { keiner, ganz, halb };

// Shares of the church tax in the Protestant, Roman Catholic and Old Catholic columns by
// confession code; the mixed marriages split it in halves.
std::array<Anteil, 3> kirchenanteile(int bekenntnis) {
    using enum Anteil;
    switch (bekenntnis) {
    case 0:
        return {ganz, keiner, keiner};
    case 1:
        return {keiner, ganz, keiner};
    case 2:
        return {keiner, keiner, ganz};
    case 3:
        return {halb, halb, keiner};
    case 4:
        return {halb, keiner, halb};
    case 5:
        return {keiner, halb, halb};
    default:
        return {keiner, keiner, keiner};
    }
}

// A withheld amount is stored negative: printed and summed positive (`vorzeichen` -1).
Nachweisbetrag ganzeranteil(std::int32_t& summe, std::int32_t wert, int vorzeichen) {
    summe = pf::plus(summe, vorzeichen < 0 ? pf::negiert(wert) : wert);
    return Nachweisbetrag::betrag(wert / (vorzeichen * 100.0));
}

// Half of an odd amount is a half Pfennig: it is added in double precision and the sum
// rounded half to even after the addition, so the two halves need not balance.
Nachweisbetrag halberanteil(std::int32_t& summe, std::int32_t wert, int vorzeichen) {
    summe = pf::gerundet(summe + wert / (vorzeichen * 2.0));
    return Nachweisbetrag::betrag(wert / (vorzeichen * 200.0));
}

void kirchensteuer(Lohnsteuernachweis& n, Lohnsteuerzeile& z, int erstespalte, int bekenntnis,
                   std::int32_t wert, int vorzeichen) {
    if (bekenntnis < 0 || bekenntnis > 6) {
        return;
    }
    const auto anteile = kirchenanteile(bekenntnis);
    for (std::size_t i = 0; i < 3; ++i) {
        const auto spalte = static_cast<std::size_t>(erstespalte) + i;
        auto& summe = n.summen[spalte];
        z.betraege[spalte] = anteile[i] == Anteil::ganz   ? ganzeranteil(summe, wert, vorzeichen)
                             : anteile[i] == Anteil::halb ? halberanteil(summe, wert, vorzeichen)
                                                          : Nachweisbetrag::null();
    }
}

// The lump tax on the supplementary pension holds the wage tax and its surcharge (7.5 %, 5.5 %
// under the law of 1998); the two parts are split here and rounded each on its own.
void pauschsteuer(Lohnsteuernachweis& n, Lohnsteuerzeile& z, std::int32_t wert,
                  const Steuertarif& recht) {
    const std::int32_t steuer = pf::gerundet(wert / recht.mitzuschlag);
    const std::int32_t zuschlag = pf::gerundet(wert / recht.mitzuschlag * recht.zuschlag);
    n.summen[5] = pf::plus(n.summen[5], steuer);
    n.summen[6] = pf::plus(n.summen[6], zuschlag);
    z.betraege[5] = Nachweisbetrag::betrag(steuer / 100.0);
    z.betraege[6] = Nachweisbetrag::betrag(zuschlag / 100.0);
}

Lohnsteuerzeile zeilebilden(Sitzung& s, Lohnsteuernachweis& n, int person, const Personalsatz& p) {
    Lohnsteuerzeile z;
    z.person = person;
    z.name = links(textlesen(s, textnummer::ersterName - 1 + person), 15);
    z.betraege[0] = ganzeranteil(n.summen[0], p.wert[33], -1);
    z.betraege[1] = ganzeranteil(n.summen[1], p.wert[35], -1);
    kirchensteuer(n, z, 2, p.merkmal[28], p.wert[36], -1);
    pauschsteuer(n, z, p.wert[32], steuertarif(steuerrechtfuer(s)));
    kirchensteuer(n, z, 7, p.merkmal[28], p.wert[6], 1);
    z.betraege[10] = ganzeranteil(n.summen[10], p.wert[34], 1);
    return z;
}

void kopfdrucken(const Sitzung& s, int monat, Drucker& d) {
    d.FontName("courier new");
    d.Orientation(querformat);
    d.FontSize(12);
    d.FontBold(true);
    briefkopf(s, d, 90);
    d.Print({});
    d.Print({});
    d.FontSize(14);
    d.Print(
        {"L O H N S T E U E R   -   N A C H W E I S    für den Monat   ", gesperrtermonat(monat)});
    d.FontSize(8);
    d.FontBold(false);
    d.Print({unterstriche(regel)});
    d.FontSize(14);
    d.Print({Tab{13}, "Von den AN einbehaltene Steuern", Tab{48}, "Aus ZVK-Versteuerung", Tab{85},
             "Ki-Geld"});
    d.FontSize(8);
    d.Print({"N A M E",  Tab{22},  "Lohnstr.", Tab{34},  "Sol.Zus.",  Tab{46},
             "ev.KStr.", Tab{58},  "rk.KStr.", Tab{70},  "ak KStr.",  Tab{84},
             "Lohnstr.", Tab{96},  "Sol.Zus.", Tab{108}, "ev.KStr.",  Tab{120},
             "rk.KStr.", Tab{132}, "ak KStr.", Tab{148}, "Kindergeld"});
    d.Print({unterstriche(regel)});
}

void zusammenstellung(const Lohnsteuernachweis& n, Drucker& d) {
    const auto& m = n.summen;
    d.Print({"Zusammenstellung:", Tab{31}, "Steuerabzugsbeträge", Tab{60}, "AG-Pauschalsteuer",
             Tab{90}, "Quersumme"});
    d.Print({unterstriche(regel)});
    d.FontBold(false);
    const std::int32_t zwischen = pf::minus(m[0], m[10]);
    zusammenstellungszeile(d, "Lohnsteuer", m[0], m[5]);
    zusammenstellungszeile(d, "./. Kindergeld", pf::negiert(m[10]), 0);
    zusammenstellungszeile(d, "= Zwischensumme", zwischen, m[5]);
    zusammenstellungszeile(d, "+ Solidaritätszuschlag", m[1], m[6]);
    zusammenstellungszeile(d, "+ Evang. Kirchensteuer", m[2], m[7]);
    zusammenstellungszeile(d, "+ Röm.-kath. Kirchensteuer", m[3], m[8]);
    zusammenstellungszeile(d, "+ Altkath. Kirchensteuer", m[4], m[9]);
    d.Print({unterstriche(regel)});
    const std::int32_t abzug =
        pf::plus(pf::plus(pf::plus(pf::plus(zwischen, m[1]), m[2]), m[3]), m[4]);
    const std::int32_t pauschal =
        pf::plus(pf::plus(pf::plus(pf::plus(m[5], m[6]), m[7]), m[8]), m[9]);
    zusammenstellungszeile(d, "= Abzuliefernde Summe", abzug, pauschal);
    d.Print({unterstriche(regel)});
}

} // namespace

Lohnsteuernachweis lohnsteuernachweisbilden(Sitzung& s, int monat) {
    Lohnsteuernachweis n;
    n.monat = monat;
    for (int person = 1; person <= s.anzahlnamen; ++person) {
        const Personalsatz p = personalsatzlesen(s, monat + 1, person);
        if (p.wert[45] != 0) {
            n.zeilen.push_back(zeilebilden(s, n, person, p));
        }
    }
    return n;
}

void lohnsteuernachweisdrucken(const Sitzung& s, const Lohnsteuernachweis& n, Drucker& d) {
    kopfdrucken(s, n.monat, d);
    for (const Lohnsteuerzeile& z : n.zeilen) {
        nachweiszeile(d, {z.name}, z.betraege, endspalten);
    }
    d.Print({unterstriche(regel)});
    d.FontBold(true);
    summenzeile(d, n.summen, endspalten);
    d.Print({unterstriche(regel)});
    zusammenstellung(n, d);
    d.EndDoc();
}

void lohnsteuernachweis(Sitzung& s, Drucker& d) {
    if (!monatgewaehlt(s, "Lohnsteuer-Nachweis")) {
        return;
    }
    lohnsteuernachweisdrucken(s, lohnsteuernachweisbilden(s, s.merkmal[20]), d);
}

Csvtabelle lohnsteuernachweiscsv(const Lohnsteuernachweis& n) {
    Csvtabelle t;
    t.kopf = {"Person",
              "Name",
              "Lohnsteuer",
              "Solidaritätszuschlag",
              "ev. Kirchensteuer",
              "rk. Kirchensteuer",
              "ak. Kirchensteuer",
              "ZVK pauschale Lohnsteuer",
              "ZVK pauschaler Solidaritätszuschlag",
              "ZVK ev. Kirchensteuer",
              "ZVK rk. Kirchensteuer",
              "ZVK ak. Kirchensteuer",
              "Kindergeld"};
    for (const Lohnsteuerzeile& z : n.zeilen) {
        t.zeilen.push_back(csvzeile({std::to_string(z.person), getrimmt(z.name)}, z.betraege));
    }
    t.zeilen.push_back(csvsummenzeile({"", "Summe"}, n.summen));
    return t;
}

} // namespace lonvir
