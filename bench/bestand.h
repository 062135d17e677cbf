// A started store of 1000 persons on a folder of its own, for the benchmarks that measure a
// keystroke, a click or a layer change at full size. The folder goes with the object.
#pragma once

#include "core/dialoge.h"
#include "start/dateisatz.h"
#include "start/sitzung.h"
#include "start/start.h"
#include "start/texte.h"

#include <filesystem>
#include <string>
#include <unistd.h>

namespace lonvir::bench {

struct Tausendbestand {
    explicit Tausendbestand(const std::string& name)
        : ordner(std::filesystem::temp_directory_path() /
                 ("lonvir-bench-" + name + "-" + std::to_string(::getpid()))) {
        std::filesystem::remove_all(ordner);
        s.ordner = Arbeitsordner(ordner);
        s.dialoge = &dialoge;
        dateienoeffnen(s);
        for (int n = 1; n <= 1000; ++n)
            textschreiben(s, 5000 + n, std::to_string(n) + ". Name");
        starten(s);
    }
    ~Tausendbestand() { std::filesystem::remove_all(ordner); }
    Tausendbestand(const Tausendbestand&) = delete;
    Tausendbestand& operator=(const Tausendbestand&) = delete;

    std::filesystem::path ordner;
    SkriptDialoge dialoge;
    Sitzung s;
};

} // namespace lonvir::bench
