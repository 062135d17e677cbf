// The totals over the staff: the year's gross pay and employer costs of every person of the
// layer, or of one cost centre, per person and month, in nine cost columns. Read from the
// stored month records; nothing is recalculated.
#pragma once

#include "core/feld.h"
#include "start/sitzung.h"

#include <cstdint>
#include <string>
#include <vector>

namespace lonvir {

// The cost columns by their slot numbers.
namespace slot {
constexpr int beamtenbezuege = 2;
constexpr int angestelltenverguetung = 3;
constexpr int arbeiterloehne = 4;
constexpr int versorgungBeamte = 5;
constexpr int sozialAngestellte = 6;
constexpr int sozialArbeiter = 7;
constexpr int zvkUmlage = 8;
constexpr int agSteuern = 9;
constexpr int gesamt = 10;
} // namespace slot

// What the panel hands over: Combo(0)'s position (0 all staff) and the chosen cost centre.
struct Kostenstellenwahl {
    int position = 0;
    std::string kostenstelle; // UTF-8; empty: all
};

// One person's cells: monatswerte(slot 2..11, month 1..13), month 13 the year.
using Personenwerte = Feld<Feld<std::int32_t, 1, 13>, 2, 11>;

struct Jahressummen {
    std::int16_t bedienstetenzahl = 0;
    std::string kostenstelle; // trimmed
    // Person p at index p - 1; the persons 1 to bedienstetenzahl.
    std::vector<Personenwerte> monatswerte;
    Feld<std::int16_t, 0, 200> personenwahl; // p if person p is selected, else 0
    Feld<std::int32_t, 2, 10> gesamtsummen;
    Feld<Feld<std::int32_t, 2, 10>, 1, 12> monatssummen;

    // The cell of person p, slot k, month m (13 the year); a person outside 1..n is error 9.
    [[nodiscard]] std::int32_t wert(int p, int k, int m) const;
    [[nodiscard]] bool gewaehlt(int p) const { return personenwahl[p] != 0; }
};

// letzterbediensteter: from the person count downward, the first person whose December
// record has a gross pay above 0; 10 if none has.
[[nodiscard]] std::int16_t letzterbediensteter(Sitzung& s);

// jahressummen: every month of persons 1 to bedienstetenzahl that belongs to the choice. A
// person above 200 in the choice raises the run-time error 9; a sum outside 32 bits error 6.
[[nodiscard]] Jahressummen jahressummen(Sitzung& s, const Kostenstellenwahl& wahl);

// tausenderbild: Pfennig as the 14 characters of the printed totals, the free places filled
// with underscores so that a printed column cannot be altered by hand: 5 is
// "___.___.__0,05", 123456 is "___.__1.234,56". A negative amount has "-" in front.
[[nodiscard]] std::string tausenderbild(std::int32_t betrag);

} // namespace lonvir
