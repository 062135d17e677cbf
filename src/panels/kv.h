// The form KV without its window: the contribution rate of each health-insurance fund for
// each month of the year, kept in records 3 to 26 of the display settings file.
#pragma once

#include "core/feld.h"
#include "panels/hauptbildauftrag.h"
#include "records/kvsatz.h"
#include "start/sitzung.h"

#include <string>
#include <vector>

namespace lonvir {

inline constexpr const char* kvTitel = "Krankenversicherungs-Beitragssätze anpassen";

// A rate in hundredths of a percent as the form shows it: 1340 is "13,4", 2000 is "20".
[[nodiscard]] std::string kvtext(std::int32_t hundertstel);

class KV {
public:
    // Form_Load: the heading of the year, the funds, the month captions, fund 0 shown.
    KV(Sitzung& s, Hauptbildauftrag auftrag);

    Sitzung& s;
    Hauptbildauftrag auftrag;

    // --- the controls
    std::string Label1;
    std::vector<std::string> Combo1;
    int Combo1position = 0;
    Feld<std::string, 0, 11> kvzahl;
    Feld<std::string, 0, 11> SSPanel; // the month captions of SSPanel1 to SSPanel12
    bool geschlossen = false;

    // --- the events
    void combo1_Click(int position);
    void kvzahl_GotFocus(int monat);
    // Returns the key as it goes on into the field, 0 when it is dropped.
    int kvzahl_KeyPress(int monat, int taste);
    void command2_Click() { geschlossen = true; }
    void Form_LostFocus() { geschlossen = true; }

    // The rate of the fund on the list from a record, and into it.
    [[nodiscard]] std::int16_t kv_lesen(const Kvsatz& k) const;
    void kv_zuordnen(Kvsatz& k, std::int16_t wert) const;
};

} // namespace lonvir
