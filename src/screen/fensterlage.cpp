// The main window's own place, told apart from the preset of a new store.
#include "screen/fensterlage.h"

#include "start/einstellungen.h"

namespace lonvir {

namespace {
bool gleichelage(const Dimsatz& a, const Dimsatz& b) {
    return a.form1top == b.form1top && a.form1left == b.form1left &&
           a.form1height == b.form1height && a.form1width == b.form1width;
}
} // namespace

bool eigenefensterlage(const Sitzung& s) {
    if (s.dim.form1width <= Currency::ganz(0) || s.dim.form1height <= Currency::ganz(0))
        return false;
    // The installation compiles its settings for a 1024 by 768 screen, the first start of an
    // empty folder for the screen it runs on.
    const Sitzung vorgabe;
    return !gleichelage(s.dim, dimvorgaben(vorgabe)) && !gleichelage(s.dim, dimvorgaben(s));
}

} // namespace lonvir
