// A main form without a window that counts what the navigation asked of it.
#pragma once

#include "screen/hauptform.h"

namespace lonvir::test {

struct Zaehlform : Kernform {
    explicit Zaehlform(Sitzung& s) : Kernform(s) {}
    void bildauffrischen() override {
        ++auffrischungen;
        Kernform::bildauffrischen();
    }
    void entladen() override {
        ++entladungen;
        Kernform::entladen();
    }
    void laden() override {
        ++ladungen;
        Kernform::laden();
    }
    int auffrischungen = 0;
    int entladungen = 0;
    int ladungen = 0;
};

} // namespace lonvir::test
