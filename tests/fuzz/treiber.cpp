// The regression driver of the fuzz targets: runs every saved input of every target (the seed
// corpus and the crash inputs found so far) once, in the ordinary build without libFuzzer.
#include "fuzzziel.h"

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <string>
#include <vector>

namespace lonvir::fuzz {

namespace {
std::map<std::string, Ziel>& ziele() {
    static std::map<std::string, Ziel> alle;
    return alle;
}
} // namespace

bool anmelden(const char* name, Ziel ziel) {
    ziele()[name] = ziel;
    return true;
}

void befund(const char* was) {
    std::fprintf(stderr, "Befund: %s\n", was);
    std::abort();
}

} // namespace lonvir::fuzz

// Arguments: the folders that hold one subfolder per target (korpus/, funde/).
int main(int argc, char** argv) {
    namespace fs = std::filesystem;
    int fehlend = 0;
    for (const auto& [name, ziel] : lonvir::fuzz::ziele()) {
        int eingaben = 0;
        for (int i = 1; i < argc; ++i) {
            const fs::path ordner = fs::path(argv[i]) / name;
            if (!fs::is_directory(ordner))
                continue;
            for (const fs::directory_entry& e : fs::directory_iterator(ordner)) {
                std::ifstream f(e.path(), std::ios::binary);
                const std::vector<std::uint8_t> daten{std::istreambuf_iterator<char>(f),
                                                      std::istreambuf_iterator<char>()};
                ziel(daten);
                ++eingaben;
            }
        }
        std::printf("%-14s %d Eingaben\n", name.c_str(), eingaben);
        if (eingaben == 0) {
            std::fprintf(stderr, "%s: kein Startkorpus\n", name.c_str());
            ++fehlend;
        }
    }
    return fehlend == 0 ? 0 : 1;
}
