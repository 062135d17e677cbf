// The transaction of a confirmed input over the session's files.
#include "start/vorgang.h"

#include "core/journal.h"
#include "core/laufzeitfehler.h"
#include "start/dateisatz.h"

#include <exception>

namespace lonvir {

Vorgang::Vorgang(Sitzung& s) : s_(s), aussen_(!s.vorgang.aktiv()) {
    if (aussen_)
        s_.vorgang.beginnen();
}

Vorgang::~Vorgang() {
    if (aussen_ && !fertig_ && !s_.nurLesen)
        s_.vorgang.verwerfen();
}

void Vorgang::abschliessen() {
    fertig_ = true;
    // A session for reading only keeps its writes in memory: they are what it shows.
    if (!aussen_ || s_.nurLesen)
        return;
    // A deleted file is gone from the folder once applied: the set opens its new files.
    const bool neuOeffnen = s_.vorgang.loescht();
    try {
        journal::festschreiben(s_.ordner.ordner(), s_.vorgang);
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
