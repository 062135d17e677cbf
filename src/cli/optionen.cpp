// Parsing the command line.
#include "cli/optionen.h"

#include <algorithm>
#include <set>

namespace lonvir::cli {

namespace {
// Options that stand alone; every other option takes a value.
const std::set<std::string> alleinstehend = {"json",   "ja",    "nein", "alter64",  "besonders",
                                             "beamte", "alter", "leer", "nur-lesen"};
// Commands that take a word behind them: drucken BERICHT.
const std::set<std::string> mitArgument = {"drucken"};
} // namespace

Optionen::Optionen(int argc, char** argv) {
    for (int i = 1; i < argc; ++i) {
        std::string a = argv[i];
        if (a.rfind("--", 0) != 0) {
            if (befehl_.empty())
                befehl_ = a;
            else if (mitArgument.count(befehl_) && argumente_.empty())
                argumente_.push_back(a);
            else
                throw Aufruffehler("Unerwartetes Argument: " + a);
            continue;
        }
        std::string name = a.substr(2);
        if (alleinstehend.count(name)) {
            schalter_[name] = true;
        } else if (name == "kirche" &&
                   (i + 1 >= argc || std::string(argv[i + 1]).rfind("--", 0) == 0)) {
            schalter_[name] = true; // --kirche of the wage-tax run stands alone
        } else {
            if (i + 1 >= argc)
                throw Aufruffehler("Die Option --" + name + " braucht einen Wert.");
            werte_[name] = argv[++i];
        }
    }
    if (befehl_.empty())
        throw Aufruffehler("Kein Befehl angegeben.");
}

bool Optionen::schalter(const std::string& name) const {
    return schalter_.count(name) > 0;
}

std::optional<std::string> Optionen::wert(const std::string& name) const {
    auto it = werte_.find(name);
    if (it == werte_.end())
        return std::nullopt;
    return it->second;
}

std::string Optionen::pflicht(const std::string& name) const {
    auto w = wert(name);
    if (!w)
        throw Aufruffehler("Die Option --" + name + " fehlt.");
    return *w;
}

long Optionen::zahl(const std::string& name, long min, long max) const {
    const std::string w = pflicht(name);
    std::size_t gelesen = 0;
    long z = 0;
    try {
        z = std::stol(w, &gelesen);
    } catch (const std::exception&) {
        gelesen = 0;
    }
    if (gelesen != w.size() || w.empty())
        throw Aufruffehler("--" + name + " erwartet eine ganze Zahl, nicht \"" + w + "\".");
    if (z < min || z > max)
        throw Aufruffehler("--" + name + " muss zwischen " + std::to_string(min) + " und " +
                           std::to_string(max) + " liegen.");
    return z;
}

long Optionen::zahl(const std::string& name, long min, long max, long vorgabe) const {
    return wert(name) ? zahl(name, min, max) : vorgabe;
}

void Optionen::nurErlaubt(const std::vector<std::string>& erlaubt) const {
    static const std::vector<std::string> gemeinsam = {"ordner", "jahr", "schicht", "json",
                                                       "ja",     "nein", "leer"};
    auto bekannt = [&](const std::string& n) {
        return std::find(erlaubt.begin(), erlaubt.end(), n) != erlaubt.end() ||
               std::find(gemeinsam.begin(), gemeinsam.end(), n) != gemeinsam.end();
    };
    for (const auto& [n, w] : werte_)
        if (!bekannt(n))
            throw Aufruffehler("Unbekannte Option --" + n + " für " + befehl_ + ".");
    for (const auto& [n, w] : schalter_)
        if (!bekannt(n))
            throw Aufruffehler("Unbekannte Option --" + n + " für " + befehl_ + ".");
}

} // namespace lonvir::cli
