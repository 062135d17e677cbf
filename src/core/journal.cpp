// The journal file: magic, the changes, a checksum and an end mark; written, flushed, applied.
#include "core/journal.h"

#include "core/laufzeitfehler.h"
#include "core/pfadname.h"
#include "core/pruefsumme.h"
#include "core/schreibstoerung.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <map>
#include <set>
#include <string>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

namespace lonvir::journal {

namespace fs = std::filesystem;

namespace {

constexpr std::uint8_t kopf[4] = {'L', 'V', 'J', '1'};
constexpr std::uint8_t schluss[4] = {'E', 'N', 'D', 'E'};
constexpr std::uint32_t hoechstensSchritte = 10'000'000;
constexpr std::uint32_t hoechstensSatz = 1 << 20;
constexpr std::int64_t hoechstensVersatz = std::int64_t{1} << 40;

const char* const nichtsGespeichert = "Es wurde nichts gespeichert.";

template <typename T> void anhaengen(std::vector<std::uint8_t>& aus, T wert) {
    std::uint8_t b[sizeof(T)];
    for (std::size_t i = 0; i < sizeof(T); ++i)
        b[i] = static_cast<std::uint8_t>(static_cast<std::uint64_t>(wert) >> (8 * i));
    aus.insert(aus.end(), b, b + sizeof(T));
}

class Leser {
public:
    explicit Leser(std::span<const std::uint8_t> b) : b_(b) {}
    template <typename T> bool zahl(T& wert) {
        if (b_.size() - pos_ < sizeof(T))
            return false;
        std::uint64_t w = 0;
        for (std::size_t i = 0; i < sizeof(T); ++i)
            w |= static_cast<std::uint64_t>(b_[pos_ + i]) << (8 * i);
        wert = static_cast<T>(w);
        pos_ += sizeof(T);
        return true;
    }
    bool bytes(std::size_t n, std::span<const std::uint8_t>& aus) {
        if (b_.size() - pos_ < n)
            return false;
        aus = b_.subspan(pos_, n);
        pos_ += n;
        return true;
    }
    [[nodiscard]] std::size_t stelle() const { return pos_; }

private:
    std::span<const std::uint8_t> b_;
    std::size_t pos_ = 0;
};

bool gueltigerName(const std::string& name) {
    return !name.empty() && name != "." && name != ".." && name.find('/') == std::string::npos &&
           name.find('\0') == std::string::npos;
}

// A write of the whole buffer, as the file layer does it; the injected failure counts here too.
bool allesschreiben(int fd, std::span<const std::uint8_t> b, std::int64_t ab) {
    if (schreibstoerung::trifft()) {
        errno = ENOSPC;
        return false;
    }
    std::size_t geschrieben = 0;
    while (geschrieben < b.size()) {
        const ssize_t n = ::pwrite(fd, b.data() + geschrieben, b.size() - geschrieben,
                                   static_cast<off_t>(ab + static_cast<std::int64_t>(geschrieben)));
        if (n < 0 && errno == EINTR)
            continue;
        if (n <= 0)
            return false;
        geschrieben += static_cast<std::size_t>(n);
    }
    return true;
}

// The descriptors of one store: those the caller holds open, and those opened here, which are
// closed at the end. A file deleted in the store is opened anew for the writes after it.
class Deskriptoren {
public:
    Deskriptoren(fs::path ordner, const std::map<std::string, int>& geliehen)
        : ordner_(std::move(ordner)), geliehen_(geliehen) {}
    ~Deskriptoren() {
        for (const auto& [name, fd] : eigene_)
            ::close(fd);
    }
    Deskriptoren(const Deskriptoren&) = delete;
    Deskriptoren& operator=(const Deskriptoren&) = delete;

    // The file's descriptor, created with `anlegen`; -1 with errno when it cannot be opened.
    int holen(const std::string& name, bool anlegen) {
        if (auto it = eigene_.find(name); it != eigene_.end())
            return it->second;
        if (auto it = geliehen_.find(name); it != geliehen_.end() && !ersetzt_.contains(name))
            return it->second;
        const fs::path pfad = ordner_ / name;
        const int fd = ::open(pfad.c_str(), O_RDWR | O_CLOEXEC | (anlegen ? O_CREAT : 0), 0644);
        if (fd >= 0)
            eigene_.emplace(name, fd);
        return fd;
    }
    // Before the file is deleted: its descriptor is given up.
    void aufgeben(const std::string& name) {
        if (auto it = eigene_.find(name); it != eigene_.end()) {
            ::close(it->second);
            eigene_.erase(it);
        }
        ersetzt_.insert(name);
    }

private:
    fs::path ordner_;
    const std::map<std::string, int>& geliehen_;
    std::map<std::string, int> eigene_;
    std::set<std::string> ersetzt_;
};

// What the store has learnt of a file's length: at least so many bytes.
using Mindestlaengen = std::map<std::string, std::int64_t>;

// Whether the file holds exactly `bytes` at `versatz` (all of them within its length). A read
// of every byte tells that the file reaches that far.
bool haeltSchon(int fd, std::int64_t versatz, const std::vector<std::uint8_t>& bytes,
                std::int64_t& mindestlaenge) {
    if (fd < 0)
        return false;
    std::vector<std::uint8_t> alt(bytes.size());
    std::size_t gelesen = 0;
    while (gelesen < alt.size()) {
        const ssize_t n = ::pread(fd, alt.data() + gelesen, alt.size() - gelesen,
                                  static_cast<off_t>(versatz + static_cast<std::int64_t>(gelesen)));
        if (n < 0 && errno == EINTR)
            continue;
        if (n <= 0)
            return false;
        gelesen += static_cast<std::size_t>(n);
    }
    mindestlaenge = std::max(mindestlaenge, versatz + static_cast<std::int64_t>(alt.size()));
    return alt == bytes;
}

// Whether two writes of a file overlap; then their order matters and none may be left out.
bool ueberlappend(std::vector<std::pair<std::int64_t, std::int64_t>> bereiche) {
    std::sort(bereiche.begin(), bereiche.end());
    std::int64_t ende = 0;
    for (std::size_t i = 0; i < bereiche.size(); ++i) {
        if (i > 0 && bereiche[i].first < ende)
            return true;
        ende = std::max(ende, bereiche[i].second);
    }
    return false;
}

// The steps that change the folder: a write that gives a record the bytes the file already
// holds changes nothing, unless the file is deleted in the same store or two of its writes
// overlap.
std::vector<Schreibvorgang::Schritt> aenderungen(Deskriptoren& d,
                                                 std::vector<Schreibvorgang::Schritt> schritte,
                                                 Mindestlaengen& laengen) {
    using Art = Schreibvorgang::Schritt::Art;
    std::map<std::string, std::vector<std::pair<std::int64_t, std::int64_t>>> bereiche;
    std::set<std::string> festeFolge;
    for (const auto& s : schritte) {
        const std::string name = dateinamevon(s.pfad);
        if (s.art == Art::loeschen)
            festeFolge.insert(name);
        else
            bereiche[name].emplace_back(s.versatz,
                                        s.versatz + static_cast<std::int64_t>(s.bytes.size()));
    }
    for (const auto& [name, b] : bereiche)
        if (ueberlappend(b))
            festeFolge.insert(name);
    std::vector<Schreibvorgang::Schritt> noetig;
    noetig.reserve(schritte.size());
    for (auto& s : schritte) {
        const std::string name = dateinamevon(s.pfad);
        const bool unveraendert =
            s.art == Art::schreiben && !festeFolge.contains(name) &&
            haeltSchon(d.holen(name, false), s.versatz, s.bytes, laengen[name]);
        if (!unveraendert)
            noetig.push_back(std::move(s));
    }
    return noetig;
}

// The blocks a file grows by, taken before the journal is written, so that a full disk stops
// the store before anything has changed and not in the middle of applying it.
void platzreservieren(Deskriptoren& d, const fs::path& ordner,
                      const std::vector<Schreibvorgang::Schritt>& schritte,
                      const Mindestlaengen& laengen) {
    std::map<std::string, std::int64_t> ende;
    for (const auto& s : schritte)
        if (s.art == Schreibvorgang::Schritt::Art::schreiben) {
            std::int64_t& e = ende[dateinamevon(s.pfad)];
            e = std::max(e, s.versatz + static_cast<std::int64_t>(s.bytes.size()));
        }
    for (const auto& [name, e] : ende) {
        // A file known to reach that far does not grow.
        if (const auto it = laengen.find(name); it != laengen.end() && it->second >= e)
            continue;
        const fs::path pfad = ordner / name;
        const int fd = d.holen(name, true);
        if (fd < 0)
            throw Dateifehler(pfad.string(), std::string("kann nicht geöffnet werden (") +
                                                 std::strerror(errno) + "). " + nichtsGespeichert);
        struct stat st {};
        const bool waechst = ::fstat(fd, &st) == 0 && st.st_size < e;
        int fehler = 0;
        if (waechst) {
            fehler =
                ::fallocate(fd, FALLOC_FL_KEEP_SIZE, st.st_size, e - st.st_size) == 0 ? 0 : errno;
            if (fehler == EOPNOTSUPP || fehler == ENOSYS)
                fehler = 0; // a file system without reservation: the write itself will tell
        }
        if (fehler != 0)
            throw Dateifehler(pfad.string(), std::string("kein Platz für die Eingabe (") +
                                                 std::strerror(fehler) + "). " + nichtsGespeichert);
    }
}

Flushzahl gezaehlt;

// The working folder, opened once per store for its flushes.
class Ordner {
public:
    explicit Ordner(const fs::path& pfad)
        : fd_(::open(pfad.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)),
          oeffnungsfehler_(fd_ < 0 ? errno : 0) {}
    ~Ordner() {
        if (fd_ >= 0)
            ::close(fd_);
    }
    Ordner(const Ordner&) = delete;
    Ordner& operator=(const Ordner&) = delete;

    // The folder's own entries flushed: a file created in it is there after a power cut too.
    bool eintraegeflushen() {
        ++gezaehlt.ordner;
        return offen() && ::fsync(fd_) == 0;
    }
    // Every file of the folder's file system flushed.
    bool allesflushen() {
        ++gezaehlt.dateisystem;
        return offen() && ::syncfs(fd_) == 0;
    }

private:
    // False with errno of the failed open, so the caller's message names its cause.
    bool offen() const {
        if (fd_ < 0)
            errno = oeffnungsfehler_;
        return fd_ >= 0;
    }

    int fd_;
    int oeffnungsfehler_;
};

void journalschreiben(Ordner& ordner, const fs::path& pfad, std::span<const std::uint8_t> bytes) {
    const int fd = ::open(pfad.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644);
    bool gut = fd >= 0 && allesschreiben(fd, bytes, 0);
    int fehler = errno;
    if (gut) {
        gut = ::fdatasync(fd) == 0;
        ++gezaehlt.journal;
    }
    if (fd >= 0)
        ::close(fd);
    // The journal's name must outlast a power cut as well, or an older journal could be
    // replayed over this input's records.
    if (gut && !ordner.eintraegeflushen()) {
        fehler = errno;
        gut = false;
    }
    if (!gut) {
        ::unlink(pfad.c_str());
        throw Dateifehler(pfad.string(), std::string("Journal kann nicht geschrieben werden (") +
                                             std::strerror(fehler) + "). " + nichtsGespeichert);
    }
}

void anwenden(Deskriptoren& d, const fs::path& ordner,
              const std::vector<Schreibvorgang::Schritt>& schritte) {
    for (const auto& s : schritte) {
        const std::string name = dateinamevon(s.pfad);
        const fs::path pfad = ordner / name;
        if (s.art == Schreibvorgang::Schritt::Art::loeschen) {
            d.aufgeben(name);
            if (::unlink(pfad.c_str()) != 0 && errno != ENOENT)
                throw Dateifehler(pfad.string(), "kann nicht gelöscht werden");
            continue;
        }
        const int fd = d.holen(name, true);
        if (fd < 0)
            throw Dateifehler(pfad.string(), "kann nicht geöffnet werden");
        if (!allesschreiben(fd, s.bytes, s.versatz))
            throw Dateifehler(pfad.string(),
                              std::string("kann nicht geschrieben werden (") +
                                  std::strerror(errno) +
                                  "). Die Eingabe steht vollständig im Journal " + dateiname +
                                  " und wird beim nächsten Start zu Ende gespeichert.");
    }
}

// Everything applied is on the disk before the journal goes: after a power cut the files hold
// the input, or the journal still does. One flush of the file system for all files written.
void gesichert(Ordner& ordner, const fs::path& pfad) {
    if (!ordner.allesflushen())
        throw Dateifehler(pfad.string(),
                          std::string("kann nicht auf die Platte gebracht werden (") +
                              std::strerror(errno) + "). Die Eingabe steht vollständig im " +
                              "Journal " + dateiname +
                              " und wird beim nächsten Start zu Ende gespeichert.");
}

std::optional<std::vector<std::uint8_t>> dateilesen(const fs::path& pfad) {
    const int fd = ::open(pfad.c_str(), O_RDONLY | O_CLOEXEC);
    if (fd < 0)
        return std::nullopt;
    std::vector<std::uint8_t> b;
    std::uint8_t puffer[65536];
    for (;;) {
        const ssize_t n = ::read(fd, puffer, sizeof puffer);
        if (n < 0 && errno == EINTR)
            continue;
        if (n <= 0)
            break;
        b.insert(b.end(), puffer, puffer + n);
    }
    ::close(fd);
    return b;
}

// Whether `pfad` is the folder's text, one '/' and a name, as the session builds its paths.
bool direktIn(const fs::path& ordner, const fs::path& pfad) {
    const std::string& o = ordner.native();
    const std::string& p = pfad.native();
    return !o.empty() && p.size() > o.size() + 1 && p.compare(0, o.size(), o) == 0 &&
           p[o.size()] == '/' && p.find('/', o.size() + 1) == std::string::npos;
}

} // namespace

std::vector<std::uint8_t> kodieren(const std::vector<Schreibvorgang::Schritt>& schritte) {
    std::size_t groesse = sizeof kopf + 4 + 8 + sizeof schluss;
    for (const auto& s : schritte)
        groesse += 1 + 2 + s.pfad.filename().native().size() + 8 + 4 + s.bytes.size();
    std::vector<std::uint8_t> b;
    b.reserve(groesse);
    b.insert(b.end(), std::begin(kopf), std::end(kopf));
    anhaengen(b, static_cast<std::uint32_t>(schritte.size()));
    for (const auto& s : schritte) {
        const std::string name = s.pfad.filename().string();
        anhaengen(b, static_cast<std::uint8_t>(s.art));
        anhaengen(b, static_cast<std::uint16_t>(name.size()));
        b.insert(b.end(), name.begin(), name.end());
        anhaengen(b, s.versatz);
        anhaengen(b, static_cast<std::uint32_t>(s.bytes.size()));
        b.insert(b.end(), s.bytes.begin(), s.bytes.end());
    }
    anhaengen(b, pruefsumme(b));
    b.insert(b.end(), std::begin(schluss), std::end(schluss));
    return b;
}

std::optional<std::vector<Schreibvorgang::Schritt>> dekodieren(std::span<const std::uint8_t> b) {
    Leser l(b);
    std::span<const std::uint8_t> marke;
    std::uint32_t anzahl = 0;
    if (!l.bytes(4, marke) || !std::equal(marke.begin(), marke.end(), kopf) || !l.zahl(anzahl) ||
        anzahl > hoechstensSchritte)
        return std::nullopt;
    std::vector<Schreibvorgang::Schritt> schritte;
    for (std::uint32_t i = 0; i < anzahl; ++i) {
        std::uint8_t art = 0;
        std::uint16_t namenlaenge = 0;
        std::span<const std::uint8_t> name, bytes;
        std::int64_t versatz = 0;
        std::uint32_t laenge = 0;
        if (!l.zahl(art) || !l.zahl(namenlaenge) || !l.bytes(namenlaenge, name) ||
            !l.zahl(versatz) || !l.zahl(laenge) || laenge > hoechstensSatz ||
            !l.bytes(laenge, bytes))
            return std::nullopt;
        const std::string n(name.begin(), name.end());
        const bool schreibt =
            art == static_cast<std::uint8_t>(Schreibvorgang::Schritt::Art::schreiben);
        const bool loescht =
            art == static_cast<std::uint8_t>(Schreibvorgang::Schritt::Art::loeschen);
        if ((!schreibt && !loescht) || !gueltigerName(n) || versatz < 0 ||
            versatz > hoechstensVersatz)
            return std::nullopt;
        schritte.push_back({static_cast<Schreibvorgang::Schritt::Art>(art), n, versatz,
                            std::vector<std::uint8_t>(bytes.begin(), bytes.end())});
    }
    const std::size_t inhalt = l.stelle();
    std::uint64_t summe = 0;
    if (!l.zahl(summe) || summe != pruefsumme(b.first(inhalt)) || !l.bytes(4, marke) ||
        !std::equal(marke.begin(), marke.end(), schluss) || l.stelle() != b.size())
        return std::nullopt;
    return schritte;
}

Flushzahl flushzahl() {
    return gezaehlt;
}

Aenderungen festschreiben(const fs::path& ordner, const Schreibvorgang& v,
                          const std::map<std::string, int>& offen,
                          const std::function<void(const Aenderungen&)>& vorDemAnwenden) {
    if (v.leer())
        return {};
    std::vector<Schreibvorgang::Schritt> schritte = v.schritte();
    const fs::path normal = ordner.lexically_normal();
    for (const auto& s : schritte)
        if (!direktIn(ordner, s.pfad) && s.pfad.parent_path().lexically_normal() != normal)
            throw Dateifehler(s.pfad.string(), "liegt nicht im Arbeitsordner");
    Deskriptoren d(ordner, offen);
    Mindestlaengen laengen;
    schritte = aenderungen(d, std::move(schritte), laengen);
    // Nothing changes: no journal, no flush.
    if (schritte.empty())
        return {};
    platzreservieren(d, ordner, schritte, laengen);
    const fs::path pfad = ordner / dateiname;
    Ordner o(ordner);
    journalschreiben(o, pfad, kodieren(schritte));
    if (vorDemAnwenden)
        vorDemAnwenden(schritte);
    anwenden(d, ordner, schritte);
    gesichert(o, ordner);
    ::unlink(pfad.c_str());
    return schritte;
}

std::optional<std::vector<Schreibvorgang::Schritt>> lesen(const fs::path& ordner) {
    const auto b = dateilesen(ordner / dateiname);
    if (!b)
        return std::nullopt;
    return dekodieren(*b);
}

Nachholen nachholen(const fs::path& ordner) {
    const fs::path pfad = ordner / dateiname;
    const auto b = dateilesen(pfad);
    if (!b)
        return Nachholen::keins;
    const auto schritte = dekodieren(*b);
    if (schritte) {
        const std::map<std::string, int> keine;
        Deskriptoren d(ordner, keine);
        anwenden(d, ordner, *schritte);
        Ordner o(ordner);
        gesichert(o, ordner);
    }
    if (::unlink(pfad.c_str()) != 0)
        throw Dateifehler(pfad.string(), "kann nicht gelöscht werden");
    return schritte ? Nachholen::angewendet : Nachholen::verworfen;
}

} // namespace lonvir::journal
