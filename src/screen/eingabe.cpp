// The confirmed inputs through a main screen without a window.
#include "screen/eingabe.h"

#include "screen/form1.h"

namespace lonvir {

void betragbestaetigen(Sitzung& s, int zeile, std::int32_t pfennig) {
    Form1 f(s);
    f.spiegeln();
    f.betragtippen(zeile, pfennig);
}

void bdabestaetigen(Sitzung& s, const std::string& text) {
    Form1 f(s);
    f.spiegeln();
    f.bdatippen(text);
}

} // namespace lonvir
