// The record types of the file set as JSON, for the satz command.
#pragma once

#include <cstdint>
#include <span>
#include <string>

namespace lonvir::cli {

enum class Satzart { personalsatz, jahressatz, tarifsatz, dimsatz, voeinsatz, textsatz, unbekannt };

// The type of the records of a file, by its name without regard to case.
[[nodiscard]] Satzart satzartVon(const std::string& dateiname);
[[nodiscard]] int satzlaengeVon(Satzart art, long nummer);
[[nodiscard]] std::string satzAlsJson(Satzart art, const std::string& datei, long nummer,
                                      std::span<const std::uint8_t> b);

} // namespace lonvir::cli
