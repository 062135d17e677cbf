// The working folder on a case-sensitive file system: `l1997i.1` serves as `L1997I.1`.
#include "core/arbeitsordner.h"

#include "core/laufzeitfehler.h"

#include <algorithm>
#include <cctype>

namespace lonvir {

namespace fs = std::filesystem;

namespace {
std::string klein(std::string s) {
    std::transform(s.begin(), s.end(), s.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return s;
}
} // namespace

Arbeitsordner::Arbeitsordner(fs::path ordner) : ordner_(std::move(ordner)) {}

std::optional<fs::path> Arbeitsordner::finden(const std::string& name) const {
    std::error_code fehler;
    if (fs::exists(ordner_ / name, fehler))
        return ordner_ / name;
    const std::string gesucht = klein(name);
    for (fs::directory_iterator it(ordner_, fehler), ende; !fehler && it != ende;
         it.increment(fehler)) {
        if (klein(it->path().filename().string()) == gesucht)
            return it->path();
    }
    return std::nullopt;
}

fs::path Arbeitsordner::pfad(const std::string& kanonisch) const {
    return finden(kanonisch).value_or(ordner_ / kanonisch);
}

std::uintmax_t Arbeitsordner::laenge(const std::string& name) const {
    auto p = finden(name);
    std::error_code fehler;
    if (!p)
        return 0;
    auto n = fs::file_size(*p, fehler);
    return fehler ? 0 : n;
}

bool Arbeitsordner::vorhanden(const std::string& name) const {
    return finden(name).has_value();
}

std::optional<fs::file_time_type> Arbeitsordner::zeit(const std::string& name) const {
    auto p = finden(name);
    if (!p)
        return std::nullopt;
    std::error_code fehler;
    auto t = fs::last_write_time(*p, fehler);
    if (fehler)
        return std::nullopt;
    return t;
}

void Arbeitsordner::loeschen(const std::string& name) const {
    if (auto p = finden(name)) {
        std::error_code fehler;
        fs::remove(*p, fehler);
        if (fehler)
            throw Dateifehler(p->string(), "kann nicht gelöscht werden");
    }
}

void Arbeitsordner::anlegen() const {
    std::error_code fehler;
    fs::create_directories(ordner_, fehler);
    if (fehler)
        throw Dateifehler(ordner_.string(), "Ordner kann nicht angelegt werden");
}

} // namespace lonvir
