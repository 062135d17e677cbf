// One confirmed input as one transaction: the records it writes are stored all together
// through the journal of the working folder, or not at all.
#pragma once

#include "start/sitzung.h"

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

    // Stores every write of the transaction (journal, flush, apply) and ends it.
    void abschliessen();
    // Whether this object opened the transaction (and so stores it).
    [[nodiscard]] bool aussen() const { return aussen_; }

private:
    Sitzung& s_;
    bool aussen_;
    bool fertig_ = false;
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
