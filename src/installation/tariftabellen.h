// The pay tables of the installation: data/tarife/lonvirJJ_N.tsv into LonvirJJ.Ntr.
#pragma once

#include "records/tarifsatz.h"

#include <filesystem>
#include <map>
#include <string>

namespace lonvir::installation {

// The records of one tariff file by record number (1 to 600). A source line is: record
// number, the group's name, the 27 amounts in DM (steps 1 to 15, Ortszuschlag basic amount,
// married, one to six children, accommodation II and Ic, Allgemeine Stellenzulage, overtime
// rate; an empty field is 0) and the key of its source in QUELLEN.md.
[[nodiscard]] std::map<int, Tarifsatz> tariftabellelesen(const std::filesystem::path& quelle);

// Writes records 1 to 600, the West half and the Ost half; records the source does not
// name are zero.
void tariftabelleschreiben(const std::map<int, Tarifsatz>& saetze,
                           const std::filesystem::path& ziel);

// The source and the target name of file n (1 to 4) of year 1997 or 1998.
[[nodiscard]] std::string tarifquellname(int jahr, int n);
[[nodiscard]] std::string tarifdateiname(int jahr, int n);

constexpr int tarifsaetze = 600;
constexpr int tariffelder = 30;

} // namespace lonvir::installation
