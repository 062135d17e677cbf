// The supplementary pension of employees and workers: the fund's contribution, its surcharge
// above the ceiling, the part taxed at the lump rate and the parts added to the taxable and
// insured wage, with the lump tax, its church tax and its surcharge.
#include "core/pfennig.h"
#include "engine/schaltersumme.h"
#include "engine/schritte.h"
#include "engine/steuerrechtwahl.h"

namespace lonvir {

namespace {

constexpr int november = 10;

int westost(const Sitzung& s) {
    const int ost = s.merkmal[2];
    if (ost < 0 || ost > 1)
        throw Laufzeitfehler::indexfehler();
    return ost;
}

// The fund's total ceiling in DM, West or Ost.
std::int32_t zvkgrenze(const Sitzung& s) {
    return s.vorgabewert[westost(s) == 0 ? 6 : 11];
}

// The fund's ceiling for the surcharge in DM, by West/Ost and tariff period 1 to 4.
std::int32_t zvkstufe(const Sitzung& s, int periode) {
    return s.vorgabewert[(westost(s) == 0 ? 1 : 6) + periode];
}

std::int32_t malTagefaktor(const Sitzung& s, double betrag) {
    return pf::gerundet(betrag * static_cast<double>(s.tagefaktor));
}

std::int32_t plusZeile(std::int32_t betrag, Currency zeile) {
    return (Currency::ganz(betrag) + zeile).gerundetInt32();
}

// The rate of row 25, typed in hundredths of a percent, as a fraction.
double satz(const Sitzung& s) {
    return static_cast<double>(s.wert[25]) / 10000.0;
}

// Step 2: the lump-tax limit and the free part, both for the paid days.
void grenzenbestimmen(Sitzung& s) {
    s.pauschgrenze = malTagefaktor(s, s.einstellungen.zvkmodus == 1 ? 28400.0 : 17500.0);
    s.freianteil = malTagefaktor(s, 2600.0);
}

// Steps 3 to 7: the wage subject to supplementary pension and its part under the ceiling.
void zvkentgelt(Sitzung& s) {
    s.zvkwert[1] = s.wert[22];
    s.zvkwert[2] = s.bruttomodus == 1 ? 0 : zahlwertabzug(s, s.zvk, 0, 7, 19);
    s.zvkwert[3] = s.wert[24];
    s.zvkwert[4] = 0;
    std::int32_t summe = 0;
    for (int i = 1; i <= 4; ++i)
        summe = pf::plus(summe, s.zvkwert[i]);
    s.zvkwert[5] = summe;
    s.zvkwert[6] = malTagefaktor(s, static_cast<double>(pf::mal(zvkgrenze(s), 100)));
    // Row 18 in November, the Zuwendung, raises the ceiling by what is paid of it.
    if (s.merkmal[20] == november)
        s.zvkwert[6] = plusZeile(s.zvkwert[6], s.zahlwert[18]);
    s.zvkwert[7] = s.zvkwert[5] < s.zvkwert[6] ? s.zvkwert[5] : s.zvkwert[6];
}

// Step 8: the ceiling of the surcharge from the latest tariff period that has begun. The
// period's ceiling is taken when the total ceiling in Pfennig exceeds it in DM, which it
// practically always does; the comparison stays as it is.
void stufengrenzebestimmen(Sitzung& s) {
    const Einstellungswerte& e = s.einstellungen;
    const std::int32_t beginn[] = {e.ab_tarif2, e.ab_tarif3, e.ab_tarif4};
    std::int32_t grenze = zvkstufe(s, 1);
    for (int periode = 2; periode <= 4; ++periode) {
        const std::int32_t ab = beginn[periode - 2];
        if (ab > 0 && ab <= s.merkmal[20] + 1 && s.zvkwert[6] > zvkstufe(s, periode))
            grenze = zvkstufe(s, periode);
    }
    grenze = pf::mal(grenze, 100);
    if (s.merkmal[20] == november)
        grenze = plusZeile(grenze, s.teilwert[18]);
    s.stufengrenze = malTagefaktor(s, static_cast<double>(grenze));
}

// Steps 9 to 13: the ordinary contribution, the surcharge above the ceiling, row 31.
void beitrag(Sitzung& s) {
    s.zvkwert[8] = pf::gerundet(satz(s) * static_cast<double>(s.zvkwert[7]));
    s.entgeltgrenze =
        s.wert[25] > 0 ? pf::gerundet(static_cast<double>(s.pauschgrenze) / satz(s)) : 0;
    const std::int32_t anteil = pf::gerundet(static_cast<double>(s.entgeltgrenze) * 0.025 -
                                             static_cast<double>(s.freianteil));
    s.svanteil = anteil > 0 ? anteil : 0;
    s.zvkwert[11] = 0;
    if (s.wert[25] > 0) {
        const std::int32_t ueber = pf::minus(s.zvkwert[7], s.stufengrenze);
        if (ueber > 0)
            s.zvkwert[11] = pf::gerundet(static_cast<double>(ueber) * 0.09);
    }
    s.zvkwert[12] = pf::plus(s.zvkwert[8], s.zvkwert[11]);
    s.wert[31] = s.zvkwert[12];
}

// Steps 14 to 17: the lump-taxed part, the part taxed with the wage, the part insured.
void aufteilung(Sitzung& s) {
    const bool unterGrenze = s.zvkwert[7] <= s.entgeltgrenze;
    s.zvkwert[14] = (unterGrenze || s.wert[25] < 1) ? s.zvkwert[12] : s.pauschgrenze;
    s.zvkwert[15] = pf::minus(s.zvkwert[12], s.zvkwert[14]);
    if (s.wert[25] == 0) {
        s.zvkwert[16] = 0;
    } else if (unterGrenze) {
        // 2.5 % of the pensionable wage, less 26.00 DM only where it exceeds that.
        std::int32_t anteil = pf::gerundet(static_cast<double>(s.zvkwert[7]) * 0.025);
        if (anteil > 2600)
            anteil = pf::minus(anteil, 2600);
        s.zvkwert[16] = anteil;
    } else {
        s.zvkwert[16] = s.svanteil;
    }
    s.zvkwert[17] = s.zvkwert[15];
    s.zvkwert[18] = pf::plus(s.zvkwert[16], s.zvkwert[17]);
}

// Steps 18 to 23: the lump tax of 20 %, its church tax (row 6) and surcharge, rows 32.
void pauschsteuer(Sitzung& s) {
    s.zvkwert[19] = 0;
    s.zvkwert[20] = 0;
    s.zvkwert[21] = s.zvkwert[12];
    s.zvkwert[22] = pf::gerundet(static_cast<double>(s.zvkwert[14]) * 0.2);
    s.zvkwert[23] = pf::gerundet(static_cast<double>(s.zvkwert[22]) *
                                 static_cast<double>(s.einstellungen.kirchenpausch) / 100.0);
    s.wert[6] = s.zvkwert[23];
    // The surcharge on the lump tax at the rate of the year's law: 7.5 %, 5.5 % under 1998's.
    const double zuschlag = steuertarif(steuerrechtfuer(s)).zuschlag;
    s.zvkwert[24] = pf::abgeschnitten(static_cast<double>(s.zvkwert[22]) * zuschlag);
    std::int32_t gesamt = 0;
    for (int i = 21; i <= 24; ++i)
        gesamt = pf::plus(gesamt, s.zvkwert[i]);
    s.zvkwert[25] = gesamt;
    s.wert[32] = pf::plus(s.zvkwert[22], s.zvkwert[24]);
    s.zvkwert[26] = 0;
    s.zvkwert[27] = 0;
}

} // namespace

void zvk_berechnen(Sitzung& s) {
    s.zvkwert.fuellen(0);
    grenzenbestimmen(s);
    zvkentgelt(s);
    stufengrenzebestimmen(s);
    beitrag(s);
    aufteilung(s);
    pauschsteuer(s);
}

} // namespace lonvir
