// A fuzz target: one function over arbitrary bytes. Built for libFuzzer (LONVIR_LIBFUZZER) the
// file defines LLVMFuzzerTestOneInput; in the ordinary build every target registers itself
// with the regression driver, which runs the seed corpus and the crash inputs found so far.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

namespace lonvir::fuzz {

using Ziel = void (*)(std::span<const std::uint8_t>);
bool anmelden(const char* name, Ziel ziel);
// A finding: the process ends as a crash would, so that libFuzzer keeps the input.
[[noreturn]] void befund(const char* was);

} // namespace lonvir::fuzz

#ifdef LONVIR_LIBFUZZER
#define LONVIR_FUZZZIEL(name)                                                                      \
    static void name##_ziel(std::span<const std::uint8_t>);                                        \
    extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* d, std::size_t n) {                  \
        name##_ziel({d, n});                                                                       \
        return 0;                                                                                  \
    }                                                                                              \
    static void name##_ziel(std::span<const std::uint8_t> daten)
#else
#define LONVIR_FUZZZIEL(name)                                                                      \
    static void name##_ziel(std::span<const std::uint8_t>);                                        \
    [[maybe_unused]] static const bool name##_angemeldet =                                         \
        ::lonvir::fuzz::anmelden(#name, name##_ziel);                                              \
    static void name##_ziel(std::span<const std::uint8_t> daten)
#endif
