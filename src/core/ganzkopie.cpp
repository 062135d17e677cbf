// The all-or-nothing copy: build under a temporary name, mark complete, move into place.
#include "core/ganzkopie.h"

#include "core/laufzeitfehler.h"
#include "core/schreibstoerung.h"

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <string>
#include <unistd.h>
#include <vector>

namespace lonvir::ganzkopie {

namespace fs = std::filesystem;

namespace {

// Marks a temporary folder as complete: from then on the copy is moved, not removed.
constexpr const char* fertigmarke = ".fertig";

const char* const nichtsAngelegt = "Der Arbeitsordner wurde nicht angelegt.";

// Copies one file. It is not flushed: the mark of completeness follows every write of the
// process, which a killed process keeps; a power failure before the page cache is written may
// leave a marked copy short, which the store's checks then report.
void dateikopieren(const fs::path& von, const fs::path& nach) {
    const int ein = ::open(von.c_str(), O_RDONLY | O_CLOEXEC);
    const int aus = ::open(nach.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644);
    bool gut = ein >= 0 && aus >= 0;
    int fehler = gut ? 0 : errno;
    std::vector<char> puffer(1 << 16);
    while (gut) {
        const ssize_t n = ::read(ein, puffer.data(), puffer.size());
        if (n < 0 && errno == EINTR)
            continue;
        if (n <= 0) {
            gut = n == 0;
            fehler = gut ? 0 : errno;
            break;
        }
        if (schreibstoerung::trifft()) {
            gut = false;
            fehler = ENOSPC;
            break;
        }
        for (ssize_t geschrieben = 0; gut && geschrieben < n;) {
            const ssize_t m = ::write(aus, puffer.data() + geschrieben,
                                      static_cast<std::size_t>(n - geschrieben));
            if (m < 0 && errno == EINTR)
                continue;
            gut = m > 0;
            fehler = gut ? 0 : errno;
            geschrieben += gut ? m : 0;
        }
    }
    if (ein >= 0)
        ::close(ein);
    if (aus >= 0)
        ::close(aus);
    if (!gut)
        throw Dateifehler(nach.filename().string(), std::string("kann nicht angelegt werden (") +
                                                        std::strerror(fehler) + "). " +
                                                        nichtsAngelegt);
}

// A folder of the copy; a folder that cannot be made is a file error that names it.
void ordneranlegen(const fs::path& ordner) {
    std::error_code fehler;
    fs::create_directories(ordner, fehler);
    if (fehler)
        throw Dateifehler(ordner.string(), "Ordner kann nicht angelegt werden (" +
                                               fehler.message() + "). " + nichtsAngelegt);
}

void baumkopieren(const fs::path& quelle, const fs::path& ziel) {
    ordneranlegen(ziel);
    for (const fs::directory_entry& e : fs::directory_iterator(quelle)) {
        const fs::path nach = ziel / e.path().filename();
        if (e.is_directory())
            baumkopieren(e.path(), nach);
        else if (e.is_regular_file())
            dateikopieren(e.path(), nach);
    }
}

// Moves the entries of `von` into `nach`; a folder that is there already is merged into.
void verschieben(const fs::path& von, const fs::path& nach) {
    ordneranlegen(nach);
    for (const fs::directory_entry& e : fs::directory_iterator(von)) {
        if (e.path().filename() == fertigmarke)
            continue;
        const fs::path ziel = nach / e.path().filename();
        std::error_code fehler;
        if (e.is_directory() && fs::is_directory(ziel))
            verschieben(e.path(), ziel);
        else
            fs::rename(e.path(), ziel, fehler);
        if (fehler)
            throw Dateifehler(ziel.string(), "kann nicht an seinen Platz gebracht werden");
    }
}

} // namespace

void einsetzen(const fs::path& quelle, const fs::path& ziel) {
    const fs::path neu = ziel / zwischenname;
    std::error_code fehler;
    ordneranlegen(ziel);
    fs::remove_all(neu, fehler);
    try {
        baumkopieren(quelle, neu);
        const int marke =
            ::open((neu / fertigmarke).c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644);
        if (marke < 0)
            throw Dateifehler(ziel.string(), nichtsAngelegt);
        ::close(marke);
    } catch (...) {
        fs::remove_all(neu, fehler);
        throw;
    }
    verschieben(neu, ziel);
    fs::remove_all(neu, fehler);
}

bool aufraeumen(const fs::path& ziel) {
    const fs::path neu = ziel / zwischenname;
    std::error_code fehler;
    if (!fs::exists(neu, fehler))
        return false;
    if (fs::exists(neu / fertigmarke, fehler))
        verschieben(neu, ziel);
    fs::remove_all(neu, fehler);
    if (fehler)
        throw Dateifehler(neu.string(), "kann nicht entfernt werden");
    return true;
}

} // namespace lonvir::ganzkopie
