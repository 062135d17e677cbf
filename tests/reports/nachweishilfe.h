// Helpers of the statement tests: persons with hand-made month records, lines laid out by
// hand, and the stored fields read straight from the bytes of a month file.
#pragma once

#include "records/personalsatz.h"
#include "start/satzzugriff.h"
#include "start/sitzung.h"
#include "start/texte.h"

#include <cstdint>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <string>
#include <utility>
#include <vector>

namespace lonvir::test {

// Person `person` named `name` with `satz` as its record of month index `monat`.
inline void personsetzen(Sitzung& s, int person, const std::string& name, int monat,
                         const Personalsatz& satz) {
    textschreiben(s, 5000 + person, name);
    if (s.anzahlnamen < person)
        s.anzahlnamen = static_cast<std::int16_t>(person);
    personalsatzschreiben(s, monat + 1, person, satz);
}

// A line of text with each piece starting at its column (1 the first), as worked out by hand.
inline std::string spalten(const std::vector<std::pair<int, std::string>>& stuecke) {
    std::string z;
    std::size_t zeichen = 0;
    for (const auto& [spalte, text] : stuecke) {
        z.append(static_cast<std::size_t>(spalte - 1) - zeichen, ' ');
        z += text;
        zeichen = static_cast<std::size_t>(spalte - 1);
        for (unsigned char c : text)
            zeichen += (c & 0xC0) == 0x80 ? 0 : 1;
    }
    return z;
}

// A 32-bit or 16-bit field of the record `nummer` of a file, at byte `ab` of the record.
struct Rohdatei {
    explicit Rohdatei(const std::filesystem::path& pfad) {
        std::ifstream ein(pfad, std::ios::binary);
        bytes.assign(std::istreambuf_iterator<char>(ein), std::istreambuf_iterator<char>());
    }
    [[nodiscard]] std::int32_t int32(int nummer, std::size_t ab) const {
        std::int32_t v = 0;
        std::memcpy(&v, bytes.data() + (nummer - 1) * 541 + ab, 4);
        return v;
    }
    [[nodiscard]] std::int16_t int16(int nummer, std::size_t ab) const {
        std::int16_t v = 0;
        std::memcpy(&v, bytes.data() + (nummer - 1) * 541 + ab, 2);
        return v;
    }
    // wert(i) at 90 + 4 i, nebenwert(i) at 274 + 4 i, merkmal(i) at 2 (i - 1).
    [[nodiscard]] std::int32_t wert(int nummer, int i) const { return int32(nummer, 90 + 4 * i); }
    [[nodiscard]] std::int32_t nebenwert(int nummer, int i) const {
        return int32(nummer, 274 + 4 * i);
    }
    [[nodiscard]] std::int16_t merkmal(int nummer, int i) const {
        return int16(nummer, 2 * (i - 1));
    }
    [[nodiscard]] int saetze() const { return static_cast<int>(bytes.size() / 541); }
    std::string bytes;
};

} // namespace lonvir::test
