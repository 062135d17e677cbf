// The note file: "LVPV", the rules, the folder's path, the entries, a checksum over all of it.
#include "core/pruefvermerk.h"

#include "core/pruefsumme.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <span>
#include <unistd.h>
#include <vector>

namespace lonvir {

namespace fs = std::filesystem;

namespace {

constexpr char kennzeichen[4] = {'L', 'V', 'P', 'V'};
// Beyond this many note files the oldest go; a working folder that comes back is read whole once.
constexpr std::size_t hoechstzahl = 100;

std::string hex(std::uint64_t wert) {
    static const char ziffern[] = "0123456789abcdef";
    std::string s(16, '0');
    for (int i = 15; i >= 0; --i, wert >>= 4)
        s[static_cast<std::size_t>(i)] = ziffern[wert & 0xF];
    return s;
}

class Schreiber {
public:
    template <typename T> void zahl(T w) {
        const auto* p = reinterpret_cast<const std::uint8_t*>(&w);
        bytes.insert(bytes.end(), p, p + sizeof w);
    }
    void text(const std::string& s) {
        zahl(static_cast<std::uint32_t>(s.size()));
        bytes.insert(bytes.end(), s.begin(), s.end());
    }
    std::vector<std::uint8_t> bytes;
};

class Leser {
public:
    explicit Leser(std::span<const std::uint8_t> b) : b_(b) {}
    template <typename T> bool zahl(T& w) {
        if (b_.size() - pos_ < sizeof w)
            return false;
        std::memcpy(&w, b_.data() + pos_, sizeof w);
        pos_ += sizeof w;
        return true;
    }
    bool text(std::string& s) {
        std::uint32_t n = 0;
        if (!zahl(n) || b_.size() - pos_ < n)
            return false;
        s.assign(reinterpret_cast<const char*>(b_.data() + pos_), n);
        pos_ += n;
        return true;
    }
    [[nodiscard]] bool amEnde() const { return pos_ == b_.size(); }

private:
    std::span<const std::uint8_t> b_;
    std::size_t pos_ = 0;
};

void kennungschreiben(Schreiber& s, const Dateikennung& k) {
    s.zahl(k.geraet);
    s.zahl(k.knoten);
    s.zahl(k.laenge);
    s.zahl(k.inhaltSekunden);
    s.zahl(k.inhaltNanos);
    s.zahl(k.eintragSekunden);
    s.zahl(k.eintragNanos);
}

bool kennunglesen(Leser& l, Dateikennung& k) {
    return l.zahl(k.geraet) && l.zahl(k.knoten) && l.zahl(k.laenge) && l.zahl(k.inhaltSekunden) &&
           l.zahl(k.inhaltNanos) && l.zahl(k.eintragSekunden) && l.zahl(k.eintragNanos);
}

std::vector<std::uint8_t> dateilesen(const fs::path& pfad) {
    std::vector<std::uint8_t> bytes;
    const int fd = ::open(pfad.c_str(), O_RDONLY | O_CLOEXEC);
    if (fd < 0)
        return bytes;
    std::uint8_t puffer[16384];
    ssize_t n = 0;
    while ((n = ::read(fd, puffer, sizeof puffer)) > 0)
        bytes.insert(bytes.end(), puffer, puffer + n);
    ::close(fd);
    if (n < 0)
        bytes.clear();
    return bytes;
}

// Overwrites the file in place: a new file per store would cost an entry in the folder each
// time. A note cut short by the end of the process fails its checksum and is not used.
bool dateischreiben(const fs::path& pfad, std::span<const std::uint8_t> bytes) {
    const int fd = ::open(pfad.c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, 0644);
    if (fd < 0)
        return false;
    std::size_t geschrieben = 0;
    while (geschrieben < bytes.size()) {
        const ssize_t n = ::pwrite(fd, bytes.data() + geschrieben, bytes.size() - geschrieben,
                                   static_cast<off_t>(geschrieben));
        if (n <= 0)
            break;
        geschrieben += static_cast<std::size_t>(n);
    }
    const bool ganz =
        geschrieben == bytes.size() && ::ftruncate(fd, static_cast<off_t>(bytes.size())) == 0;
    return ::close(fd) == 0 && ganz;
}

} // namespace

Pruefvermerk::~Pruefvermerk() {
    try {
        sichern();
    } catch (...) {
        // Only a shortcut: the next start reads the files.
    }
}

fs::path Pruefvermerk::standardablage() {
    if (const char* xdg = std::getenv("XDG_CACHE_HOME"); xdg != nullptr && *xdg == '/')
        return fs::path(xdg) / "lonvir97";
    if (const char* home = std::getenv("HOME"); home != nullptr && *home == '/')
        return fs::path(home) / ".cache" / "lonvir97";
    return {};
}

void Pruefvermerk::laden(const fs::path& ordner, std::uint32_t regelstand, const fs::path& ablage) {
    sichern();
    eintraege_.clear();
    geaendert_ = false;
    vorhanden_ = false;
    datei_.clear();
    if (ablage.empty())
        return;
    std::error_code fehler;
    ordner_ = fs::absolute(ordner, fehler).lexically_normal().string();
    if (fehler)
        return;
    regelstand_ = regelstand;
    const std::uint64_t h =
        pruefsumme({reinterpret_cast<const std::uint8_t*>(ordner_.data()), ordner_.size()});
    datei_ = ablage / ("pruefung-" + hex(h));

    const std::vector<std::uint8_t> bytes = dateilesen(datei_);
    vorhanden_ = !bytes.empty();
    if (bytes.size() < sizeof kennzeichen + sizeof(std::uint64_t) ||
        std::memcmp(bytes.data(), kennzeichen, sizeof kennzeichen) != 0)
        return;
    const auto inhalt = std::span(bytes).first(bytes.size() - sizeof(std::uint64_t));
    std::uint64_t summe = 0;
    std::memcpy(&summe, bytes.data() + inhalt.size(), sizeof summe);
    if (summe != pruefsumme(inhalt))
        return;
    Leser l(inhalt.subspan(sizeof kennzeichen));
    std::uint32_t regeln = 0;
    std::string pfad;
    std::uint32_t anzahl = 0;
    if (!l.zahl(regeln) || regeln != regelstand_ || !l.text(pfad) || pfad != ordner_ ||
        !l.zahl(anzahl))
        return;
    std::map<std::string, Dateikennung> gelesen;
    for (std::uint32_t i = 0; i < anzahl; ++i) {
        std::string name;
        Dateikennung k;
        if (!l.text(name) || !kennunglesen(l, k))
            return;
        gelesen.emplace(std::move(name), k);
    }
    if (l.amEnde())
        eintraege_ = std::move(gelesen);
}

bool Pruefvermerk::gilt(const std::string& name, const Dateikennung& k) const {
    const auto it = eintraege_.find(name);
    return it != eintraege_.end() && it->second == k;
}

void Pruefvermerk::eintragen(const std::string& name, const Dateikennung& k) {
    if (!aktiv() || gilt(name, k))
        return;
    eintraege_[name] = k;
    geaendert_ = true;
}

void Pruefvermerk::streichen(const std::string& name) {
    if (eintraege_.erase(name) > 0)
        geaendert_ = true;
}

void Pruefvermerk::sichern() {
    if (!aktiv() || !geaendert_)
        return;
    geaendert_ = false;
    Schreiber s;
    s.bytes.assign(std::begin(kennzeichen), std::end(kennzeichen));
    s.zahl(regelstand_);
    s.text(ordner_);
    s.zahl(static_cast<std::uint32_t>(eintraege_.size()));
    for (const auto& [name, k] : eintraege_) {
        s.text(name);
        kennungschreiben(s, k);
    }
    s.zahl(pruefsumme(s.bytes));

    std::error_code fehler;
    fs::create_directories(datei_.parent_path(), fehler);
    if (fehler)
        return;
    if (!vorhanden_)
        aufraeumen();
    if (!dateischreiben(datei_, s.bytes))
        ::unlink(datei_.c_str());
    vorhanden_ = true;
}

// A new note file: when there are many, the ones written longest ago go.
void Pruefvermerk::aufraeumen() const {
    std::error_code fehler;
    std::vector<std::pair<fs::file_time_type, fs::path>> dateien;
    for (fs::directory_iterator it(datei_.parent_path(), fehler), ende; !fehler && it != ende;
         it.increment(fehler)) {
        if (it->path().filename().string().rfind("pruefung-", 0) != 0)
            continue;
        std::error_code zeitfehler;
        const auto zeit = it->last_write_time(zeitfehler);
        if (!zeitfehler)
            dateien.emplace_back(zeit, it->path());
    }
    if (dateien.size() < hoechstzahl)
        return;
    std::sort(dateien.begin(), dateien.end());
    const std::size_t weg = dateien.size() - hoechstzahl * 3 / 4;
    for (std::size_t i = 0; i < weg; ++i)
        fs::remove(dateien[i].second, fehler);
}

} // namespace lonvir
