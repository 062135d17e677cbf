// The questions before the year change: what is copied, and whether a 1998 store may go.
#include "start/texte.h"
#include "transfer/jahreswechsel.h"

#include <array>
#include <sys/stat.h>

namespace lonvir {

std::string ueberschreibwarnung(std::time_t zeit) {
    std::tm ortszeit{};
    ::localtime_r(&zeit, &ortszeit);
    std::array<char, 32> datum{};
    std::strftime(datum.data(), datum.size(), "%d.%m.%Y %H:%M:%S", &ortszeit);
    return std::string("Wenn Sie JA wählen, werden bereits vorhandene 1998er Dateien "
                       "überschrieben. Es handelt sich um die am ") +
           datum.data() + " angelegten Dateien. Wollen Sie überschreiben?";
}

namespace {

Knopf fragen(Sitzung& s, const char* titel, const std::string& text, Symbol symbol) {
    if (!s.dialoge)
        return Knopf::nein;
    return s.dialoge->zeigen({titel, text, symbol, Knoepfe::jaNein});
}

} // namespace

bool jahreswechselfragen(Sitzung& s) {
    // 1. The explanation: the texts of the table, each with a line break behind it.
    std::string erklaerung;
    for (int n = jahreswechseltext::ersteErklaerung; n <= jahreswechseltext::letzteErklaerung; ++n)
        erklaerung += textlesen(s, n) + "\n";
    // 2.
    if (fragen(s, "Von 1997 nach 1998", erklaerung, Symbol::ausruf) != Knopf::ja)
        return false;
    // 3. Only layer I's January file is looked at.
    if (s.ordner.laenge("L1998I.1") > 0) {
        struct stat st {};
        const std::time_t zeit =
            ::stat(s.ordner.pfad("L1998I.1").c_str(), &st) == 0 ? st.st_mtime : 0;
        if (fragen(s, "Warnung", ueberschreibwarnung(zeit), Symbol::stop) != Knopf::ja)
            return false;
    }
    return true;
}

} // namespace lonvir
