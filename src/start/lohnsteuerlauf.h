// The inputs, outputs and working values of one run of the wage-tax routine: part of the
// working state, which keeps the last run for the table viewer and the tax page.
#pragma once

#include "core/currency.h"

#include <cstdint>

namespace lonvir {

// The tax law a run follows: the income-tax tariff and the solidarity surcharge of 1996/1997,
// or those of 1998.
enum class Steuerrecht : std::int16_t { recht1997 = 1997, recht1998 = 1998 };

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

} // namespace lonvir
