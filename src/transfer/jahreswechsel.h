// The year change 1997 > 1998: the questions of the menu entry, and the copy of December 1997
// into every month of 1998 in the three layers with the year records, settings and tariff
// tables, done as a whole or not at all.
#pragma once

#include "core/feld.h"
#include "start/sitzung.h"

#include <cstdint>
#include <ctime>
#include <string>

namespace lonvir {

// Where the copy stands: the page's labels and the command line's progress follow it.
struct Jahreswechselstand {
    enum class Abschnitt { monate, jahressaetze, einstellungen, tarife, vollziehen };
    Abschnitt abschnitt = Abschnitt::monate;
    std::int16_t schicht = INFO;
    std::int32_t personen = 0;     // records of December 1997 in the layer
    std::int32_t person = 0;       // the last person whose twelve months are written
    std::int32_t jahressaetze = 0; // records of the year file 1997 in the layer
    std::int32_t jahressatz = 0;   // the last one written
};

// Told after every person and every year record; the window serves its events here.
class Jahreswechselfortschritt {
public:
    virtual ~Jahreswechselfortschritt() = default;
    virtual void melden(const Jahreswechselstand& stand) = 0;
};

namespace jahreswechseltext {
constexpr int ersteErklaerung = 3951;
constexpr int letzteErklaerung = 3962;
constexpr int ersteSeitenzeile = 3965;
constexpr int letzteSeitenzeile = 3969;
} // namespace jahreswechseltext

// The records of the 1997 table that become the start of each 1998 table.
inline constexpr int tarifsaetzeJahreswechsel = 600;

// `jahreswechsel` up to the page: the explanation of text records 3951 to 3962 under "Von
// 1997 nach 1998", then, when the layer-I January file of 1998 is not empty, the "Warnung"
// with that file's date. True when both were answered Yes.
[[nodiscard]] bool jahreswechselfragen(Sitzung& s);

// The warning's text for files written at `zeit`, shown in local time as "23.11.2026 12:15:08".
[[nodiscard]] std::string ueberschreibwarnung(std::time_t zeit);

struct Jahresuebertrag {
    bool erfolgreich = false;
    Feld<std::int32_t, 0, 2> personen;     // December records copied, per layer
    Feld<std::int32_t, 0, 2> jahressaetze; // year records copied, per layer
};

// The copy of `jahresuebertrag`: closes the working files, writes the 1998 files of the three
// layers, the layer-lettered settings files and the four 1998 tariff tables under temporary
// names, puts them in place together and reopens the working set. What fails (a full disk, a
// file that cannot be written) is told in a German message box and leaves every file as it
// was. On success the 1998 menu entries are usable.
Jahresuebertrag jahrkopieren(Sitzung& s, Jahreswechselfortschritt* fortschritt);

} // namespace lonvir
