// A file of the year before, read as it stands: opened for reading only, so that the copy
// can never change it; a file that does not exist reads as empty and is not created.
#pragma once

#include <cstdint>
#include <filesystem>
#include <span>

namespace lonvir {

class Altdatei {
public:
    Altdatei(const std::filesystem::path& pfad, int satzlaenge);
    ~Altdatei();
    Altdatei(const Altdatei&) = delete;
    Altdatei& operator=(const Altdatei&) = delete;

    [[nodiscard]] std::int64_t laenge() const { return laenge_; }
    // Records in the file: its length divided by the record length, rounded (ties to even).
    [[nodiscard]] std::int32_t saetze() const;
    // Record `nummer` (1-based); the part past the end reads as zeros.
    void lesen(std::int32_t nummer, std::span<std::uint8_t> satz) const;

private:
    std::filesystem::path pfad_;
    int satzlaenge_;
    int fd_ = -1;
    std::int64_t laenge_ = 0;
};

} // namespace lonvir
