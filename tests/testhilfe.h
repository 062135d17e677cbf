// Helpers of the tests: a temporary working folder per test and an opened session on it.
#pragma once

#include "core/dialoge.h"
#include "start/sitzung.h"

#include <filesystem>
#include <map>
#include <memory>
#include <string>

namespace lonvir::test {

// A fresh folder below the system's temp folder, removed with the object.
class Tempordner {
public:
    Tempordner();
    ~Tempordner();
    Tempordner(const Tempordner&) = delete;
    Tempordner& operator=(const Tempordner&) = delete;
    [[nodiscard]] const std::filesystem::path& pfad() const { return pfad_; }

private:
    std::filesystem::path pfad_;
};

// A session on a temporary folder with scripted message boxes, started as the program starts.
struct Umgebung {
    explicit Umgebung(std::int16_t jahr = 1997, std::int16_t schicht = 0);
    Tempordner ordner;
    SkriptDialoge dialoge;
    Sitzung s;
};

// A session on an empty temporary folder with the file set opened, but not started: no
// names, no persons, no settings read.
struct LeereUmgebung {
    explicit LeereUmgebung(std::int16_t schicht = 0);
    Tempordner ordner;
    SkriptDialoge dialoge;
    Sitzung s;
};

// A session on a temporary folder seeded with the installation data (sample staff), started.
struct Musterumgebung {
    explicit Musterumgebung(std::int16_t jahr = 1997, std::int16_t schicht = 0);
    Tempordner ordner;
    SkriptDialoge dialoge;
    Sitzung s;
};

// Writes the overtime rate (element 26) of the current person's tariff line of the month;
// the rate comes from the tariff on every full run, so a typed rate does not hold.
void ueberstundensatzsetzen(Sitzung& s, std::int32_t pfennig);

// The bytes of a file of the folder, matched without regard to case.
[[nodiscard]] std::string dateiinhalt(const std::filesystem::path& ordner, const std::string& name);
// Replaces a file of the folder by `inhalt`.
void dateisetzen(const std::filesystem::path& ordner, const std::string& name,
                 const std::string& inhalt);
// Every file of the folder (not its subfolders) by name, with its bytes.
[[nodiscard]] std::map<std::string, std::string> ordnerinhalt(const std::filesystem::path& ordner);

} // namespace lonvir::test
