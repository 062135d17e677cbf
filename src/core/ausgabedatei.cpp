// Output files written to a temporary name, then renamed.
#include "core/ausgabedatei.h"

#include "core/laufzeitfehler.h"

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <string>
#include <sys/stat.h>
#include <unistd.h>

namespace lonvir {

namespace {

// The reason in the user's words.
std::string grund(int fehler) {
    switch (fehler) {
    case ENOENT:
    case ENOTDIR:
        return "der Ordner ist nicht vorhanden";
    case EACCES:
    case EPERM:
        return "keine Schreibrechte";
    case EROFS:
        return "der Datenträger ist schreibgeschützt";
    case ENOSPC:
    case EDQUOT:
        return "der Datenträger ist voll";
    case EISDIR:
        return "der Name ist ein Ordner";
    default:
        return "Fehler " + std::to_string(fehler);
    }
}

// Writes every byte, repeating short writes.
bool allesschreiben(int fd, std::string_view inhalt) {
    const char* p = inhalt.data();
    std::size_t rest = inhalt.size();
    while (rest > 0) {
        const ssize_t n = ::write(fd, p, rest);
        if (n < 0) {
            if (errno == EINTR)
                continue;
            return false;
        }
        p += n;
        rest -= static_cast<std::size_t>(n);
    }
    return true;
}

} // namespace

void dateiersetzen(const std::filesystem::path& ziel, std::string_view inhalt) {
    const std::string name = ziel.string();
    // The temporary file lies in the target's folder, so the rename stays on one file system.
    std::string vorlage =
        (ziel.parent_path() / ("." + ziel.filename().string() + ".XXXXXX")).string();
    const int fd = ::mkstemp(vorlage.data());
    if (fd < 0)
        throw Dateifehler(name, "kann nicht geschrieben werden (" + grund(errno) + ").");
    const bool geschrieben = allesschreiben(fd, inhalt) && ::fsync(fd) == 0;
    const int schreibfehler = errno;
    // A new file gets the usual rights of the user, not the private ones of mkstemp.
    const mode_t maske = ::umask(0);
    ::umask(maske);
    ::fchmod(fd, 0666 & ~maske);
    const bool geschlossen = ::close(fd) == 0;
    if (!geschrieben || !geschlossen) {
        ::unlink(vorlage.c_str());
        throw Dateifehler(name, "kann nicht geschrieben werden (" +
                                    grund(geschrieben ? errno : schreibfehler) + ").");
    }
    if (std::rename(vorlage.c_str(), name.c_str()) != 0) {
        const int fehler = errno;
        ::unlink(vorlage.c_str());
        throw Dateifehler(name, "kann nicht angelegt werden (" + grund(fehler) + ").");
    }
}

} // namespace lonvir
