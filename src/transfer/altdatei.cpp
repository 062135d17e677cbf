// Reading the files of the year before with pread; nothing here opens a file for writing.
#include "transfer/altdatei.h"

#include "core/laufzeitfehler.h"
#include "core/pfennig.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <string>
#include <sys/stat.h>
#include <unistd.h>

namespace lonvir {

Altdatei::Altdatei(const std::filesystem::path& pfad, int satzlaenge)
    : pfad_(pfad), satzlaenge_(satzlaenge) {
    fd_ = ::open(pfad.c_str(), O_RDONLY | O_CLOEXEC);
    if (fd_ < 0) {
        if (errno != ENOENT)
            throw Dateifehler(pfad.string(), "kann nicht gelesen werden");
        return;
    }
    struct stat st {};
    if (::fstat(fd_, &st) == 0)
        laenge_ = st.st_size;
}

Altdatei::~Altdatei() {
    if (fd_ >= 0)
        ::close(fd_);
}

std::int32_t Altdatei::saetze() const {
    return pf::gerundet(static_cast<double>(laenge_) / satzlaenge_);
}

void Altdatei::lesen(std::int32_t nummer, std::span<std::uint8_t> satz) const {
    if (nummer < 1)
        throw Laufzeitfehler::satznummerfehler();
    std::fill(satz.begin(), satz.end(), std::uint8_t{0});
    if (fd_ < 0)
        return;
    const off_t ab = static_cast<off_t>(nummer - 1) * satzlaenge_;
    std::size_t gelesen = 0;
    while (gelesen < satz.size()) {
        const ssize_t n = ::pread(fd_, satz.data() + gelesen, satz.size() - gelesen,
                                  ab + static_cast<off_t>(gelesen));
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

} // namespace lonvir
