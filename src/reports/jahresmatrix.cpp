// Building the annual overview's matrix from the stored month records.
#include "reports/jahresmatrix.h"

#include "start/satzzugriff.h"

namespace lonvir {

namespace {

// The fields of a month in their table order, each as a 64-bit fixed-point addend.
void monatsummieren(Feld<Currency, 1, 13>& monat, const Personalsatz& p) {
    const auto neben = [&](int k, int von, int bis) {
        for (int j = von; j <= bis; ++j)
            monat[k + 1] += Currency::ganz(p.nebenwert[j]);
    };
    const auto zeile = [&](int k, int r) { monat[k + 1] += Currency::ganz(p.wert[r]); };
    const auto kat = [&](int k) { return monat[k + 1]; };

    neben(kategorie::grundbezuege, 7, 10);
    neben(kategorie::zulagen, 11, 16);
    neben(kategorie::einmalzahlung, 17, 19);
    zeile(kategorie::brutto, 22);
    neben(kategorie::agAnteile, 0, 3);
    zeile(kategorie::umlage, 31);
    neben(kategorie::agSteuern, 4, 6);
    zeile(kategorie::agSteuern, 32);
    zeile(kategorie::agSteuern, 6);
    // The employer's cost is summed from the month's categories, not from the fields again.
    monat[kategorie::aufwand + 1] = kat(kategorie::brutto) + kat(kategorie::agAnteile) +
                                    kat(kategorie::umlage) + kat(kategorie::agSteuern);
    zeile(kategorie::steuern, 33);
    zeile(kategorie::steuern, 35);
    zeile(kategorie::kirchensteuer, 36);
    for (int r = 37; r <= 40; ++r)
        zeile(kategorie::sozial, r);
    // The deductions are stored negative: gross plus them is the net pay.
    monat[kategorie::netto + 1] = kat(kategorie::brutto) + kat(kategorie::steuern) +
                                  kat(kategorie::kirchensteuer) + kat(kategorie::sozial);
}

// jahreslauf is set while the matrix is built, and cleared whatever happens.
struct Jahreslauf {
    explicit Jahreslauf(Sitzung& s) : s_(s) { s_.jahreslauf = 1; }
    ~Jahreslauf() { s_.jahreslauf = 0; }
    Jahreslauf(const Jahreslauf&) = delete;
    Jahreslauf& operator=(const Jahreslauf&) = delete;

private:
    Sitzung& s_;
};

} // namespace

Jahresmatrix jahresmatrixbilden(Sitzung& s, std::int16_t jahresperson) {
    // 1.
    const Jahreslauf lauf(s);
    Jahresmatrix m;
    // 2.
    for (int monat = 1; monat <= 12; ++monat)
        monatsummieren(m.zelle[monat], personalsatzlesen(s, monat, jahresperson));
    // 3.
    for (int k = 0; k <= 11; ++k)
        for (int monat = 1; monat <= 12; ++monat)
            m.zelle[13][k + 1] += m.zelle[monat][k + 1];
    // 4. (the guard clears jahreslauf)
    return m;
}

} // namespace lonvir
