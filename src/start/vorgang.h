// One confirmed input as one transaction: the records it writes are stored all together
// through the journal of the working folder, or not at all.
#pragma once

#include "start/sitzung.h"

#include <vector>

namespace lonvir {

// Opens the session's transaction unless one is already open (then the outer one owns the
// store). `abschliessen` stores the writes; leaving the scope without it, for instance through
// a run-time error, forgets them, so that nothing is half stored. In a session opened for
// reading only nothing is ever stored: the writes stay in memory for the screen.
class Vorgang {
public:
    explicit Vorgang(Sitzung& s);
    ~Vorgang();
    Vorgang(const Vorgang&) = delete;
    Vorgang& operator=(const Vorgang&) = delete;

    // Stores every write of the transaction (journal, flush, apply) and ends it. The store
    // writes through the descriptors of the session's file set and of the files `auch` names.
    void abschliessen(const std::vector<const Satzdatei*>& auch = {});
    // Whether this object opened the transaction (and so stores it).
    [[nodiscard]] bool aussen() const { return aussen_; }

private:
    Sitzung& s_;
    bool aussen_;
    bool fertig_ = false;
};

// One user action that reads: what it reads of the session's files is read from each file
// once and kept until the action ends (a Vorgang is such an action as well). Actions nest.
class Lesezeitraum {
public:
    explicit Lesezeitraum(Sitzung& s) : s_(s) { s_.lesepuffer.beginnen(); }
    ~Lesezeitraum() { s_.lesepuffer.beenden(); }
    Lesezeitraum(const Lesezeitraum&) = delete;
    Lesezeitraum& operator=(const Lesezeitraum&) = delete;

private:
    Sitzung& s_;
};

// Runs `arbeit` as one transaction; a run-time error on the way stores nothing and says so.
template <typename Arbeit> void alsVorgang(Sitzung& s, Arbeit&& arbeit);

// A run-time error whose input was not stored: the message gets "Es wurde nichts gespeichert."
[[noreturn]] void nichtsgespeichert(const Vorgang& v);

template <typename Arbeit> void alsVorgang(Sitzung& s, Arbeit&& arbeit) {
    Vorgang v(s);
    try {
        arbeit();
    } catch (...) {
        nichtsgespeichert(v);
    }
    v.abschliessen();
}

} // namespace lonvir
