// Compiling the pay tables.
#include "installation/tariftabellen.h"

#include "core/satzdatei.h"
#include "installation/quelltext.h"

#include <array>

namespace lonvir::installation {

std::map<int, Tarifsatz> tariftabellelesen(const std::filesystem::path& quelle) {
    std::map<int, Tarifsatz> saetze;
    for (const Quellzeile& z : tsvlesen(quelle)) {
        if (z.felder.size() != tariffelder)
            quellfehler(quelle, z.zeile,
                        std::to_string(z.felder.size()) + " statt " + std::to_string(tariffelder) +
                            " Felder.");
        const std::int32_t nummer = ganzzahl(z.felder[0], quelle, z.zeile);
        if (nummer < 1 || nummer > tarifsaetze)
            quellfehler(quelle, z.zeile,
                        "Satznummer " + std::to_string(nummer) +
                            " liegt nicht zwischen 1 und 600.");
        Tarifsatz t;
        for (int e = 0; e <= 26; ++e)
            t.wert[e] = pfennig(z.felder[static_cast<std::size_t>(e) + 2], quelle, z.zeile);
        if (!saetze.emplace(nummer, t).second)
            quellfehler(quelle, z.zeile,
                        "Satznummer " + std::to_string(nummer) + " steht doppelt in der Quelle.");
    }
    return saetze;
}

void tariftabelleschreiben(const std::map<int, Tarifsatz>& saetze,
                           const std::filesystem::path& ziel) {
    Satzdatei datei;
    datei.oeffnen(ziel, Tarifsatz::laenge);
    for (int nummer = 1; nummer <= tarifsaetze; ++nummer) {
        Tarifsatz t;
        if (const auto it = saetze.find(nummer); it != saetze.end())
            t = it->second;
        std::array<std::uint8_t, Tarifsatz::laenge> b{};
        t.schreiben(b);
        datei.schreiben(nummer, b);
    }
}

std::string tarifquellname(int jahr, int n) {
    return "lonvir" + std::to_string(jahr % 100) + "_" + std::to_string(n) + ".tsv";
}

std::string tarifdateiname(int jahr, int n) {
    return "Lonvir" + std::to_string(jahr % 100) + "." + std::to_string(n) + "tr";
}

} // namespace lonvir::installation
