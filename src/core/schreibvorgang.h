// Pending writes of one transaction: the records and deletions that are stored together or not
// at all. While a transaction is open its files are read through it, so a later step sees what
// an earlier step of the same transaction wrote.
#pragma once

#include <cstdint>
#include <filesystem>
#include <map>
#include <span>
#include <string>
#include <vector>

namespace lonvir {

class Schreibvorgang {
public:
    // One change of the working folder, in the order it was made.
    struct Schritt {
        enum class Art : std::uint8_t { schreiben = 1, loeschen = 2 };
        Art art = Art::schreiben;
        std::filesystem::path pfad;
        std::int64_t versatz = 0;
        std::vector<std::uint8_t> bytes;
    };

    [[nodiscard]] bool aktiv() const { return aktiv_; }
    void beginnen();
    // Forgets every pending change and ends the transaction.
    void verwerfen();

    void schreiben(const std::filesystem::path& pfad, std::int64_t versatz,
                   std::span<const std::uint8_t> bytes);
    // The file is deleted when the transaction is applied; until then it reads as empty.
    void loeschen(const std::filesystem::path& pfad);

    // Lays the pending writes over `satz`, which holds the file's bytes from `versatz` on; a
    // file deleted in the transaction reads as zeros below its new writes.
    void ueberlagern(const std::filesystem::path& pfad, std::int64_t versatz,
                     std::span<std::uint8_t> satz) const;
    // The length the file will have once applied, given its length on disk now.
    [[nodiscard]] std::int64_t laenge(const std::filesystem::path& pfad,
                                      std::int64_t aufPlatte) const;

    // The changes in order, one write per record (a record written twice keeps the last bytes).
    [[nodiscard]] std::vector<Schritt> schritte() const;
    [[nodiscard]] bool leer() const { return dateien_.empty(); }
    // Whether the transaction deletes a file: the files open on it must be opened anew after.
    [[nodiscard]] bool loescht() const;

private:
    struct Datei {
        bool geloescht = false;
        std::uint64_t geloeschtIn = 0;              // sequence number of the deletion
        std::map<std::int64_t, std::size_t> satzAn; // offset -> index into saetze
        std::vector<Schritt> saetze;
        std::vector<std::uint64_t> folge; // sequence number of each write
        std::int64_t ende = 0;
    };
    static std::string schluessel(const std::filesystem::path& pfad);
    bool aktiv_ = false;
    std::uint64_t zaehler_ = 0;
    std::map<std::string, Datei> dateien_;
};

} // namespace lonvir
