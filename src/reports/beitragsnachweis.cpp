// The contribution statement.
#include "reports/beitragsnachweis.h"

#include "core/druckformat.h"
#include "core/pfennig.h"
#include "reports/berichtskopf.h"
#include "start/satzzugriff.h"
#include "start/texte.h"

namespace lonvir {

namespace {

constexpr std::array<int, beitragsspalten> endspalten = {44,  56,  71,  83,  98,
                                                         110, 125, 137, 152, 164};
constexpr int regel = 170;

bool arbeiter(int personalart) {
    return personalart >= 8 && personalart <= 11;
}

// An employee's deduction is stored negative and printed and summed positive.
Nachweisbetrag anteil(Beitragsnachweis& n, int spalte, std::int32_t wert, bool abzug) {
    auto& summe = n.summen[static_cast<std::size_t>(spalte)];
    summe = pf::plus(summe, abzug ? pf::negiert(wert) : wert);
    return Nachweisbetrag::betrag(static_cast<double>(wert) / (abzug ? -100.0 : 100.0));
}

void zweig(Beitragsnachweis& n, Beitragszeile& z, int spalte, std::int32_t an, std::int32_t ag) {
    z.betraege[static_cast<std::size_t>(spalte)] = anteil(n, spalte, an, true);
    z.betraege[static_cast<std::size_t>(spalte + 1)] = anteil(n, spalte + 1, ag, false);
}

void nullzweig(Beitragszeile& z, int spalte) {
    z.betraege[static_cast<std::size_t>(spalte)] = Nachweisbetrag::null();
    z.betraege[static_cast<std::size_t>(spalte + 1)] = Nachweisbetrag::null();
}

// Fund 28 is the subsidy typed by hand: no contribution to a fund. Nursing choices 1, 4
// and 6 pay none; a choice outside the list prints nothing.
Beitragszeile zeilebilden(Sitzung& s, Beitragsnachweis& n, int person, const Personalsatz& p) {
    Beitragszeile z;
    z.person = person;
    z.name = links(textlesen(s, textnummer::ersterName - 1 + person), 15);
    z.kasse = links(textlesen(s, 3628 + p.merkmal[37]), 15);
    if (p.merkmal[37] != 28) {
        zweig(n, z, 0, p.wert[37], p.nebenwert[0]);
    } else {
        nullzweig(z, 0);
    }
    const int pflege = p.merkmal[38];
    if (pflege == 0 || pflege == 2 || pflege == 3 || pflege == 5) {
        zweig(n, z, 2, p.wert[38], p.nebenwert[1]);
    } else if (pflege == 1 || pflege == 4 || pflege == 6) {
        nullzweig(z, 2);
    }
    if (arbeiter(p.merkmal[4])) {
        zweig(n, z, 4, p.wert[39], p.nebenwert[2]);
        nullzweig(z, 6);
    } else {
        nullzweig(z, 4);
        zweig(n, z, 6, p.wert[39], p.nebenwert[2]);
    }
    zweig(n, z, 8, p.wert[40], p.nebenwert[3]);
    return z;
}

void kopfdrucken(const Sitzung& s, int monat, Drucker& d) {
    d.Orientation(querformat);
    d.FontSize(12);
    d.FontBold(true);
    briefkopf(s, d, 90);
    d.Print({});
    d.Print({});
    d.FontSize(14);
    d.Print({"B E I T R A G S N A C H W E I S  für den Monat   ", gesperrtermonat(monat)});
    d.FontSize(8);
    d.Print({unterstriche(regel)});
    d.Print({});
    d.Print({"N A M E", Tab{35}, "G = Krankenversicherung", Tab{62}, "P = Pflegeversicherung",
             Tab{89}, "K = Arbeiter-Rentenvers.", Tab{116}, "L = Angest.-Rentenvers.", Tab{143},
             "M = Arbeitsl.-Vers."});
    std::vector<Druckteil> spalten;
    for (int i = 0; i < 5; ++i) {
        spalten.insert(spalten.end(),
                       {Tab{35 + 27 * i}, "AN-Beitrag", Tab{47 + 27 * i}, "AG-Anteil"});
    }
    d.Print(spalten);
    d.Print({unterstriche(regel)});
    d.Print({});
    d.FontBold(false);
}

void summenzeile(Drucker& d, const std::string& text, std::int32_t an, std::int32_t ag) {
    std::vector<Druckteil> z{text};
    betraganfuegen(z, 45, Nachweisbetrag::betrag(an / 100.0));
    betraganfuegen(z, 69, Nachweisbetrag::betrag(ag / 100.0));
    betraganfuegen(z, 99, Nachweisbetrag::betrag(pf::plus(an, ag) / 100.0));
    d.Print(z);
}

void zusammenstellung(const Beitragsnachweis& n, Drucker& d) {
    d.Print({"Zusammenstellung:", Tab{31}, "Arbeitnehmer-Beiträge", Tab{60}, "Arbeitgeber-Anteile",
             Tab{90}, "Quersumme"});
    d.Print({unterstriche(regel)});
    d.FontBold(false);
    static const std::array<const char*, 5> zweige = {
        "G = Krankenversicherung", "P = Pflege-Versicherung", "K = Arbeiter-Rentenversicherung",
        "L = Angest.-Rentenversicherung", "M = Arbeitslosen-Versicherung"};
    std::int32_t an = 0;
    std::int32_t ag = 0;
    for (std::size_t i = 0; i < zweige.size(); ++i) {
        summenzeile(d, zweige[i], n.summen[2 * i], n.summen[2 * i + 1]);
        an = pf::plus(an, n.summen[2 * i]);
        ag = pf::plus(ag, n.summen[2 * i + 1]);
    }
    d.Print({unterstriche(regel)});
    summenzeile(d, "Gesamtsumme:", an, ag);
}

} // namespace

Beitragsnachweis beitragsnachweisbilden(Sitzung& s, int monat) {
    Beitragsnachweis n;
    n.monat = monat;
    for (int person = 1; person <= s.anzahlnamen; ++person) {
        const Personalsatz p = personalsatzlesen(s, monat + 1, person);
        if (p.merkmal[4] >= 5 && p.merkmal[4] <= 17) {
            n.zeilen.push_back(zeilebilden(s, n, person, p));
        }
    }
    return n;
}

void beitragsnachweisdrucken(const Sitzung& s, const Beitragsnachweis& n, Drucker& d) {
    kopfdrucken(s, n.monat, d);
    for (const Beitragszeile& z : n.zeilen) {
        std::vector<Druckteil> zeile{z.name, Tab{17}, z.kasse};
        for (std::size_t i = 0; i < z.betraege.size(); ++i) {
            betraganfuegen(zeile, endspalten[i], z.betraege[i]);
        }
        d.Print(zeile);
    }
    d.Print({unterstriche(regel)});
    d.Print({});
    d.FontBold(true);
    std::vector<Druckteil> summe{"Summe"};
    for (std::size_t i = 0; i < n.summen.size(); ++i) {
        betraganfuegen(summe, endspalten[i], Nachweisbetrag::betrag(n.summen[i] / 100.0));
    }
    d.Print(summe);
    d.Print({});
    d.Print({unterstriche(regel)});
    d.Print({});
    zusammenstellung(n, d);
    d.Print({unterstriche(regel)});
    d.Print({});
    d.Print({"In dieser Aufstellung sind die AG-Anteile, die an die Arbeitnehmer als Zuschüsse zur "
             "Soz.Vers. ausgezahlt worden sind, nicht enthalten."});
    d.EndDoc();
}

void beitragsnachweis(Sitzung& s, Drucker& d) {
    beitragsnachweisdrucken(s, beitragsnachweisbilden(s, s.merkmal[20]), d);
}

Csvtabelle beitragsnachweiscsv(const Beitragsnachweis& n) {
    Csvtabelle t;
    t.kopf = {"Person", "Name",   "Krankenkasse", "KV AN",  "KV AG", "PV AN", "PV AG",
              "ArV AN", "ArV AG", "AnV AN",       "AnV AG", "AV AN", "AV AG"};
    for (const Beitragszeile& z : n.zeilen) {
        Csvzeile zeile{std::to_string(z.person), getrimmt(z.name), getrimmt(z.kasse)};
        for (const Nachweisbetrag& b : z.betraege) {
            zeile.push_back(betragzelle(b));
        }
        t.zeilen.push_back(std::move(zeile));
    }
    Csvzeile summe{"", "Summe", ""};
    for (std::int32_t betrag : n.summen) {
        summe.push_back(csvbetrag(std::int64_t{betrag}));
    }
    t.zeilen.push_back(std::move(summe));
    return t;
}

} // namespace lonvir
