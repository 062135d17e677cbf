// Checks of the store at open: what no run of the program could have written is damage, which
// is reported and never repaired by overwriting.
#pragma once

#include "core/arbeitsordner.h"
#include "core/laufzeitfehler.h"
#include "core/pruefvermerk.h"
#include "records/dimsatz.h"
#include "records/voeinsatz.h"

#include <cstdint>
#include <optional>
#include <span>
#include <string>

namespace lonvir {

// A damaged file: its name and what is wrong with it, in the user's words.
struct Schaden {
    std::string datei;
    std::string grund;
    // The message of the window and of the command line.
    [[nodiscard]] std::string meldung() const;
};

// The store of the folder is damaged: raised at open, before anything is written.
class Bestandsschaden : public Dateifehler {
public:
    explicit Bestandsschaden(Schaden s);
    [[nodiscard]] const Schaden& schaden() const { return schaden_; }
    [[nodiscard]] const char* what() const noexcept override { return meldung_.c_str(); }

private:
    Schaden schaden_;
    std::string meldung_;
};

// The rules of the checks below, as noted with the files found sound: a note taken under other
// rules does not hold.
inline constexpr std::uint32_t pruefregeln = 1;

// The person files of every layer of the year: the twelve month files agree in length, a
// multiple of 541, and the year file holds as many records of 1280 bytes; a January file that
// is empty or shorter than the others is damage, not a new store. Every record of a month
// file is either all zeros (a record past the end reads so) or carries its file's month, and
// none is all 0xFF bytes. With `vermerk`, a month file noted as sound with its present identity
// is not read again, and a file found sound is noted.
[[nodiscard]] std::optional<Schaden> personendateienpruefen(const Arbeitsordner& ordner, int jahr,
                                                            Pruefvermerk* vermerk = nullptr);

// The text table: no name record (5001 to 6000) with a control character in it.
[[nodiscard]] std::optional<Schaden> textepruefen(const Arbeitsordner& ordner,
                                                  Pruefvermerk* vermerk = nullptr);

// Both of the above, the text table first.
[[nodiscard]] std::optional<Schaden> bestandpruefen(const Arbeitsordner& ordner, int jahr,
                                                    Pruefvermerk* vermerk = nullptr);

// Whether `bytes` written to file `name` at `versatz` leave a file that the checks above found
// sound as sound: whole records of a month file, each all zeros or carrying the file's month;
// no control character in a name record of the text table. The program's own stores note so
// the files they write, which the next start then need not read.
[[nodiscard]] bool gesundgeschrieben(const std::string& name, std::int64_t versatz,
                                     std::span<const std::uint8_t> bytes);

// The settings records: colours 0 to 15, window places on some screen, a person count of at
// most 1000 (the start lock's kind has a branch for every value); list positions and step counts
// whole and within any list, the texts without control characters. The reason, if any.
[[nodiscard]] std::optional<std::string> dimpruefen(const Dimsatz& d);
[[nodiscard]] std::optional<std::string> voepruefen(const Voeinsatz& v);

// A byte that no text of the program holds: the control characters but the zero byte, which a
// read past the end gives.
[[nodiscard]] bool steuerzeichen(unsigned char c);

} // namespace lonvir
