// The floor of a `lonvir97-cli setzen` as a process: nothing but the reads and writes such an
// input needs. It opens the settings, the text table, the twelve month files of INFO and the
// first tariff file, reads the settings records, the person's name, the person's twelve months
// and one tariff record, and stores the prepared journal (its path is the second argument):
// written, flushed once, applied, removed. Then it prints one line, as the CLI prints the month.
//
//   lonvir_rohprozess ORDNER SCHRITTE PERSON
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <map>
#include <string>
#include <unistd.h>
#include <vector>

namespace {

std::string ordner;
std::map<std::string, int> offen;

int datei(const std::string& name) {
    auto it = offen.find(name);
    if (it != offen.end())
        return it->second;
    const int fd = ::open((ordner + "/" + name).c_str(), O_RDWR | O_CLOEXEC);
    if (fd < 0)
        std::exit(2);
    offen.emplace(name, fd);
    return fd;
}

void lesen(const std::string& name, long satz, std::size_t laenge) {
    std::vector<std::uint8_t> b(laenge);
    if (::pread(datei(name), b.data(), laenge,
                static_cast<off_t>((satz - 1) * static_cast<long>(laenge))) < 0)
        std::exit(2);
}

template <typename T> T zahl(const std::uint8_t*& p) {
    T w{};
    std::memcpy(&w, p, sizeof w);
    p += sizeof w;
    return w;
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 4)
        return 1;
    ordner = argv[1];
    const long person = std::atol(argv[3]);
    lesen("Lonvir97.voe", 1, 648);
    lesen("Lonvir97.dim", 1, 232);
    lesen("Texte.txt", 5000 + person, 35);
    for (int m = 1; m <= 12; ++m)
        lesen("L1997I." + std::to_string(m), person, 541);
    lesen("Lonvir97.1tr", 1, 108);

    std::vector<std::uint8_t> journal;
    {
        const int fd = ::open(argv[2], O_RDONLY | O_CLOEXEC);
        std::uint8_t puffer[65536];
        ssize_t n;
        while (fd >= 0 && (n = ::read(fd, puffer, sizeof puffer)) > 0)
            journal.insert(journal.end(), puffer, puffer + n);
        ::close(fd);
    }
    const std::string jnl = ordner + "/Lonvir97.jnl";
    const int fd = ::open(jnl.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644);
    if (fd < 0 || ::pwrite(fd, journal.data(), journal.size(), 0) < 0 || ::fdatasync(fd) != 0)
        return 2;
    ::close(fd);
    // The folder's entry of the journal flushed, as the program's store does.
    const int ordnerfd = ::open(ordner.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (ordnerfd < 0 || ::fsync(ordnerfd) != 0)
        return 2;
    // Magic, count, then per step: kind, name length, name, offset, length, bytes.
    const std::uint8_t* p = journal.data() + 4;
    const auto anzahl = zahl<std::uint32_t>(p);
    for (std::uint32_t i = 0; i < anzahl; ++i) {
        zahl<std::uint8_t>(p);
        const auto namenlaenge = zahl<std::uint16_t>(p);
        const std::string name(reinterpret_cast<const char*>(p), namenlaenge);
        p += namenlaenge;
        const auto versatz = zahl<std::int64_t>(p);
        const auto laenge = zahl<std::uint32_t>(p);
        if (::pwrite(datei(name), p, laenge, versatz) < 0)
            return 2;
        p += laenge;
    }
    // The records on the disk before the journal goes.
    if (::syncfs(ordnerfd) != 0)
        return 2;
    ::close(ordnerfd);
    ::unlink(jnl.c_str());
    std::printf("Person %ld gespeichert\n", person);
    return 0;
}
