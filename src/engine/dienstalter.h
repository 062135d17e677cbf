// The service-age worksheet's rules: calendar dates with the arithmetic of whole years,
// months and days, the final step of a pay group, the step on 1.1.1996, and the working values
// of the worksheet that the page fills and the printed sheet reads.
#pragma once

#include "start/sitzung.h"

#include <stdexcept>
#include <string>

namespace lonvir {

// A date that the date arithmetic cannot read ("31.02.1960", month 13, day 0).
struct Datumfehler : std::runtime_error {
    using std::runtime_error::runtime_error;
};

struct Datum {
    int tag = 1;
    int monat = 1;
    int jahr = 1900;
    bool operator==(const Datum&) const = default;
};

// "TT.MM.JJJJ" or "TT/MM/JJJJ"; a year of three or four digits from 100 on. Throws Datumfehler.
[[nodiscard]] Datum datumlesen(const std::string& text);
// "TT.MM.JJJJ".
[[nodiscard]] std::string datumtext(const Datum& d);
// Whole years and months added; a day past the end of the month becomes its last day.
[[nodiscard]] Datum jahredazu(const Datum& d, int jahre);
[[nodiscard]] Datum monatedazu(const Datum& d, int monate);
[[nodiscard]] Datum tagedazu(const Datum& d, int tage);
// Month boundaries between two dates (the days do not count), year boundaries, days.
[[nodiscard]] int monatsabstand(const Datum& von, const Datum& bis);
[[nodiscard]] int jahresabstand(const Datum& von, const Datum& bis);
[[nodiscard]] long tagesabstand(const Datum& von, const Datum& bis);

// The worksheet's staff group: the staff class, with the Ost twelve behind the West. BAT of
// Bund/Länder and VKA is group 5; the other tariffs are group 6; "ohne" is 24.
[[nodiscard]] int dienstaltergruppe(const Sitzung& s);
// The pay group within it (the list position of the group row).
[[nodiscard]] int dienstalterbesoldungsgruppe(const Sitzung& s);

// The final service-age step of Besoldungsordnung A (group 0, 12) and C (2, 14); 0 where there
// is no cap.
[[nodiscard]] int endstufe(int gruppe, int besoldungsgruppe);
// The final age step of a BAT pay group; `vorher` for the groups the table does not name.
[[nodiscard]] int batendstufe(int verguetungsgruppe, int vorher);
// The step on 1.1.1996 from the months m between the start and that day: the whole-number
// part of m / 24, plus 1, and at least 1.
[[nodiscard]] int stufe1996(int monate);

// The working values of the worksheet, named by what they hold.
struct Dienstalterwerte {
    std::string geburtstag; // as keyed, with "/" for the dots
    Datum geburt;           //
    Datum fruehesterbeginn; // Beamte: first of the birth month of the 21st birthday
    int viertel = 0;        // months of the first period, a quarter of them, truncated
    int haelfte = 0;        // months of the second period, half of them, truncated
    int monate = 0;         // the two together: the start is put back by so many months
    int stufe = 0;          // the step on 1.1.1996
    int endstufe = 0;       // the final step of the group, for the print
    Datum bdabeginn;        // the start of the service age
    bool berechnet = false; // the start and the step are worked out
    // The age step of the BAT.
    Datum stufenbeginn;    // the start of the step age
    int anfangsalter = 0;  // 21 or 23, later the age on entry (halved difference)
    int grenzalter = 0;    // 31 or 35
    Datum grenzmonat;      // the month in which the age limit is reached
    Datum grenzmonatsende; // its last day
    Datum dienstseit;      // "Dienst seit ..."
};

} // namespace lonvir

namespace lonvir {

// What the printed service-age sheet takes from the worksheet: its texts as they stand on the
// page, and the numbers behind them.
struct Dienstalterblatt {
    std::string name;         // the person, trimmed
    std::string gruppentext;  // the pay group as the main screen shows it
    int gruppe = 0;           // dienstaltergruppe
    int besoldungsgruppe = 0; // dienstalterbesoldungsgruppe
    std::string geburtstag;   // "TT.MM.JJJJ"
    std::string fruehester;   // earliest start
    std::string vollendung31; // the 31st birthday
    std::string vollendung35; // the day before the 35th (Bes.Ordn. C: 40th) birthday
    std::string ab35;         // the 35th (40th) birthday, the start of the second period
    int viertel = 0;          // months the first period puts the start back
    int haelfte = 0;          // months the second period puts it back
    std::string bdabeginn;    // the start of the service age
    Datum beginn;             // the same as a date
    bool berechnet = false;
    int endstufe = 0;
};

} // namespace lonvir
