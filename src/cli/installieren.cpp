// installieren: compile the installation sources into the binary files of a working folder.
#include "cli/befehle.h"

#include "installation/installieren.h"

#include <ostream>

namespace lonvir::cli {

int installieren(const Optionen& o, std::ostream& aus) {
    o.nurErlaubt({"quellen", "ziel"});
    const std::filesystem::path quellen = o.pflicht("quellen");
    const std::filesystem::path ziel = o.pflicht("ziel");
    installation::installieren(quellen, ziel);
    aus << "Installationsdaten aus " << quellen.string() << " nach " << ziel.string()
        << " übersetzt.\n";
    return 0;
}

std::filesystem::path mitgelieferteinstallation() {
#ifdef LONVIR_INSTALLATION
    return LONVIR_INSTALLATION;
#else
    return {};
#endif
}

} // namespace lonvir::cli
