// The two helpers of the targets in a libFuzzer program: findings abort, so that libFuzzer keeps
// the input as a crash.
#include "fuzzziel.h"

#include <cstdio>
#include <cstdlib>

namespace lonvir::fuzz {

bool anmelden(const char*, Ziel) {
    return true;
}

void befund(const char* was) {
    std::fprintf(stderr, "Befund: %s\n", was);
    std::abort();
}

} // namespace lonvir::fuzz
