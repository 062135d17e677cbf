// The counter of the injected write failure; once the disk is "full" it stays full.
#include "core/schreibstoerung.h"

#include <atomic>

namespace lonvir::schreibstoerung {

namespace {
std::atomic<long> verbleibend{0};
std::atomic<bool> voll{false};
} // namespace

void einstellen(long n) {
    verbleibend = n;
    voll = false;
}

bool trifft() {
    if (voll)
        return true;
    if (verbleibend <= 0)
        return false;
    if (--verbleibend == 0)
        voll = true;
    return voll;
}

} // namespace lonvir::schreibstoerung
