// The PDF face as a module of its own, which the command line loads only when a PDF is asked
// for: its other commands start without the graphics libraries. The module has one function.
#pragma once

#include "core/drucker.h"

#include <string>
#include <vector>

namespace lonvir::druck {

// The module's file beside the program, and its function.
inline constexpr const char* pdfmodulname = "liblonvir97-pdf.so";
inline constexpr const char* pdffunktionsname = "lonvir97_pdfbytes";
// The bytes of a PDF of the documents, with `titel` in the document's properties.
using Pdffunktion = void (*)(const std::vector<Druckdokument>& dokumente, const std::string& titel,
                             std::string& pdf);

} // namespace lonvir::druck
