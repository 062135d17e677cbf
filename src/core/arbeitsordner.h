// The working folder: file names matched without regard to case, length, time and delete.
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>

namespace lonvir {

class Arbeitsordner {
public:
    explicit Arbeitsordner(std::filesystem::path ordner = {});

    [[nodiscard]] const std::filesystem::path& ordner() const { return ordner_; }

    // The existing file whose name equals `kanonisch` but for case; otherwise the path under
    // the canonical name, which a new file gets.
    [[nodiscard]] std::filesystem::path pfad(const std::string& kanonisch) const;
    // Length in bytes; 0 when the file does not exist.
    [[nodiscard]] std::uintmax_t laenge(const std::string& name) const;
    [[nodiscard]] bool vorhanden(const std::string& name) const;
    [[nodiscard]] std::optional<std::filesystem::file_time_type>
    zeit(const std::string& name) const;
    // Deletes the file matched without regard to case; a missing file is no error.
    void loeschen(const std::string& name) const;
    // Creates the folder when it is absent.
    void anlegen() const;

private:
    [[nodiscard]] std::optional<std::filesystem::path> finden(const std::string& name) const;
    std::filesystem::path ordner_;
};

} // namespace lonvir
