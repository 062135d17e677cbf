// Social insurance of employees and workers: the wage subject to insurance, its parts under
// the monthly ceilings, the one-off pay that fits under the yearly ceilings, and the four
// branches on those bases. Civil servants and staff class 18 pay none.
#include "engine/sozialversicherung.h"

#include "core/pfennig.h"
#include "engine/schaltersumme.h"
#include "engine/schritte.h"
#include "start/satzzugriff.h"

namespace lonvir {

namespace {

bool westen(const Sitzung& s) {
    const int ost = s.merkmal[2];
    if (ost < 0 || ost > 1)
        throw Laufzeitfehler::indexfehler();
    return ost == 0;
}

// The monthly ceilings of the settings, West or Ost. Care follows health insurance and
// unemployment follows pension insurance, so only these two are used.
std::int32_t bmg_kv(const Sitzung& s) {
    return westen(s) ? s.einstellungen.bmgKvWest : s.einstellungen.bmgKvOst;
}
std::int32_t bmg_rv(const Sitzung& s) {
    return westen(s) ? s.einstellungen.bmgRvWest : s.einstellungen.bmgRvOst;
}

std::int32_t kleinere(std::int32_t a, std::int32_t b) {
    return a < b ? a : b;
}

std::int32_t raum(std::int32_t grenze, std::int32_t genutzt) {
    const std::int32_t rest = pf::minus(grenze, genutzt);
    return rest > 0 ? rest : 0;
}

// Step 1: typed subsidies, civil servants at 0, and who pays at all.
bool versichert(Sitzung& s) {
    const int art = s.personalart();
    if (art > 4 && s.merkmal[37] == 28)
        s.wert[37] = s.eingabe[37];
    if (art > 4 && (s.merkmal[38] == 1 || s.merkmal[38] == 3))
        s.wert[38] = s.eingabe[38];
    if (art >= 0 && art <= 4)
        for (int zeile = 37; zeile <= 40; ++zeile)
            s.wert[zeile] = 0;
    s.svwert.fuellen(0);
    return art >= 5 && art <= 17;
}

// Steps 2 to 6: the wage subject to insurance, one-off rows taken out.
void svbrutto(Sitzung& s) {
    s.svwert[1] = s.wert[22];
    s.svwert[2] = zahlwertabzug(s, s.soz, 0, 7, 19);
    s.svwert[3] = zahlwertabzug(s, s.soz, 1, 17, 19);
    if (s.bruttomodus == 1) {
        s.svwert[2] = 0;
        s.svwert[3] = 0;
    }
    s.svwert[4] = s.zvkwert[18];
    s.svwert[5] = s.wert[24];
    std::int32_t summe = 0;
    for (int i = 1; i <= 5; ++i)
        summe = pf::plus(summe, s.svwert[i]);
    s.svwert[6] = summe;
}

// Step 9: the room the earlier months of the year left under the yearly ceilings. The health
// ceiling is set against the stored pension base (row 28) and the pension ceiling against the
// stored health base (row 29); the crossing is kept as it is.
void jahresraum(Sitzung& s) {
    for (int monat = 0; monat < beitragsmonat(s); ++monat) {
        const auto frueher = personalsatzbytes(s, monat + 1, s.aktuelleperson);
        s.svwert[12] =
            pf::plus(s.svwert[12], raum(bmg_kv(s), Personalsatz::wertLesen(frueher, 28)));
        s.svwert[15] =
            pf::plus(s.svwert[15], raum(bmg_rv(s), Personalsatz::wertLesen(frueher, 29)));
    }
}

// Steps 10 to 12 for one branch: the one-off part that fits and the base. `laufend` is the
// position of the current wage under the ceiling, `rest` that of the room, followed by the
// part taken and the base: 7, 12, 13, 14 for health, 8, 15, 16, 17 for pension insurance.
void einmalteil(Sitzung& s, int laufend, int rest, std::int32_t obergrenze) {
    const int genommen = rest + 1;
    const int basis = rest + 2;
    if (s.svwert[laufend] < obergrenze) {
        s.svwert[rest] = pf::plus(s.svwert[rest], pf::minus(obergrenze, s.svwert[laufend]));
        s.svwert[genommen] = kleinere(pf::negiert(s.svwert[3]), s.svwert[rest]);
    }
    s.svwert[basis] = pf::plus(s.svwert[laufend], s.svwert[genommen]);
}

// Steps 7 to 12: the bases of health and pension insurance.
void bemessungsgrundlagen(Sitzung& s) {
    const double tagefaktor = static_cast<double>(s.tagefaktor);
    const std::int32_t obergrenze_kv = pf::gerundet(static_cast<double>(bmg_kv(s)) * tagefaktor);
    const std::int32_t obergrenze_rv = pf::gerundet(static_cast<double>(bmg_rv(s)) * tagefaktor);
    s.svwert[7] = kleinere(s.svwert[6], obergrenze_kv);
    s.svwert[8] = kleinere(s.svwert[6], obergrenze_rv);
    if (s.bruttomodus != 1)
        jahresraum(s);
    einmalteil(s, 7, 12, obergrenze_kv);
    einmalteil(s, 8, 15, obergrenze_rv);
}

} // namespace

int beitragsmonat(const Sitzung& s) {
    return s.merkmal[20] == 12 ? 11 : s.merkmal[20];
}

double basismal(std::int32_t basis, Currency satz) {
    return (Currency::ganz(basis) * satz).alsDouble();
}

void sozialversicherung(Sitzung& s) {
    if (!versichert(s))
        return;
    svbrutto(s);
    bemessungsgrundlagen(s);
    krankenversicherung(s);
    pflegeversicherung(s);
    rentenversicherung(s);
    arbeitslosenversicherung(s);
    s.svwert[20] = s.svwert[14];
    s.svwert[22] = s.svwert[14];
    s.svwert[24] = s.svwert[17];
    s.svwert[26] = s.svwert[17];
}

} // namespace lonvir
