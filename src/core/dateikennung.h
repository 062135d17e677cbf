// What the file system says of a file without reading it: device, inode, length, and the times of
// the last change of its bytes and of its entry. Every write changes the change time, and no
// program can set it back, so a file whose identity is unchanged holds the bytes it held.
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>

namespace lonvir {

struct Dateikennung {
    std::uint64_t geraet = 0;
    std::uint64_t knoten = 0;
    std::int64_t laenge = 0;
    std::int64_t inhaltSekunden = 0, inhaltNanos = 0;   // last change of the bytes
    std::int64_t eintragSekunden = 0, eintragNanos = 0; // last change of the entry (ctime)
    bool operator==(const Dateikennung&) const = default;
};

// The identity of an open file or of a path; none when there is no such file.
[[nodiscard]] std::optional<Dateikennung> dateikennung(int fd);
[[nodiscard]] std::optional<Dateikennung> dateikennung(const std::filesystem::path& pfad);

// Whether the file's entry changed within `spanne` seconds before now (or lies ahead of the
// clock): the file system's clock may tick coarsely, and a second write in the same tick would
// leave such an identity as it is.
[[nodiscard]] bool juengstGeaendert(const Dateikennung& k, double spanne);

} // namespace lonvir
