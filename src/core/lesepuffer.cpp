// What one action has read from its files, by file and offset.
#include "core/lesepuffer.h"

#include <algorithm>
#include <cerrno>
#include <unistd.h>

namespace lonvir {

bool vollLesen(int fd, std::int64_t ab, std::span<std::uint8_t> satz) {
    std::size_t gelesen = 0;
    while (fd >= 0 && gelesen < satz.size()) {
        const ssize_t n = ::pread(fd, satz.data() + gelesen, satz.size() - gelesen,
                                  static_cast<off_t>(ab + static_cast<std::int64_t>(gelesen)));
        if (n < 0 && errno == EINTR)
            continue;
        if (n < 0)
            return false;
        if (n == 0)
            break;
        gelesen += static_cast<std::size_t>(n);
    }
    std::fill(satz.begin() + static_cast<std::ptrdiff_t>(gelesen), satz.end(), std::uint8_t{0});
    return true;
}

void Lesepuffer::allesvergessen() {
    for (auto it = dateien_.begin(); it != dateien_.end();) {
        Datei& d = it->second;
        if (d.ganz && d.kennung) {
            d.bestaetigt = false;
            d.saetze.clear();
            ++it;
        } else {
            it = dateien_.erase(it);
        }
    }
}

// The whole file from what was kept when the file is unchanged, else read anew.
bool Lesepuffer::ganzlesen(Datei& d, int fd) {
    const std::optional<Dateikennung> k = dateikennung(fd);
    if (d.ganz && k && k == d.kennung) {
        d.bestaetigt = true;
        return true;
    }
    const std::int64_t laenge = k ? k->laenge : 0;
    d.inhalt.resize(static_cast<std::size_t>(laenge));
    d.ganz = vollLesen(fd, 0, d.inhalt);
    d.kennung = k;
    d.bestaetigt = d.ganz;
    return d.ganz;
}

bool Lesepuffer::lesen(const std::string& pfad, int fd, bool ganz, std::int64_t versatz,
                       std::span<std::uint8_t> satz) {
    Datei& d = dateien_[pfad];
    if (ganz && !d.bestaetigt && !ganzlesen(d, fd)) {
        dateien_.erase(pfad);
        return false;
    }
    if (d.ganz && d.bestaetigt) {
        std::fill(satz.begin(), satz.end(), std::uint8_t{0});
        const auto laenge = static_cast<std::int64_t>(d.inhalt.size());
        if (versatz < laenge) {
            const auto n =
                std::min<std::int64_t>(static_cast<std::int64_t>(satz.size()), laenge - versatz);
            std::copy_n(d.inhalt.begin() + versatz, n, satz.begin());
        }
        return true;
    }
    auto it = d.saetze.find(versatz);
    if (it != d.saetze.end() && it->second.size() == satz.size()) {
        std::copy(it->second.begin(), it->second.end(), satz.begin());
        return true;
    }
    if (!vollLesen(fd, versatz, satz))
        return false;
    d.saetze[versatz].assign(satz.begin(), satz.end());
    return true;
}

} // namespace lonvir
