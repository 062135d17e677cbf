// satz: one record of any file of the set, decoded by its type, as JSON.
#include "cli/befehle.h"

#include "cli/satzjson.h"
#include "core/laufzeitfehler.h"
#include "start/start.h"

#include <ostream>
#include <vector>

namespace lonvir::cli {

int satz(Kontext& k, std::ostream& aus) {
    k.optionen.nurErlaubt({"datei", "nummer"});
    const std::string name = k.optionen.pflicht("datei");
    const long nummer = k.optionen.zahl("nummer", 1, 2147483647);
    const Satzart art = satzartVon(name);
    if (art == Satzart::unbekannt)
        throw Aufruffehler("Die Datei " + name + " gehört nicht zum Dateisatz.");
    // A file that is not there yet is created as the start of the program creates the set;
    // an existing one is only read, so that a read-only folder can be dumped.
    if (!k.s.ordner.vorhanden(name))
        starten(k.s);
    if (!k.s.ordner.vorhanden(name))
        throw Dateifehler(name, "ist nicht vorhanden");
    Satzdatei d;
    d.lesendoeffnen(k.s.ordner.pfad(name), satzlaengeVon(art, nummer));
    std::vector<std::uint8_t> b(static_cast<std::size_t>(d.satzlaenge()));
    d.lesen(static_cast<std::int32_t>(nummer), b);
    aus << satzAlsJson(art, name, nummer, b) << "\n";
    return 0;
}

} // namespace lonvir::cli
