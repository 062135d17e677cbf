// The allowances display: how one line of the wage-tax table goes from the wage to the
// taxable income, nine rows of text and DM.
#pragma once

#include "core/currency.h"

#include <array>
#include <cstdint>
#include <string>

namespace lonvir {

inline constexpr const char* freibetraegeTitel = "Freibeträge";
inline constexpr std::array<const char*, 9> freibetragszeilen = {
    "Steuerpfl. Gehalt /Lohn", "- Altersentlastungsbetrag", "- Arbeitnehmerpauschbetrag",
    "- Versorgungsfreibetrag", "- Haushaltsfreibetrag",     "- Kinderfreibeträge",
    "- Vorsorgepauschale",     "- Sonderausg.Pauschbetr.",  "= Zu versteuerndes Eink."};

struct Freibetraege {
    std::array<Currency, 9> dm{}; // each row's amount in DM
    // The second column as the grid shows it: DM with two decimals, "5.616,00".
    [[nodiscard]] std::string text(std::size_t zeile) const;
};

// What the table form hands to the display for a year-table line: the wage is the line's
// scroll value times 54 DM, the run a year run of class `steuerklasse` with the child
// allowances, age relief and table of the form.
struct Freibetragsauswahl {
    std::int32_t scrollwert = 0;
    std::int16_t steuerklasse = 1;
    Currency kinderfreibetraege;
    std::int16_t altersentlastung = 0;
    std::int16_t besonderetabelle = 0;
};

// Runs the wage-tax routine and reads its working values. The child allowances stay at 0 in
// the grid; a taxable income below 0 shows as 0.
[[nodiscard]] Freibetraege freibetraegeberechnen(const Freibetragsauswahl& a);

} // namespace lonvir
