// Replacing several files of the working folder at once: every new file is written beside
// its target under a temporary name and flushed; a list of the pairs, put in place by one
// rename, marks the moment from which the new state counts; then the renames follow. An
// interruption before the list leaves the old files, after it the next start completes the
// renames. Temporary names end in ".jwneu", the list is "Dateitausch.jwliste"; nothing else
// in the folder uses these endings.
#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <span>
#include <stdexcept>
#include <string>
#include <vector>

namespace lonvir {

// What an exchange does on the disk, one call of the probe before each.
enum class Tauschschritt { kopieren, schreiben, sichern, liste, umbenennen, loeschen };

// The folder lacks the room for the new files: `benoetigt` bytes, `frei` available.
class Platzmangel : public std::runtime_error {
public:
    Platzmangel(const std::filesystem::path& ordner, std::uintmax_t benoetigt, std::uintmax_t frei);
    [[nodiscard]] const std::filesystem::path& ordner() const { return ordner_; }
    [[nodiscard]] std::uintmax_t benoetigt() const { return benoetigt_; }
    [[nodiscard]] std::uintmax_t frei() const { return frei_; }

private:
    std::filesystem::path ordner_;
    std::uintmax_t benoetigt_;
    std::uintmax_t frei_;
};

namespace tausch {
inline constexpr const char* endung = ".jwneu";
inline constexpr const char* liste = "Dateitausch.jwliste";

// Tests stand in for the disk here: called before every step; a value other than 0 makes
// the step fail as if the system had answered with that error number (ENOSPC: a full disk).
// It may also end the process, as a kill would.
extern std::function<int(Tauschschritt)> probe;
// The free bytes of the folder's file system; tests may replace it.
extern std::function<std::uintmax_t(const std::filesystem::path&)> freierplatz;
} // namespace tausch

// The new version of one file, written with fixed-length records.
class Neudatei {
public:
    Neudatei(std::filesystem::path ziel, std::filesystem::path temp, int satzlaenge);
    ~Neudatei();
    Neudatei(const Neudatei&) = delete;
    Neudatei& operator=(const Neudatei&) = delete;

    // Writes record `nummer` (1-based) whole.
    void schreiben(std::int32_t nummer, std::span<const std::uint8_t> satz);
    [[nodiscard]] const std::filesystem::path& ziel() const { return ziel_; }
    [[nodiscard]] const std::filesystem::path& temp() const { return temp_; }

private:
    friend class Dateitausch;
    void anfangen(bool alterinhalt);
    void sichern();
    void schliessen();
    std::filesystem::path ziel_;
    std::filesystem::path temp_;
    int satzlaenge_;
    int fd_ = -1;
};

class Dateitausch {
public:
    // `ordner`: the working folder; leftovers of an earlier exchange are settled first.
    explicit Dateitausch(std::filesystem::path ordner);
    // Not carried out: the new files are removed and the old ones stay.
    ~Dateitausch();
    Dateitausch(const Dateitausch&) = delete;
    Dateitausch& operator=(const Dateitausch&) = delete;

    // The new version of the file at `ziel` (in the folder), begun as a copy of the file as
    // it stands, so that records not written keep their bytes; a missing file begins empty.
    Neudatei& datei(const std::filesystem::path& ziel, int satzlaenge);
    // Flushes every new file, puts the list in place and renames; from the list on the new
    // state stands even if the process ends here.
    void vollziehen();
    // Removes the new files; the old ones stay as they were.
    void verwerfen();

private:
    std::filesystem::path ordner_;
    std::vector<std::unique_ptr<Neudatei>> dateien_;
    bool vollzogen_ = false;
};

// Run at every start: a list left by an interrupted exchange completes its renames; every
// other leftover new file is removed. Returns the number of files renamed or removed.
int dateitauschaufraeumen(const std::filesystem::path& ordner);

// Flushes the folder's entries (names created, renamed or removed) to the disk.
void ordnersichern(const std::filesystem::path& ordner);

} // namespace lonvir
