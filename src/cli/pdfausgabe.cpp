// The PDF module is loaded from the folder of the program itself.
#include "cli/pdfausgabe.h"

#include "core/laufzeitfehler.h"
#include "druck/pdfmodul.h"

#include <dlfcn.h>
#include <filesystem>

namespace lonvir::cli {

namespace {

druck::Pdffunktion pdffunktion() {
    const std::filesystem::path pfad =
        std::filesystem::read_symlink("/proc/self/exe").parent_path() / druck::pdfmodulname;
    void* modul = ::dlopen(pfad.c_str(), RTLD_NOW | RTLD_LOCAL);
    if (modul == nullptr)
        throw Dateifehler(pfad.string(), std::string("kann nicht geladen werden (") + ::dlerror() +
                                             "); ohne sie gibt es keine PDF-Ausgabe");
    void* funktion = ::dlsym(modul, druck::pdffunktionsname);
    if (funktion == nullptr)
        throw Dateifehler(pfad.string(),
                          std::string("enthält ") + druck::pdffunktionsname + " nicht");
    return reinterpret_cast<druck::Pdffunktion>(funktion);
}

} // namespace

std::string pdfausgabe(const std::vector<Druckdokument>& dokumente, const std::string& titel) {
    static const druck::Pdffunktion erzeugen = pdffunktion();
    std::string pdf;
    erzeugen(dokumente, titel, pdf);
    return pdf;
}

} // namespace lonvir::cli
