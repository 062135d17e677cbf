// lohnsteuer: one run of the wage-tax routine with its outputs and working values.
#include "cli/befehle.h"

#include "engine/lohnsteuer.h"

#include <iomanip>
#include <ostream>
#include <utility>
#include <vector>

namespace lonvir::cli {

namespace {

Lohnsteuerlauf eingaben(const Optionen& o) {
    Lohnsteuerlauf l;
    l.re4 = Currency::ganz(o.zahl("re4", -2147483647L - 1, 2147483647L));
    l.lzz = static_cast<std::int16_t>(o.zahl("lzz", 1, 4));
    l.stkl = static_cast<std::int16_t>(o.zahl("stkl", 1, 6));
    l.zkf = halbeSchritte(o, "zkf", true);
    l.alter64 = o.schalter("alter64") ? 1 : 0;
    l.besonders = o.schalter("besonders") ? 1 : 0;
    l.kirche = o.schalter("kirche") ? 1 : 0;
    l.vbez = Currency::ganz(o.zahl("vbez", 0, 2147483647L, 0));
    l.lzzfreib = Currency::ganz(o.zahl("lzzfreib", 0, 2147483647L, 0));
    l.recht = rechtAus(o);
    return l;
}

std::vector<std::pair<const char*, Currency>> werte(const Lohnsteuerlauf& l) {
    return {{"lstlzz", l.lstlzz},
            {"solzlzz", l.solzlzz},
            {"bk", l.bk},
            {"stufeunten", l.stufeunten},
            {"stufeoben", l.stufeoben},
            {"vfb", l.vfb},
            {"alte", l.alte},
            {"zre4", l.zre4},
            {"stufewert", l.stufewert},
            {"stufetop", l.stufetop},
            {"ztabfb", l.ztabfb},
            {"kfb", l.kfb},
            {"vsp1", l.vsp1},
            {"vhb", l.vhb},
            {"vsp", l.vsp},
            {"zve", l.zve},
            {"x", l.x},
            {"st", l.st},
            {"kztab", Currency::ganz(l.kztab)},
            {"stlohn", l.stlohn},
            {"t", l.t},
            {"grenze", l.grenze}};
}

} // namespace

Steuerrecht rechtAus(const Optionen& o) {
    const std::string w = o.wert("recht").value_or("1997");
    if (w == "1997")
        return Steuerrecht::recht1997;
    if (w == "1998")
        return Steuerrecht::recht1998;
    throw Aufruffehler("--recht muss 1997 oder 1998 sein, nicht \"" + w + "\".");
}

Currency halbeSchritte(const Optionen& o, const std::string& name, bool pflicht) {
    if (!o.wert(name)) {
        if (pflicht)
            (void)o.pflicht(name);
        return Currency{};
    }
    const std::string w = *o.wert(name);
    const Aufruffehler fehler(
        "--" + name + " erwartet eine Zahl von 0 bis 7 in Schritten von 0,5, nicht \"" + w + "\".");
    std::size_t i = 0;
    int ganz = 0;
    while (i < w.size() && w[i] >= '0' && w[i] <= '9' && i < 2)
        ganz = ganz * 10 + (w[i++] - '0');
    if (i == 0)
        throw fehler;
    int halbe = ganz * 2;
    if (i < w.size()) {
        const std::string bruch = w.substr(i);
        if (bruch == ",5" || bruch == ".5")
            halbe += 1;
        else if (bruch != ",0" && bruch != ".0")
            throw fehler;
    }
    if (halbe > 14)
        throw fehler;
    return Currency::roh(halbe * 5000);
}

int lohnsteuer(Kontext& k, std::ostream& aus) {
    k.optionen.nurErlaubt({"re4", "lzz", "stkl", "zkf", "alter64", "besonders", "kirche", "vbez",
                           "lzzfreib", "recht"});
    if (k.optionen.wert("kirche"))
        throw Aufruffehler("--kirche steht beim Befehl lohnsteuer allein, ohne Wert.");
    Lohnsteuerlauf l = eingaben(k.optionen);
    lonvir::lohnsteuer(l);
    if (k.json) {
        Json j;
        j.objektAnfang();
        for (const auto& [name, wert] : werte(l))
            j.roh(name, name == std::string("kztab") ? std::to_string(l.kztab) : wert.text());
        j.zahl("recht", static_cast<std::int16_t>(l.recht));
        k.meldungenAnhaengen(j);
        aus << j.objektEnde().ergebnis() << "\n";
        return 0;
    }
    for (const auto& [name, wert] : werte(l))
        aus << std::left << std::setw(12) << name
            << (name == std::string("kztab") ? std::to_string(l.kztab) : wert.text()) << "\n";
    aus << std::left << std::setw(12) << "recht" << steuerrechtjahr(l.recht) << "\n";
    return 0;
}

} // namespace lonvir::cli
