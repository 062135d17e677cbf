// The totals form Form2 without its window: the staff's year costs of the layer or of one
// cost centre in a grid, the salary list and the monthly overview on paper.
#pragma once

#include "core/drucker.h"
#include "reports/gitter.h"
#include "reports/jahressummen.h"
#include "start/sitzung.h"

#include <array>
#include <optional>
#include <string>

namespace lonvir {

// Headings of the nine cost columns, slots 2 to 10: in the grid, and on paper on two lines.
inline constexpr std::array<const char*, 9> spaltenkoepfe = {
    "Beamtenbezüge",   "Angestelltenverg.", "   Arbeiterlöhne",
    "Uml.Beamt.Vers.", "Angest.Soz.Vers.",  "Arbeiter-Soz.V.",
    "   ZVK-Umlage",   "  Steuern d.AG",    "Gesamtaufwand"};
inline constexpr std::array<const char*, 9> druckkoepfe1 = {
    "      Beamten-", " Angestellten-", "     Arbeiter-", "    Versorgung", "     Soz.Vers.",
    "     Soz.Vers.", "          ZVK-", "   Übernommene", "       Gesamt-"};
inline constexpr std::array<const char*, 9> druckkoepfe2 = {
    "        bezüge", "   vergütungen", "         löhne", "        Beamte", "   Angestellte",
    "      Arbeiter", "        Umlage", "       Steuern", "       aufwand"};
// The tabs of the nine columns on paper.
inline constexpr std::array<int, 9> drucktabs = {22, 38, 54, 70, 86, 102, 118, 134, 150};

class Form2 {
public:
    Form2(Sitzung& s, Kostenstellenwahl wahl);

    Sitzung& s;
    Kostenstellenwahl wahl;

    std::string caption;
    Gitter Grid1;
    std::string Command1 = "Gehälterliste drucken";
    std::string Command2 = "Monatsübersicht drucken";
    std::string Command3 = "Schließen";
    bool sichtbar = false;
    Jahressummen summen;

    // Caption, jahressummen, the grid: a row per chosen person, the totals, the months.
    void Form_Load();
    // A click on a person's row: that person for the annual overview, this form hidden.
    // Returns the person; other rows give none.
    std::optional<std::int16_t> Grid1_Click(int zeile);
    void Command1_Click(Drucker& d) const;
    void Command2_Click(Drucker& d) const;
    void Command3_Click() { sichtbar = false; }

    // The grid row of the totals ("GESAMTSUMME 1997"); the twelve months follow "davon".
    [[nodiscard]] int summenzeile() const { return summenzeile_; }

private:
    int summenzeile_ = 1;
};

// The two printed lists of the totals.
void gehaelterlistedrucken(Sitzung& s, const Jahressummen& j, Drucker& d);
void monatsuebersichtdrucken(Sitzung& s, const Jahressummen& j, Drucker& d);

// The month names of the monthly overview.
inline constexpr std::array<const char*, 12> monatsnamen = {
    "Januar", "Februar", "März",      "April",   "Mai",      "Juni",
    "Juli",   "August",  "September", "Oktober", "November", "Dezember"};

} // namespace lonvir
