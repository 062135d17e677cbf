// The wage-tax routine of 1997/1998: wage tax, solidarity surcharge and church-tax base of one
// wage in one period, computed by steps of 54 DM of yearly wage as the printed tables do, with
// the tariff and surcharge of the law the run names (the law of 1997 unless said otherwise).
#pragma once

#include "core/currency.h"
#include "engine/steuerrecht.h"

#include <cstdint>

namespace lonvir {

// Inputs, outputs and every working value of one run. The inputs survive a run; everything
// else is cleared at its start, so after a run the working values are those of the last step.
struct Lohnsteuerlauf {
    // --- inputs
    Currency re4;               // wage of the period, Pfennig
    std::int16_t lzz = 2;       // period: 1 year, 2 month, 3 week, 4 day
    std::int16_t stkl = 1;      // tax class 1 to 6
    Currency zkf;               // child allowances, in steps of 0.5
    std::int16_t alter64 = 0;   // 1 once the 64th year of life is complete
    Currency vbez;              // pensions within re4, Pfennig
    Currency lzzfreib;          // allowance of the period, Pfennig
    std::int16_t besonders = 0; // 1: the special table for civil servants
    std::int16_t kirche = 0;    // above 0 if church tax applies
    // The law whose tariff and surcharge the run takes.
    Steuerrecht recht = Steuerrecht::recht1997;

    // --- outputs, Pfennig
    Currency lstlzz;     // wage tax of the period, cut to whole Pfennig
    Currency solzlzz;    // solidarity surcharge of the period
    Currency bk;         // tax of the period that is the base of church tax
    Currency stufeunten; // lower wage of the table step, for the period
    Currency stufeoben;  // upper wage of the table step, for the period

    // --- working values, DM unless said otherwise
    Currency vfb;           // pension allowance of the period, Pfennig
    Currency alte;          // age allowance of the period, Pfennig
    Currency zre4;          // yearly wage
    Currency stufewert;     // bottom of its table step
    Currency stufetop;      // top of its table step
    Currency ztabfb;        // table allowances (with kfb after the second run)
    Currency kfb;           // child allowances
    Currency vsp1;          // 20 % of stufetop
    Currency vhb;           // first limit of the Vorsorgepauschale, after the 16 % cut
    Currency vsp;           // Vorsorgepauschale
    Currency zve;           // taxable income
    Currency x;             // taxable income on the table grid
    Currency st;            // tariff tax
    std::int16_t kztab = 0; // 1, or 2 for the splitting of class 3
    Currency stlohn;        // tariff tax without child allowances: the wage tax of the year
    Currency t;             // tariff tax after child allowances: base of surcharge and church tax
    Currency grenze;        // threshold of the surcharge
};

// A row of the class table: splitting factor and the allowances of a year, DM.
struct Klassenzeile {
    std::int16_t kztab;
    std::int64_t arbeitnehmerpauschbetrag;
    std::int64_t sonderausgabenpauschbetrag;
    std::int64_t haushaltsfreibetrag;
    std::int64_t kinderfreibetrag; // per child allowance counted in zkf
    std::int64_t sonstiges;
};
// The row of tax class `stkl` (1 to 6); another class is run-time error 9.
[[nodiscard]] const Klassenzeile& klassenzeile(std::int16_t stkl);

// One run: reads the inputs, sets outputs and working values.
void lohnsteuer(Lohnsteuerlauf& l);

// A yearly amount w (Pfennig) as an amount of the period lzz, cut down to whole Pfennig.
[[nodiscard]] Currency anteilab(Currency w, std::int16_t lzz);
// The same, rounded up to the next whole Pfennig when at least 0.01 Pfennig is left.
[[nodiscard]] Currency anteilauf(Currency w, std::int16_t lzz);

} // namespace lonvir
