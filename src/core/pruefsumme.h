// The checksum of the program's own files that guard themselves (the journal, the notes of
// files found sound): FNV-1a over 64 bits.
#pragma once

#include <cstdint>
#include <span>

namespace lonvir {

[[nodiscard]] inline std::uint64_t pruefsumme(std::span<const std::uint8_t> bytes) {
    std::uint64_t h = 1469598103934665603ULL;
    for (std::uint8_t b : bytes) {
        h ^= b;
        h *= 1099511628211ULL;
    }
    return h;
}

} // namespace lonvir
