// The wage-tax table viewer (LStrTab): the band of pay from the scroll value, and for it the
// wage tax, surcharge and church tax of the six classes, each computed by the wage-tax routine.
#pragma once

#include "core/currency.h"
#include "core/feld.h"
#include "engine/steuerrecht.h"

#include <array>
#include <cstdint>
#include <string>

namespace lonvir {

inline constexpr const char* lstrtabTitel = "Lohnsteuer-Tabelle 1997";
// The caption for the law the table shows: "Lohnsteuer-Tabelle 1997" or "Lohnsteuer-Tabelle 1998".
[[nodiscard]] std::string lstrtabTitelFuer(Steuerrecht recht);
inline constexpr std::int32_t lstrtabScrollMax = 3900;

// The lists of the form, in list order.
inline constexpr std::array<const char*, 4> lohnzeitraumliste = {
    "für Jahresgehälter", "für Monatsgehälter", "für Wochenlöhne", "für Tagesverdienste"};
inline constexpr std::array<const char*, 2> tabellenliste = {
    "Normale Lohnsteuertabelle (Arb., Ang.)", "Besondere Lohnsteuertabelle (Beamte)"};
inline constexpr std::array<const char*, 2> altersliste = {"64. Lebensj. nicht vollendet",
                                                           "64. Lebensjahr vollendet"};
inline constexpr std::array<const char*, 2> kirchensteuerliste = {"8 % Kirchensteuer",
                                                                  "9 % Kirchensteuer"};
inline constexpr std::array<const char*, 4> tabellenkopf = {"Klasse", "Lohnsteuer", "Soli-Zuschlag",
                                                            "Kirchensteuer"};
inline constexpr std::array<const char*, 6> klassenzeilen = {"I", "II", "III", "IV", "V", "VI"};

// The 15 entries of the child-allowance list: "keine Kinderfreibeträge", "0,5 ...", ... "7,0 ...".
[[nodiscard]] std::string kinderfreibetragseintrag(int position);

// The band of pay, Pfennig.
struct Tabellenband {
    Currency unten;
    Currency oben;
    bool operator==(const Tabellenband&) const = default;
};

// Lower and upper bound of the band for period lohnzeitraum (1 year .. 4 day) and scroll value v.
[[nodiscard]] Tabellenband stufeberechnen(std::int16_t lohnzeitraum, std::int32_t v);

// One class's line: wage tax, surcharge and church tax, Pfennig.
struct Tabellenzeile {
    Currency lohnsteuer;
    Currency solidaritaetszuschlag;
    Currency kirchensteuer;
};

// The form's inputs, as the lists and the scroll bar set them.
struct Tabellenauswahl {
    std::int16_t lohnzeitraum = 1;                   // Combo1: position + 1
    Currency kinderfreibetraege;                     // Combo2: position times 0.5
    std::int16_t besonderetabelle = 0;               // Combo3: position
    std::int16_t altersentlastung = 0;               // Combo4: position
    Currency kirchensteuersatz = Currency::roh(800); // Combo5: 0.08 or 0.09
    std::int32_t scrollwert = 0;                     // HScroll1.Value
    Steuerrecht recht = Steuerrecht::recht1997;      // the law every line is computed with
    bool operator==(const Tabellenauswahl&) const = default;
};

// What the form shows, and what it filled last.
struct Lohnsteuertabelle {
    Tabellenauswahl auswahl;
    Tabellenband band;
    Currency tabellenlohn; // lower bound of the band, Pfennig: the wage of every run
    Feld<Tabellenzeile, 1, 6> zeilen;
    bool gefuellt = false;
    Tabellenauswahl gefuelltMit;
};

// The fill: the band from the scroll value, then the six classes. Returns false and leaves the
// lines as they are when neither the band nor a list changed since the last fill.
bool tabellefuellen(Lohnsteuertabelle& t);

// An amount of Pfennig as DM in "###,###.00": point for thousands, comma for decimals, no
// leading zero (0 shows as ",00").
[[nodiscard]] std::string tabellenbetrag(Currency pfennig);

} // namespace lonvir
