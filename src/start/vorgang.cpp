// The transaction of a confirmed input over the session's files.
#include "start/vorgang.h"

#include "core/journal.h"
#include "core/laufzeitfehler.h"
#include "core/pfadname.h"
#include "start/bestandspruefung.h"
#include "start/dateisatz.h"

#include <exception>
#include <map>
#include <optional>
#include <string>

namespace lonvir {

namespace {
// The descriptors the store may write through, by file name.
std::map<std::string, int> offeneDateien(Sitzung& s, const std::vector<const Satzdatei*>& auch) {
    std::map<std::string, int> offen;
    auto eintragen = [&offen](const Satzdatei& d) {
        if (d.deskriptor() >= 0)
            offen.emplace(dateinamevon(d.pfad()), d.deskriptor());
    };
    for (const Satzdatei& d : s.dateien)
        eintragen(d);
    for (const Satzdatei* d : auch)
        eintragen(*d);
    return offen;
}

// The identities of the noted files a store changes, taken before the changes reach them.
using Vorher = std::map<std::string, std::optional<Dateikennung>>;

// The identity of the file `name` that the step changes, through its open descriptor if any.
std::optional<Dateikennung> kennungVon(const std::string& name,
                                       const Schreibvorgang::Schritt& schritt,
                                       const std::map<std::string, int>& offen) {
    const auto it = offen.find(name);
    return it != offen.end() ? dateikennung(it->second) : dateikennung(schritt.pfad);
}

Vorher vermerkteVorher(const Pruefvermerk& vermerk, const journal::Aenderungen& aenderungen,
                       const std::map<std::string, int>& offen) {
    Vorher vorher;
    for (const auto& schritt : aenderungen) {
        const std::string name = dateinamevon(schritt.pfad);
        if (!vorher.contains(name))
            vorher.emplace(name, vermerk.enthaelt(name) ? kennungVon(name, schritt, offen)
                                                        : std::nullopt);
    }
    return vorher;
}

// After a store: a file that was sound before it and got only sound records stays noted as
// sound, with its identity now; any other file it changed is read again by the next start. A
// write by another program between the check and the store changes the identity before it.
void vermerknachtragen(Pruefvermerk& vermerk, const Vorher& vorher,
                       const journal::Aenderungen& aenderungen,
                       const std::map<std::string, int>& offen) {
    if (!vermerk.aktiv())
        return;
    std::map<std::string, bool> gesund;
    for (const auto& schritt : aenderungen) {
        const std::string name = dateinamevon(schritt.pfad);
        const auto it = vorher.find(name);
        const bool warGesund = it != vorher.end() && it->second && vermerk.gilt(name, *it->second);
        bool& g = gesund.try_emplace(name, warGesund).first->second;
        g = g && schritt.art == Schreibvorgang::Schritt::Art::schreiben &&
            gesundgeschrieben(name, schritt.versatz, schritt.bytes);
    }
    for (const auto& schritt : aenderungen) {
        const std::string name = dateinamevon(schritt.pfad);
        const auto k = gesund[name] ? kennungVon(name, schritt, offen) : std::nullopt;
        if (k)
            vermerk.eintragen(name, *k);
        else
            vermerk.streichen(name);
    }
}
} // namespace

Vorgang::Vorgang(Sitzung& s) : s_(s), aussen_(!s.vorgang.aktiv()) {
    s_.lesepuffer.beginnen();
    if (aussen_)
        s_.vorgang.beginnen();
}

Vorgang::~Vorgang() {
    if (aussen_ && !fertig_ && !s_.nurLesen)
        s_.vorgang.verwerfen();
    s_.lesepuffer.beenden();
}

void Vorgang::abschliessen(const std::vector<const Satzdatei*>& auch) {
    fertig_ = true;
    // A session for reading only keeps its writes in memory: they are what it shows.
    if (!aussen_ || s_.nurLesen)
        return;
    // A deleted file is gone from the folder once applied: the set opens its new files.
    const bool neuOeffnen = s_.vorgang.loescht();
    // The files change now: what the action has read of them is old.
    s_.lesepuffer.allesvergessen();
    const std::map<std::string, int> offen = offeneDateien(s_, auch);
    Pruefvermerk& vermerk = s_.pruefvermerk;
    Vorher vorher;
    try {
        const journal::Aenderungen geschrieben = journal::festschreiben(
            s_.ordner.ordner(), s_.vorgang, offen, [&](const journal::Aenderungen& a) {
                if (vermerk.aktiv())
                    vorher = vermerkteVorher(vermerk, a, offen);
            });
        vermerknachtragen(vermerk, vorher, geschrieben, offen);
    } catch (...) {
        for (const auto& [name, k] : vorher)
            vermerk.streichen(name);
        s_.vorgang.verwerfen();
        if (neuOeffnen)
            dateienoeffnen(s_);
        throw;
    }
    s_.vorgang.verwerfen();
    if (neuOeffnen)
        dateienoeffnen(s_);
}

void nichtsgespeichert(const Vorgang& v) {
    try {
        throw;
    } catch (const Laufzeitfehler& f) {
        if (!v.aussen())
            throw;
        throw Laufzeitfehler(f.nummer(), f.text() + ". Es wurde nichts gespeichert.");
    }
}

} // namespace lonvir
