// The reads of one user action: what the files held on disk, kept while the action runs, so that
// a record the action needs again (an earlier month for the yearly sums, the tariff line of
// every month, the name of a list entry) is read from the file once. Every write to a file
// forgets what was kept of it; the end of the outermost action forgets everything, so that the
// next action reads the files afresh.
#pragma once

#include <cstdint>
#include <map>
#include <span>
#include <string>
#include <unordered_map>
#include <vector>

namespace lonvir {

class Lesepuffer {
public:
    [[nodiscard]] bool aktiv() const { return tiefe_ > 0; }
    // An action begins; actions nest, and only the end of the outermost forgets.
    void beginnen() { ++tiefe_; }
    void beenden();

    // Fills `satz` with the bytes of `pfad` from `versatz` on, from what was kept, or reads them
    // from `fd` (-1: the file does not exist and reads as zeros) and keeps them. With `ganz` the
    // whole file is read at its first use. False when the file cannot be read.
    [[nodiscard]] bool lesen(const std::string& pfad, int fd, bool ganz, std::int64_t versatz,
                             std::span<std::uint8_t> satz);
    // The file has changed: what was kept of it is gone.
    void vergessen(const std::string& pfad) { dateien_.erase(pfad); }
    void allesvergessen() { dateien_.clear(); }

private:
    struct Datei {
        bool ganz = false;
        std::vector<std::uint8_t> inhalt;                         // the whole file
        std::map<std::int64_t, std::vector<std::uint8_t>> saetze; // offset -> bytes
    };
    int tiefe_ = 0;
    std::unordered_map<std::string, Datei> dateien_;
};

// Reads the bytes from `ab` on into `satz`; past the end of the file they are zeros. False when
// the read fails.
[[nodiscard]] bool vollLesen(int fd, std::int64_t ab, std::span<std::uint8_t> satz);

} // namespace lonvir
