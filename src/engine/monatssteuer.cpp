// The month's wage tax, surcharge and church tax (steps 20 and 21 of the run), with the tax on
// one-off pay from two yearly runs and the cap of the surcharge on it.
#include "engine/monatssteuer.h"

#include "core/laufzeitfehler.h"
#include "core/pfennig.h"
#include "engine/kirchensteuer.h"
#include "engine/lohnsteuer.h"
#include "engine/schritte.h"
#include "engine/steuerrechtwahl.h"
#include "start/satzzugriff.h"

namespace lonvir {

namespace {

constexpr std::int16_t keineLohnsteuer = 49;
constexpr std::int16_t dezember = 11;
const Currency vierundfuenfzigMark = Currency::ganz(5400);

// Wage tax, surcharge and church tax of the last run, summed and rounded to a Pfennig.
std::int32_t steuersumme(const Sitzung& s) {
    const Lohnsteuerlauf& l = s.lohnsteuerlauf;
    return (l.lstlzz + l.solzlzz + l.bk * s.kirchensatz).gerundetInt32();
}

std::int32_t kirchensteuer(const Sitzung& s) {
    return (s.lohnsteuerlauf.bk * s.kirchensatz).abgeschnittenInt32();
}

// Step 2 of the month's tax: two runs 54 DM apart; the second leaves the month's results.
void grenzsatzlaeufe(Sitzung& s) {
    Lohnsteuerlauf& l = s.lohnsteuerlauf;
    l.re4 = l.re4 + vierundfuenfzigMark;
    lohnsteuer(l);
    const std::int32_t mehr = steuersumme(s);
    l.re4 = l.re4 - vierundfuenfzigMark;
    lohnsteuer(l);
    const std::int32_t genau = steuersumme(s);
    const double differenz = static_cast<double>(pf::minus(mehr, genau));
    s.grenzsatz = pf::abgeschnitten(differenz / 5400.0 * 100.0);
}

// lstwert(1) to (9): how the taxable wage came about, and the step of the table.
void lohnzeilen(Sitzung& s) {
    s.lstwert[1] = s.wert[22];
    s.lstwert[3] = pf::negiert(s.einmallohn);
    s.lstwert[4] = pf::negiert(s.wert[23]);
    s.lstwert[5] = s.personalart() > 4 ? s.zvkwert[15] : 0;
    s.lstwert[6] = s.wert[24];
    s.lstwert[8] = s.lohnsteuerlauf.stufeunten.gerundetInt32();
    s.lstwert[9] = s.lohnsteuerlauf.stufeoben.gerundetInt32();
}

// Step 1 of the one-off pay: the month's tax scaled back by the paid-days factor.
void tagesanteil(Sitzung& s) {
    const Lohnsteuerlauf& l = s.lohnsteuerlauf;
    const double faktor = static_cast<double>(s.tagefaktor);
    s.lstwert[10] = pf::gerundet(l.lstlzz.alsDouble() * faktor);
    s.lstwert[11] = pf::gerundet(l.solzlzz.alsDouble() * faktor);
    s.lstwert[12] = pf::gerundet((l.bk * s.kirchensatz).alsDouble() * faktor);
}

// Steps 2 to 5: the year with and without the one-off pay; what the one-off part bears.
void sonstigerbezug(Sitzung& s) {
    Lohnsteuerlauf& l = s.lohnsteuerlauf;
    const int monat = s.merkmal[20];
    std::int32_t vormonate = 0;
    for (int m = 0; m < monat; ++m)
        vormonate = pf::plus(
            vormonate, Personalsatz::wertLesen(personalsatzbytes(s, m + 1, s.aktuelleperson), 27));
    s.lstwert[14] = vormonate;
    s.lstwert[15] = (l.re4 * Currency::ganz(12 - monat)).gerundetInt32();
    s.lstwert[16] = pf::plus(s.lstwert[14], s.lstwert[15]);
    s.lstwert[17] = s.einmallohn;
    s.lstwert[18] = pf::plus(s.lstwert[16], s.lstwert[17]);

    l.lzz = 1;
    l.re4 = Currency::ganz(s.lstwert[16]);
    lohnsteuer(l);
    s.lstwert[19] = l.lstlzz.gerundetInt32();
    s.lstwert[22] = l.solzlzz.gerundetInt32();
    s.lstwert[25] = kirchensteuer(s);

    l.re4 = l.re4 + Currency::ganz(s.einmallohn);
    lohnsteuer(l);
    s.lstwert[20] = l.lstlzz.gerundetInt32();
    s.lstwert[23] = l.solzlzz.gerundetInt32();
    s.lstwert[26] = kirchensteuer(s);

    s.lstwert[21] = pf::minus(s.lstwert[20], s.lstwert[19]);
    s.lstwert[24] = pf::minus(s.lstwert[23], s.lstwert[22]);
    s.lstwert[27] = pf::minus(s.lstwert[26], s.lstwert[25]);
    // The surcharge on one-off pay is capped at its rate (7.5 %, 5.5 % under the law of 1998)
    // of the wage tax on it.
    const Currency kappe = Currency::ganz(s.lstwert[21]) * steuertarif(l.recht).zuschlagsatz();
    if (kappe < Currency::ganz(s.lstwert[24]))
        s.lstwert[24] = kappe.gerundetInt32();
}

} // namespace

bool steuerklasseVon(std::int16_t position, std::int16_t& stkl, Currency& zkf) {
    const auto halbe = [](int n) { return Currency::roh(n * 5000); };
    if (position >= 0 && position <= 8) {
        stkl = 1;
        zkf = halbe(position);
    } else if (position >= 9 && position <= 20) {
        stkl = 2;
        zkf = halbe(position - 8);
    } else if (position >= 21 && position <= 33) {
        stkl = 3;
        zkf = halbe(position - 21);
    } else if (position >= 34 && position <= 46) {
        stkl = 4;
        zkf = halbe(position - 34);
    } else if (position == 47 || position == 48) {
        stkl = static_cast<std::int16_t>(position - 42);
        zkf = Currency{};
    } else if (position == keineLohnsteuer) {
        return false;
    } else {
        throw Laufzeitfehler::indexfehler();
    }
    return true;
}

void steuereingaben(Sitzung& s) {
    Lohnsteuerlauf& l = s.lohnsteuerlauf;
    if (!steuerklasseVon(s.merkmal[33], l.stkl, l.zkf)) {
        l.stkl = 1;
        l.zkf = Currency{};
    }
    l.alter64 = s.merkmal[31] == 1 ? 1 : 0;
    // Civil servants always take the special table; others unless row 29 says otherwise.
    l.besonders = s.personalart() <= 4 || s.merkmal[29] != 0 ? 1 : 0;
    l.kirche = s.kirchenpflicht;
    l.lzz = s.zeitraum;
    l.re4 = s.steuerlohn;
    l.vbez = Currency{};
    l.lzzfreib = Currency{};
    l.recht = steuerrechtfuer(s);
    s.kirchensatz = kirchensatzVon(s.merkmal[36], s.merkmal[28]);
}

void monatssteuer(Sitzung& s) {
    steuereingaben(s);
    if (s.merkmal[33] == keineLohnsteuer) {
        s.wert[33] = 0;
        s.wert[35] = 0;
        s.wert[36] = 0;
        return;
    }
    grenzsatzlaeufe(s);
    const Lohnsteuerlauf& l = s.lohnsteuerlauf;
    s.wert[33] = l.lstlzz.gerundetInt32();
    s.wert[35] = l.solzlzz.gerundetInt32();
    s.wert[36] = s.merkmal[36] == 2 ? s.eingabe[36] : kirchensteuer(s);
    lohnzeilen(s);

    tagesanteil(s);
    sonstigerbezug(s);
    s.wert[33] = pf::negiert(pf::plus(s.lstwert[10], s.lstwert[21]));
    s.wert[35] = pf::negiert(pf::plus(s.lstwert[11], s.lstwert[24]));
    if (s.merkmal[36] < 2)
        s.wert[36] = pf::negiert(pf::plus(s.lstwert[12], s.lstwert[27]));
    else if (s.merkmal[36] == 2)
        s.wert[36] = s.eingabe[36];

    if (s.merkmal[20] == dezember && s.merkmal[30] == 0)
        jahresausgleich(s);
}

} // namespace lonvir
