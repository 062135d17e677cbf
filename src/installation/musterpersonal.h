// The sample staff of the installation: a few persons fully set up in layer INFO of 1997.
#pragma once

#include "records/personalsatz.h"
#include "start/sitzung.h"

#include <filesystem>
#include <map>
#include <string>

namespace lonvir::installation {

struct Musterperson {
    std::string name;                  // UTF-8
    std::map<int, Personalsatz> monat; // month index 0..11 -> the record before its run
};

// data/personal/muster1997.tsv: person, field, index, value, explanation. The field is
// name, bdabeginn (index "-"), merkmal (1 to 45), wert (0 to 45), nebenwert (0 to 25) or a
// switch lst, soz, zvk, wei, tei, bru (7 to 19). A value holds for all twelve months, unless
// the index is written "element@month", e.g. "19@11" for December only. Every other field
// keeps the default of a new record.
[[nodiscard]] std::map<int, Musterperson> musterpersonallesen(const std::filesystem::path& quelle);

// Writes the persons' twelve months into the open INFO set of 1997, then runs each month as
// the screen's refresh does, so the stored records hold the results.
void musterpersonaleinsetzen(Sitzung& s, const std::map<int, Musterperson>& personal);

} // namespace lonvir::installation
