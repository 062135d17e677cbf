// A random-access file of fixed-length records, opened for read and write.
#pragma once

#include "core/lesepuffer.h"
#include "core/schreibvorgang.h"

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
    // Opens the file for reading only; an absent file is not created and reads as empty.
    void lesendoeffnen(const std::filesystem::path& pfad, int satzlaenge);
    // Opens the file if it exists (for reading only with `lesend`); false when it is absent,
    // and the file stays closed.
    [[nodiscard]] bool oeffnenFallsVorhanden(const std::filesystem::path& pfad, int satzlaenge,
                                             bool lesend);
    // While `v` is active, writes go into it instead of the file, and reads and the length
    // see them; the binding survives closing and opening.
    void binden(Schreibvorgang* v) { vorgang_ = v; }
    // While `p` is active, reads are kept in it for the rest of the action. With `ganz` the
    // whole file is read at its first use (a small file read record by record, such as the
    // text table). The binding survives closing and opening.
    void binden(Lesepuffer* p, bool ganz = false) {
        puffer_ = p;
        ganz_ = ganz;
    }
    void schliessen();

    [[nodiscard]] bool offen() const { return fd_ >= 0 || nurLesen_; }
    [[nodiscard]] bool nurLesen() const { return nurLesen_; }
    [[nodiscard]] int satzlaenge() const { return satzlaenge_; }
    [[nodiscard]] const std::filesystem::path& pfad() const { return pfad_; }
    [[nodiscard]] std::int64_t laenge() const;
    // The open descriptor, -1 when none; for a store that writes through it.
    [[nodiscard]] int deskriptor() const { return nurLesen_ ? -1 : fd_; }

    // Reads record `nummer` (1-based); the part past the end of the file reads as zeros.
    void lesen(std::int32_t nummer, std::span<std::uint8_t> satz) const;
    // Writes the whole record in one write.
    void schreiben(std::int32_t nummer, std::span<const std::uint8_t> satz);

private:
    std::int64_t versatz(std::int32_t nummer, std::size_t groesse) const;
    void platzfuer(std::int64_t ende, std::int32_t nummer) const;
    [[nodiscard]] bool imVorgang() const { return vorgang_ != nullptr && vorgang_->aktiv(); }
    int fd_ = -1;
    bool nurLesen_ = false;
    Schreibvorgang* vorgang_ = nullptr;
    Lesepuffer* puffer_ = nullptr;
    bool ganz_ = false;
    int satzlaenge_ = 0;
    std::filesystem::path pfad_;
};

} // namespace lonvir
