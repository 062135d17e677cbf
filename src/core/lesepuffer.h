// The reads of one user action: what the files held on disk, kept while the action runs, so that
// a record the action needs again (an earlier month for the yearly sums, the tariff line of
// every month, the name of a list entry) is read from the file once. Every write to a file
// forgets what was kept of it; the end of the outermost action forgets everything, so that the
// next action reads the files afresh. A file read whole (the text table) is the exception: it
// is kept with the file's identity and serves a later action as long as the identity is the
// same, for an unchanged identity means unchanged bytes.
#pragma once

#include "core/dateikennung.h"

#include <cstdint>
#include <map>
#include <optional>
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
    void beenden() {
        if (tiefe_ > 0 && --tiefe_ == 0)
            allesvergessen();
    }

    // Fills `satz` with the bytes of `pfad` from `versatz` on, from what was kept, or reads them
    // from `fd` (-1: the file does not exist and reads as zeros) and keeps them. With `ganz` the
    // whole file is read at its first use. False when the file cannot be read.
    [[nodiscard]] bool lesen(const std::string& pfad, int fd, bool ganz, std::int64_t versatz,
                             std::span<std::uint8_t> satz);
    // The file has changed: what was kept of it is gone.
    void vergessen(const std::string& pfad) { dateien_.erase(pfad); }
    // Forgets what was read; a file read whole is only to be confirmed at its next use.
    void allesvergessen();

private:
    struct Datei;
    bool ganzlesen(Datei& d, int fd);

    struct Datei {
        bool ganz = false;
        bool bestaetigt = false; // the whole file was read, or found unchanged, in this action
        std::optional<Dateikennung> kennung; // of the whole file when it was read
        std::vector<std::uint8_t> inhalt;    // the whole file
        std::map<std::int64_t, std::vector<std::uint8_t>> saetze; // offset -> bytes
    };
    int tiefe_ = 0;
    std::unordered_map<std::string, Datei> dateien_;
};

// Reads the bytes from `ab` on into `satz`; past the end of the file they are zeros. False when
// the read fails.
[[nodiscard]] bool vollLesen(int fd, std::int64_t ab, std::span<std::uint8_t> satz);

} // namespace lonvir
