// The text table of the installation: data/texte.tsv (UTF-8) into Texte.txt (code page 1252).
#pragma once

#include <filesystem>
#include <map>
#include <string>

namespace lonvir::installation {

// Record number to text (UTF-8) as the source gives it; a number given twice, a number
// outside 1 to 6000 or a line without a number is an error that names the line.
[[nodiscard]] std::map<int, std::string> texttabellelesen(const std::filesystem::path& quelle);

// Writes every record from 1 to the highest number of the source; numbers the source does
// not name are blank. Each text is cut to 35 characters of code page 1252 and padded.
void texttabelleschreiben(const std::map<int, std::string>& texte,
                          const std::filesystem::path& ziel);

} // namespace lonvir::installation
