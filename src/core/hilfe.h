// Help as a platform interface: the core names a help context, the face opens the topic.
#pragma once

#include <vector>

namespace lonvir {

class Hilfe {
public:
    virtual ~Hilfe() = default;
    // The key F1 with help context `kontext`.
    virtual void zeigen(int kontext) = 0;
};

// Records every context asked for; the tests and the command line use it.
class MerkHilfe : public Hilfe {
public:
    void zeigen(int kontext) override { kontexte.push_back(kontext); }
    std::vector<int> kontexte;
};

} // namespace lonvir
