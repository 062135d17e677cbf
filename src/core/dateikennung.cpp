// File identities from fstat and stat.
#include "core/dateikennung.h"

#include <ctime>
#include <sys/stat.h>

namespace lonvir {

namespace {
Dateikennung aus(const struct stat& st) {
    Dateikennung k;
    k.geraet = static_cast<std::uint64_t>(st.st_dev);
    k.knoten = static_cast<std::uint64_t>(st.st_ino);
    k.laenge = static_cast<std::int64_t>(st.st_size);
    k.inhaltSekunden = static_cast<std::int64_t>(st.st_mtim.tv_sec);
    k.inhaltNanos = static_cast<std::int64_t>(st.st_mtim.tv_nsec);
    k.eintragSekunden = static_cast<std::int64_t>(st.st_ctim.tv_sec);
    k.eintragNanos = static_cast<std::int64_t>(st.st_ctim.tv_nsec);
    return k;
}
} // namespace

std::optional<Dateikennung> dateikennung(int fd) {
    struct stat st {};
    if (fd < 0 || ::fstat(fd, &st) != 0 || !S_ISREG(st.st_mode))
        return std::nullopt;
    return aus(st);
}

std::optional<Dateikennung> dateikennung(const std::filesystem::path& pfad) {
    struct stat st {};
    if (::stat(pfad.c_str(), &st) != 0 || !S_ISREG(st.st_mode))
        return std::nullopt;
    return aus(st);
}

bool juengstGeaendert(const Dateikennung& k, double spanne) {
    timespec jetzt{};
    ::clock_gettime(CLOCK_REALTIME, &jetzt);
    const double alter = static_cast<double>(jetzt.tv_sec - k.eintragSekunden) +
                         static_cast<double>(jetzt.tv_nsec - k.eintragNanos) * 1e-9;
    return alter < spanne;
}

} // namespace lonvir
