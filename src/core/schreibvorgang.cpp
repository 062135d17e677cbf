// The pending writes of a transaction, kept per file and laid over what the file holds.
#include "core/schreibvorgang.h"

#include <algorithm>
#include <numeric>

namespace lonvir {

namespace {
// The indices of a file's writes in the order they were made.
template <typename Datei> std::vector<std::size_t> reihenfolge(const Datei& d) {
    std::vector<std::size_t> reihe(d.saetze.size());
    std::iota(reihe.begin(), reihe.end(), std::size_t{0});
    std::sort(reihe.begin(), reihe.end(),
              [&d](std::size_t a, std::size_t b) { return d.folge[a] < d.folge[b]; });
    return reihe;
}
} // namespace

std::string Schreibvorgang::schluessel(const std::filesystem::path& pfad) {
    // The session's paths are a folder and a name: normal as they stand.
    const std::string& roh = pfad.native();
    const bool normal = roh.find("/.") == std::string::npos &&
                        roh.find("//") == std::string::npos && !roh.ends_with('/') &&
                        !roh.starts_with('.');
    return normal ? roh : pfad.lexically_normal().string();
}

void Schreibvorgang::beginnen() {
    verwerfen();
    aktiv_ = true;
}

void Schreibvorgang::verwerfen() {
    dateien_.clear();
    zaehler_ = 0;
    aktiv_ = false;
}

void Schreibvorgang::schreiben(const std::filesystem::path& pfad, std::int64_t versatz,
                               std::span<const std::uint8_t> bytes) {
    Datei& d = dateien_[schluessel(pfad)];
    const std::uint64_t nummer = ++zaehler_;
    const auto [stelle, neu] = d.satzAn.try_emplace(versatz, d.saetze.size());
    if (neu) {
        d.saetze.push_back({Schritt::Art::schreiben, pfad, versatz, {}});
        d.folge.push_back(nummer);
    }
    Schritt& s = d.saetze[stelle->second];
    s.bytes.assign(bytes.begin(), bytes.end());
    d.folge[stelle->second] = nummer;
    d.ende = std::max(d.ende, versatz + static_cast<std::int64_t>(bytes.size()));
}

void Schreibvorgang::loeschen(const std::filesystem::path& pfad) {
    Datei& d = dateien_[schluessel(pfad)];
    d = Datei{};
    d.geloescht = true;
    d.geloeschtIn = ++zaehler_;
}

void Schreibvorgang::ueberlagern(const std::filesystem::path& pfad, std::int64_t versatz,
                                 std::span<std::uint8_t> satz) const {
    const auto it = dateien_.find(schluessel(pfad));
    if (it == dateien_.end())
        return;
    const Datei& d = it->second;
    if (d.geloescht)
        std::fill(satz.begin(), satz.end(), std::uint8_t{0});
    const std::int64_t ende = versatz + static_cast<std::int64_t>(satz.size());
    // Mostly one write lies over the record: it alone is laid over it.
    std::size_t treffer = 0;
    std::size_t einziger = 0;
    for (std::size_t i = 0; i < d.saetze.size() && treffer < 2; ++i) {
        const Schritt& s = d.saetze[i];
        if (s.versatz < ende && versatz < s.versatz + static_cast<std::int64_t>(s.bytes.size())) {
            ++treffer;
            einziger = i;
        }
    }
    if (treffer == 0)
        return;
    // Writes in the order they were made, so that a later one wins where two overlap.
    const std::vector<std::size_t> reihe =
        treffer == 1 ? std::vector<std::size_t>{einziger} : reihenfolge(d);
    for (std::size_t i : reihe) {
        const Schritt& s = d.saetze[i];
        const std::int64_t von = std::max(versatz, s.versatz);
        const std::int64_t bis =
            std::min(ende, s.versatz + static_cast<std::int64_t>(s.bytes.size()));
        if (von < bis)
            std::copy(s.bytes.begin() + (von - s.versatz), s.bytes.begin() + (bis - s.versatz),
                      satz.begin() + (von - versatz));
    }
}

std::int64_t Schreibvorgang::laenge(const std::filesystem::path& pfad,
                                    std::int64_t aufPlatte) const {
    const auto it = dateien_.find(schluessel(pfad));
    if (it == dateien_.end())
        return aufPlatte;
    const Datei& d = it->second;
    return std::max(d.geloescht ? 0 : aufPlatte, d.ende);
}

bool Schreibvorgang::loescht() const {
    return std::any_of(dateien_.begin(), dateien_.end(),
                       [](const auto& d) { return d.second.geloescht; });
}

std::vector<Schreibvorgang::Schritt> Schreibvorgang::schritte() const {
    std::vector<Schritt> alle;
    for (const auto& eintrag : dateien_) {
        const Datei& d = eintrag.second;
        if (d.geloescht)
            alle.push_back({Schritt::Art::loeschen, eintrag.first, 0, {}});
        for (std::size_t i : reihenfolge(d))
            alle.push_back(d.saetze[i]);
    }
    return alle;
}

} // namespace lonvir
