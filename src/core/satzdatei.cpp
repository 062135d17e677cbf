// Fixed-record files on POSIX: pread/pwrite at (n - 1) * record length.
#include "core/satzdatei.h"

#include "core/laufzeitfehler.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace lonvir {

Satzdatei::~Satzdatei() {
    schliessen();
}

Satzdatei::Satzdatei(Satzdatei&& andere) noexcept
    : fd_(andere.fd_), satzlaenge_(andere.satzlaenge_), pfad_(std::move(andere.pfad_)) {
    andere.fd_ = -1;
}

Satzdatei& Satzdatei::operator=(Satzdatei&& andere) noexcept {
    if (this != &andere) {
        schliessen();
        fd_ = andere.fd_;
        satzlaenge_ = andere.satzlaenge_;
        pfad_ = std::move(andere.pfad_);
        andere.fd_ = -1;
    }
    return *this;
}

void Satzdatei::oeffnen(const std::filesystem::path& pfad, int satzlaenge) {
    schliessen();
    fd_ = ::open(pfad.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0644);
    if (fd_ < 0)
        throw Dateifehler(pfad.string(),
                          std::string("kann nicht geöffnet werden (") + std::strerror(errno) + ")");
    satzlaenge_ = satzlaenge;
    pfad_ = pfad;
}

void Satzdatei::schliessen() {
    if (fd_ >= 0)
        ::close(fd_);
    fd_ = -1;
}

std::int64_t Satzdatei::laenge() const {
    struct stat st {};
    if (fd_ < 0 || ::fstat(fd_, &st) != 0)
        return 0;
    return st.st_size;
}

std::int64_t Satzdatei::versatz(std::int32_t nummer, std::size_t groesse) const {
    if (nummer < 1)
        throw Laufzeitfehler::satznummerfehler();
    if (fd_ < 0)
        throw Dateifehler(pfad_.string(), "ist nicht geöffnet");
    if (groesse != static_cast<std::size_t>(satzlaenge_))
        throw Dateifehler(pfad_.string(), "falsche Satzlänge");
    return static_cast<std::int64_t>(nummer - 1) * satzlaenge_;
}

void Satzdatei::lesen(std::int32_t nummer, std::span<std::uint8_t> satz) const {
    const std::int64_t ab = versatz(nummer, satz.size());
    std::fill(satz.begin(), satz.end(), std::uint8_t{0});
    std::size_t gelesen = 0;
    while (gelesen < satz.size()) {
        ssize_t n = ::pread(fd_, satz.data() + gelesen, satz.size() - gelesen,
                            static_cast<off_t>(ab + static_cast<std::int64_t>(gelesen)));
        if (n < 0 && errno == EINTR)
            continue;
        if (n < 0)
            throw Dateifehler(pfad_.string(),
                              "Satz " + std::to_string(nummer) + " kann nicht gelesen werden");
        if (n == 0)
            break;
        gelesen += static_cast<std::size_t>(n);
    }
}

void Satzdatei::schreiben(std::int32_t nummer, std::span<const std::uint8_t> satz) {
    const std::int64_t ab = versatz(nummer, satz.size());
    ssize_t n;
    do {
        n = ::pwrite(fd_, satz.data(), satz.size(), static_cast<off_t>(ab));
    } while (n < 0 && errno == EINTR);
    if (n != static_cast<ssize_t>(satz.size()))
        throw Dateifehler(pfad_.string(),
                          "Satz " + std::to_string(nummer) + " kann nicht geschrieben werden");
}

} // namespace lonvir
