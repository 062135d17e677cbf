// Several files replaced at once on POSIX: temporary files, fsync, a list put in place by
// rename, then the renames; the start completes or removes what an interruption left.
#include "core/dateitausch.h"

#include "core/laufzeitfehler.h"

#include <array>
#include <cerrno>
#include <cstring>
#include <dirent.h>
#include <fcntl.h>
#include <fstream>
#include <optional>
#include <sstream>
#include <sys/statvfs.h>
#include <unistd.h>

namespace lonvir {

namespace fs = std::filesystem;

namespace tausch {

std::function<int(Tauschschritt)> probe;

std::function<std::uintmax_t(const fs::path&)> freierplatz = [](const fs::path& ordner) {
    struct statvfs st {};
    if (::statvfs(ordner.c_str(), &st) != 0)
        return static_cast<std::uintmax_t>(-1);
    return static_cast<std::uintmax_t>(st.f_bavail) * st.f_frsize;
};

} // namespace tausch

namespace {

std::string kb(std::uintmax_t bytes) {
    return std::to_string((bytes + 1023) / 1024) + " KB";
}

// The probe's answer for a step: 0 to go on, else the error number the step fails with.
int probieren(Tauschschritt schritt) {
    return tausch::probe ? tausch::probe(schritt) : 0;
}

bool platzfehler(int fehler) {
    return fehler == ENOSPC || fehler == EDQUOT;
}

[[noreturn]] void scheitern(const fs::path& datei, const std::string& was, int fehler) {
    if (platzfehler(fehler))
        throw Platzmangel(datei.parent_path(), 0, tausch::freierplatz(datei.parent_path()));
    throw Dateifehler(datei.string(), was + " (" + std::strerror(fehler) + ")");
}

// One whole write at `ab`, or the error number.
int allesschreiben(int fd, const std::uint8_t* daten, std::size_t laenge, off_t ab) {
    std::size_t geschrieben = 0;
    while (geschrieben < laenge) {
        const ssize_t n = ::pwrite(fd, daten + geschrieben, laenge - geschrieben,
                                   ab + static_cast<off_t>(geschrieben));
        if (n < 0 && errno == EINTR)
            continue;
        if (n <= 0)
            return n == 0 ? ENOSPC : errno;
        geschrieben += static_cast<std::size_t>(n);
    }
    return 0;
}

void umbenennen(const fs::path& von, const fs::path& nach) {
    int fehler = probieren(Tauschschritt::umbenennen);
    if (fehler == 0 && ::rename(von.c_str(), nach.c_str()) != 0)
        fehler = errno;
    if (fehler != 0)
        scheitern(nach, "kann nicht an ihren Platz gestellt werden", fehler);
}

void entfernen(const fs::path& datei) {
    int fehler = probieren(Tauschschritt::loeschen);
    if (fehler == 0 && ::unlink(datei.c_str()) != 0 && errno != ENOENT)
        fehler = errno;
    if (fehler != 0)
        scheitern(datei, "kann nicht gelöscht werden", fehler);
}

bool endetauf(const std::string& name, const std::string& endung) {
    return name.size() >= endung.size() &&
           name.compare(name.size() - endung.size(), endung.size(), endung) == 0;
}

// The pairs of a complete list, or nothing when it lacks its closing line.
std::optional<std::vector<std::pair<std::string, std::string>>> listelesen(const fs::path& p) {
    std::ifstream ein(p);
    std::vector<std::pair<std::string, std::string>> paare;
    std::string zeile;
    while (std::getline(ein, zeile)) {
        if (zeile == "ende")
            return paare;
        const auto tab = zeile.find('\t');
        if (tab == std::string::npos)
            return std::nullopt;
        paare.emplace_back(zeile.substr(0, tab), zeile.substr(tab + 1));
    }
    return std::nullopt;
}

} // namespace

Platzmangel::Platzmangel(const fs::path& ordner, std::uintmax_t benoetigt, std::uintmax_t frei)
    : std::runtime_error("Im Ordner " + ordner.string() + " ist nicht genug Platz: benötigt " +
                         kb(benoetigt) + ", frei " + kb(frei) + "."),
      ordner_(ordner), benoetigt_(benoetigt), frei_(frei) {}

void ordnersichern(const fs::path& ordner) {
    int fehler = probieren(Tauschschritt::sichern);
    const int fd = ::open(ordner.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (fehler == 0 && fd < 0)
        fehler = errno;
    if (fehler == 0 && ::fsync(fd) != 0)
        fehler = errno;
    if (fd >= 0)
        ::close(fd);
    if (fehler != 0)
        scheitern(ordner / ".", "Ordner kann nicht gesichert werden", fehler);
}

// --- Neudatei

Neudatei::Neudatei(fs::path ziel, fs::path temp, int satzlaenge)
    : ziel_(std::move(ziel)), temp_(std::move(temp)), satzlaenge_(satzlaenge) {}

Neudatei::~Neudatei() {
    schliessen();
}

void Neudatei::schliessen() {
    if (fd_ >= 0)
        ::close(fd_);
    fd_ = -1;
}

void Neudatei::anfangen(bool alterinhalt) {
    fd_ = ::open(temp_.c_str(), O_RDWR | O_CREAT | O_TRUNC | O_CLOEXEC, 0644);
    if (fd_ < 0)
        scheitern(temp_, "kann nicht angelegt werden", errno);
    if (!alterinhalt)
        return;
    const int alt = ::open(ziel_.c_str(), O_RDONLY | O_CLOEXEC);
    if (alt < 0)
        return; // a file that does not exist yet begins empty
    std::array<std::uint8_t, 65536> puffer{};
    off_t ab = 0;
    int fehler = 0;
    for (;;) {
        const ssize_t n = ::pread(alt, puffer.data(), puffer.size(), ab);
        if (n < 0 && errno == EINTR)
            continue;
        if (n < 0)
            fehler = errno;
        if (n <= 0)
            break;
        fehler = probieren(Tauschschritt::kopieren);
        if (fehler == 0)
            fehler = allesschreiben(fd_, puffer.data(), static_cast<std::size_t>(n), ab);
        if (fehler != 0)
            break;
        ab += n;
    }
    ::close(alt);
    if (fehler != 0)
        scheitern(temp_, "kann nicht kopiert werden", fehler);
}

void Neudatei::schreiben(std::int32_t nummer, std::span<const std::uint8_t> satz) {
    if (nummer < 1)
        throw Laufzeitfehler::satznummerfehler();
    if (satz.size() != static_cast<std::size_t>(satzlaenge_))
        throw Dateifehler(temp_.string(), "falsche Satzlänge");
    int fehler = probieren(Tauschschritt::schreiben);
    if (fehler == 0)
        fehler = allesschreiben(fd_, satz.data(), satz.size(),
                                static_cast<off_t>(nummer - 1) * satzlaenge_);
    if (fehler != 0)
        scheitern(temp_, "Satz " + std::to_string(nummer) + " kann nicht geschrieben werden",
                  fehler);
}

void Neudatei::sichern() {
    int fehler = probieren(Tauschschritt::sichern);
    if (fehler == 0 && ::fsync(fd_) != 0)
        fehler = errno;
    if (fehler != 0)
        scheitern(temp_, "kann nicht gesichert werden", fehler);
    schliessen();
}

// --- Dateitausch

Dateitausch::Dateitausch(fs::path ordner) : ordner_(std::move(ordner)) {
    dateitauschaufraeumen(ordner_);
}

Dateitausch::~Dateitausch() {
    if (vollzogen_)
        return;
    try {
        verwerfen();
    } catch (...) {
        // What stays behind is removed by the next start.
    }
}

Neudatei& Dateitausch::datei(const fs::path& ziel, int satzlaenge) {
    fs::path temp = ziel;
    temp += tausch::endung;
    dateien_.push_back(std::make_unique<Neudatei>(ziel, std::move(temp), satzlaenge));
    dateien_.back()->anfangen(true);
    return *dateien_.back();
}

void Dateitausch::verwerfen() {
    for (auto& d : dateien_) {
        d->schliessen();
        std::error_code fehler;
        fs::remove(d->temp(), fehler);
    }
    dateien_.clear();
}

void Dateitausch::vollziehen() {
    // 1. Every new file on the disk, and its name in the folder.
    for (auto& d : dateien_)
        d->sichern();
    ordnersichern(ordner_);
    // 2. The list: from its rename on, the new state stands.
    const fs::path liste = ordner_ / tausch::liste;
    fs::path listetemp = liste;
    listetemp += tausch::endung;
    try {
        std::ostringstream text;
        for (const auto& d : dateien_)
            text << d->temp().filename().string() << '\t' << d->ziel().filename().string() << '\n';
        text << "ende\n";
        const std::string inhalt = text.str();
        Neudatei l(liste, listetemp, static_cast<int>(inhalt.size()));
        l.anfangen(false);
        int fehler = probieren(Tauschschritt::liste);
        if (fehler == 0)
            fehler = allesschreiben(l.fd_, reinterpret_cast<const std::uint8_t*>(inhalt.data()),
                                    inhalt.size(), 0);
        if (fehler != 0)
            scheitern(listetemp, "kann nicht geschrieben werden", fehler);
        l.sichern();
        umbenennen(listetemp, liste);
    } catch (...) {
        std::error_code fehler;
        fs::remove(listetemp, fehler);
        throw;
    }
    vollzogen_ = true;
    // 3. The renames; what fails here the start completes, so try once more at once.
    try {
        ordnersichern(ordner_);
        for (const auto& d : dateien_)
            umbenennen(d->temp(), d->ziel());
        ordnersichern(ordner_);
        entfernen(liste);
        ordnersichern(ordner_);
    } catch (const std::exception&) {
        try {
            dateitauschaufraeumen(ordner_);
        } catch (const std::exception& fehler) {
            throw Dateifehler(ordner_.string(),
                              std::string("Die neuen Dateien stehen bereit, ihr Umbenennen wird "
                                          "beim nächsten Start abgeschlossen (") +
                                  fehler.what() + ")");
        }
    }
    dateien_.clear();
}

int dateitauschaufraeumen(const fs::path& ordner) {
    int erledigt = 0;
    std::error_code fehler;
    if (!fs::is_directory(ordner, fehler))
        return 0;
    const fs::path liste = ordner / tausch::liste;
    if (fs::exists(liste, fehler)) {
        if (const auto paare = listelesen(liste)) {
            for (const auto& [temp, ziel] : *paare) {
                if (fs::exists(ordner / temp, fehler)) {
                    umbenennen(ordner / temp, ordner / ziel);
                    ++erledigt;
                }
            }
            ordnersichern(ordner);
        }
        entfernen(liste);
        ordnersichern(ordner);
    }
    // Read straight from the folder: this runs at every start.
    std::vector<fs::path> reste;
    if (DIR* d = ::opendir(ordner.c_str())) {
        while (const dirent* e = ::readdir(d))
            if (endetauf(e->d_name, tausch::endung))
                reste.push_back(ordner / e->d_name);
        ::closedir(d);
    }
    for (const fs::path& rest : reste) {
        entfernen(rest);
        ++erledigt;
    }
    if (!reste.empty())
        ordnersichern(ordner);
    return erledigt;
}

} // namespace lonvir
