// The December equalisation of the employer: the year's tax on the year's wage, less what
// January to November withheld, becomes December's tax; a refund shows as a positive row 33.
#include "engine/monatssteuer.h"

#include "core/pfennig.h"
#include "engine/lohnsteuer.h"
#include "start/satzzugriff.h"

namespace lonvir {

namespace {

struct Jahressummen {
    std::int32_t lohn = 0;     // row 27
    std::int32_t steuer = 0;   // row 33, negative
    std::int32_t zuschlag = 0; // row 35, negative
    std::int32_t kirche = 0;   // row 36, negative
};

Jahressummen januarBisNovember(Sitzung& s) {
    Jahressummen j;
    for (int monat = 0; monat <= 10; ++monat) {
        const auto p = personalsatzbytes(s, monat + 1, s.aktuelleperson);
        j.lohn = pf::plus(j.lohn, Personalsatz::wertLesen(p, 27));
        j.steuer = pf::plus(j.steuer, Personalsatz::wertLesen(p, 33));
        j.zuschlag = pf::plus(j.zuschlag, Personalsatz::wertLesen(p, 35));
        j.kirche = pf::plus(j.kirche, Personalsatz::wertLesen(p, 36));
    }
    return j;
}

// Minus (year's amount plus the negative sum withheld), rounded.
std::int32_t rest(Currency jahresbetrag, std::int32_t einbehalten) {
    return (-(jahresbetrag + Currency::ganz(einbehalten))).gerundetInt32();
}

} // namespace

void jahresausgleich(Sitzung& s) {
    const Jahressummen j = januarBisNovember(s);
    // December's row 27 is still the one the previous run of this month left.
    const std::int32_t jahreslohn = pf::plus(j.lohn, s.wert[27]);

    Lohnsteuerlauf& l = s.lohnsteuerlauf;
    l.lzz = 1; // stays the year for the rest of the run
    l.re4 = Currency::ganz(jahreslohn);
    lohnsteuer(l);

    if (l.lstlzz > Currency::ganz(pf::plus(s.wert[33], j.steuer)))
        s.wert[33] = rest(l.lstlzz, j.steuer);
    if (l.solzlzz > Currency::ganz(pf::plus(s.wert[35], j.zuschlag)))
        s.wert[35] = rest(l.solzlzz, j.zuschlag);
    // Church tax is compared with December's row alone.
    const Currency kirchensteuer = (l.bk * s.kirchensatz).abgeschnitten();
    if (kirchensteuer > Currency::ganz(s.wert[36]))
        s.wert[36] = rest(kirchensteuer, j.kirche);
}

} // namespace lonvir
