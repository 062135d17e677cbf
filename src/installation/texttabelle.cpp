// Compiling the text table.
#include "installation/texttabelle.h"

#include "core/cp1252.h"
#include "core/satzdatei.h"
#include "installation/quelltext.h"
#include "records/bytes.h"
#include "records/textsatz.h"

#include <array>

namespace lonvir::installation {

std::map<int, std::string> texttabellelesen(const std::filesystem::path& quelle) {
    std::map<int, std::string> texte;
    for (const Quellzeile& z : tsvlesen(quelle)) {
        const std::int32_t nummer = ganzzahl(z.felder[0], quelle, z.zeile);
        if (nummer < 1 || nummer > 6000)
            quellfehler(quelle, z.zeile,
                        "Textnummer " + std::to_string(nummer) +
                            " liegt nicht zwischen 1 und 6000.");
        if (z.felder.size() > 2)
            quellfehler(quelle, z.zeile, "Mehr als ein Tabulator in der Zeile.");
        const std::string text = z.felder.size() > 1 ? z.felder[1] : std::string();
        if (!texte.emplace(nummer, text).second)
            quellfehler(quelle, z.zeile,
                        "Textnummer " + std::to_string(nummer) + " steht doppelt in der Quelle.");
    }
    return texte;
}

void texttabelleschreiben(const std::map<int, std::string>& texte,
                          const std::filesystem::path& ziel) {
    Satzdatei datei;
    datei.oeffnen(ziel, Textsatz::laenge);
    const int letzte = texte.empty() ? 0 : texte.rbegin()->first;
    for (int nummer = 1; nummer <= letzte; ++nummer) {
        Textsatz t;
        if (const auto it = texte.find(nummer); it != texte.end())
            t.text = bytes::fest(utf8NachCp1252(it->second), Textsatz::laenge);
        std::array<std::uint8_t, Textsatz::laenge> b{};
        t.schreiben(b);
        datei.schreiben(nummer, b);
    }
}

} // namespace lonvir::installation
