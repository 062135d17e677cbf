// The transaction of a confirmed input over the session's files.
#include "start/vorgang.h"

#include "core/journal.h"
#include "core/laufzeitfehler.h"
#include "start/dateisatz.h"

#include <exception>
#include <map>
#include <string>

namespace lonvir {

namespace {
// The descriptors the store may write through, by file name.
std::map<std::string, int> offeneDateien(Sitzung& s, const std::vector<const Satzdatei*>& auch) {
    std::map<std::string, int> offen;
    auto eintragen = [&offen](const Satzdatei& d) {
        if (d.deskriptor() >= 0)
            offen.emplace(d.pfad().filename().string(), d.deskriptor());
    };
    for (const Satzdatei& d : s.dateien)
        eintragen(d);
    for (const Satzdatei* d : auch)
        eintragen(*d);
    return offen;
}
} // namespace

Vorgang::Vorgang(Sitzung& s) : s_(s), aussen_(!s.vorgang.aktiv()) {
    s_.lesepuffer.beginnen();
    if (aussen_)
        s_.vorgang.beginnen();
}

Vorgang::~Vorgang() {
    if (aussen_ && !fertig_ && !s_.nurLesen)
        s_.vorgang.verwerfen();
    s_.lesepuffer.beenden();
}

void Vorgang::abschliessen(const std::vector<const Satzdatei*>& auch) {
    fertig_ = true;
    // A session for reading only keeps its writes in memory: they are what it shows.
    if (!aussen_ || s_.nurLesen)
        return;
    // A deleted file is gone from the folder once applied: the set opens its new files.
    const bool neuOeffnen = s_.vorgang.loescht();
    // The files change now: what the action has read of them is old.
    s_.lesepuffer.allesvergessen();
    try {
        journal::festschreiben(s_.ordner.ordner(), s_.vorgang, offeneDateien(s_, auch));
    } catch (...) {
        s_.vorgang.verwerfen();
        if (neuOeffnen)
            dateienoeffnen(s_);
        throw;
    }
    s_.vorgang.verwerfen();
    if (neuOeffnen)
        dateienoeffnen(s_);
}

void nichtsgespeichert(const Vorgang& v) {
    try {
        throw;
    } catch (const Laufzeitfehler& f) {
        if (!v.aussen())
            throw;
        throw Laufzeitfehler(f.nummer(), f.text() + ". Es wurde nichts gespeichert.");
    }
}

} // namespace lonvir
