// The write-ahead journal of the working folder: a transaction's writes go first into one
// journal file, which is flushed with the folder's entry of it; then they are applied to the
// record files, these are flushed, and only then is the journal removed, so a killed process
// and a power cut alike leave the old state or the whole new one. A complete journal found at the
// next start is applied again (applying twice gives the same bytes); an incomplete one is
// discarded, and the files then hold the old state.
#pragma once

#include "core/schreibvorgang.h"

#include <filesystem>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace lonvir::journal {

// The journal's name in the working folder.
inline constexpr const char* dateiname = "Lonvir97.jnl";

// The flushes of this process's stores so far: of the journal, of the folder's entries, and of
// the file system after applying. A store that changes something does one of each.
struct Flushzahl {
    long journal = 0;
    long ordner = 0;
    long dateisystem = 0;
};
[[nodiscard]] Flushzahl flushzahl();

// Stores every pending change of `v` in the folder `ordner`, all or nothing: reserves the
// space the files grow by, writes and flushes the journal and the folder, applies it, flushes
// the file system of the folder, removes the journal. Every file
// of the transaction must lie directly in `ordner`.
// A write that gives a record the bytes it already holds is left out; a transaction that
// changes nothing writes no journal and flushes nothing. `offen` names files the caller holds
// open (file name -> descriptor, opened for writing): they are written through these
// descriptors and stay open.
// Throws Dateifehler: before the journal is complete nothing has changed and the message says
// "Es wurde nichts gespeichert."; a failure while applying leaves the complete journal, which
// the next start applies.
// `vorDemAnwenden` sees the changes once the journal is safe and before they reach the files;
// the changes that were applied are returned (none when nothing changed).
using Aenderungen = std::vector<Schreibvorgang::Schritt>;
Aenderungen festschreiben(const std::filesystem::path& ordner, const Schreibvorgang& v,
                          const std::map<std::string, int>& offen = {},
                          const std::function<void(const Aenderungen&)>& vorDemAnwenden = {});

enum class Nachholen { keins, angewendet, verworfen };
// At start: applies a complete journal left by an interrupted store and discards an
// incomplete one.
Nachholen nachholen(const std::filesystem::path& ordner);

// The changes of a complete journal in the folder without applying them (a folder opened for
// reading only shows the state the journal leads to); none when there is no complete journal.
[[nodiscard]] std::optional<std::vector<Schreibvorgang::Schritt>>
lesen(const std::filesystem::path& ordner);

// The journal as bytes and back; decoding gives nothing for anything but a complete journal.
[[nodiscard]] std::vector<std::uint8_t>
kodieren(const std::vector<Schreibvorgang::Schritt>& schritte);
[[nodiscard]] std::optional<std::vector<Schreibvorgang::Schritt>>
dekodieren(std::span<const std::uint8_t> bytes);

} // namespace lonvir::journal
