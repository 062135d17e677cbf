// Fixed-record files on POSIX: pread/pwrite at (n - 1) * record length.
#include "core/satzdatei.h"

#include "core/laufzeitfehler.h"
#include "core/schreibstoerung.h"

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
    : fd_(andere.fd_), nurLesen_(andere.nurLesen_), vorgang_(andere.vorgang_),
      puffer_(andere.puffer_), ganz_(andere.ganz_), satzlaenge_(andere.satzlaenge_),
      pfad_(std::move(andere.pfad_)) {
    andere.fd_ = -1;
    andere.nurLesen_ = false;
}

Satzdatei& Satzdatei::operator=(Satzdatei&& andere) noexcept {
    if (this != &andere) {
        schliessen();
        fd_ = andere.fd_;
        nurLesen_ = andere.nurLesen_;
        vorgang_ = andere.vorgang_;
        puffer_ = andere.puffer_;
        ganz_ = andere.ganz_;
        satzlaenge_ = andere.satzlaenge_;
        andere.nurLesen_ = false;
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

void Satzdatei::lesendoeffnen(const std::filesystem::path& pfad, int satzlaenge) {
    schliessen();
    fd_ = ::open(pfad.c_str(), O_RDONLY | O_CLOEXEC);
    if (fd_ < 0 && errno != ENOENT)
        throw Dateifehler(pfad.string(),
                          std::string("kann nicht geöffnet werden (") + std::strerror(errno) + ")");
    nurLesen_ = true;
    satzlaenge_ = satzlaenge;
    pfad_ = pfad;
}

bool Satzdatei::oeffnenFallsVorhanden(const std::filesystem::path& pfad, int satzlaenge,
                                      bool lesend) {
    schliessen();
    fd_ = ::open(pfad.c_str(), (lesend ? O_RDONLY : O_RDWR) | O_CLOEXEC);
    if (fd_ < 0 && errno == ENOENT)
        return false;
    if (fd_ < 0)
        throw Dateifehler(pfad.string(),
                          std::string("kann nicht geöffnet werden (") + std::strerror(errno) + ")");
    nurLesen_ = lesend;
    satzlaenge_ = satzlaenge;
    pfad_ = pfad;
    return true;
}

void Satzdatei::schliessen() {
    if (fd_ >= 0)
        ::close(fd_);
    fd_ = -1;
    nurLesen_ = false;
}

std::int64_t Satzdatei::laenge() const {
    struct stat st {};
    const std::int64_t aufPlatte = fd_ < 0 || ::fstat(fd_, &st) != 0 ? 0 : st.st_size;
    return imVorgang() ? vorgang_->laenge(pfad_, aufPlatte) : aufPlatte;
}

std::int64_t Satzdatei::versatz(std::int32_t nummer, std::size_t groesse) const {
    if (nummer < 1)
        throw Laufzeitfehler::satznummerfehler();
    if (!offen())
        throw Dateifehler(pfad_.string(), "ist nicht geöffnet");
    if (groesse != static_cast<std::size_t>(satzlaenge_))
        throw Dateifehler(pfad_.string(), "falsche Satzlänge");
    return static_cast<std::int64_t>(nummer - 1) * satzlaenge_;
}

// A record that extends the file first takes its blocks, so that a full disk refuses the write
// whole instead of leaving a torn record at the end.
void Satzdatei::platzfuer(std::int64_t ende, std::int32_t nummer) const {
    struct stat st {};
    if (::fstat(fd_, &st) != 0 || st.st_size >= ende)
        return;
    if (::fallocate(fd_, FALLOC_FL_KEEP_SIZE, st.st_size, ende - st.st_size) == 0)
        return;
    const int fehler = errno;
    if (fehler == EOPNOTSUPP || fehler == ENOSYS)
        return;
    throw Dateifehler(pfad_.string(), "Satz " + std::to_string(nummer) +
                                          " kann nicht geschrieben werden (" +
                                          std::strerror(fehler) + ")");
}

void Satzdatei::lesen(std::int32_t nummer, std::span<std::uint8_t> satz) const {
    const std::int64_t ab = versatz(nummer, satz.size());
    const bool gelesen = puffer_ != nullptr && puffer_->aktiv()
                             ? puffer_->lesen(pfad_.native(), fd_, ganz_, ab, satz)
                             : vollLesen(fd_, ab, satz);
    if (!gelesen)
        throw Dateifehler(pfad_.string(),
                          "Satz " + std::to_string(nummer) + " kann nicht gelesen werden");
    if (imVorgang())
        vorgang_->ueberlagern(pfad_, ab, satz);
}

void Satzdatei::schreiben(std::int32_t nummer, std::span<const std::uint8_t> satz) {
    const std::int64_t ab = versatz(nummer, satz.size());
    if (imVorgang()) {
        vorgang_->schreiben(pfad_, ab, satz);
        return;
    }
    if (nurLesen_)
        throw Dateifehler(pfad_.string(), "ist nur zum Lesen geöffnet");
    if (schreibstoerung::trifft())
        throw Dateifehler(pfad_.string(), "Satz " + std::to_string(nummer) +
                                              " kann nicht geschrieben werden (" +
                                              std::strerror(ENOSPC) + ")");
    platzfuer(ab + static_cast<std::int64_t>(satz.size()), nummer);
    if (puffer_ != nullptr)
        puffer_->vergessen(pfad_.native());
    ssize_t n;
    do {
        n = ::pwrite(fd_, satz.data(), satz.size(), static_cast<off_t>(ab));
    } while (n < 0 && errno == EINTR);
    if (n != static_cast<ssize_t>(satz.size()))
        throw Dateifehler(pfad_.string(),
                          "Satz " + std::to_string(nummer) + " kann nicht geschrieben werden");
}

} // namespace lonvir
