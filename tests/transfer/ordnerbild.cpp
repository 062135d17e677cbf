// Pictures of a working folder and a seeded store for the tests of the year change.
#include "ordnerbild.h"

#include "records/personalsatz.h"
#include "start/start.h"

#include <array>
#include <fstream>
#include <iterator>

namespace lonvir::test {

namespace fs = std::filesystem;

Ordnerbild ordnerbild(const fs::path& ordner) {
    Ordnerbild bild;
    for (const auto& eintrag : fs::recursive_directory_iterator(ordner)) {
        if (!eintrag.is_regular_file())
            continue;
        std::ifstream ein(eintrag.path(), std::ios::binary);
        bild[fs::relative(eintrag.path(), ordner).string()] = {std::istreambuf_iterator<char>(ein),
                                                               std::istreambuf_iterator<char>()};
    }
    return bild;
}

std::string unterschied(const Ordnerbild& a, const Ordnerbild& b) {
    std::string namen;
    const auto merken = [&](const std::string& name, const char* wie) {
        namen += (namen.empty() ? "" : ", ") + name + wie;
    };
    for (const auto& [name, inhalt] : a) {
        const auto it = b.find(name);
        if (it == b.end())
            merken(name, " (nur links)");
        else if (it->second != inhalt)
            merken(name, (" (" + std::to_string(inhalt.size()) + " / " +
                          std::to_string(it->second.size()) + " Bytes)")
                             .c_str());
    }
    for (const auto& [name, inhalt] : b)
        if (!a.count(name))
            merken(name, " (nur rechts)");
    return namen;
}

Ordnerbild teilbild(const Ordnerbild& bild, const std::string& anfang) {
    Ordnerbild teil;
    for (const auto& [name, inhalt] : bild)
        if (name.rfind(anfang, 0) == 0)
            teil[name] = inhalt;
    return teil;
}

Bestand::Bestand() {
    s.ordner = Arbeitsordner(ordner.pfad());
    s.installation = LONVIR_INSTALLATION;
    s.dialoge = &dialoge;
    starten(s);
}

void dezembersetzen(Sitzung& s, int schicht, int nummer, std::int32_t brutto) {
    Satzdatei d;
    d.oeffnen(s.ordner.pfad(std::string("L1997") + "IPR"[schicht] + ".12"), Personalsatz::laenge);
    std::array<std::uint8_t, Personalsatz::laenge> b{};
    d.lesen(nummer, b);
    Personalsatz p = Personalsatz::lesen(b);
    p.wert[22] = brutto;
    p.schreiben(b);
    d.schreiben(nummer, b);
}

} // namespace lonvir::test
