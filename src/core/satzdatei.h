// A random-access file of fixed-length records, opened for read and write.
#pragma once

#include <cstdint>
#include <filesystem>
#include <span>
#include <string>

namespace lonvir {

class Satzdatei {
public:
    Satzdatei() = default;
    ~Satzdatei();
    Satzdatei(const Satzdatei&) = delete;
    Satzdatei& operator=(const Satzdatei&) = delete;
    Satzdatei(Satzdatei&& andere) noexcept;
    Satzdatei& operator=(Satzdatei&& andere) noexcept;

    // Opens the file, creating it with length 0 when absent.
    void oeffnen(const std::filesystem::path& pfad, int satzlaenge);
    void schliessen();

    [[nodiscard]] bool offen() const { return fd_ >= 0; }
    [[nodiscard]] int satzlaenge() const { return satzlaenge_; }
    [[nodiscard]] const std::filesystem::path& pfad() const { return pfad_; }
    [[nodiscard]] std::int64_t laenge() const;

    // Reads record `nummer` (1-based); the part past the end of the file reads as zeros.
    void lesen(std::int32_t nummer, std::span<std::uint8_t> satz) const;
    // Writes the whole record in one write.
    void schreiben(std::int32_t nummer, std::span<const std::uint8_t> satz);

private:
    std::int64_t versatz(std::int32_t nummer, std::size_t groesse) const;
    int fd_ = -1;
    int satzlaenge_ = 0;
    std::filesystem::path pfad_;
};

} // namespace lonvir
