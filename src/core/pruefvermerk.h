// Which files of a working folder were last found sound, and with which identity. The check of
// the store at open reads every record of the three layers; a file whose identity has not
// changed since it was found sound, or since the program itself wrote sound records to it, holds
// the same bytes and need not be read again. The notes lie outside the working folder, in the
// user's cache folder, one file per working folder; they are only a shortcut: a note that is
// missing, damaged or of other rules makes the check read the files, as it always did.
#pragma once

#include "core/dateikennung.h"

#include <cstdint>
#include <filesystem>
#include <map>
#include <string>

namespace lonvir {

class Pruefvermerk {
public:
    Pruefvermerk() = default;
    // Keeps what changed; a note that cannot be written is simply not kept.
    ~Pruefvermerk();
    Pruefvermerk(const Pruefvermerk&) = delete;
    Pruefvermerk& operator=(const Pruefvermerk&) = delete;

    // The notes of the working folder `ordner` under rules `regelstand`, from the folder
    // `ablage` (none: nothing is noted). What was noted before under other rules is dropped.
    void laden(const std::filesystem::path& ordner, std::uint32_t regelstand,
               const std::filesystem::path& ablage = standardablage());
    [[nodiscard]] bool aktiv() const { return !datei_.empty(); }

    // Whether file `name` of the folder was found sound with exactly this identity.
    [[nodiscard]] bool gilt(const std::string& name, const Dateikennung& k) const;
    // Whether file `name` is noted at all, with whatever identity.
    [[nodiscard]] bool enthaelt(const std::string& name) const { return eintraege_.contains(name); }
    void eintragen(const std::string& name, const Dateikennung& k);
    void streichen(const std::string& name);

    // Writes the notes when they changed.
    void sichern();

    // $XDG_CACHE_HOME/lonvir97, else $HOME/.cache/lonvir97; none without either.
    [[nodiscard]] static std::filesystem::path standardablage();
    // The note file of the folder loaded last.
    [[nodiscard]] const std::filesystem::path& datei() const { return datei_; }

private:
    void aufraeumen() const;

    std::filesystem::path datei_;
    std::string ordner_;
    std::uint32_t regelstand_ = 0;
    std::map<std::string, Dateikennung> eintraege_;
    bool geaendert_ = false;
    bool vorhanden_ = false; // the note file existed when loaded
};

} // namespace lonvir
