// A PDF of printed documents through the PDF module beside the program.
#pragma once

#include "core/drucker.h"

#include <string>
#include <vector>

namespace lonvir::cli {

// Loads the module at its first use; a missing module is a file error that names it.
[[nodiscard]] std::string pdfausgabe(const std::vector<Druckdokument>& dokumente,
                                     const std::string& titel);

} // namespace lonvir::cli
